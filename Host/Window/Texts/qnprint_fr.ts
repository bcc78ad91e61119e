<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>foundation::Bundle</name>
    <message>
        <source>%1: not a plug-in bundle (Info.json: %2)</source>
        <translation>%1 : pas un paquet de module (Info.json : %2)</translation>
    </message>
    <message>
        <source>%1/Info.json: names no executable or no principal class</source>
        <translation>%1/Info.json : ne nomme pas d’exécutable ou pas de classe principale</translation>
    </message>
    <message>
        <source>%1: no such plug-in bundle</source>
        <translation>%1 : ce paquet de module n’existe pas</translation>
    </message>
</context>
<context>
    <name>foundation::RegularFile</name>
    <message>
        <source>%1: not a file</source>
        <translation>%1 : pas un fichier</translation>
    </message>
</context>
<context>
    <name>foundation::SystemError</name>
    <message>
        <source>No such file or directory</source>
        <translation>fichier ou dossier inexistant</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>opération non permise</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>plus de place sur le support</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>quota de disque dépassé</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>fichier trop volumineux</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>le support est en lecture seule</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>nom de fichier trop long</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>erreur d’entrée-sortie</translation>
    </message>
</context>
<context>
    <name>host::ArrangedPages</name>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1 : le document est endommagé</translation>
    </message>
    <message>
        <source>%1: there is no room for its pages</source>
        <translation>%1 : il n’y a pas de place pour ses pages</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be put on the paper</source>
        <translation>%1 : placer le document sur le papier demande trop de temps ou de mémoire</translation>
    </message>
    <message>
        <source>%1: can&apos;t be put on the paper: %2 is missing (it is part of qnprint).</source>
        <translation>%1 : ne peut pas être placé sur le papier : %2 manque (il fait partie de qnprint).</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1 : ses pages ne peuvent pas être enregistrées : %2</translation>
    </message>
</context>
<context>
    <name>host::Certificate</name>
    <message>
        <source>it was withdrawn</source>
        <translation>il a été révoqué</translation>
    </message>
    <message>
        <source>it is another computer&apos;s</source>
        <translation>c’est celui d’un autre ordinateur</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>il a expiré</translation>
    </message>
    <message>
        <source>nobody that this computer trusts vouches for it</source>
        <translation>personne en qui cet ordinateur ait confiance ne s’en porte garant</translation>
    </message>
    <message>
        <source>it is not valid</source>
        <translation>il n’est pas valide</translation>
    </message>
    <message>
        <source>the certificate of %1 is not trusted: %2</source>
        <translation>le certificat de %1 n’est pas fiable : %2</translation>
    </message>
</context>
<context>
    <name>host::Conversation</name>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>le serveur CUPS ne répond pas</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s answer can&apos;t be read</source>
        <translation>la réponse du serveur CUPS est illisible</translation>
    </message>
    <message>
        <source>no process can be started: %1</source>
        <translation>aucun processus ne peut être lancé : %1</translation>
    </message>
</context>
<context>
    <name>host::CredentialsBox</name>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>&amp;Se connecter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;Nom d’utilisateur :</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>Mot de &amp;passe :</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>&amp;Déverrouiller</translation>
    </message>
</context>
<context>
    <name>host::CupsSink</name>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>annulé ; rien n’a été imprimé</translation>
    </message>
    <message>
        <source>%1: %2; a job may be there, so look before you print again</source>
        <translation>%1 : %2 ; une tâche s’y trouve peut-être, vérifiez avant de réimprimer</translation>
    </message>
    <message>
        <source>%1: %2; job %1-%3 may still be there, so look before you print again</source>
        <translation>%1 : %2 ; la tâche %1-%3 s’y trouve peut-être encore, vérifiez avant de réimprimer</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>no plug-in bundle in %1</source>
        <translation>aucun paquet de module dans %1</translation>
    </message>
