<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>foundation::Bundle</name>
    <message>
        <source>%1: not a plug-in bundle (Info.json: %2)</source>
        <translation>%1: kein Plug-in-Paket (Info.json: %2)</translation>
    </message>
    <message>
        <source>%1/Info.json: names no executable or no principal class</source>
        <translation>%1/Info.json: nennt kein Programm oder keine Hauptklasse</translation>
    </message>
    <message>
        <source>%1: no such plug-in bundle</source>
        <translation>%1: Dieses Plug-in-Paket gibt es nicht</translation>
    </message>
</context>
<context>
    <name>foundation::RegularFile</name>
    <message>
        <source>%1: not a file</source>
        <translation>%1: keine Datei</translation>
    </message>
</context>
<context>
    <name>foundation::SystemError</name>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht vorhanden</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>nicht erlaubt</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>das ist kein Ordner</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>kein Platz mehr auf dem Datenträger</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>der zugeteilte Speicherplatz ist erschöpft</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>der Datenträger kann nur gelesen werden</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Fehler beim Lesen oder Schreiben</translation>
    </message>
</context>
<context>
    <name>host::ArrangedPages</name>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1: das Dokument ist beschädigt</translation>
    </message>
    <message>
        <source>%1: there is no room for its pages</source>
        <translation>%1: für seine Seiten ist kein Platz</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be put on the paper</source>
        <translation>%1: das Dokument braucht zu lange oder zu viel Speicher, um auf das Papier gesetzt zu werden</translation>
    </message>
    <message>
        <source>%1: can&apos;t be put on the paper: %2 is missing (it is part of qnprint).</source>
        <translation>%1: kann nicht auf das Papier gesetzt werden: %2 fehlt (es gehört zu qnprint).</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1: seine Seiten können nicht gespeichert werden: %2</translation>
    </message>
</context>
<context>
    <name>host::Certificate</name>
    <message>
        <source>it was withdrawn</source>
        <translation>es wurde zurückgezogen</translation>
    </message>
    <message>
        <source>it is another computer&apos;s</source>
        <translation>es gehört einem anderen Rechner</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>es ist abgelaufen</translation>
    </message>
    <message>
        <source>nobody that this computer trusts vouches for it</source>
        <translation>niemand, dem dieser Rechner vertraut, bürgt dafür</translation>
    </message>
    <message>
        <source>it is not valid</source>
        <translation>es ist nicht gültig</translation>
    </message>
    <message>
        <source>the certificate of %1 is not trusted: %2</source>
        <translation>dem Zertifikat von %1 wird nicht vertraut: %2</translation>
    </message>
</context>
<context>
    <name>host::Conversation</name>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>der CUPS-Server antwortet nicht</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s answer can&apos;t be read</source>
        <translation>die Antwort des CUPS-Servers kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>no process can be started: %1</source>
        <translation>es kann kein Prozess gestartet werden: %1</translation>
    </message>
</context>
<context>
    <name>host::CredentialsBox</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>An&amp;melden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>&amp;Entsperren</translation>
    </message>
</context>
<context>
    <name>host::CupsSink</name>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>abgebrochen; nichts wurde gedruckt</translation>
    </message>
    <message>
        <source>%1: %2; a job may be there, so look before you print again</source>
        <translation>%1: %2; möglicherweise ist ein Auftrag dort, sehen Sie nach, bevor Sie erneut drucken</translation>
    </message>
    <message>
        <source>%1: %2; job %1-%3 may still be there, so look before you print again</source>
        <translation>%1: %2; der Auftrag %1-%3 ist möglicherweise noch dort, sehen Sie nach, bevor Sie erneut drucken</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>no plug-in bundle in %1</source>
        <translation>kein Plug-in-Paket in %1</translation>
    </message>
