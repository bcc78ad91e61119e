<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>foundation::Bundle</name>
    <message>
        <source>%1: not a plug-in bundle (Info.json: %2)</source>
        <translation>%1: no es un paquete de complemento (Info.json: %2)</translation>
    </message>
    <message>
        <source>%1/Info.json: names no executable or no principal class</source>
        <translation>%1/Info.json: no indica ningún ejecutable o ninguna clase principal</translation>
    </message>
    <message>
        <source>%1: no such plug-in bundle</source>
        <translation>%1: no existe este paquete de complemento</translation>
    </message>
</context>
<context>
    <name>foundation::RegularFile</name>
    <message>
        <source>%1: not a file</source>
        <translation>%1: no es un archivo</translation>
    </message>
</context>
<context>
    <name>foundation::SystemError</name>
    <message>
        <source>No such file or directory</source>
        <translation>no existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>operación no permitida</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>no queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>cuota de disco superada</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>el dispositivo es de solo lectura</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>el nombre del archivo es demasiado largo</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>error de entrada o salida</translation>
    </message>
</context>
<context>
    <name>host::ArrangedPages</name>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1: el documento está dañado</translation>
    </message>
    <message>
        <source>%1: there is no room for its pages</source>
        <translation>%1: no hay espacio para sus páginas</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be put on the paper</source>
        <translation>%1: colocar el documento en el papel requiere demasiado tiempo o memoria</translation>
    </message>
    <message>
        <source>%1: can&apos;t be put on the paper: %2 is missing (it is part of qnprint).</source>
        <translation>%1: no se puede colocar en el papel: falta %2 (es parte de qnprint).</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1: no se pueden guardar sus páginas: %2</translation>
    </message>
</context>
<context>
    <name>host::Certificate</name>
    <message>
        <source>it was withdrawn</source>
        <translation>fue revocado</translation>
    </message>
    <message>
        <source>it is another computer&apos;s</source>
        <translation>es de otro equipo</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>ha caducado</translation>
    </message>
    <message>
        <source>nobody that this computer trusts vouches for it</source>
        <translation>no lo avala nadie en quien confíe este equipo</translation>
    </message>
    <message>
        <source>it is not valid</source>
        <translation>no es válido</translation>
    </message>
    <message>
        <source>the certificate of %1 is not trusted: %2</source>
        <translation>el certificado de %1 no es de confianza: %2</translation>
    </message>
</context>
<context>
    <name>host::Conversation</name>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>el servidor CUPS no responde</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s answer can&apos;t be read</source>
        <translation>no se puede leer la respuesta del servidor CUPS</translation>
    </message>
    <message>
        <source>no process can be started: %1</source>
        <translation>no se puede iniciar ningún proceso: %1</translation>
    </message>
</context>
<context>
    <name>host::CredentialsBox</name>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>&amp;Iniciar sesión</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>&amp;Desbloquear</translation>
    </message>
</context>
<context>
    <name>host::CupsSink</name>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>cancelado; no se imprimió nada</translation>
    </message>
    <message>
        <source>%1: %2; a job may be there, so look before you print again</source>
        <translation>%1: %2; puede que haya un trabajo allí, compruébelo antes de volver a imprimir</translation>
    </message>
    <message>
        <source>%1: %2; job %1-%3 may still be there, so look before you print again</source>
        <translation>%1: %2; puede que el trabajo %1-%3 siga allí, compruébelo antes de volver a imprimir</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>no plug-in bundle in %1</source>
        <translation>ningún paquete de complemento en %1</translation>
    </message>
