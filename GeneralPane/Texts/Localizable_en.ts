<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>JCL</source>
        <translation>Job Control</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Installable Options</translation>
    </message>
    <message>
        <source>Options Installed</source>
        <translation>Options Installed</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Installed Options</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>The amount is not supported.</source>
        <translation>The amount is not supported.</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>up to %1</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 characters</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 digits</translation>
    </message>
    <message>
        <source>The text is not supported.</source>
        <translation>The text is not supported.</translation>
    </message>
    <message>
        <source>The code is not supported.</source>
        <translation>The code is not supported.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Media Type</translation>
    </message>
    <message>
        <source>Media Source</source>
        <translation>Media Source</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Output Resolution</source>
        <translation>Output Resolution</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>Output Mode</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Color Mode</translation>
    </message>
    <message>
        <source>Color Model</source>
        <translation>Color Model</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Print Quality</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>2-Sided Printing</source>
        <translation>2-Sided Printing</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>Double-Sided Printing</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>Off (1-Sided)</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>Long-Edge (Portrait)</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>Short-Edge (Landscape)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Printer Default</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Draft</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Plain Paper</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>Manual Feed</translation>
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
        <translation>Landscape</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Reverse Landscape</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Reverse Portrait</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Black and White</translation>
    </message>
</context>
</TS>
