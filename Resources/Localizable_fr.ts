<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>STEXT_TAB1</source>
        <translation>Réglages d’impression</translation>
    </message>
    <message>
        <source>STEXT_TAB2</source>
        <translation>Réglages avancés</translation>
    </message>
    <message>
        <source>RS_Density</source>
        <translation>Densité d’impression :</translation>
    </message>
    <message>
        <source>RS_Speed</source>
        <translation>Vitesse d’impression :</translation>
    </message>
    <message>
        <source>RS_Media</source>
        <translation>Type de papier :</translation>
    </message>
    <message>
        <source>RS_FormFeedMode</source>
        <translation>Avance de page :</translation>
    </message>
    <message>
        <source>RS_PaperFeed</source>
        <translation>Avance du papier :</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <translation>Trame :</translation>
    </message>
    <message>
        <source>HC_Option</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>RS_Perforated</source>
        <translation>Papier perforé</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint</source>
        <translation>Boîtier pour rouleau</translation>
    </message>
    <message>
        <source>RS_Density_home</source>
        <translation>Réglage de l’imprimante</translation>
    </message>
    <message>
        <source>RS_Density_0</source>
        <translation>Niveau 0 (le plus clair)</translation>
    </message>
    <message>
        <source>RS_Density_10</source>
        <translation>Niveau 10 (le plus foncé)</translation>
    </message>
    <message>
        <source>RS_Density_1</source>
        <translation>Niveau 1</translation>
    </message>
    <message>
        <source>RS_Density_2</source>
        <translation>Niveau 2</translation>
    </message>
    <message>
        <source>RS_Density_3</source>
        <translation>Niveau 3</translation>
    </message>
    <message>
        <source>RS_Density_4</source>
        <translation>Niveau 4</translation>
    </message>
    <message>
        <source>RS_Density_5</source>
        <translation>Niveau 5</translation>
    </message>
    <message>
        <source>RS_Density_6</source>
        <translation>Niveau 6</translation>
    </message>
    <message>
        <source>RS_Density_7</source>
        <translation>Niveau 7</translation>
    </message>
    <message>
        <source>RS_Density_8</source>
        <translation>Niveau 8</translation>
    </message>
    <message>
        <source>RS_Density_9</source>
        <translation>Niveau 9</translation>
    </message>
    <message>
        <source>RS_Speed_home</source>
        <translation>Réglage de l’imprimante</translation>
    </message>
    <message>
        <source>RS_Speed_0</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>RS_Speed_1</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>RS_Speed_2</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>RS_Speed_3</source>
        <translation>La plus rapide</translation>
    </message>
    <message>
        <source>RS_Media_Thermal</source>
        <translation>Papier thermique</translation>
    </message>
    <message>
        <source>RS_Media_ThermalCopy</source>
        <translation>Papier thermique autocopiant</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_NO</source>
        <translation>Sans avance de page</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_FIX</source>
        <translation>Longueur de page fixe</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_END</source>
        <translation>Fin de page</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_RET</source>
        <translation>Rappel du papier</translation>
    </message>
    <message>
        <source>RS_PaperFeed_NO</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1/2</source>
        <translation>1/2 pouce</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1</source>
        <translation>1 pouce</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1-1/2</source>
        <translation>1-1/2 pouce</translation>
    </message>
    <message>
        <source>RS_PaperFeed_2</source>
        <translation>2 pouces</translation>
    </message>
    <message>
        <source>RS_Perforated_ON</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>RS_Perforated_OFF</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_DEFAULT</source>
        <translation>Réglage par défaut</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_OFF</source>
        <translation>Non utilisé</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ON</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ONWithoutAntiCurl</source>
        <translation>Utilisé, sans anti-ondulation</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <translation>Tramage ordonné</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <translation>Diffusion d’erreur</translation>
    </message>
    <message>
        <source>HC_Reversal</source>
        <translation>Inverser le noir et le blanc</translation>
    </message>
    <message>
        <source>HC_Mirror</source>
        <translation>Image en miroir</translation>
    </message>
    <message>
        <source>HC_BiDiPrint</source>
        <translation>Impression bidirectionnelle</translation>
    </message>
    <message>
        <source>RS_STitle_Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>RS_STitle_Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>RS_STitle_Density</source>
        <translation>Densité d’impression</translation>
    </message>
    <message>
        <source>RS_STitle_Media</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>RS_STitle_FormFeedMode</source>
        <translation>Avance de page</translation>
    </message>
    <message>
        <source>RS_STitle_PaperFeed</source>
        <translation>Avance du papier</translation>
    </message>
    <message>
        <source>RS_STitle_Perforated</source>
        <translation>Papier perforé</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <translation>Trame</translation>
    </message>
    <message>
        <source>HC_STitle_Reversal</source>
        <translation>Inverser le noir et le blanc</translation>
    </message>
    <message>
        <source>HC_STitle_Mirror</source>
        <translation>Image en miroir</translation>
    </message>
    <message>
        <source>HC_STitle_BiDiPrint</source>
        <translation>Impression bidirectionnelle</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Unsupported Size Title</source>
        <translation>L’avance du papier est hors limites.</translation>
    </message>
    <message>
        <source>Unsupported Size MSG1</source>
        <translation>Entrez un nombre entier de 1 à 51 mm, sans zéro initial.</translation>
    </message>
    <message>
        <source>Unsupported Size MSG2</source>
        <translation>Entrez une valeur de 0.1 à 2.0 pouces, avec une décimale.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Ce format de papier ne peut pas être imprimé.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>Le papier est hors des formats acceptés par cette imprimante. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>Choisissez un autre format de papier.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>Un format personnalisé doit respecter les limites de l’imprimante.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>Vérifiez la largeur et la hauteur : elles ne sont pas échangées.</translation>
    </message>
    <message>
        <source>AX_PaperFeedStepper</source>
        <translation>Avance du papier</translation>
    </message>
    <message>
        <source>AX_Increase</source>
        <translation>Augmenter</translation>
    </message>
    <message>
        <source>AX_Decrease</source>
        <translation>Diminuer</translation>
    </message>
    <message>
        <source>AX_HalftonePreview</source>
        <translation>Aperçu de la trame</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_None</source>
        <translation>Aucun exemple</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Binary</source>
        <translation>Une boule ombrée en noir et blanc purs, sans nuances</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Dither</source>
        <translation>Une boule ombrée dont les nuances forment un motif régulier de points</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Diffusion</source>
        <translation>Une boule ombrée dont les nuances sont faites de points finement dispersés</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Densité d’impression</translation>
    </message>
    <message>
        <source>Print Density : </source>
        <translation>Densité d’impression :</translation>
    </message>
    <message>
        <source>Print Speed</source>
        <translation>Vitesse d’impression</translation>
    </message>
    <message>
        <source>Print Speed : </source>
        <translation>Vitesse d’impression :</translation>
    </message>
    <message>
        <source>Paper Type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>Paper Type : </source>
        <translation>Type de papier :</translation>
    </message>
    <message>
        <source>Form Feed</source>
        <translation>Avance de page</translation>
    </message>
    <message>
        <source>Form Feed : </source>
        <translation>Avance de page :</translation>
    </message>
    <message>
        <source>Paper Feed</source>
        <translation>Avance du papier</translation>
    </message>
    <message>
        <source>Paper Feed : </source>
        <translation>Avance du papier :</translation>
    </message>
    <message>
        <source>Perforated Paper</source>
        <translation>Papier perforé</translation>
    </message>
    <message>
        <source>Perforated Paper : </source>
        <translation>Papier perforé :</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Trame</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <translation>Trame :</translation>
    </message>
    <message>
        <source>Reverse Black and White</source>
        <translation>Inverser le noir et le blanc</translation>
    </message>
    <message>
        <source>Reverse Black and White : </source>
        <translation>Inverser le noir et le blanc :</translation>
    </message>
    <message>
        <source>Mirror Image</source>
        <translation>Image en miroir</translation>
    </message>
    <message>
        <source>Mirror Image : </source>
        <translation>Image en miroir :</translation>
    </message>
    <message>
        <source>Bi-directional Printing</source>
        <translation>Impression bidirectionnelle</translation>
    </message>
    <message>
        <source>Bi-directional Printing : </source>
        <translation>Impression bidirectionnelle :</translation>
    </message>
    <message>
        <source>Roll Printer Case</source>
        <translation>Boîtier pour rouleau</translation>
    </message>
    <message>
        <source>Roll Printer Case : </source>
        <translation>Boîtier pour rouleau :</translation>
    </message>
    <message>
        <source>Kind of Paper</source>
        <translation>Forme du papier</translation>
    </message>
    <message>
        <source>Kind of Paper : </source>
        <translation>Forme du papier :</translation>
    </message>
    <message>
        <source>Use Printer Setting</source>
        <translation>Réglage de l’imprimante</translation>
    </message>
    <message>
        <source>Level 0 (Lightest)</source>
        <translation>Niveau 0 (le plus clair)</translation>
    </message>
    <message>
        <source>Level 10 (Darkest)</source>
        <translation>Niveau 10 (le plus foncé)</translation>
    </message>
    <message>
        <source>Thermal Paper</source>
        <translation>Papier thermique</translation>
    </message>
    <message>
        <source>Thermal Copy Paper</source>
        <translation>Papier thermique autocopiant</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Tramage ordonné</translation>
    </message>
    <message>
        <source>Error Diffusion</source>
        <translation>Diffusion d’erreur</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>La plus rapide</translation>
    </message>
    <message>
        <source>No Form Feed</source>
        <translation>Sans avance de page</translation>
    </message>
    <message>
        <source>Fixed Page Length</source>
        <translation>Longueur de page fixe</translation>
    </message>
    <message>
        <source>End of Page</source>
        <translation>Fin de page</translation>
    </message>
    <message>
        <source>Retract Paper</source>
        <translation>Rappel du papier</translation>
    </message>
    <message>
        <source>1/2 inch</source>
        <translation>1/2 pouce</translation>
    </message>
    <message>
        <source>1 inch</source>
        <translation>1 pouce</translation>
    </message>
    <message>
        <source>1-1/2 inch</source>
        <translation>1-1/2 pouce</translation>
    </message>
    <message>
        <source>2 inch</source>
        <translation>2 pouces</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Réglage par défaut</translation>
    </message>
    <message>
        <source>Not Used</source>
        <translation>Non utilisé</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Used, without Anti-Curl</source>
        <translation>Utilisé, sans anti-ondulation</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>Feuille à feuille</translation>
    </message>
    <message>
        <source>Perforated</source>
        <translation>Perforé</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rouleau</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>Perforated, Retract</source>
        <translation>Perforé, avec rappel</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Niveau 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Niveau 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Niveau 3</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>Niveau 4</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>Niveau 5</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>Niveau 6</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>Niveau 7</translation>
    </message>
    <message>
        <source>Level 8</source>
        <translation>Niveau 8</translation>
    </message>
    <message>
        <source>Level 9</source>
        <translation>Niveau 9</translation>
    </message>
</context>
</TS>