</context>
<context>
    <name>host::DialogWindow</name>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>Er&amp;neut versuchen</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Einstellungsseiten</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Single pages and ranges, such as 1-3,5</source>
        <translation>Einzelne Seiten und Bereiche, etwa 1-3,5</translation>
    </message>
    <message>
        <source>Save as &amp;Defaults</source>
        <translation>Als &amp;Standard sichern</translation>
    </message>
    <message>
        <source>Save as &amp;Preset…</source>
        <translation>Als &amp;Vorlage sichern…</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>Se&amp;iten:</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>&amp;Vorlage:</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>Papi&amp;er:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Kopien:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Papierbreite</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Papierhöhe</translation>
    </message>
    <message>
        <source>There is no panel “%1”.</source>
        <translation>Es gibt keine Seite „%1“.</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>D&amp;atei wählen…</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>Ü&amp;bersicht</translation>
    </message>
    <message>
        <source>De&amp;lete Preset…</source>
        <translation>Vorlage &amp;löschen…</translation>
    </message>
    <message>
        <source>Print %1 and %2 more</source>
        <translation>%1 und %2 weitere drucken</translation>
    </message>
    <message>
        <source>Choose a file to print, or drop one here.</source>
        <translation>Wählen Sie eine Datei zum Drucken, oder ziehen Sie eine hierher.</translation>
    </message>
    <message>
        <source>Choose Files to Print</source>
        <translation>Dateien zum Drucken wählen</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Vorlage löschen</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Die Vorlage „%1“ löschen?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Previe&amp;w</source>
        <translation>Vorscha&amp;u</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>how many pages</comment>
        <translation>von %1</translation>
    </message>
    <message>
        <source>&amp;Other Printers…</source>
        <translation>&amp;Andere Drucker…</translation>
    </message>
    <message>
        <source>&amp;Look at the pages before they are printed</source>
        <translation>Die Seiten vor dem Drucken anse&amp;hen</translation>
    </message>
</context>
<context>
    <name>host::Document</name>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>%1: the document is empty</source>
        <translation>%1: Das Dokument ist leer</translation>
    </message>
    <message>
        <source>the document can&apos;t be read any more</source>
        <translation>das Dokument kann nicht mehr gelesen werden</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>das Dokument</translation>
    </message>
    <message>
        <source>%1: can&apos;t be printed as it is; PDF, PostScript, PNG, JPEG, GIF, TIFF and plain text can</source>
        <translation>%1: kann so nicht gedruckt werden; PDF, PostScript, PNG, JPEG, GIF, TIFF und einfacher Text können es</translation>
    </message>
    <message>
        <source>there is too much of it</source>
        <translation>es ist zu viel</translation>
    </message>
</context>
<context>
    <name>host::DocumentCheck</name>
    <message>
        <source>The document has only one page.</source>
        <translation>Das Dokument hat nur eine Seite.</translation>
    </message>
    <message>
        <source>The document has only %1 pages.</source>
        <translation>Das Dokument hat nur %1 Seiten.</translation>
    </message>
    <message>
        <source>The document is %1 %3 wide, the paper %2.</source>
        <translation>Das Dokument ist %1 %3 breit, das Papier %2.</translation>
    </message>
    <message>
        <source>The document is %1 %3 long, the paper %2.</source>
        <translation>Das Dokument ist %1 %3 lang, das Papier %2.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <comment>a paper</comment>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>Use %1 × %2 %3</source>
        <comment>width, height, unit</comment>
        <translation>%1 × %2 %3 verwenden</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>An Papier anpassen</translation>
    </message>
    <message>
        <source>The document is %1 × %2 %3, the paper %4 × %5.</source>
        <comment>width, height, unit, width, height</comment>
        <translation>Das Dokument ist %1 × %2 %3 groß, das Papier %4 × %5.</translation>
    </message>
</context>
<context>
    <name>host::DocumentLock</name>
    <message>
        <source>%1; qpdf, which unlocks it, is missing</source>
        <translation>%1; es fehlt qpdf, das es entsperrt</translation>
    </message>
    <message>
        <source>%1: stays locked; no password was right</source>
        <translation>%1: bleibt geschützt; kein Passwort war richtig</translation>
    </message>
</context>
<context>
    <name>host::FolderSink</name>
    <message>
        <source>can&apos;t be made</source>
        <translation>kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>can&apos;t be written</source>
        <translation>kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>too many jobs of this name</source>
        <translation>zu viele Aufträge dieses Namens</translation>
    </message>
</context>
<context>
    <name>host::ForApplications</name>
    <message>
        <source>Document</source>
        <comment>a title</comment>
        <translation>Dokument</translation>
    </message>