</context>
<context>
    <name>host::DialogWindow</name>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Paneles</translation>
    </message>
    <message>
        <source>all</source>
        <translation>todas</translation>
    </message>
    <message>
        <source>Single pages and ranges, such as 1-3,5</source>
        <translation>Páginas e intervalos, por ejemplo 1-3,5</translation>
    </message>
    <message>
        <source>Save as &amp;Defaults</source>
        <translation>Guardar como valores pre&amp;determinados</translation>
    </message>
    <message>
        <source>Save as &amp;Preset…</source>
        <translation>Guardar como a&amp;juste…</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>Pági&amp;nas:</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Im&amp;presora:</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>&amp;Ajuste:</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>Pap&amp;el:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Ancho del papel</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Alto del papel</translation>
    </message>
    <message>
        <source>There is no panel “%1”.</source>
        <translation>No hay ningún panel «%1».</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>Elegir archi&amp;vo…</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>Res&amp;umen</translation>
    </message>
    <message>
        <source>De&amp;lete Preset…</source>
        <translation>E&amp;liminar el ajuste…</translation>
    </message>
    <message>
        <source>Print %1 and %2 more</source>
        <translation>Imprimir %1 y %2 más</translation>
    </message>
    <message>
        <source>Choose a file to print, or drop one here.</source>
        <translation>Elija un archivo para imprimir o suéltelo aquí.</translation>
    </message>
    <message>
        <source>Choose Files to Print</source>
        <translation>Elegir los archivos que se imprimirán</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificado)</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Eliminar el ajuste</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>¿Eliminar el ajuste «%1»?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Previe&amp;w</source>
        <translation>Vi&amp;sta previa</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>how many pages</comment>
        <translation>de %1</translation>
    </message>
    <message>
        <source>&amp;Other Printers…</source>
        <translation>&amp;Otras impresoras…</translation>
    </message>
    <message>
        <source>&amp;Look at the pages before they are printed</source>
        <translation>&amp;Ver las páginas antes de imprimirlas</translation>
    </message>
</context>
<context>
    <name>host::Document</name>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message>
        <source>%1: the document is empty</source>
        <translation>%1: el documento está vacío</translation>
    </message>
    <message>
        <source>the document can&apos;t be read any more</source>
        <translation>ya no se puede leer el documento</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>el documento</translation>
    </message>
    <message>
        <source>%1: can&apos;t be printed as it is; PDF, PostScript, PNG, JPEG, GIF, TIFF and plain text can</source>
        <translation>%1: no se puede imprimir tal cual; PDF, PostScript, PNG, JPEG, GIF, TIFF y texto sin formato sí</translation>
    </message>
    <message>
        <source>there is too much of it</source>
        <translation>hay demasiado</translation>
    </message>
</context>
<context>
    <name>host::DocumentCheck</name>
    <message>
        <source>The document has only one page.</source>
        <translation>El documento tiene una sola página.</translation>
    </message>
    <message>
        <source>The document has only %1 pages.</source>
        <translation>El documento tiene solo %1 páginas.</translation>
    </message>
    <message>
        <source>The document is %1 %3 wide, the paper %2.</source>
        <translation>El documento mide %1 %3 de ancho y el papel %2.</translation>
    </message>
    <message>
        <source>The document is %1 %3 long, the paper %2.</source>
        <translation>El documento mide %1 %3 de largo y el papel %2.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <comment>a paper</comment>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>Use %1 × %2 %3</source>
        <comment>width, height, unit</comment>
        <translation>Usar %1 × %2 %3</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>Ajustar al papel</translation>
    </message>
    <message>
        <source>The document is %1 × %2 %3, the paper %4 × %5.</source>
        <comment>width, height, unit, width, height</comment>
        <translation>El documento mide %1 × %2 %3, el papel %4 × %5.</translation>
    </message>
</context>
<context>
    <name>host::DocumentLock</name>
    <message>
        <source>%1; qpdf, which unlocks it, is missing</source>
        <translation>%1; falta qpdf, que lo desbloquea</translation>
    </message>
    <message>
        <source>%1: stays locked; no password was right</source>
        <translation>%1: sigue protegido; ninguna contraseña era la correcta</translation>
    </message>
</context>
<context>
    <name>host::FolderSink</name>
    <message>
        <source>can&apos;t be made</source>
        <translation>no se puede crear</translation>
    </message>
    <message>
        <source>can&apos;t be written</source>
        <translation>no se puede escribir</translation>
    </message>
    <message>
        <source>too many jobs of this name</source>
        <translation>demasiados trabajos con este nombre</translation>
    </message>
</context>
<context>
    <name>host::ForApplications</name>
    <message>
        <source>Document</source>
        <comment>a title</comment>
        <translation>Documento</translation>
    </message>
