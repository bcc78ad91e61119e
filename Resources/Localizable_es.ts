<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>STEXT_TAB1</source>
        <translation>Ajustes de impresión</translation>
    </message>
    <message>
        <source>STEXT_TAB2</source>
        <translation>Ajustes avanzados</translation>
    </message>
    <message>
        <source>RS_Density</source>
        <translation>Densidad de impresión:</translation>
    </message>
    <message>
        <source>RS_Speed</source>
        <translation>Velocidad de impresión:</translation>
    </message>
    <message>
        <source>RS_Media</source>
        <translation>Tipo de papel:</translation>
    </message>
    <message>
        <source>RS_FormFeedMode</source>
        <translation>Avance de página:</translation>
    </message>
    <message>
        <source>RS_PaperFeed</source>
        <translation>Avance de papel:</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <translation>Semitono:</translation>
    </message>
    <message>
        <source>HC_Option</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>RS_Perforated</source>
        <translation>Papel perforado</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint</source>
        <translation>Carcasa para rollo</translation>
    </message>
    <message>
        <source>RS_Density_home</source>
        <translation>Usar el ajuste de la impresora</translation>
    </message>
    <message>
        <source>RS_Density_0</source>
        <translation>Nivel 0 (más claro)</translation>
    </message>
    <message>
        <source>RS_Density_10</source>
        <translation>Nivel 10 (más oscuro)</translation>
    </message>
    <message>
        <source>RS_Density_1</source>
        <translation>Nivel 1</translation>
    </message>
    <message>
        <source>RS_Density_2</source>
        <translation>Nivel 2</translation>
    </message>
    <message>
        <source>RS_Density_3</source>
        <translation>Nivel 3</translation>
    </message>
    <message>
        <source>RS_Density_4</source>
        <translation>Nivel 4</translation>
    </message>
    <message>
        <source>RS_Density_5</source>
        <translation>Nivel 5</translation>
    </message>
    <message>
        <source>RS_Density_6</source>
        <translation>Nivel 6</translation>
    </message>
    <message>
        <source>RS_Density_7</source>
        <translation>Nivel 7</translation>
    </message>
    <message>
        <source>RS_Density_8</source>
        <translation>Nivel 8</translation>
    </message>
    <message>
        <source>RS_Density_9</source>
        <translation>Nivel 9</translation>
    </message>
    <message>
        <source>RS_Speed_home</source>
        <translation>Usar el ajuste de la impresora</translation>
    </message>
    <message>
        <source>RS_Speed_0</source>
        <translation>Lenta</translation>
    </message>
    <message>
        <source>RS_Speed_1</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>RS_Speed_2</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>RS_Speed_3</source>
        <translation>Máxima</translation>
    </message>
    <message>
        <source>RS_Media_Thermal</source>
        <translation>Papel térmico</translation>
    </message>
    <message>
        <source>RS_Media_ThermalCopy</source>
        <translation>Papel térmico de copia</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_NO</source>
        <translation>Sin avance de página</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_FIX</source>
        <translation>Longitud de página fija</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_END</source>
        <translation>Fin de página</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_RET</source>
        <translation>Retroceder el papel</translation>
    </message>
    <message>
        <source>RS_PaperFeed_NO</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1/2</source>
        <translation>1/2 pulgada</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1</source>
        <translation>1 pulgada</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1-1/2</source>
        <translation>1-1/2 pulgadas</translation>
    </message>
    <message>
        <source>RS_PaperFeed_2</source>
        <translation>2 pulgadas</translation>
    </message>
    <message>
        <source>RS_Perforated_ON</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>RS_Perforated_OFF</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_DEFAULT</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_OFF</source>
        <translation>No se usa</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ON</source>
        <translation>Se usa</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ONWithoutAntiCurl</source>
        <translation>Se usa, sin alisado</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <translation>Difusión de error</translation>
    </message>
    <message>
        <source>HC_Reversal</source>
        <translation>Invertir blanco y negro</translation>
    </message>
    <message>
        <source>HC_Mirror</source>
        <translation>Imagen reflejada</translation>
    </message>
    <message>
        <source>HC_BiDiPrint</source>
        <translation>Impresión bidireccional</translation>
    </message>
    <message>
        <source>RS_STitle_Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>RS_STitle_Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>RS_STitle_Density</source>
        <translation>Densidad de impresión</translation>
    </message>
    <message>
        <source>RS_STitle_Media</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>RS_STitle_FormFeedMode</source>
        <translation>Avance de página</translation>
    </message>
    <message>
        <source>RS_STitle_PaperFeed</source>
        <translation>Avance de papel</translation>
    </message>
    <message>
        <source>RS_STitle_Perforated</source>
        <translation>Papel perforado</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <translation>Semitono</translation>
    </message>
    <message>
        <source>HC_STitle_Reversal</source>
        <translation>Invertir blanco y negro</translation>
    </message>
    <message>
        <source>HC_STitle_Mirror</source>
        <translation>Imagen reflejada</translation>
    </message>
    <message>
        <source>HC_STitle_BiDiPrint</source>
        <translation>Impresión bidireccional</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Unsupported Size Title</source>
        <translation>El avance de papel está fuera del intervalo.</translation>
    </message>
    <message>
        <source>Unsupported Size MSG1</source>
        <translation>Escriba un número entero de 1 a 51 mm, sin cero inicial.</translation>
    </message>
    <message>
        <source>Unsupported Size MSG2</source>
        <translation>Escriba un valor de 0.1 a 2.0 pulgadas, con un decimal.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>No se puede imprimir en este tamaño de papel.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>El papel está fuera de los tamaños que admite esta impresora. No se ha imprimido nada.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>Elija otro tamaño de papel.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>Un tamaño personalizado debe respetar los límites de la impresora.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>Compruebe el ancho y el alto: no se intercambian.</translation>
    </message>
    <message>
        <source>AX_PaperFeedStepper</source>
        <translation>Avance de papel</translation>
    </message>
    <message>
        <source>AX_Increase</source>
        <translation>Aumentar</translation>
    </message>
    <message>
        <source>AX_Decrease</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>AX_HalftonePreview</source>
        <translation>Vista previa del semitono</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_None</source>
        <translation>Sin imagen de muestra</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Binary</source>
        <translation>Una bola sombreada en blanco y negro puros, sin matices</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Dither</source>
        <translation>Una bola sombreada cuyos matices forman un patrón regular de puntos</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Diffusion</source>
        <translation>Una bola sombreada cuyos matices son puntos finamente dispersos</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Densidad de impresión</translation>
    </message>
    <message>
        <source>Print Density : </source>
        <translation>Densidad de impresión:</translation>
    </message>
    <message>
        <source>Print Speed</source>
        <translation>Velocidad de impresión</translation>
    </message>
    <message>
        <source>Print Speed : </source>
        <translation>Velocidad de impresión:</translation>
    </message>
    <message>
        <source>Paper Type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Paper Type : </source>
        <translation>Tipo de papel:</translation>
    </message>
    <message>
        <source>Form Feed</source>
        <translation>Avance de página</translation>
    </message>
    <message>
        <source>Form Feed : </source>
        <translation>Avance de página:</translation>
    </message>
    <message>
        <source>Paper Feed</source>
        <translation>Avance de papel</translation>
    </message>
    <message>
        <source>Paper Feed : </source>
        <translation>Avance de papel:</translation>
    </message>
    <message>
        <source>Perforated Paper</source>
        <translation>Papel perforado</translation>
    </message>
    <message>
        <source>Perforated Paper : </source>
        <translation>Papel perforado:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Semitono</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <translation>Semitono:</translation>
    </message>
    <message>
        <source>Reverse Black and White</source>
        <translation>Invertir blanco y negro</translation>
    </message>
    <message>
        <source>Reverse Black and White : </source>
        <translation>Invertir blanco y negro:</translation>
    </message>
    <message>
        <source>Mirror Image</source>
        <translation>Imagen reflejada</translation>
    </message>
    <message>
        <source>Mirror Image : </source>
        <translation>Imagen reflejada:</translation>
    </message>
    <message>
        <source>Bi-directional Printing</source>
        <translation>Impresión bidireccional</translation>
    </message>
    <message>
        <source>Bi-directional Printing : </source>
        <translation>Impresión bidireccional:</translation>
    </message>
    <message>
        <source>Roll Printer Case</source>
        <translation>Carcasa para rollo</translation>
    </message>
    <message>
        <source>Roll Printer Case : </source>
        <translation>Carcasa para rollo:</translation>
    </message>
    <message>
        <source>Kind of Paper</source>
        <translation>Formato del papel</translation>
    </message>
    <message>
        <source>Kind of Paper : </source>
        <translation>Formato del papel:</translation>
    </message>
    <message>
        <source>Use Printer Setting</source>
        <translation>Usar el ajuste de la impresora</translation>
    </message>
    <message>
        <source>Level 0 (Lightest)</source>
        <translation>Nivel 0 (más claro)</translation>
    </message>
    <message>
        <source>Level 10 (Darkest)</source>
        <translation>Nivel 10 (más oscuro)</translation>
    </message>
    <message>
        <source>Thermal Paper</source>
        <translation>Papel térmico</translation>
    </message>
    <message>
        <source>Thermal Copy Paper</source>
        <translation>Papel térmico de copia</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Tramado</translation>
    </message>
    <message>
        <source>Error Diffusion</source>
        <translation>Difusión de error</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lenta</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>Máxima</translation>
    </message>
    <message>
        <source>No Form Feed</source>
        <translation>Sin avance de página</translation>
    </message>
    <message>
        <source>Fixed Page Length</source>
        <translation>Longitud de página fija</translation>
    </message>
    <message>
        <source>End of Page</source>
        <translation>Fin de página</translation>
    </message>
    <message>
        <source>Retract Paper</source>
        <translation>Retroceder el papel</translation>
    </message>
    <message>
        <source>1/2 inch</source>
        <translation>1/2 pulgada</translation>
    </message>
    <message>
        <source>1 inch</source>
        <translation>1 pulgada</translation>
    </message>
    <message>
        <source>1-1/2 inch</source>
        <translation>1-1/2 pulgadas</translation>
    </message>
    <message>
        <source>2 inch</source>
        <translation>2 pulgadas</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Not Used</source>
        <translation>No se usa</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Se usa</translation>
    </message>
    <message>
        <source>Used, without Anti-Curl</source>
        <translation>Se usa, sin alisado</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>Hoja suelta</translation>
    </message>
    <message>
        <source>Perforated</source>
        <translation>Perforado</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollo</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continuo</translation>
    </message>
    <message>
        <source>Perforated, Retract</source>
        <translation>Perforado, con retroceso</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Nivel 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Nivel 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Nivel 3</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>Nivel 4</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>Nivel 5</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>Nivel 6</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>Nivel 7</translation>
    </message>
    <message>
        <source>Level 8</source>
        <translation>Nivel 8</translation>
    </message>
    <message>
        <source>Level 9</source>
        <translation>Nivel 9</translation>
    </message>
</context>
</TS>
