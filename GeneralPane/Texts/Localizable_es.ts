<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>JCL</source>
        <translation>Control del trabajo</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>Opciones instalables</translation>
    </message>
    <message>
        <source>Options Installed</source>
        <translation>Opciones instaladas</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>Opciones instaladas</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>The amount is not supported.</source>
        <translation>Este valor no se admite.</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>hasta %1</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 caracteres</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 cifras</translation>
    </message>
    <message>
        <source>The text is not supported.</source>
        <translation>Este texto no se admite.</translation>
    </message>
    <message>
        <source>The code is not supported.</source>
        <translation>Este código no se admite.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Media Source</source>
        <translation>Origen del papel</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Output Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>Modo de salida</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Color Model</source>
        <translation>Modelo de color</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>Calidad de impresión</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Dúplex</translation>
    </message>
    <message>
        <source>2-Sided Printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>No (una cara)</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>Borde largo (vertical)</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>Borde corto (horizontal)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>No</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Sí</translation>
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
        <translation>Sí</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Valor de la impresora</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>Papel normal</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>Alimentación manual</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Reverse Landscape</source>
        <translation>Horizontal invertida</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>Vertical invertida</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>Blanco y negro</translation>
    </message>
</context>
</TS>