</context>
<context>
    <name>host::JobFailedBox</name>
    <message>
        <source>%1 Was Not Printed</source>
        <translation>%1 no se imprimió</translation>
    </message>
    <message>
        <source>A Document Was Not Printed</source>
        <translation>Un documento no se imprimió</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Another &amp;Printer…</source>
        <translation>Otra &amp;impresora…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Guardar como PDF…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>Save the Document</source>
        <translation>Guardar el documento</translation>
    </message>
</context>
<context>
    <name>host::JobSink</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1: ya no se puede leer</translation>
    </message>
    <message>
        <source>%1: has changed while it was printed</source>
        <translation>%1: ha cambiado mientras se imprimía</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>cancelado; no se imprimió nada</translation>
    </message>
</context>
<context>
    <name>host::LengthBox</name>
    <message>
        <source>%1 to %2</source>
        <comment>two lengths</comment>
        <translation>%1 a %2</translation>
    </message>
</context>
<context>
    <name>host::PDFPages</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1: ya no se puede leer</translation>
    </message>
    <message>
        <source>%1: the image is too large to be laid out</source>
        <translation>%1: la imagen es demasiado grande para componerla</translation>
    </message>
    <message>
        <source>%1: has changed while it was read</source>
        <translation>%1: ha cambiado mientras se leía</translation>
    </message>
    <message>
        <source>%1: the image is damaged</source>
        <translation>%1: la imagen está dañada</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>%1: this kind of image can&apos;t be read; Qt&apos;s further image formats are not installed</source>
        <translation>%1: no se puede leer este tipo de imagen; los formatos de imagen adicionales de Qt no están instalados</translation>
    </message>
    <message>
        <source>%1: can&apos;t be laid out for this paper</source>
        <translation>%1: no se puede componer para este papel</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1: no se pueden guardar sus páginas: %2</translation>
    </message>
    <message>
        <source>%1: the text is too long to be laid out</source>
        <translation>%1: el texto es demasiado largo para componerlo</translation>
    </message>
</context>
<context>
    <name>host::PPDDocument</name>
    <message>
        <source>%1: not a PPD file (the file is empty)</source>
        <translation>%1: no es un archivo PPD (el archivo está vacío)</translation>
    </message>
    <message>
        <source>%1: not a PPD file (line %2: %3)</source>
        <translation>%1: no es un archivo PPD (línea %2: %3)</translation>
    </message>
    <message>
        <source>%1: not opened (%2)</source>
        <translation>%1: no se ha abierto (%2)</translation>
    </message>
</context>
<context>
    <name>host::PPDLimits</name>
    <message>
        <source>keywords</source>
        <translation>palabras clave</translation>
    </message>
    <message>
        <source>options</source>
        <translation>opciones</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>tamaños de papel</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>restricciones</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>more than %1 %2</source>
        <translation>más de %1 %2</translation>
    </message>
</context>
<context>
    <name>host::PPDProblems</name>
    <message>
        <source>the header of a PPD file is missing</source>
        <translation>falta el encabezado de un archivo PPD</translation>
    </message>
    <message>
        <source>the asterisk before a keyword is missing</source>
        <translation>falta el asterisco ante una palabra clave</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>falta un valor</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la línea es demasiado larga</translation>
    </message>
    <message>
        <source>a character that is not allowed</source>
        <translation>un carácter no permitido</translation>
    </message>
    <message>
        <source>a keyword or text that is not allowed</source>
        <translation>una palabra clave o un texto no permitidos</translation>
    </message>
    <message>
        <source>a group or an option that is not begun or not ended</source>
        <translation>un grupo o una opción sin comienzo o sin final</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>no se puede leer</translation>
    </message>