</context>
<context>
    <name>host::JobFailedBox</name>
    <message>
        <source>%1 Was Not Printed</source>
        <translation>%1 wurde nicht gedruckt</translation>
    </message>
    <message>
        <source>A Document Was Not Printed</source>
        <translation>Ein Dokument wurde nicht gedruckt</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>&amp;Noch einmal</translation>
    </message>
    <message>
        <source>Another &amp;Printer…</source>
        <translation>Anderer &amp;Drucker…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Als PDF &amp;speichern…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Wird gedruckt…</translation>
    </message>
    <message>
        <source>Save the Document</source>
        <translation>Dokument speichern</translation>
    </message>
</context>
<context>
    <name>host::JobSink</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1: kann nicht mehr gelesen werden</translation>
    </message>
    <message>
        <source>%1: has changed while it was printed</source>
        <translation>%1: hat sich während des Druckens geändert</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>abgebrochen; nichts wurde gedruckt</translation>
    </message>
</context>
<context>
    <name>host::LengthBox</name>
    <message>
        <source>%1 to %2</source>
        <comment>two lengths</comment>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>host::PDFPages</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1: kann nicht mehr gelesen werden</translation>
    </message>
    <message>
        <source>%1: the image is too large to be laid out</source>
        <translation>%1: das Bild ist zu groß, um gesetzt zu werden</translation>
    </message>
    <message>
        <source>%1: has changed while it was read</source>
        <translation>%1: hat sich während des Lesens geändert</translation>
    </message>
    <message>
        <source>%1: the image is damaged</source>
        <translation>%1: das Bild ist beschädigt</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>%1: this kind of image can&apos;t be read; Qt&apos;s further image formats are not installed</source>
        <translation>%1: Bilder dieser Art können nicht gelesen werden; die weiteren Bildformate von Qt sind nicht installiert</translation>
    </message>
    <message>
        <source>%1: can&apos;t be laid out for this paper</source>
        <translation>%1: kann für dieses Papier nicht gesetzt werden</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1: seine Seiten können nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>%1: the text is too long to be laid out</source>
        <translation>%1: der Text ist zu lang, um gesetzt zu werden</translation>
    </message>
</context>
<context>
    <name>host::PPDDocument</name>
    <message>
        <source>%1: not a PPD file (the file is empty)</source>
        <translation>%1: keine PPD-Datei (die Datei ist leer)</translation>
    </message>
    <message>
        <source>%1: not a PPD file (line %2: %3)</source>
        <translation>%1: keine PPD-Datei (Zeile %2: %3)</translation>
    </message>
    <message>
        <source>%1: not opened (%2)</source>
        <translation>%1: nicht geöffnet (%2)</translation>
    </message>
</context>
<context>
    <name>host::PPDLimits</name>
    <message>
        <source>keywords</source>
        <translation>Schlüsselwörter</translation>
    </message>
    <message>
        <source>options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>Papierformate</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>Einschränkungen</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>more than %1 %2</source>
        <translation>mehr als %1 %2</translation>
    </message>
</context>
<context>
    <name>host::PPDProblems</name>
    <message>
        <source>the header of a PPD file is missing</source>
        <translation>der Kopf einer PPD-Datei fehlt</translation>
    </message>
    <message>
        <source>the asterisk before a keyword is missing</source>
        <translation>der Stern vor einem Schlüsselwort fehlt</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>ein Wert fehlt</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>die Zeile ist zu lang</translation>
    </message>
    <message>
        <source>a character that is not allowed</source>
        <translation>ein nicht erlaubtes Zeichen</translation>
    </message>
    <message>
        <source>a keyword or text that is not allowed</source>
        <translation>ein nicht erlaubtes Schlüsselwort oder ein nicht erlaubter Text</translation>
    </message>
    <message>
        <source>a group or an option that is not begun or not ended</source>
        <translation>eine Gruppe oder Option, die nicht begonnen oder nicht beendet wird</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>sie kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>host::PPDTarget</name>
    <message>
        <source>-o %1=%2: the printer has no such choice</source>
        <translation>-o %1=%2: Diese Auswahl hat der Drucker nicht</translation>
    </message>
    <message>
        <source>The plug-in has no settings for this printer. It is printed with the driver&apos;s defaults.</source>
        <translation>Das Plug-in hat keine Einstellungen für diesen Drucker. Gedruckt wird mit den Vorgaben des Treibers.</translation>
    </message>
    <message>
        <source>%1: no preset “%2”, and no other</source>
        <translation>%1: keine Vorlage „%2“ und auch keine andere</translation>
    </message>
    <message>
        <source>%1: no preset “%2”; there are: %3</source>
        <translation>%1: keine Vorlage „%2“; es gibt: %3</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option.</source>
        <translation>-o %1=%2: Weder vom Drucker noch vom Server ist diese Option bekannt.</translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option. Did you mean “%3”?</source>
        <translation>-o %1=%2: Weder vom Drucker noch vom Server ist diese Option bekannt. Meinten Sie „%3“?</translation>
    </message>
    <message>
        <source>--output %1: there is no such folder; it will be made.</source>
        <translation>--output %1: Diesen Ordner gibt es nicht; er wird angelegt.</translation>
    </message>