</context>
<context>
    <name>host::DialogWindow</name>
    <message>
        <source>Sa&amp;ve</source>
        <translation>E&amp;nregistrer</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Volets</translation>
    </message>
    <message>
        <source>all</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>Single pages and ranges, such as 1-3,5</source>
        <translation>Pages et intervalles, par exemple 1-3,5</translation>
    </message>
    <message>
        <source>Save as &amp;Defaults</source>
        <translation>Enregistrer par &amp;défaut</translation>
    </message>
    <message>
        <source>Save as &amp;Preset…</source>
        <translation>Enregistrer comme &amp;préréglage…</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>Pa&amp;ges :</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>I&amp;mprimante :</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>&amp;Préréglage :</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>Papi&amp;er :</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies :</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Largeur du papier</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Hauteur du papier</translation>
    </message>
    <message>
        <source>There is no panel “%1”.</source>
        <translation>Il n’y a pas de volet « %1 ».</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>Choisir un &amp;fichier…</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>Rés&amp;umé</translation>
    </message>
    <message>
        <source>De&amp;lete Preset…</source>
        <translation>Supprimer &amp;le préréglage…</translation>
    </message>
    <message>
        <source>Print %1 and %2 more</source>
        <translation>Imprimer %1 et %2 de plus</translation>
    </message>
    <message>
        <source>Choose a file to print, or drop one here.</source>
        <translation>Choisissez un fichier à imprimer, ou déposez-en un ici.</translation>
    </message>
    <message>
        <source>Choose Files to Print</source>
        <translation>Choisir les fichiers à imprimer</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Supprimer le préréglage « %1 » ?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Previe&amp;w</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>how many pages</comment>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>&amp;Other Printers…</source>
        <translation>&amp;Autres imprimantes…</translation>
    </message>
    <message>
        <source>&amp;Look at the pages before they are printed</source>
        <translation>&amp;Voir les pages avant de les imprimer</translation>
    </message>
</context>
<context>
    <name>host::Document</name>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message>
        <source>%1: the document is empty</source>
        <translation>%1 : le document est vide</translation>
    </message>
    <message>
        <source>the document can&apos;t be read any more</source>
        <translation>le document n’est plus lisible</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>le document</translation>
    </message>
    <message>
        <source>%1: can&apos;t be printed as it is; PDF, PostScript, PNG, JPEG, GIF, TIFF and plain text can</source>
        <translation>%1 : ne peut pas être imprimé tel quel ; PDF, PostScript, PNG, JPEG, GIF, TIFF et texte brut le peuvent</translation>
    </message>
    <message>
        <source>there is too much of it</source>
        <translation>il y en a trop</translation>
    </message>
</context>
<context>
    <name>host::DocumentCheck</name>
    <message>
        <source>The document has only one page.</source>
        <translation>Le document n’a qu’une page.</translation>
    </message>
    <message>
        <source>The document has only %1 pages.</source>
        <translation>Le document n’a que %1 pages.</translation>
    </message>
    <message>
        <source>The document is %1 %3 wide, the paper %2.</source>
        <translation>Le document fait %1 %3 de large, le papier %2.</translation>
    </message>
    <message>
        <source>The document is %1 %3 long, the paper %2.</source>
        <translation>Le document fait %1 %3 de long, le papier %2.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <comment>a paper</comment>
        <translation>Utiliser %1</translation>
    </message>
    <message>
        <source>Use %1 × %2 %3</source>
        <comment>width, height, unit</comment>
        <translation>Utiliser %1 × %2 %3</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>Adapter au papier</translation>
    </message>
    <message>
        <source>The document is %1 × %2 %3, the paper %4 × %5.</source>
        <comment>width, height, unit, width, height</comment>
        <translation>Le document mesure %1 × %2 %3, le papier %4 × %5.</translation>
    </message>
</context>
<context>
    <name>host::DocumentLock</name>
    <message>
        <source>%1; qpdf, which unlocks it, is missing</source>
        <translation>%1 ; qpdf, qui le déverrouille, est absent</translation>
    </message>
    <message>
        <source>%1: stays locked; no password was right</source>
        <translation>%1 : reste protégé ; aucun mot de passe n’était le bon</translation>
    </message>
</context>
<context>
    <name>host::FolderSink</name>
    <message>
        <source>can&apos;t be made</source>
        <translation>ne peut pas être créé</translation>
    </message>
    <message>
        <source>can&apos;t be written</source>
        <translation>ne peut pas être écrit</translation>
    </message>
    <message>
        <source>too many jobs of this name</source>
        <translation>trop de tâches de ce nom</translation>
    </message>
</context>
<context>
    <name>host::ForApplications</name>
    <message>
        <source>Document</source>
        <comment>a title</comment>
        <translation>Document</translation>
    </message>