</context>
<context>
    <name>host::PPDTarget</name>
    <message>
        <source>-o %1=%2: the printer has no such choice</source>
        <translation>-o %1=%2: la impresora no tiene esta opción</translation>
    </message>
    <message>
        <source>The plug-in has no settings for this printer. It is printed with the driver&apos;s defaults.</source>
        <translation>El complemento no tiene ajustes para esta impresora. Se imprime con los del controlador.</translation>
    </message>
    <message>
        <source>%1: no preset “%2”, and no other</source>
        <translation>%1: no hay ningún ajuste «%2» ni ningún otro</translation>
    </message>
    <message>
        <source>%1: no preset “%2”; there are: %3</source>
        <translation>%1: no hay ningún ajuste «%2»; hay: %3</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option.</source>
        <translation>-o %1=%2: no consta que la impresora ni el servidor tengan esta opción.</translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option. Did you mean “%3”?</source>
        <translation>-o %1=%2: no consta que la impresora ni el servidor tengan esta opción. ¿Quería decir «%3»?</translation>
    </message>
    <message>
        <source>--output %1: there is no such folder; it will be made.</source>
        <translation>--output %1: esta carpeta no existe; se creará.</translation>
    </message>
</context>
<context>
    <name>host::PagePreview</name>
    <message>
        <source>The document&apos;s pages will show here.</source>
        <translation>Aquí aparecerán las páginas del documento.</translation>
    </message>
    <message>
        <source>The size of the paper is not known.</source>
        <translation>No se conoce el tamaño del papel.</translation>
    </message>
</context>
<context>
    <name>host::PageReader</name>
    <message>
        <source>Pages can&apos;t be shown: %1 is missing (it is part of poppler-utils).</source>
        <translation>No se pueden mostrar las páginas: falta %1 (es parte de poppler-utils).</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be read</source>
        <translation>%1: leer el documento requiere demasiado tiempo o memoria</translation>
    </message>
    <message>
        <source>%1: the document is locked with a password</source>
        <translation>%1: el documento está protegido con una contraseña</translation>
    </message>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1: el documento está dañado</translation>
    </message>
    <message>
        <source>%1: the document has no pages</source>
        <translation>%1: el documento no tiene páginas</translation>
    </message>
    <message>
        <source>%1: page %2 can&apos;t be drawn</source>
        <translation>%1: no se puede dibujar la página %2</translation>
    </message>
    <message>
        <source>%1: the document has too many pages</source>
        <translation>%1: el documento tiene demasiadas páginas</translation>
    </message>
</context>
<context>
    <name>host::PageView</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <translation> in</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Tamaño personalizado…</translation>
    </message>
    <message>
        <source>The printer does not take %1, but %2.</source>
        <comment>a length, and limits</comment>
        <translation>La impresora no admite %1, sino %2.</translation>
    </message>
</context>
<context>
    <name>host::PictureFile</name>
    <message>
        <source>%1: can&apos;t be written</source>
        <translation>%1: no se puede escribir</translation>
    </message>
</context>
<context>
    <name>host::PlainTarget</name>
    <message>
        <source>No driver describes this printer: it has general settings only.</source>
        <translation>Ningún controlador describe esta impresora: solo tiene ajustes generales.</translation>
    </message>
</context>
<context>
    <name>host::PlugIn</name>
    <message>
        <source>%1: made for interface version %2, this dialog has %3</source>
        <translation>%1: hecho para la versión de interfaz %2; este diálogo tiene la %3</translation>
    </message>
    <message>
        <source>%1: %2 is not the code of a panel plug-in</source>
        <translation>%1: %2 no es el código de un complemento de ajustes</translation>
    </message>
    <message>
        <source>%1: built for “%2”, this dialog is “%3”</source>
        <translation>%1: compilado para «%2», este diálogo es «%3»</translation>
    </message>