</context>
<context>
    <name>host::PagePreview</name>
    <message>
        <source>The document&apos;s pages will show here.</source>
        <translation>Hier erscheinen die Seiten des Dokuments.</translation>
    </message>
    <message>
        <source>The size of the paper is not known.</source>
        <translation>Die Größe des Papiers ist nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>host::PageReader</name>
    <message>
        <source>Pages can&apos;t be shown: %1 is missing (it is part of poppler-utils).</source>
        <translation>Seiten können nicht gezeigt werden: %1 fehlt (es gehört zu poppler-utils).</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be read</source>
        <translation>%1: das Dokument braucht zu lange oder zu viel Speicher, um gelesen zu werden</translation>
    </message>
    <message>
        <source>%1: the document is locked with a password</source>
        <translation>%1: das Dokument ist mit einem Passwort geschützt</translation>
    </message>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1: das Dokument ist beschädigt</translation>
    </message>
    <message>
        <source>%1: the document has no pages</source>
        <translation>%1: das Dokument hat keine Seiten</translation>
    </message>
    <message>
        <source>%1: page %2 can&apos;t be drawn</source>
        <translation>%1: Seite %2 kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>%1: the document has too many pages</source>
        <translation>%1: das Dokument hat zu viele Seiten</translation>
    </message>
</context>
<context>
    <name>host::PageView</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
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
        <translation> Zoll</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Eigene Größe…</translation>
    </message>
    <message>
        <source>The printer does not take %1, but %2.</source>
        <comment>a length, and limits</comment>
        <translation>Der Drucker nimmt nicht %1, sondern %2.</translation>
    </message>
</context>
<context>
    <name>host::PictureFile</name>
    <message>
        <source>%1: can&apos;t be written</source>
        <translation>%1: kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>host::PlainTarget</name>
    <message>
        <source>No driver describes this printer: it has general settings only.</source>
        <translation>Kein Treiber beschreibt diesen Drucker: Er hat nur allgemeine Einstellungen.</translation>
    </message>
</context>
<context>
    <name>host::PlugIn</name>
    <message>
        <source>%1: made for interface version %2, this dialog has %3</source>
        <translation>%1: für Schnittstellenversion %2 gemacht, dieser Dialog hat %3</translation>
    </message>
    <message>
        <source>%1: %2 is not the code of a panel plug-in</source>
        <translation>%1: %2 ist nicht der Code eines Plug-ins mit Einstellungen</translation>
    </message>
    <message>
        <source>%1: built for “%2”, this dialog is “%3”</source>
        <translation>%1: gebaut für „%2“, dieser Dialog ist „%3“</translation>
    </message>
