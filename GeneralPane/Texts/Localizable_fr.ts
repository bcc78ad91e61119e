<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>JCL</source>
        <translation>Contrôle du travail</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Options installables</translation>
    </message>
    <message>
        <source>Options Installed</source>
        <translation>Options installées</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Options installées</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>The amount is not supported.</source>
        <translation>Cette valeur n’est pas prise en charge.</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>jusqu’à %1</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 caractères</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 chiffres</translation>
    </message>
    <message>
        <source>The text is not supported.</source>
        <translation>Ce texte n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The code is not supported.</source>
        <translation>Ce code n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>Media Source</source>
        <translation>Source du papier</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Output Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>Mode de sortie</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Color Model</source>
        <translation>Modèle de couleur</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Qualité d’impression</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>2-Sided Printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>Non (recto)</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>Bord long (portrait)</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>Bord court (paysage)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Réglage de l’imprimante</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Papier ordinaire</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>Alimentation manuelle</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Paysage inversé</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Portrait inversé</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Noir et blanc</translation>
    </message>
</context>
</TS>