</context>
<context>
    <name>host::JobFailedBox</name>
    <message>
        <source>%1 Was Not Printed</source>
        <translation>%1 n’a pas été imprimé</translation>
    </message>
    <message>
        <source>A Document Was Not Printed</source>
        <translation>Un document n’a pas été imprimé</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Another &amp;Printer…</source>
        <translation>Autre &amp;imprimante…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Impression en cours…</translation>
    </message>
    <message>
        <source>Save the Document</source>
        <translation>Enregistrer le document</translation>
    </message>
</context>
<context>
    <name>host::JobSink</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1 : ne peut plus être lu</translation>
    </message>
    <message>
        <source>%1: has changed while it was printed</source>
        <translation>%1 : a changé pendant l’impression</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>annulé ; rien n’a été imprimé</translation>
    </message>
</context>
<context>
    <name>host::LengthBox</name>
    <message>
        <source>%1 to %2</source>
        <comment>two lengths</comment>
        <translation>%1 à %2</translation>
    </message>
</context>
<context>
    <name>host::PDFPages</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1 : ne peut plus être lu</translation>
    </message>
    <message>
        <source>%1: the image is too large to be laid out</source>
        <translation>%1 : l’image est trop grande pour être mise en page</translation>
    </message>
    <message>
        <source>%1: has changed while it was read</source>
        <translation>%1 : a changé pendant la lecture</translation>
    </message>
    <message>
        <source>%1: the image is damaged</source>
        <translation>%1 : l’image est endommagée</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>%1: this kind of image can&apos;t be read; Qt&apos;s further image formats are not installed</source>
        <translation>%1 : ce type d’image ne peut pas être lu ; les formats d’image supplémentaires de Qt ne sont pas installés</translation>
    </message>
    <message>
        <source>%1: can&apos;t be laid out for this paper</source>
        <translation>%1 : ne peut pas être mis en page pour ce papier</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1 : ses pages ne peuvent pas être enregistrées : %2</translation>
    </message>
    <message>
        <source>%1: the text is too long to be laid out</source>
        <translation>%1 : le texte est trop long pour être mis en page</translation>
    </message>
</context>
<context>
    <name>host::PPDDocument</name>
    <message>
        <source>%1: not a PPD file (the file is empty)</source>
        <translation>%1 : pas un fichier PPD (le fichier est vide)</translation>
    </message>
    <message>
        <source>%1: not a PPD file (line %2: %3)</source>
        <translation>%1 : pas un fichier PPD (ligne %2 : %3)</translation>
    </message>
    <message>
        <source>%1: not opened (%2)</source>
        <translation>%1 : non ouvert (%2)</translation>
    </message>
</context>
<context>
    <name>host::PPDLimits</name>
    <message>
        <source>keywords</source>
        <translation>mots-clés</translation>
    </message>
    <message>
        <source>options</source>
        <translation>options</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>formats de papier</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>contraintes</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>le fichier est trop volumineux</translation>
    </message>
    <message>
        <source>more than %1 %2</source>
        <translation>plus de %1 %2</translation>
    </message>
</context>
<context>
    <name>host::PPDProblems</name>
    <message>
        <source>the header of a PPD file is missing</source>
        <translation>l’en-tête d’un fichier PPD manque</translation>
    </message>
    <message>
        <source>the asterisk before a keyword is missing</source>
        <translation>l’astérisque manque devant un mot-clé</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>une valeur manque</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la ligne est trop longue</translation>
    </message>
    <message>
        <source>a character that is not allowed</source>
        <translation>un caractère non autorisé</translation>
    </message>
    <message>
        <source>a keyword or text that is not allowed</source>
        <translation>un mot-clé ou un texte non autorisé</translation>
    </message>
    <message>
        <source>a group or an option that is not begun or not ended</source>
        <translation>un groupe ou une option qui n’est pas commencé ou pas terminé</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>illisible</translation>
    </message>