</context>
<context>
    <name>host::PresetNameBox</name>
    <message>
        <source>Save as Preset</source>
        <translation>Als Vorlage sichern</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>“%1” is there already; saving replaces it.</source>
        <translation>„%1“ gibt es schon; Sichern ersetzt sie.</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Page before</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>As pr&amp;inted</source>
        <translation>Wie &amp;gedruckt</translation>
    </message>
    <message>
        <source>1:1</source>
        <comment>a dot of the printer as a pixel</comment>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Each dot of the printer as a pixel of the screen</source>
        <translation>Jeder Punkt des Druckers als ein Pixel des Bildschirms</translation>
    </message>
    <message>
        <source>In black and white, with what the settings do to the page</source>
        <translation>In Schwarzweiß, mit dem, was die Einstellungen aus der Seite machen</translation>
    </message>
    <message>
        <source>Size: automatic</source>
        <translation>Größe: automatisch</translation>
    </message>
    <message>
        <source>Size: as it is</source>
        <translation>Größe: wie sie ist</translation>
    </message>
    <message>
        <source>Size: fit to paper</source>
        <translation>Größe: an Papier anpassen</translation>
    </message>
    <message>
        <source>Size: fill the paper</source>
        <translation>Größe: Papier füllen</translation>
    </message>
    <message>
        <source>Size of the pages</source>
        <translation>Größe der Seiten</translation>
    </message>
    <message>
        <source>Automatic: pages that are larger than the paper are made smaller</source>
        <translation>Automatisch: Seiten, die größer als das Papier sind, werden verkleinert</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Not in this picture: %1</source>
        <translation>Nicht in diesem Bild: %1</translation>
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
        <translation>Der Drucker wird gesucht…</translation>
    </message>
    <message>
        <source>The printer&apos;s description has changed on the server. Please look over the settings.</source>
        <translation>Die Beschreibung des Druckers hat sich auf dem Server geändert. Bitte sehen Sie die Einstellungen durch.</translation>
    </message>
    <message>
        <source>%1: the plug-in has no interface for this panel.</source>
        <translation>%1: Das Plug-in hat keine Oberfläche für diese Seite.</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1.</source>
        <translation>Als Ihr Standard für %1 gesichert.</translation>
    </message>
    <message>
        <source>Saved as “%1” for %2.</source>
        <translation>Als „%1“ für %2 gesichert.</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>„%1“ wurde gelöscht.</translation>
    </message>
    <message>
        <source>There is no document to print.</source>
        <translation>Es gibt kein Dokument zu drucken.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Write single pages and ranges, such as 1-3,5.</source>
        <translation>„%1“ sind keine Seiten. Schreiben Sie einzelne Seiten und Bereiche, etwa 1-3,5.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird angehalten …</translation>
    </message>
    <message>
        <source>The print service does not run. Start it (“systemctl start cups”), or ask whoever looks after this computer.</source>
        <translation>Der Druckdienst läuft nicht. Starten Sie ihn („systemctl start cups“), oder fragen Sie, wer diesen Rechner betreut.</translation>
    </message>
    <message>
        <source>The print service has no printer yet.</source>
        <translation>Der Druckdienst hat noch keinen Drucker.</translation>
    </message>
    <message>
        <source>Choose a printer.</source>
        <translation>Wählen Sie einen Drucker.</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Cancelled. What is left was not printed.</source>
        <translation>Abgebrochen. Der Rest wurde nicht gedruckt.</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1, without the number of copies.</source>
        <translation>Als Ihr Standard für %1 gesichert, ohne die Zahl der Kopien.</translation>
    </message>
</context>
<context>
    <name>host::PrintTarget</name>
    <message>
        <source>%1: sent to %2</source>
        <translation>%1: an %2 gesendet</translation>
    </message>
    <message>
        <source>%1 waits: %2</source>
        <comment>a document, and why</comment>
        <translation>%1 wartet: %2</translation>
    </message>
</context>
<context>
    <name>host::PrintedPages</name>
    <message>
        <source>%1: PostScript can&apos;t be shown before it is printed</source>
        <translation>%1: PostScript kann vor dem Drucken nicht gezeigt werden</translation>
    </message>
    <message>
        <source>%1 has only one page, not %2</source>
        <comment>a document, ranges of pages</comment>
        <translation>%1 hat nur eine Seite, nicht %2</translation>
    </message>
    <message>
        <source>%1 has only %2 pages, not %3</source>
        <comment>a document, a number, ranges of pages</comment>
        <translation>%1 hat nur %2 Seiten, nicht %3</translation>
    </message>
    <message>
        <source>The paper is too large to be shown.</source>
        <translation>Das Papier ist zu groß, um gezeigt zu werden.</translation>
    </message>
    <message>
        <source>%1: page %2 is too large to be shown</source>
        <translation>%1: Seite %2 ist zu groß, um gezeigt zu werden</translation>
    </message>