</context>
<context>
    <name>host::PresetNameBox</name>
    <message>
        <source>Save as Preset</source>
        <translation>Guardar como ajuste</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>“%1” is there already; saving replaces it.</source>
        <translation>«%1» ya existe; al guardar se reemplaza.</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Page before</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>As pr&amp;inted</source>
        <translation>C&amp;omo se imprime</translation>
    </message>
    <message>
        <source>1:1</source>
        <comment>a dot of the printer as a pixel</comment>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Each dot of the printer as a pixel of the screen</source>
        <translation>Cada punto de la impresora como un píxel de la pantalla</translation>
    </message>
    <message>
        <source>In black and white, with what the settings do to the page</source>
        <translation>En blanco y negro, con lo que los ajustes hacen con la página</translation>
    </message>
    <message>
        <source>Size: automatic</source>
        <translation>Tamaño: automático</translation>
    </message>
    <message>
        <source>Size: as it is</source>
        <translation>Tamaño: tal cual</translation>
    </message>
    <message>
        <source>Size: fit to paper</source>
        <translation>Tamaño: ajustar al papel</translation>
    </message>
    <message>
        <source>Size: fill the paper</source>
        <translation>Tamaño: llenar el papel</translation>
    </message>
    <message>
        <source>Size of the pages</source>
        <translation>Tamaño de las páginas</translation>
    </message>
    <message>
        <source>Automatic: pages that are larger than the paper are made smaller</source>
        <translation>Automático: las páginas más grandes que el papel se reducen</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Not in this picture: %1</source>
        <translation>No aparece en esta imagen: %1</translation>
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
        <translation>Buscando la impresora…</translation>
    </message>
    <message>
        <source>The printer&apos;s description has changed on the server. Please look over the settings.</source>
        <translation>La descripción de la impresora ha cambiado en el servidor. Revise los ajustes.</translation>
    </message>
    <message>
        <source>%1: the plug-in has no interface for this panel.</source>
        <translation>%1: el complemento no tiene interfaz para este panel.</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1.</source>
        <translation>Guardado como sus valores predeterminados para %1.</translation>
    </message>
    <message>
        <source>Saved as “%1” for %2.</source>
        <translation>Guardado como «%1» para %2.</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>Se eliminó «%1».</translation>
    </message>
    <message>
        <source>There is no document to print.</source>
        <translation>No hay ningún documento que imprimir.</translation>
    </message>
    <message>
        <source>“%1” are no pages. Write single pages and ranges, such as 1-3,5.</source>
        <translation>«%1» no son páginas. Escriba páginas e intervalos, por ejemplo 1-3,5.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>The print service does not run. Start it (“systemctl start cups”), or ask whoever looks after this computer.</source>
        <translation>El servicio de impresión no está en marcha. Inícielo («systemctl start cups») o pregunte a quien se ocupa de este equipo.</translation>
    </message>
    <message>
        <source>The print service has no printer yet.</source>
        <translation>El servicio de impresión aún no tiene ninguna impresora.</translation>
    </message>
    <message>
        <source>Choose a printer.</source>
        <translation>Elija una impresora.</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>all</source>
        <translation>todas</translation>
    </message>
    <message>
        <source>Cancelled. What is left was not printed.</source>
        <translation>Cancelado. El resto no se ha imprimido.</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1, without the number of copies.</source>
        <translation>Guardado como sus valores predeterminados para %1, sin el número de copias.</translation>
    </message>
</context>
<context>
    <name>host::PrintTarget</name>
    <message>
        <source>%1: sent to %2</source>
        <translation>%1: enviado a %2</translation>
    </message>
    <message>
        <source>%1 waits: %2</source>
        <comment>a document, and why</comment>
        <translation>%1 espera: %2</translation>
    </message>
</context>
<context>
    <name>host::PrintedPages</name>
    <message>
        <source>%1: PostScript can&apos;t be shown before it is printed</source>
        <translation>%1: PostScript no se puede mostrar antes de imprimirlo</translation>
    </message>
    <message>
        <source>%1 has only one page, not %2</source>
        <comment>a document, ranges of pages</comment>
        <translation>%1 solo tiene una página, no %2</translation>
    </message>
    <message>
        <source>%1 has only %2 pages, not %3</source>
        <comment>a document, a number, ranges of pages</comment>
        <translation>%1 solo tiene %2 páginas, no %3</translation>
    </message>
    <message>
        <source>The paper is too large to be shown.</source>
        <translation>El papel es demasiado grande para mostrarlo.</translation>
    </message>
    <message>
        <source>%1: page %2 is too large to be shown</source>
        <translation>%1: la página %2 es demasiado grande para mostrarla</translation>
    </message>