</context>
<context>
    <name>host::PPDTarget</name>
    <message>
        <source>-o %1=%2: the printer has no such choice</source>
        <translation>-o %1=%2 : l’imprimante n’offre pas ce choix</translation>
    </message>
    <message>
        <source>The plug-in has no settings for this printer. It is printed with the driver&apos;s defaults.</source>
        <translation>Le module n’a pas de réglages pour cette imprimante. L’impression se fait avec ceux du pilote.</translation>
    </message>
    <message>
        <source>%1: no preset “%2”, and no other</source>
        <translation>%1 : pas de préréglage « %2 », ni aucun autre</translation>
    </message>
    <message>
        <source>%1: no preset “%2”; there are: %3</source>
        <translation>%1 : pas de préréglage « %2 » ; il y a : %3</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option.</source>
        <translation>-o %1=%2 : ni l’imprimante ni le serveur ne sont connus pour avoir cette option.</translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option. Did you mean “%3”?</source>
        <translation>-o %1=%2 : ni l’imprimante ni le serveur ne sont connus pour avoir cette option. Vouliez-vous dire « %3 » ?</translation>
    </message>
    <message>
        <source>--output %1: there is no such folder; it will be made.</source>
        <translation>--output %1 : ce dossier n’existe pas ; il sera créé.</translation>
    </message>
</context>
<context>
    <name>host::PagePreview</name>
    <message>
        <source>The document&apos;s pages will show here.</source>
        <translation>Les pages du document s’afficheront ici.</translation>
    </message>
    <message>
        <source>The size of the paper is not known.</source>
        <translation>La taille du papier n’est pas connue.</translation>
    </message>
</context>
<context>
    <name>host::PageReader</name>
    <message>
        <source>Pages can&apos;t be shown: %1 is missing (it is part of poppler-utils).</source>
        <translation>Les pages ne peuvent pas être montrées : %1 manque (il fait partie de poppler-utils).</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be read</source>
        <translation>%1 : lire le document demande trop de temps ou de mémoire</translation>
    </message>
    <message>
        <source>%1: the document is locked with a password</source>
        <translation>%1 : le document est protégé par un mot de passe</translation>
    </message>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1 : le document est endommagé</translation>
    </message>
    <message>
        <source>%1: the document has no pages</source>
        <translation>%1 : le document n’a pas de pages</translation>
    </message>
    <message>
        <source>%1: page %2 can&apos;t be drawn</source>
        <translation>%1 : la page %2 ne peut pas être dessinée</translation>
    </message>
    <message>
        <source>%1: the document has too many pages</source>
        <translation>%1 : le document a trop de pages</translation>
    </message>
</context>
<context>
    <name>host::PageView</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>host::PaperChooser</name>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source> in</source>
        <translation> po</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Taille personnalisée…</translation>
    </message>
    <message>
        <source>The printer does not take %1, but %2.</source>
        <comment>a length, and limits</comment>
        <translation>L’imprimante n’accepte pas %1, mais %2.</translation>
    </message>
</context>
<context>
    <name>host::PictureFile</name>
    <message>
        <source>%1: can&apos;t be written</source>
        <translation>%1 : ne peut pas être écrit</translation>
    </message>
</context>
<context>
    <name>host::PlainTarget</name>
    <message>
        <source>No driver describes this printer: it has general settings only.</source>
        <translation>Aucun pilote ne décrit cette imprimante : elle n’a que des réglages généraux.</translation>
    </message>
</context>
<context>
    <name>host::PlugIn</name>
    <message>
        <source>%1: made for interface version %2, this dialog has %3</source>
        <translation>%1 : fait pour la version d’interface %2, ce dialogue a la version %3</translation>
    </message>
    <message>
        <source>%1: %2 is not the code of a panel plug-in</source>
        <translation>%1 : %2 n’est pas le code d’un module de réglages</translation>
    </message>
    <message>
        <source>%1: built for “%2”, this dialog is “%3”</source>
        <translation>%1 : construit pour « %2 », ce dialogue est « %3 »</translation>
    </message>
