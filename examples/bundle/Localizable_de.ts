<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PANEL_NAME</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>Material:</translation>
    </message>
    <message>
        <source>DARKNESS</source>
        <translation>Schwärzung:</translation>
    </message>
    <message>
        <source>SPEED</source>
        <translation>Geschwindigkeit:</translation>
    </message>
    <message>
        <source>TEAR_OFF</source>
        <translation>Abrissversatz:</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>Etiketten am Stück:</translation>
    </message>
    <message>
        <source>MILLIMETRES</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>MORE</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>LESS</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>OUT_OF_RANGE</source>
        <translation>Diesen Wert nimmt der Drucker nicht an: %1.</translation>
    </message>
    <message>
        <source>RANGE</source>
        <translation>Er kann von %1 bis %2 reichen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Media Tracking</source>
        <translation>Materialerkennung</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Endlos</translation>
    </message>
    <message>
        <source>Black Mark</source>
        <translation>Schwarzmarke</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Schwärzung</translation>
    </message>
    <message>
        <source>Lightest</source>
        <translation>Am hellsten</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Darkest</source>
        <translation>Am dunkelsten</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Tear-off Offset</source>
        <translation>Abrissversatz</translation>
    </message>
    <message>
        <source>Labels at a Time</source>
        <translation>Etiketten am Stück</translation>
    </message>
</context>
</TS>