</context>
<context>
    <name>host::Remarks</name>
    <message>
        <source>%1 instead of “%2”, to go with %3.</source>
        <translation>%1 en lugar de «%2», para ir con %3.</translation>
    </message>
    <message>
        <source>the other choices</source>
        <translation>los demás ajustes</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the rules for the paper decide it.</source>
        <translation>%1 no está como se guardó: lo deciden las reglas del papel.</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the printer has no such choice any more.</source>
        <translation>%1 no está como se guardó: la impresora ya no tiene esa opción.</translation>
    </message>
    <message>
        <source>%1 comes with: %2.</source>
        <comment>a paper, and choices</comment>
        <translation>Con %1: %2.</translation>
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
        <translation>«%1»: un nombre es una sola palabra sin barras ni comillas</translation>
    </message>
    <message>
        <source>%1: can&apos;t be written just now</source>
        <translation>%1: no se puede escribir ahora</translation>
    </message>
    <message>
        <source>%1: can&apos;t be read</source>
        <translation>%1: no se puede leer</translation>
    </message>
    <message>
        <source>%1: can&apos;t hold a value with a line end</source>
        <translation>%1: no admite un valor con salto de línea</translation>
    </message>
    <message>
        <source>%1: has the preset “%2” for all users; it stays</source>
        <translation>%1: tiene el ajuste «%2» para todos los usuarios; se queda</translation>
    </message>
</context>
<context>
    <name>host::ServerConnection</name>
    <message>
        <source>%1: the queue does not take jobs now</source>
        <translation>%1: la cola no acepta trabajos ahora</translation>
    </message>
    <message>
        <source>%1: the queue is stopped; jobs wait until it is started</source>
        <translation>%1: la cola está detenida; los trabajos esperan a que se reanude</translation>
    </message>
    <message>
        <source>there is no default queue</source>
        <translation>no hay cola predeterminada</translation>
    </message>
    <message>
        <source>%1: no such queue</source>
        <translation>%1: no existe esa cola</translation>
    </message>
    <message>
        <source>no CUPS server answers</source>
        <translation>ningún servidor CUPS responde</translation>
    </message>
    <message>
        <source>the CUPS server asks for a password</source>
        <translation>el servidor CUPS pide una contraseña</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>el servidor CUPS no responde</translation>
    </message>
    <message>
        <source>the PPD on the server can&apos;t be used: %1</source>
        <translation>no se puede usar el PPD del servidor: %1</translation>
    </message>
    <message>
        <source>no such queue</source>
        <translation>no existe esa cola</translation>
    </message>
    <message>
        <source>the printer&apos;s description has changed meanwhile; nothing was printed</source>
        <translation>la descripción de la impresora ha cambiado mientras tanto; no se ha impreso nada</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>the CUPS server refuses it (%1)</source>
        <translation>el servidor CUPS lo rechaza (%1)</translation>
    </message>
    <message>
        <source>the CUPS server gave no proper answer</source>
        <translation>el servidor CUPS no ha dado una respuesta correcta</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s file is too large</source>
        <translation>el archivo del servidor CUPS es demasiado grande</translation>
    </message>
    <message>
        <source>the connection to the CUPS server broke</source>
        <translation>se ha interrumpido la conexión con el servidor CUPS</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>sin papel</translation>
    </message>
    <message>
        <source>little paper left</source>
        <translation>queda poco papel</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>atasco de papel</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>tapa abierta</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>no accesible</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a state and its reason</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>no acepta trabajos</translation>
    </message>
    <message>
        <source>%1 is stopped</source>
        <translation>%1 está detenida</translation>
    </message>
    <message>
        <source>the CUPS server does not accept the user name or the password</source>
        <translation>el servidor CUPS no acepta el usuario o la contraseña</translation>
    </message>
    <message>
        <source>the connection is not encrypted, so others on the network can read the password</source>
        <translation>la conexión no está cifrada, por lo que otros en la red pueden leer la contraseña</translation>
    </message>
</context>
<context>
    <name>host::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>Resumen de los ajustes</translation>
    </message>
</context>
<context>
    <name>host::UnlockedDocument</name>
    <message>
        <source>%1: can&apos;t be unlocked; it is damaged, or too large</source>
        <translation>%1: no se puede desbloquear; está dañado o es demasiado grande</translation>
    </message>
    <message>
        <source>%1: can&apos;t be unlocked: %2</source>
        <translation>%1: no se puede desbloquear: %2</translation>
    </message>
    <message>
        <source>%1: the password is wrong</source>
        <translation>%1: la contraseña no es correcta</translation>
    </message>
</context>
</TS>
