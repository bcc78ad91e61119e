<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>JCL</source>
        <translation>Auftragssteuerung</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Installierbare Optionen</translation>
    </message>
    <message>
        <source>Options Installed</source>
        <translation>Installierte Optionen</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Installierte Optionen</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigener Wert</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>The amount is not supported.</source>
        <translation>Dieser Wert wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>bis zu %1</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 Ziffern</translation>
    </message>
    <message>
        <source>The text is not supported.</source>
        <translation>Dieser Text wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The code is not supported.</source>
        <translation>Dieser Code wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>Media Source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Output Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>Ausgabemodus</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Color Model</source>
        <translation>Farbmodell</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>2-Sided Printing</source>
        <translation>Zweiseitiger Druck</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>Zweiseitiger Druck</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>Aus (einseitig)</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>Lange Kante (Hochformat)</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>Kurze Kante (Querformat)</translation>
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
        <source>True</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Vorgabe des Druckers</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Normalpapier</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>Manuelle Zufuhr</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Querformat, umgedreht</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Hochformat, umgedreht</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Schwarzweiß</translation>
    </message>
</context>
</TS>