</context>
<context>
    <name>host::Remarks</name>
    <message>
        <source>%1 instead of “%2”, to go with %3.</source>
        <translation>%1 statt „%2“, passend zu %3.</translation>
    </message>
    <message>
        <source>the other choices</source>
        <translation>den übrigen Einstellungen</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the rules for the paper decide it.</source>
        <translation>%1 ist nicht wie gesichert: Die Regeln für das Papier bestimmen es.</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the printer has no such choice any more.</source>
        <translation>%1 ist nicht wie gesichert: Der Drucker hat diese Auswahl nicht mehr.</translation>
    </message>
    <message>
        <source>%1 comes with: %2.</source>
        <comment>a paper, and choices</comment>
        <translation>Zu %1 gehört: %2.</translation>
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
        <translation>„%1“: Ein Name ist ein Wort ohne Schrägstriche und Anführungszeichen</translation>
    </message>
    <message>
        <source>%1: can&apos;t be written just now</source>
        <translation>%1: kann gerade nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1: can&apos;t be read</source>
        <translation>%1: kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: can&apos;t hold a value with a line end</source>
        <translation>%1: ein Wert mit Zeilenende geht nicht hinein</translation>
    </message>
    <message>
        <source>%1: has the preset “%2” for all users; it stays</source>
        <translation>%1: hat die Vorlage „%2“ für alle Benutzer; sie bleibt</translation>
    </message>
</context>
<context>
    <name>host::ServerConnection</name>
    <message>
        <source>%1: the queue does not take jobs now</source>
        <translation>%1: Die Warteschlange nimmt gerade keine Aufträge an</translation>
    </message>
    <message>
        <source>%1: the queue is stopped; jobs wait until it is started</source>
        <translation>%1: Die Warteschlange ist angehalten; Aufträge warten, bis sie wieder läuft</translation>
    </message>
    <message>
        <source>there is no default queue</source>
        <translation>es gibt keine Standardwarteschlange</translation>
    </message>
    <message>
        <source>%1: no such queue</source>
        <translation>%1: keine solche Warteschlange</translation>
    </message>
    <message>
        <source>no CUPS server answers</source>
        <translation>kein CUPS-Server antwortet</translation>
    </message>
    <message>
        <source>the CUPS server asks for a password</source>
        <translation>der CUPS-Server verlangt ein Passwort</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>der CUPS-Server antwortet nicht</translation>
    </message>
    <message>
        <source>the PPD on the server can&apos;t be used: %1</source>
        <translation>die PPD auf dem Server ist nicht verwendbar: %1</translation>
    </message>
    <message>
        <source>no such queue</source>
        <translation>keine solche Warteschlange</translation>
    </message>
    <message>
        <source>the printer&apos;s description has changed meanwhile; nothing was printed</source>
        <translation>Die Beschreibung des Druckers hat sich inzwischen geändert; nichts wurde gedruckt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>the CUPS server refuses it (%1)</source>
        <translation>der CUPS-Server lehnt es ab (%1)</translation>
    </message>
    <message>
        <source>the CUPS server gave no proper answer</source>
        <translation>der CUPS-Server hat keine richtige Antwort gegeben</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s file is too large</source>
        <translation>die Datei des CUPS-Servers ist zu groß</translation>
    </message>
    <message>
        <source>the connection to the CUPS server broke</source>
        <translation>die Verbindung zum CUPS-Server ist abgebrochen</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>kein Papier</translation>
    </message>
    <message>
        <source>little paper left</source>
        <translation>wenig Papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>Abdeckung offen</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>nicht erreichbar</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a state and its reason</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>%1 is stopped</source>
        <translation>%1 ist angehalten</translation>
    </message>
    <message>
        <source>the CUPS server does not accept the user name or the password</source>
        <translation>der CUPS-Server nimmt Benutzername oder Passwort nicht an</translation>
    </message>
    <message>
        <source>the connection is not encrypted, so others on the network can read the password</source>
        <translation>die Verbindung ist nicht verschlüsselt, andere im Netz können das Passwort also lesen</translation>
    </message>
</context>
<context>
    <name>host::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>Übersicht der Einstellungen</translation>
    </message>
</context>
<context>
    <name>host::UnlockedDocument</name>
    <message>
        <source>%1: can&apos;t be unlocked; it is damaged, or too large</source>
        <translation>%1: kann nicht entsperrt werden; es ist beschädigt oder zu groß</translation>
    </message>
    <message>
        <source>%1: can&apos;t be unlocked: %2</source>
        <translation>%1: kann nicht entsperrt werden: %2</translation>
    </message>
    <message>
        <source>%1: the password is wrong</source>
        <translation>%1: das Passwort ist falsch</translation>
    </message>
</context>
</TS>
