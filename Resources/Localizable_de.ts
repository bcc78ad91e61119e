<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>STEXT_TAB1</source>
        <translation>Druckeinstellungen</translation>
    </message>
    <message>
        <source>STEXT_TAB2</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>RS_Density</source>
        <translation>Druckdichte:</translation>
    </message>
    <message>
        <source>RS_Speed</source>
        <translation>Druckgeschwindigkeit:</translation>
    </message>
    <message>
        <source>RS_Media</source>
        <translation>Papierart:</translation>
    </message>
    <message>
        <source>RS_FormFeedMode</source>
        <translation>Seitenvorschub:</translation>
    </message>
    <message>
        <source>RS_PaperFeed</source>
        <translation>Papiervorschub:</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <translation>Halbtonverfahren:</translation>
    </message>
    <message>
        <source>HC_Option</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>RS_Perforated</source>
        <translation>Perforiertes Papier</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint</source>
        <translation>Rollenpapiergehäuse</translation>
    </message>
    <message>
        <source>RS_Density_home</source>
        <translation>Druckereinstellung verwenden</translation>
    </message>
    <message>
        <source>RS_Density_0</source>
        <translation>Stufe 0 (am hellsten)</translation>
    </message>
    <message>
        <source>RS_Density_10</source>
        <translation>Stufe 10 (am dunkelsten)</translation>
    </message>
    <message>
        <source>RS_Density_1</source>
        <translation>Stufe 1</translation>
    </message>
    <message>
        <source>RS_Density_2</source>
        <translation>Stufe 2</translation>
    </message>
    <message>
        <source>RS_Density_3</source>
        <translation>Stufe 3</translation>
    </message>
    <message>
        <source>RS_Density_4</source>
        <translation>Stufe 4</translation>
    </message>
    <message>
        <source>RS_Density_5</source>
        <translation>Stufe 5</translation>
    </message>
    <message>
        <source>RS_Density_6</source>
        <translation>Stufe 6</translation>
    </message>
    <message>
        <source>RS_Density_7</source>
        <translation>Stufe 7</translation>
    </message>
    <message>
        <source>RS_Density_8</source>
        <translation>Stufe 8</translation>
    </message>
    <message>
        <source>RS_Density_9</source>
        <translation>Stufe 9</translation>
    </message>
    <message>
        <source>RS_Speed_home</source>
        <translation>Druckereinstellung verwenden</translation>
    </message>
    <message>
        <source>RS_Speed_0</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>RS_Speed_1</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>RS_Speed_2</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>RS_Speed_3</source>
        <translation>Am schnellsten</translation>
    </message>
    <message>
        <source>RS_Media_Thermal</source>
        <translation>Thermopapier</translation>
    </message>
    <message>
        <source>RS_Media_ThermalCopy</source>
        <translation>Thermokopierpapier</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_NO</source>
        <translation>Kein Seitenvorschub</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_FIX</source>
        <translation>Feste Seitenlänge</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_END</source>
        <translation>Seitenende</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_RET</source>
        <translation>Papier zurückziehen</translation>
    </message>
    <message>
        <source>RS_PaperFeed_NO</source>
        <translation>Kein Vorschub</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1/2</source>
        <translation>1/2 Zoll</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1</source>
        <translation>1 Zoll</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1-1/2</source>
        <translation>1-1/2 Zoll</translation>
    </message>
    <message>
        <source>RS_PaperFeed_2</source>
        <translation>2 Zoll</translation>
    </message>
    <message>
        <source>RS_Perforated_ON</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>RS_Perforated_OFF</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_DEFAULT</source>
        <translation>Druckervorgabe</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_OFF</source>
        <translation>Nicht verwendet</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ON</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ONWithoutAntiCurl</source>
        <translation>Verwendet, ohne Glättung</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <translation>Schwellwert</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <translation>Geordnetes Raster</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <translation>Fehlerdiffusion</translation>
    </message>
    <message>
        <source>HC_Reversal</source>
        <translation>Schwarz und Weiß umkehren</translation>
    </message>
    <message>
        <source>HC_Mirror</source>
        <translation>Spiegelbildlich drucken</translation>
    </message>
    <message>
        <source>HC_BiDiPrint</source>
        <translation>Bidirektional drucken</translation>
    </message>
    <message>
        <source>RS_STitle_Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>RS_STitle_Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>RS_STitle_Density</source>
        <translation>Druckdichte</translation>
    </message>
    <message>
        <source>RS_STitle_Media</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>RS_STitle_FormFeedMode</source>
        <translation>Seitenvorschub</translation>
    </message>
    <message>
        <source>RS_STitle_PaperFeed</source>
        <translation>Papiervorschub</translation>
    </message>
    <message>
        <source>RS_STitle_Perforated</source>
        <translation>Perforiertes Papier</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <translation>Halbtonverfahren</translation>
    </message>
    <message>
        <source>HC_STitle_Reversal</source>
        <translation>Schwarz und Weiß umkehren</translation>
    </message>
    <message>
        <source>HC_STitle_Mirror</source>
        <translation>Spiegelbildlich drucken</translation>
    </message>
    <message>
        <source>HC_STitle_BiDiPrint</source>
        <translation>Bidirektional drucken</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Unsupported Size Title</source>
        <translation>Der Papiervorschub liegt außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Unsupported Size MSG1</source>
        <translation>Geben Sie eine ganze Zahl von 1 bis 51 mm ohne führende Null ein.</translation>
    </message>
    <message>
        <source>Unsupported Size MSG2</source>
        <translation>Geben Sie einen Wert von 0.1 bis 2.0 Zoll mit einer Nachkommastelle ein.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>Dieses Papierformat kann nicht bedruckt werden.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>Das Papier liegt außerhalb der Formate, die dieser Drucker annimmt. Es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>Wählen Sie ein anderes Papierformat.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>Eigene Formate müssen innerhalb der Grenzen des Druckers liegen.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>Prüfen Sie Breite und Höhe: Sie werden nicht vertauscht.</translation>
    </message>
    <message>
        <source>AX_PaperFeedStepper</source>
        <translation>Papiervorschub</translation>
    </message>
    <message>
        <source>AX_Increase</source>
        <translation>Erhöhen</translation>
    </message>
    <message>
        <source>AX_Decrease</source>
        <translation>Verringern</translation>
    </message>
    <message>
        <source>AX_HalftonePreview</source>
        <translation>Halbtonvorschau</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_None</source>
        <translation>Kein Beispielbild</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Binary</source>
        <translation>Eine schattierte Kugel in reinem Schwarz und Weiß, ohne Abstufungen</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Dither</source>
        <translation>Eine schattierte Kugel, deren Abstufungen aus einem regelmäßigen Punktmuster bestehen</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Diffusion</source>
        <translation>Eine schattierte Kugel, deren Abstufungen aus fein gestreuten Punkten bestehen</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Druckdichte</translation>
    </message>
    <message>
        <source>Print Density : </source>
        <translation>Druckdichte:</translation>
    </message>
    <message>
        <source>Print Speed</source>
        <translation>Druckgeschwindigkeit</translation>
    </message>
    <message>
        <source>Print Speed : </source>
        <translation>Druckgeschwindigkeit:</translation>
    </message>
    <message>
        <source>Paper Type</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>Paper Type : </source>
        <translation>Papierart:</translation>
    </message>
    <message>
        <source>Form Feed</source>
        <translation>Seitenvorschub</translation>
    </message>
    <message>
        <source>Form Feed : </source>
        <translation>Seitenvorschub:</translation>
    </message>
    <message>
        <source>Paper Feed</source>
        <translation>Papiervorschub</translation>
    </message>
    <message>
        <source>Paper Feed : </source>
        <translation>Papiervorschub:</translation>
    </message>
    <message>
        <source>Perforated Paper</source>
        <translation>Perforiertes Papier</translation>
    </message>
    <message>
        <source>Perforated Paper : </source>
        <translation>Perforiertes Papier:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Halbtonverfahren</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <translation>Halbtonverfahren:</translation>
    </message>
    <message>
        <source>Reverse Black and White</source>
        <translation>Schwarz und Weiß umkehren</translation>
    </message>
    <message>
        <source>Reverse Black and White : </source>
        <translation>Schwarz und Weiß umkehren:</translation>
    </message>
    <message>
        <source>Mirror Image</source>
        <translation>Spiegelbildlich drucken</translation>
    </message>
    <message>
        <source>Mirror Image : </source>
        <translation>Spiegelbildlich drucken:</translation>
    </message>
    <message>
        <source>Bi-directional Printing</source>
        <translation>Bidirektional drucken</translation>
    </message>
    <message>
        <source>Bi-directional Printing : </source>
        <translation>Bidirektional drucken:</translation>
    </message>
    <message>
        <source>Roll Printer Case</source>
        <translation>Rollenpapiergehäuse</translation>
    </message>
    <message>
        <source>Roll Printer Case : </source>
        <translation>Rollenpapiergehäuse:</translation>
    </message>
    <message>
        <source>Kind of Paper</source>
        <translation>Papierform</translation>
    </message>
    <message>
        <source>Kind of Paper : </source>
        <translation>Papierform:</translation>
    </message>
    <message>
        <source>Use Printer Setting</source>
        <translation>Druckereinstellung verwenden</translation>
    </message>
    <message>
        <source>Level 0 (Lightest)</source>
        <translation>Stufe 0 (am hellsten)</translation>
    </message>
    <message>
        <source>Level 10 (Darkest)</source>
        <translation>Stufe 10 (am dunkelsten)</translation>
    </message>
    <message>
        <source>Thermal Paper</source>
        <translation>Thermopapier</translation>
    </message>
    <message>
        <source>Thermal Copy Paper</source>
        <translation>Thermokopierpapier</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Kein Vorschub</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Schwellwert</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Geordnetes Raster</translation>
    </message>
    <message>
        <source>Error Diffusion</source>
        <translation>Fehlerdiffusion</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>Am schnellsten</translation>
    </message>
    <message>
        <source>No Form Feed</source>
        <translation>Kein Seitenvorschub</translation>
    </message>
    <message>
        <source>Fixed Page Length</source>
        <translation>Feste Seitenlänge</translation>
    </message>
    <message>
        <source>End of Page</source>
        <translation>Seitenende</translation>
    </message>
    <message>
        <source>Retract Paper</source>
        <translation>Papier zurückziehen</translation>
    </message>
    <message>
        <source>1/2 inch</source>
        <translation>1/2 Zoll</translation>
    </message>
    <message>
        <source>1 inch</source>
        <translation>1 Zoll</translation>
    </message>
    <message>
        <source>1-1/2 inch</source>
        <translation>1-1/2 Zoll</translation>
    </message>
    <message>
        <source>2 inch</source>
        <translation>2 Zoll</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Druckervorgabe</translation>
    </message>
    <message>
        <source>Not Used</source>
        <translation>Nicht verwendet</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>Used, without Anti-Curl</source>
        <translation>Verwendet, ohne Glättung</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>Einzelblatt</translation>
    </message>
    <message>
        <source>Perforated</source>
        <translation>Perforiert</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Endlos</translation>
    </message>
    <message>
        <source>Perforated, Retract</source>
        <translation>Perforiert, mit Rückzug</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Stufe 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Stufe 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Stufe 3</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>Stufe 4</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>Stufe 5</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>Stufe 6</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>Stufe 7</translation>
    </message>
    <message>
        <source>Level 8</source>
        <translation>Stufe 8</translation>
    </message>
    <message>
        <source>Level 9</source>
        <translation>Stufe 9</translation>
    </message>
</context>
</TS>
