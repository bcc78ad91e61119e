<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PANEL_NAME</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>Media:</translation>
    </message>
    <message>
        <source>DARKNESS</source>
        <translation>Darkness:</translation>
    </message>
    <message>
        <source>SPEED</source>
        <translation>Speed:</translation>
    </message>
    <message>
        <source>TEAR_OFF</source>
        <translation>Tear-off offset:</translation>
    </message>
    <message>
        <source>LABELS</source>
        <translation>Labels at a time:</translation>
    </message>
    <message>
        <source>MILLIMETRES</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>MORE</source>
        <translation>More</translation>
    </message>
    <message>
        <source>LESS</source>
        <translation>Less</translation>
    </message>
    <message>
        <source>OUT_OF_RANGE</source>
        <translation>The printer does not take this value: %1.</translation>
    </message>
    <message>
        <source>RANGE</source>
        <translation>It can be from %1 to %2.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