</context>
<context>
    <name>host::PresetNameBox</name>
    <message>
        <source>Save as Preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>“%1” is there already; saving replaces it.</source>
        <translation>« %1 » existe déjà ; l’enregistrement le remplace.</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Page before</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>As pr&amp;inted</source>
        <translation>&amp;Tel qu’imprimé</translation>
    </message>
    <message>
        <source>1:1</source>
        <comment>a dot of the printer as a pixel</comment>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Each dot of the printer as a pixel of the screen</source>
        <translation>Chaque point de l’imprimante comme un pixel de l’écran</translation>
    </message>
    <message>
        <source>In black and white, with what the settings do to the page</source>
        <translation>En noir et blanc, avec l’effet des réglages sur la page</translation>
    </message>
    <message>
        <source>Size: automatic</source>
        <translation>Taille : automatique</translation>
    </message>
    <message>
        <source>Size: as it is</source>
        <translation>Taille : telle quelle</translation>
    </message>
    <message>
        <source>Size: fit to paper</source>
        <translation>Taille : adapter au papier</translation>
    </message>
    <message>
        <source>Size: fill the paper</source>
        <translation>Taille : remplir le papier</translation>
    </message>
    <message>
        <source>Size of the pages</source>
        <translation>Taille des pages</translation>
    </message>
    <message>
        <source>Automatic: pages that are larger than the paper are made smaller</source>
        <translation>Automatique : les pages plus grandes que le papier sont réduites</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Not in this picture: %1</source>
        <translation>Pas sur cette image : %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>host::PrintDialog</name>
    <message>
        <source>Looking for the printer…</source>
        <translation>Recherche de l’imprimante…</translation>
    </message>
    <message>
        <source>The printer&apos;s description has changed on the server. Please look over the settings.</source>
        <translation>La description de l’imprimante a changé sur le serveur. Veuillez revoir les réglages.</translation>
    </message>
    <message>
        <source>%1: the plug-in has no interface for this panel.</source>
        <translation>%1 : le module n’a pas d’interface pour ce volet.</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1.</source>
        <translation>Enregistré comme vos valeurs par défaut pour %1.</translation>
    </message>
    <message>
        <source>Saved as “%1” for %2.</source>
        <translation>Enregistré comme « %1 » pour %2.</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>« %1 » a été supprimé.</translation>
    </message>
    <message>
        <source>There is no document to print.</source>
        <translation>Il n’y a pas de document à imprimer.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Write single pages and ranges, such as 1-3,5.</source>
        <translation>« %1 » ne désigne pas de pages. Écrivez des pages et des intervalles, par exemple 1-3,5.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>The print service does not run. Start it (“systemctl start cups”), or ask whoever looks after this computer.</source>
        <translation>Le service d’impression n’est pas démarré. Démarrez-le (« systemctl start cups ») ou adressez-vous à la personne qui s’occupe de cet ordinateur.</translation>
    </message>
    <message>
        <source>The print service has no printer yet.</source>
        <translation>Le service d’impression n’a pas encore d’imprimante.</translation>
    </message>
    <message>
        <source>Choose a printer.</source>
        <translation>Choisissez une imprimante.</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>all</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>Cancelled. What is left was not printed.</source>
        <translation>Annulé. Le reste n’a pas été imprimé.</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1, without the number of copies.</source>
        <translation>Enregistré comme vos réglages par défaut pour %1, sans le nombre de copies.</translation>
    </message>
</context>
<context>
    <name>host::PrintTarget</name>
    <message>
        <source>%1: sent to %2</source>
        <translation>%1 : envoyé à %2</translation>
    </message>
    <message>
        <source>%1 waits: %2</source>
        <comment>a document, and why</comment>
        <translation>%1 attend : %2</translation>
    </message>
</context>
<context>
    <name>host::PrintedPages</name>
    <message>
        <source>%1: PostScript can&apos;t be shown before it is printed</source>
        <translation>%1 : PostScript ne peut pas être montré avant l’impression</translation>
    </message>
    <message>
        <source>%1 has only one page, not %2</source>
        <comment>a document, ranges of pages</comment>
        <translation>%1 n’a qu’une page, et non %2</translation>
    </message>
    <message>
        <source>%1 has only %2 pages, not %3</source>
        <comment>a document, a number, ranges of pages</comment>
        <translation>%1 n’a que %2 pages, et non %3</translation>
    </message>
    <message>
        <source>The paper is too large to be shown.</source>
        <translation>Le papier est trop grand pour être montré.</translation>
    </message>
    <message>
        <source>%1: page %2 is too large to be shown</source>
        <translation>%1 : la page %2 est trop grande pour être montrée</translation>
    </message>
</context>
<context>
    <name>host::Remarks</name>
    <message>
        <source>%1 instead of “%2”, to go with %3.</source>
        <translation>%1 au lieu de « %2 », pour aller avec %3.</translation>
    </message>
    <message>
        <source>the other choices</source>
        <translation>les autres réglages</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the rules for the paper decide it.</source>
        <translation>%1 n’est pas tel qu’enregistré : les règles du papier en décident.</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the printer has no such choice any more.</source>
        <translation>%1 n’est pas tel qu’enregistré : l’imprimante n’a plus ce choix.</translation>
    </message>
    <message>
        <source>%1 comes with: %2.</source>
        <comment>a paper, and choices</comment>
        <translation>%1 va avec : %2.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>host::SavedOptions</name>
    <message>
        <source>“%1”: a name is one word without slashes and quotation marks</source>
        <translation>« %1 » : un nom est un seul mot, sans barre oblique ni guillemets</translation>
    </message>
    <message>
        <source>%1: can&apos;t be written just now</source>
        <translation>%1 : ne peut pas être écrit pour l’instant</translation>
    </message>
    <message>
        <source>%1: can&apos;t be read</source>
        <translation>%1 : ne peut pas être lu</translation>
    </message>
    <message>
        <source>%1: can&apos;t hold a value with a line end</source>
        <translation>%1 : ne peut contenir une valeur avec un saut de ligne</translation>
    </message>
    <message>
        <source>%1: has the preset “%2” for all users; it stays</source>
        <translation>%1 : contient le préréglage « %2 » pour tous les utilisateurs ; il reste</translation>
    </message>
</context>
<context>
    <name>host::ServerConnection</name>
    <message>
        <source>%1: the queue does not take jobs now</source>
        <translation>%1 : la file n’accepte pas de tâches pour l’instant</translation>
    </message>
    <message>
        <source>%1: the queue is stopped; jobs wait until it is started</source>
        <translation>%1 : la file est arrêtée ; les tâches attendent son redémarrage</translation>
    </message>
    <message>
        <source>there is no default queue</source>
        <translation>il n’y a pas de file par défaut</translation>
    </message>
    <message>
        <source>%1: no such queue</source>
        <translation>%1 : file d’impression inconnue</translation>
    </message>
    <message>
        <source>no CUPS server answers</source>
        <translation>aucun serveur CUPS ne répond</translation>
    </message>
    <message>
        <source>the CUPS server asks for a password</source>
        <translation>le serveur CUPS demande un mot de passe</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>le serveur CUPS ne répond pas</translation>
    </message>
    <message>
        <source>the PPD on the server can&apos;t be used: %1</source>
        <translation>le fichier PPD du serveur est inutilisable : %1</translation>
    </message>
    <message>
        <source>no such queue</source>
        <translation>file d’impression inconnue</translation>
    </message>
    <message>
        <source>the printer&apos;s description has changed meanwhile; nothing was printed</source>
        <translation>la description de l’imprimante a changé entre-temps ; rien n’a été imprimé</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>the CUPS server refuses it (%1)</source>
        <translation>le serveur CUPS refuse (%1)</translation>
    </message>
    <message>
        <source>the CUPS server gave no proper answer</source>
        <translation>le serveur CUPS n’a pas donné de réponse correcte</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s file is too large</source>
        <translation>le fichier du serveur CUPS est trop volumineux</translation>
    </message>
    <message>
        <source>the connection to the CUPS server broke</source>
        <translation>la connexion au serveur CUPS a été interrompue</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>plus de papier</translation>
    </message>
    <message>
        <source>little paper left</source>
        <translation>bientôt plus de papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>bourrage papier</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>capot ouvert</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>injoignable</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a state and its reason</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>n’accepte pas de tâches</translation>
    </message>
    <message>
        <source>%1 is stopped</source>
        <translation>%1 est arrêtée</translation>
    </message>
    <message>
        <source>the CUPS server does not accept the user name or the password</source>
        <translation>le serveur CUPS n’accepte pas le nom d’utilisateur ou le mot de passe</translation>
    </message>
    <message>
        <source>the connection is not encrypted, so others on the network can read the password</source>
        <translation>la connexion n’est pas chiffrée, d’autres sur le réseau peuvent donc lire le mot de passe</translation>
    </message>
</context>
<context>
    <name>host::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>Résumé des réglages</translation>
    </message>
</context>
<context>
    <name>host::UnlockedDocument</name>
    <message>
        <source>%1: can&apos;t be unlocked; it is damaged, or too large</source>
        <translation>%1 : ne peut pas être déverrouillé ; il est endommagé ou trop volumineux</translation>
    </message>
    <message>
        <source>%1: can&apos;t be unlocked: %2</source>
        <translation>%1 : ne peut pas être déverrouillé : %2</translation>
    </message>
    <message>
        <source>%1: the password is wrong</source>
        <translation>%1 : le mot de passe est incorrect</translation>
    </message>
</context>
</TS>
