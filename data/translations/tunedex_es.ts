<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>tunedex::CodePageBox</name>
    <message>
        <source>Western</source>
        <translation>Occidental</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europa Central</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cirílico</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cirílico (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griego</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebreo</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Árabe</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Báltico</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamita</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tailandés</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chino simplificado</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chino tradicional</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>UTF-8</source>
        <translation>UTF-8</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>tunedex::ColoursPage</name>
    <message>
        <source>Page text</source>
        <translation>Texto de la página</translation>
    </message>
    <message>
        <source>The colour of the page header/footers</source>
        <translation>Color de los encabezados y pies de página</translation>
    </message>
    <message>
        <source>Page background</source>
        <translation>Fondo de la página</translation>
    </message>
    <message>
        <source>The background colour of the page</source>
        <translation>Color de fondo de la página</translation>
    </message>
    <message>
        <source>Table header text</source>
        <translation>Texto de los encabezados de tabla</translation>
    </message>
    <message>
        <source>The colour of the table headers</source>
        <translation>Color del texto de los encabezados de tabla</translation>
    </message>
    <message>
        <source>Table header background</source>
        <translation>Fondo de los encabezados de tabla</translation>
    </message>
    <message>
        <source>The background colour of the table headers</source>
        <translation>Color de fondo de los encabezados de tabla</translation>
    </message>
    <message>
        <source>Cell text</source>
        <translation>Texto de las celdas</translation>
    </message>
    <message>
        <source>The colour of the table cells</source>
        <translation>Color del texto de las celdas de la tabla</translation>
    </message>
    <message>
        <source>Cell background</source>
        <translation>Fondo de las celdas</translation>
    </message>
    <message>
        <source>The background colour of the table cells</source>
        <translation>Color de fondo de las celdas de la tabla</translation>
    </message>
    <message>
        <source>Alternate cell text</source>
        <translation>Texto de las celdas alternas</translation>
    </message>
    <message>
        <source>The colour of the alternate table cells</source>
        <translation>Color del texto de las celdas alternas de la tabla</translation>
    </message>
    <message>
        <source>Alternate cell background</source>
        <translation>Fondo de las celdas alternas</translation>
    </message>
    <message>
        <source>The background colour of the alternate cells</source>
        <translation>Color de fondo de las celdas alternas</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>The colour of generated links</source>
        <translation>Color de los enlaces generados</translation>
    </message>
    <message>
        <source>Table border</source>
        <translation>Borde de la tabla</translation>
    </message>
    <message>
        <source>The colour the main table&apos;s border</source>
        <translation>Color del borde de la tabla principal</translation>
    </message>
    <message>
        <source>Table cells &amp;use alternating text/background colours</source>
        <translation>Alternar los colores de te&amp;xto y de fondo en las celdas</translation>
    </message>
    <message>
        <source>Alternate between the two colours below for table cells. Aids readability.</source>
        <translation>Alterna entre los dos colores siguientes en las celdas de la tabla. Facilita la lectura.</translation>
    </message>
    <message>
        <source>Use CSS fo&amp;r text colours.</source>
        <translation>&amp;Usar CSS para los colores del texto.</translation>
    </message>
    <message>
        <source>Write the colours into the page&apos;s style sheet</source>
        <translation>Escribir los colores en la hoja de estilos de la página</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for text colours.</source>
        <translation>Usar etiquetas &amp;FONT para los colores del texto.</translation>
    </message>
    <message>
        <source>Write the colours into the markup, for browsers without style sheets</source>
        <translation>Escribir los colores en el marcado, para navegadores sin hojas de estilos</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translation>&amp;Página:</translation>
    </message>
    <message>
        <source>Table header&amp;s:</source>
        <translation>Encabe&amp;zados de tabla:</translation>
    </message>
    <message>
        <source>Table c&amp;ells:</source>
        <translation>Celdas de la &amp;tabla:</translation>
    </message>
    <message>
        <source>&amp;Alternate cells:</source>
        <translation>Celda&amp;s alternas:</translation>
    </message>
    <message>
        <source>L&amp;inks:</source>
        <translation>&amp;Enlaces:</translation>
    </message>
    <message>
        <source>Table &amp;border:</source>
        <translation>B&amp;orde de la tabla:</translation>
    </message>
    <message>
        <source>RRGGBB</source>
        <translation>RRVVAA</translation>
    </message>
    <message>
        <source>%1: select colour</source>
        <translation>%1: elegir color</translation>
    </message>
    <message>
        <source>Select a colour from the palette</source>
        <translation>Elegir un color de la paleta</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers show %1 for it.</source>
        <translation>No es un color de seis dígitos hexadecimales. Los navegadores muestran %1 en su lugar.</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers ignore it.</source>
        <translation>No es un color de seis dígitos hexadecimales. Los navegadores lo ignoran.</translation>
    </message>
    <message>
        <source>A marked colour is not six hexadecimal digits. The right half of the button beside it shows what browsers show for it.</source>
        <translation>Un color marcado no tiene seis dígitos hexadecimales. La mitad derecha del botón de al lado muestra lo que muestran los navegadores.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>tunedex::Columns</name>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Tamaño del archivo</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>MPEG Type</source>
        <translation>Tipo MPEG</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Full Path</source>
        <translation>Ruta completa</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>Artista del álbum</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
</context>
<context>
    <name>tunedex::ColumnsPage</name>
    <message>
        <source>Hidden columns</source>
        <translation>Columnas ocultas</translation>
    </message>
    <message>
        <source>Columns that are not listed. Double-click or drag one to show it.</source>
        <translation>Columnas que no aparecen en la lista. Haga doble clic en una columna o arrástrela para mostrarla.</translation>
    </message>
    <message>
        <source>Shown columns, in display order</source>
        <translation>Columnas mostradas, en el orden de presentación</translation>
    </message>
    <message>
        <source>Double-click a column to hide it. Drag it or press Alt+Up or Alt+Down to move it.</source>
        <translation>Haga doble clic en una columna para ocultarla. Arrástrela o pulse Alt+Arriba o Alt+Abajo para moverla.</translation>
    </message>
    <message>
        <source>Hidden colu&amp;mns:</source>
        <translation>Columnas &amp;ocultas:</translation>
    </message>
    <message>
        <source>Shown, in this o&amp;rder:</source>
        <translation>Mostradas, &amp;en este orden:</translation>
    </message>
    <message>
        <source>&amp;Show ›</source>
        <translation>&amp;Mostrar ›</translation>
    </message>
    <message>
        <source>Show the selected hidden column as the last column</source>
        <translation>Mostrar la columna oculta seleccionada como última columna</translation>
    </message>
    <message>
        <source>‹ Hid&amp;e</source>
        <translation>‹ &amp;Quitar</translation>
    </message>
    <message>
        <source>Hide the selected shown column</source>
        <translation>Ocultar la columna mostrada seleccionada</translation>
    </message>
    <message>
        <source>Show &amp;all »</source>
        <translation>Mostrar &amp;todas »</translation>
    </message>
    <message>
        <source>Show every column</source>
        <translation>Mostrar todas las columnas</translation>
    </message>
    <message>
        <source>« H&amp;ide all</source>
        <translation>« Q&amp;uitar todas</translation>
    </message>
    <message>
        <source>Hide every column</source>
        <translation>Ocultar todas las columnas</translation>
    </message>
    <message>
        <source>To&amp;p</source>
        <translation>Al &amp;principio</translation>
    </message>
    <message>
        <source>Move the selected shown column to the top</source>
        <translation>Mover la columna mostrada seleccionada al principio</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move the selected shown column one place up (Alt+Up)</source>
        <translation>Subir un puesto la columna mostrada seleccionada (Alt+Arriba)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Ba&amp;jar</translation>
    </message>
    <message>
        <source>Move the selected shown column one place down (Alt+Down)</source>
        <translation>Bajar un puesto la columna mostrada seleccionada (Alt+Abajo)</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>Al &amp;final</translation>
    </message>
    <message>
        <source>Move the selected shown column to the bottom</source>
        <translation>Mover la columna mostrada seleccionada al final</translation>
    </message>
    <message>
        <source>Mer&amp;ge Artist and Title into one column</source>
        <translation>A&amp;grupar Artista y Título en una sola columna</translation>
    </message>
    <message>
        <source>Shows “Artist: Title”. Both columns must be shown.</source>
        <translation>Muestra «Artista: Título». Ambas columnas deben estar mostradas.</translation>
    </message>
    <message>
        <source>Ta&amp;ke Album into that column, too</source>
        <translation>&amp;Incluir también Álbum en esa columna</translation>
    </message>
    <message>
        <source>Shows “Artist (Album): Title”. Requires Artist and Title to be merged.</source>
        <translation>Muestra «Artista (Álbum): Título». Artista y Título deben estar agrupados.</translation>
    </message>
    <message>
        <source>Displa&amp;y a leading “The” after the artist&apos;s name</source>
        <translation>Mostrar «T&amp;he» inicial detrás del nombre del artista</translation>
    </message>
    <message>
        <source>Lists “The Band” as “Band, The”, sorted under B</source>
        <translation>Muestra «The Band» como «Band, The», ordenado por la B</translation>
    </message>
</context>
<context>
    <name>tunedex::CoreText</name>
    <message>
        <source>Error!</source>
        <translation>¡Error!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Tunedex (Automatic Mode)</source>
        <translation>Tunedex (modo automático)</translation>
    </message>
    <message>
        <source>Tunedex Error! (Automatic Mode)</source>
        <translation>¡Error de Tunedex! (modo automático)</translation>
    </message>
    <message>
        <source>The specified directory does not exist!</source>
        <translation>¡El directorio especificado no existe!</translation>
    </message>
    <message>
        <source>No input directory specified!</source>
        <translation>¡No se ha especificado ningún directorio de entrada!</translation>
    </message>
    <message>
        <source>No input directories specified!</source>
        <translation>¡No se han especificado directorios de entrada!</translation>
    </message>
    <message>
        <source>No output file specified!</source>
        <translation>¡No se ha especificado ningún archivo de salida!</translation>
    </message>
    <message>
        <source>The output directory does not exist!

Do you want to create it?</source>
        <translation>¡El directorio de salida no existe!

¿Desea crearlo?</translation>
    </message>
    <message>
        <source>No MP3 files!</source>
        <translation>¡No hay archivos MP3!</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directory specified.</source>
        <translation>No se han encontrado archivos MP3
en el directorio especificado.</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directories specified.</source>
        <translation>No se han encontrado archivos MP3
en los directorios especificados.</translation>
    </message>
    <message>
        <source>An error occurred verifying your input directory.

This could be because you do not have permission
to access the directory, or you may be attempting
to use a non-existent network share.</source>
        <translation>Se ha producido un error al comprobar el directorio de entrada.

Es posible que no tenga permiso para acceder al directorio
o que intente usar un recurso compartido de red
que no existe.</translation>
    </message>
    <message>
        <source>An unexpected error occurred. The error was: 

Error number %1 - %2</source>
        <translation>Se ha producido un error inesperado: 

Error número %1 - %2</translation>
    </message>
    <message>
        <source>An error occurred scanning the directory: 

%1

%2: %3</source>
        <translation>Se ha producido un error al examinar el directorio: 

%1

%2: %3</translation>
    </message>
    <message>
        <source>An error occurred decoding the headers of: 

%1</source>
        <translation>Se ha producido un error al descodificar las cabeceras de: 

%1</translation>
    </message>
    <message>
        <source>A settings file cannot hold a line break.
These settings were not saved:

%1</source>
        <translation>Un archivo de configuración no puede contener saltos de línea.
Estos ajustes no se han guardado:

%1</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Llamada a procedimiento o argumento no válidos</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Desbordamiento</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Subíndice fuera del intervalo</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>División por cero</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Tipos no coincidentes</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Nombre o número de archivo incorrecto</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Archivo no encontrado</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Error de entrada/salida del dispositivo</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lectura más allá del final del archivo</translation>
    </message>
    <message>
        <source>Too many files</source>
        <translation>Demasiados archivos</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Error de acceso a la ruta o al archivo</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Ruta no encontrada</translation>
    </message>
    <message>
        <source>Searching for MP3 files...</source>
        <translation>Buscando archivos MP3...</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information...</source>
        <translation>Leyendo la información MPEG/ID3...</translation>
    </message>
    <message>
        <source>Sorting information...</source>
        <translation>Ordenando la información...</translation>
    </message>
    <message>
        <source>Writing information...</source>
        <translation>Escribiendo la información...</translation>
    </message>
    <message>
        <source>Operation complete!</source>
        <translation>¡Operación completada!</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information (%1/%2)...</source>
        <translation>Leyendo la información MPEG/ID3 (%1/%2)...</translation>
    </message>
    <message>
        <source>Writing entry for file %1/%2...</source>
        <translation>Escribiendo la entrada del archivo %1/%2...</translation>
    </message>
    <message>
        <source>Writing index entry for file %1/%2...</source>
        <translation>Escribiendo la entrada de índice del archivo %1/%2...</translation>
    </message>
</context>
<context>
    <name>tunedex::Dialogs</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;No more messages in this run</source>
        <translation>&amp;No mostrar más mensajes en esta ejecución</translation>
    </message>
    <message>
        <source>Errors still go to the log, if the options ask for one</source>
        <translation>Los errores se siguen anotando en el registro si las opciones lo indican</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tunedex::DocumentPage</name>
    <message>
        <source>&amp;Group by album</source>
        <translation>Agrupar &amp;por álbum</translation>
    </message>
    <message>
        <source>Show a heading for each album (HTML5 only)</source>
        <translation>Mostrar un título para cada álbum (solo HTML5)</translation>
    </message>
    <message>
        <source>Document type</source>
        <translation>Tipo de documento</translation>
    </message>
    <message>
        <source>The document type of HTML listings</source>
        <translation>Tipo de documento de las listas HTML</translation>
    </message>
    <message>
        <source>HTML 4.01</source>
        <translation>HTML 4.01</translation>
    </message>
    <message>
        <source>XHTML 1.0</source>
        <translation>XHTML 1.0</translation>
    </message>
    <message>
        <source>HTML5</source>
        <translation>HTML5</translation>
    </message>
    <message>
        <source>Doc&amp;ument type:</source>
        <translation>&amp;Tipo de documento:</translation>
    </message>
</context>
<context>
    <name>tunedex::FontsPage</name>
    <message>
        <source>Page heading and text</source>
        <translation>Título y texto de la página</translation>
    </message>
    <message>
        <source>Table headers</source>
        <translation>Encabezados de tabla</translation>
    </message>
    <message>
        <source>Table cells</source>
        <translation>Celdas de la tabla</translation>
    </message>
    <message>
        <source>&amp;Use CSS for fonts.</source>
        <translation>&amp;Usar CSS para los tipos de letra.</translation>
    </message>
    <message>
        <source>Write the fonts into the page&apos;s style sheet</source>
        <translation>Escribir los tipos de letra en la hoja de estilos de la página</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for fonts.</source>
        <translation>Usar &amp;etiquetas FONT para los tipos de letra.</translation>
    </message>
    <message>
        <source>Write the fonts into the markup, for browsers without style sheets</source>
        <translation>Escribir los tipos de letra en el marcado, para navegadores sin hojas de estilos</translation>
    </message>
    <message>
        <source>%1: typefaces</source>
        <translation>%1: tipos de letra</translation>
    </message>
    <message>
        <source>Typefaces in order of preference, separated by commas</source>
        <translation>Tipos de letra por orden de preferencia, separados por comas</translation>
    </message>
    <message>
        <source>%1: size</source>
        <translation>%1: tamaño</translation>
    </message>
    <message>
        <source>1 (smallest) to 7 (largest). 3 is the size of normal text.</source>
        <translation>De 1 (el más pequeño) a 7 (el más grande). 3 es el tamaño del texto normal.</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>Ne&amp;grita</translation>
    </message>
    <message>
        <source>%1 in bold type</source>
        <translation>%1 en negrita</translation>
    </message>
    <message>
        <source>%1: bold</source>
        <translation>%1: negrita</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>Curs&amp;iva</translation>
    </message>
    <message>
        <source>%1 in italic type</source>
        <translation>%1 en cursiva</translation>
    </message>
    <message>
        <source>%1: italic</source>
        <translation>%1: cursiva</translation>
    </message>
    <message>
        <source>&amp;Select...</source>
        <translation>&amp;Seleccionar...</translation>
    </message>
    <message>
        <source>Select a font installed on this computer</source>
        <translation>Seleccionar un tipo de letra instalado en este equipo</translation>
    </message>
    <message>
        <source>%1: select font</source>
        <translation>%1: seleccionar tipo de letra</translation>
    </message>
    <message>
        <source>T&amp;ypefaces:</source>
        <translation>&amp;Tipos de letra:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>Ta&amp;maño:</translation>
    </message>
</context>
<context>
    <name>tunedex::OpenHelp</name>
    <message>
        <source>No program could be found to open<byte value="xd"/>
%1</source>
        <translation>No se ha encontrado ningún programa para abrir
%1</translation>
    </message>
    <message>
        <source>The help file could not be found!</source>
        <translation>¡No se ha encontrado el archivo de ayuda!</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
does not exist any more!</source>
        <translation>¡%1
ya no existe!</translation>
    </message>
</context>
<context>
    <name>tunedex::OutputHint</name>
    <message>
        <source>The extension sets the format: .htm web page, .txt or .csv table, .m3u playlist.</source>
        <translation>La extensión determina el formato: .htm página web, .txt o .csv tabla, .m3u lista de reproducción.</translation>
    </message>
    <message>
        <source>The extension sets the format: .htm web page, .txt plain text, .m3u playlist.</source>
        <translation>La extensión determina el formato: .htm página web, .txt texto sin formato, .m3u lista de reproducción.</translation>
    </message>
    <message>
        <source>Only modern tags and lists know %1.</source>
        <translation>Solo las etiquetas y listas modernas admiten %1.</translation>
    </message>
    <message>
        <source>%1 is not the extension of a format.</source>
        <translation>%1 no es la extensión de ningún formato.</translation>
    </message>
    <message>
        <source>The existing list will be replaced.</source>
        <translation>Se reemplazará la lista existente.</translation>
    </message>
    <message>
        <source>Writes %1.</source>
        <translation>Escribe %1.</translation>
    </message>
    <message numerus="yes">
        <source>Writes %1 … (%2 files a page).</source>
        <translation>
            <numerusform>Escribe %1 … (%2 archivo por página).</numerusform>
            <numerusform>Escribe %1 … (%2 archivos por página).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::PreviewPane</name>
    <message>
        <source>&lt;p&gt;There is no preview: a listing cannot be written with this layout (%1).&lt;/p&gt;</source>
        <translation>&lt;p&gt;No hay vista previa: no se puede escribir una lista con este diseño (%1).&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;If Album is merged, it must not come before both Artist and Title.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Si se agrupa Álbum, no debe ir delante de Artista y Título a la vez.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Preview of colours, fonts and columns. Only a browser shows search, sorting, album headings and the colours for the other (dark or light) setting.</source>
        <translation>Vista previa de colores, tipos de letra y columnas. Solo un navegador muestra la búsqueda, la ordenación, los títulos de álbum y los colores del otro modo (oscuro o claro).</translation>
    </message>
    <message>
        <source>Preview with sample tracks</source>
        <translation>Vista previa con pistas de ejemplo</translation>
    </message>
    <message>
        <source>Open sample in browser</source>
        <translation>Abrir el ejemplo en el navegador</translation>
    </message>
    <message>
        <source>Open a sample listing with this layout in your browser (Ctrl+B)</source>
        <translation>Abrir en el navegador una lista de ejemplo con este diseño (Ctrl+B)</translation>
    </message>
    <message>
        <source>Preview of the listing</source>
        <translation>Vista previa de la lista</translation>
    </message>
    <message>
        <source>Sample tracks, listed with the layout shown here</source>
        <translation>Pistas de ejemplo, presentadas con el diseño que se muestra aquí</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background, because browsers ignore the style sheet of XHTML listings. To mend it, tick “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>Parte del texto se lee mal sobre su fondo, porque los navegadores ignoran la hoja de estilos de las listas XHTML. Para corregirlo, marque «Usar etiquetas FONT para los colores del texto.» en la página Colores.</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background. To mend it, tick “Use CSS for text colours.” or “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>Parte del texto se lee mal sobre su fondo. Para corregirlo, marque «Usar CSS para los colores del texto.» o «Usar etiquetas FONT para los colores del texto.» en la página Colores.</translation>
    </message>
    <message>
        <source>Preview: browsers ignore the style sheet of XHTML listings. Tick “Use FONT tags” on the pages Fonts and Colours instead.</source>
        <translation>Vista previa: los navegadores ignoran la hoja de estilos de las listas XHTML. Marque en su lugar las etiquetas FONT en las páginas Tipos de letra y Colores.</translation>
    </message>
    <message>
        <source>Preview of the theme “%1”, which is not loaded.</source>
        <translation>Vista previa del tema «%1», que no está cargado.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>tunedex::ProgressMonitor</name>
    <message>
        <source>1 file found</source>
        <translation>1 archivo encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 archivo encontrado</numerusform>
            <numerusform>%1 archivos encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files a second, %2 left</source>
        <translation>
            <numerusform>%1 archivo por segundo, quedan %2</numerusform>
            <numerusform>%1 archivos por segundo, quedan %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::RecentButton</name>
    <message>
        <source>%1 (Alt+Down in the field)</source>
        <translation>%1 (Alt+Abajo en el campo)</translation>
    </message>
    <message>
        <source>&amp;Clear this list</source>
        <translation>&amp;Borrar esta lista</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultPanel</name>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open the list (Ctrl+L)</source>
        <translation>Abrir la lista (Ctrl+L)</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Mostrar la carpeta</translation>
    </message>
    <message>
        <source>Open the list&apos;s folder (Ctrl+Shift+L)</source>
        <translation>Abrir la carpeta de la lista (Ctrl+Mayús+L)</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Switch on “Modern tags and lists” (Ctrl+M)</source>
        <translation>Activar «Etiquetas y listas modernas» (Ctrl+M)</translation>
    </message>
    <message>
        <source>Switch on Modern tags and lists</source>
        <translation>Activar Etiquetas y listas modernas</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultText</name>
    <message>
        <source>1 track</source>
        <translation>1 pista</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <translation>
            <numerusform>%1 pista</numerusform>
            <numerusform>%1 pistas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message numerus="yes">
        <source>%1 pages</source>
        <translation>
            <numerusform>%1 página</numerusform>
            <numerusform>%1 páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 carpeta</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 carpeta</numerusform>
            <numerusform>%1 carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 archivo</numerusform>
            <numerusform>%1 archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>The run was aborted. %1 has the tracks that were written.</source>
        <translation>Se ha interrumpido la ejecución. %1 contiene las pistas escritas.</translation>
    </message>
    <message>
        <source>The run was aborted. No list was written.</source>
        <translation>Se ha interrumpido la ejecución. No se ha escrito ninguna lista.</translation>
    </message>
    <message>
        <source>No MP3 files were found. No list was written.</source>
        <translation>No se han encontrado archivos MP3. No se ha escrito ninguna lista.</translation>
    </message>
    <message>
        <source>The run failed: %1. No complete list was written.</source>
        <translation>La ejecución ha fallado: %1. No se ha escrito ninguna lista completa.</translation>
    </message>
    <message>
        <source>Wrote %1: %2 on %3.</source>
        <translation>Se ha escrito %1: %2 en %3.</translation>
    </message>
    <message>
        <source>Wrote %1: %2.</source>
        <translation>Se ha escrito %1: %2.</translation>
    </message>
    <message>
        <source>%1 and %2 could not be read.</source>
        <translation>No ha sido posible leer %1 y %2.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>No ha sido posible leer %1.</translation>
    </message>
    <message>
        <source>&apos;Modern tags and lists&apos; is on now: create the list again.</source>
        <translation>«Etiquetas y listas modernas» está activado ahora: cree la lista de nuevo.</translation>
    </message>
    <message>
        <source>1 file has tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>1 archivo tiene etiquetas que «Etiquetas y listas modernas» leería correctamente.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files have tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>
            <numerusform>%1 archivo tiene etiquetas que «Etiquetas y listas modernas» leería correctamente.</numerusform>
            <numerusform>%1 archivos tienen etiquetas que «Etiquetas y listas modernas» leería correctamente.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::Statistics</name>
    <message>
        <source>Tunedex was first started on %1 and has been started %2 since.</source>
        <translation>Tunedex se inició por primera vez el %1 y desde entonces se ha iniciado %2.</translation>
    </message>
    <message>
        <source>It has created %1, and handled %2.</source>
        <translation>Ha creado %1 y procesado %2.</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1 vez</translation>
    </message>
    <message numerus="yes">
        <source>%1 times</source>
        <translation>
            <numerusform>%1 vez</numerusform>
            <numerusform>%1 veces</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 list</source>
        <translation>%1 lista</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists</source>
        <translation>
            <numerusform>%1 lista</numerusform>
            <numerusform>%1 listas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MP3 file</source>
        <translation>%1 archivo MP3</translation>
    </message>
    <message numerus="yes">
        <source>%1 MP3 files</source>
        <translation>
            <numerusform>%1 archivo MP3</numerusform>
            <numerusform>%1 archivos MP3</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::TablePage</name>
    <message>
        <source>Table width</source>
        <translation>Ancho de la tabla</translation>
    </message>
    <message>
        <source>Width of the table</source>
        <translation>Ancho de la tabla</translation>
    </message>
    <message>
        <source>Border size</source>
        <translation>Grosor del borde</translation>
    </message>
    <message>
        <source>Width of the lines between the cells, in pixels</source>
        <translation>Ancho de las líneas entre las celdas, en píxeles</translation>
    </message>
    <message>
        <source>Cell padding</source>
        <translation>Margen de las celdas</translation>
    </message>
    <message>
        <source>Space between a cell&apos;s border and its text, in pixels</source>
        <translation>Espacio entre el borde de una celda y su texto, en píxeles</translation>
    </message>
    <message>
        <source>Pi&amp;xels</source>
        <translation>Pí&amp;xeles</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Ancho en píxeles</translation>
    </message>
    <message>
        <source>Pe&amp;r cent</source>
        <translation>&amp;Por ciento</translation>
    </message>
    <message>
        <source>Width as a percentage of the page&apos;s width</source>
        <translation>Ancho como porcentaje del ancho de la página</translation>
    </message>
    <message>
        <source>Table &amp;width:</source>
        <translation>Ancho de la &amp;tabla:</translation>
    </message>
    <message>
        <source>&amp;Border size:</source>
        <translation>&amp;Grosor del borde:</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>Cell &amp;padding:</source>
        <translation>&amp;Margen de las celdas:</translation>
    </message>
    <message>
        <source>The table width must be a numeric value.</source>
        <translation>El ancho de la tabla debe ser un valor numérico.</translation>
    </message>
    <message>
        <source>The table width must be between -32768 and 32767.</source>
        <translation>El ancho de la tabla debe estar entre -32768 y 32767.</translation>
    </message>
    <message>
        <source>The table border size must be a numeric value.</source>
        <translation>El grosor del borde de la tabla debe ser un valor numérico.</translation>
    </message>
    <message>
        <source>The table border size must be between -32768 and 32767.</source>
        <translation>El grosor del borde de la tabla debe estar entre -32768 y 32767.</translation>
    </message>
    <message>
        <source>The table cell padding must be a numeric value.</source>
        <translation>El margen de las celdas de la tabla debe ser un valor numérico.</translation>
    </message>
    <message>
        <source>The table cell padding must be between -32768 and 32767.</source>
        <translation>El margen de las celdas de la tabla debe estar entre -32768 y 32767.</translation>
    </message>
</context>
<context>
    <name>tunedex::ThemePanel</name>
    <message>
        <source>Save Theme</source>
        <translation>Guardar tema</translation>
    </message>
    <message>
        <source>This cannot be the name of a theme.<byte value="xd"/>
<byte value="xd"/>
A name must be short enough for a file name, without a slash,<byte value="xd"/>
and neither &quot;.&quot; nor &quot;..&quot;.</source>
        <translation>Este no puede ser el nombre de un tema.

El nombre debe ser lo bastante corto para un archivo, no contener
barras y no ser «.» ni «..».</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Temas</translation>
    </message>
    <message>
        <source>Lo&amp;ad theme</source>
        <translation>Cargar te&amp;ma</translation>
    </message>
    <message>
        <source>Apply the selected theme&apos;s fonts, colours and table settings immediately</source>
        <translation>Aplicar de inmediato los tipos de letra, los colores y los ajustes de tabla del tema seleccionado</translation>
    </message>
    <message>
        <source>&amp;Save theme...</source>
        <translation>&amp;Guardar tema...</translation>
    </message>
    <message>
        <source>Save the fonts, colours and table settings shown here as a theme</source>
        <translation>Guardar como tema los tipos de letra, los colores y los ajustes de tabla que se muestran aquí</translation>
    </message>
    <message>
        <source>Delete the&amp;me...</source>
        <translation>&amp;Eliminar tema...</translation>
    </message>
    <message>
        <source>Delete the selected theme&apos;s file</source>
        <translation>Eliminar el archivo del tema seleccionado</translation>
    </message>
    <message>
        <source>Themes are preset colour, font, and table settings that you can import into your own settings.

You can also export your own settings as a theme.</source>
        <translation>Los temas son ajustes predefinidos de colores, tipos de letra y tabla que puede importar a su propia configuración.

También puede exportar su propia configuración como tema.</translation>
    </message>
    <message>
        <source>Availa&amp;ble themes:</source>
        <translation>Tema&amp;s disponibles:</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Theme loaded successfully.</source>
        <translation>El tema se ha cargado correctamente.</translation>
    </message>
    <message>
        <source>Please enter a name for your theme:</source>
        <translation>Escriba un nombre para el tema:</translation>
    </message>
    <message>
        <source>Theme saved successfully.</source>
        <translation>El tema se ha guardado correctamente.</translation>
    </message>
    <message>
        <source>This theme already exists!<byte value="xd"/>
<byte value="xd"/>
Overwrite?</source>
        <translation>¡Este tema ya existe!

¿Desea sobrescribirlo?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
the %1 theme?<byte value="xd"/>
<byte value="xd"/>
You cannot recover it afterwards!</source>
        <translation>¿Seguro que desea eliminar
el tema %1?

¡No podrá recuperarlo después!</translation>
    </message>
    <message>
        <source>Delete Theme</source>
        <translation>Eliminar tema</translation>
    </message>
    <message>
        <source>Select a theme to preview it. Press Enter or double-click to load it.</source>
        <translation>Seleccione un tema para ver su vista previa. Pulse Intro o haga doble clic para cargarlo.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>tunedex::frmAbout</name>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Version %1.%2 - Build %3</source>
        <translation>Versión %1.%2 - Compilación %3</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>E-mail the author</source>
        <translation>Escribir al autor</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>&amp;Home page</source>
        <translation>&amp;Página web</translation>
    </message>
    <message>
        <source>&amp;E-mail the author</source>
        <translation>&amp;Escribir al autor</translation>
    </message>
</context>
<context>
    <name>tunedex::frmDirSelection</name>
    <message>
        <source>Folders to Search</source>
        <translation>Carpetas donde buscar</translation>
    </message>
    <message>
        <source>&amp;Folders, in search order:</source>
        <translation>Carpetas, &amp;en orden de búsqueda:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>The folders to search, in order. Folders can be dropped here.</source>
        <translation>Las carpetas donde buscar, en orden. Se pueden soltar carpetas aquí.</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>Aña&amp;dir...</translation>
    </message>
    <message>
        <source>Append a folder to the list</source>
        <translation>Añadir una carpeta al final de la lista</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Añadir...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Remove the selected folder from the list</source>
        <translation>Quitar de la lista la carpeta seleccionada</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>Remove all folders from the list</source>
        <translation>Quitar todas las carpetas de la lista</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>Al &amp;principio</translation>
    </message>
    <message>
        <source>Move the selected folder to the top</source>
        <translation>Mover la carpeta seleccionada al principio</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move the selected folder one row up</source>
        <translation>Subir una fila la carpeta seleccionada</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Move the selected folder one row down</source>
        <translation>Bajar una fila la carpeta seleccionada</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>Al &amp;final</translation>
    </message>
    <message>
        <source>Move the selected folder to the bottom</source>
        <translation>Mover la carpeta seleccionada al final</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ayuda</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Abrir el archivo de ayuda</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>Acep&amp;tar</translation>
    </message>
    <message>
        <source>Use this list and close the window</source>
        <translation>Usar esta lista y cerrar la ventana</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Close the window without using this list</source>
        <translation>Cerrar la ventana sin usar esta lista</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>Seleccionar un directorio</translation>
    </message>
    <message>
        <source>Select a folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Seleccione una carpeta en la que Tunedex deba buscar archivos MP3 y haga clic en Aceptar.</translation>
    </message>
    <message>
        <source>Are you sure you want<byte value="xd"/>
to clear the list?</source>
        <translation>¿Seguro que desea
vaciar la lista?</translation>
    </message>
    <message>
        <source>Clear Directories?</source>
        <translation>¿Quitar los directorios?</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 carpeta</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 carpeta</numerusform>
            <numerusform>%1 carpetas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::frmEditLayout</name>
    <message>
        <source>Edit Layout</source>
        <translation>Editar diseño</translation>
    </message>
    <message>
        <source>Pages of the layout editor</source>
        <translation>Páginas del editor de diseño</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>Colum&amp;nas</translation>
    </message>
    <message>
        <source>&amp;Fonts</source>
        <translation>Tipos &amp;de letra</translation>
    </message>
    <message>
        <source>Co&amp;lours</source>
        <translation>&amp;Colores</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>Ta&amp;bla</translation>
    </message>
    <message>
        <source>&amp;Document and themes</source>
        <translation>Documento &amp;y temas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ayuda</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Abrir el archivo de ayuda</translation>
    </message>
    <message>
        <source>Show pre&amp;view</source>
        <translation>Mostrar &amp;vista previa</translation>
    </message>
    <message>
        <source>Show a sample listing with this layout</source>
        <translation>Mostrar una lista de ejemplo con este diseño</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>Acepta&amp;r</translation>
    </message>
    <message>
        <source>Use this layout</source>
        <translation>Usar este diseño</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>Discard all changes except a loaded theme</source>
        <translation>Descartar todos los cambios, salvo un tema cargado</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes here and in the options.</source>
        <translation>Al cargar un tema se descartan los cambios hechos aquí y en las opciones.</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes to the layout.</source>
        <translation>Al cargar un tema se descartan los cambios del diseño.</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes in the options.</source>
        <translation>Al cargar un tema se descartan los cambios hechos en las opciones.</translation>
    </message>
</context>
<context>
    <name>tunedex::frmMain</name>
    <message>
        <source>HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|Winamp Playlist (*.m3u)|*.m3u|</source>
        <translation>Archivo HTML (*.htm,*.html)|*.htm;*.html|Archivo de texto (*.txt)|*.txt|Lista de reproducción de Winamp (*.m3u)|*.m3u|</translation>
    </message>
    <message>
        <source>CSV File (*.csv)|*.csv|UTF-8 Playlist (*.m3u8)|*.m3u8|</source>
        <translation>Archivo CSV (*.csv)|*.csv|Lista de reproducción UTF-8 (*.m3u8)|*.m3u8|</translation>
    </message>
    <message>
        <source>Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*</source>
        <translation>Archivos de configuración (*.cfg)|*.cfg|Todos los archivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>The folder to search for MP3 files. Folders can be dropped here.</source>
        <translation>La carpeta donde buscar archivos MP3. Se pueden soltar carpetas aquí.</translation>
    </message>
    <message>
        <source>Search &amp;multiple folders</source>
        <translation>&amp;Buscar en varias carpetas</translation>
    </message>
    <message>
        <source>Search a list of folders instead of one</source>
        <translation>Buscar en una lista de carpetas en lugar de en una sola</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Archivo de salida</translation>
    </message>
    <message>
        <source>The file to write the list to</source>
        <translation>El archivo en el que se escribe la lista</translation>
    </message>
    <message>
        <source>Window title</source>
        <translation>Título de la ventana</translation>
    </message>
    <message>
        <source>The title of the browser window</source>
        <translation>El título de la ventana del navegador</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Título de la página</translation>
    </message>
    <message>
        <source>The heading of each page</source>
        <translation>El título de cada página</translation>
    </message>
    <message>
        <source>Page footer</source>
        <translation>Pie de página</translation>
    </message>
    <message>
        <source>The text at the end of each page</source>
        <translation>El texto al final de cada página</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Carpetas recientes</translation>
    </message>
    <message>
        <source>Recent output files</source>
        <translation>Archivos de salida recientes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Arc&amp;hivo</translation>
    </message>
    <message>
        <source>&amp;Open Settings...</source>
        <translation>&amp;Abrir configuración...</translation>
    </message>
    <message>
        <source>Load a settings file</source>
        <translation>Cargar un archivo de configuración</translation>
    </message>
    <message>
        <source>&amp;Save Settings</source>
        <translation>&amp;Guardar configuración</translation>
    </message>
    <message>
        <source>Save the settings</source>
        <translation>Guardar la configuración</translation>
    </message>
    <message>
        <source>Save Settings &amp;As...</source>
        <translation>Guardar &amp;configuración como...</translation>
    </message>
    <message>
        <source>Save the settings under another name</source>
        <translation>Guardar la configuración con otro nombre</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Salir del programa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ayuda</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Temas de ayuda</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Abrir el archivo de ayuda</translation>
    </message>
    <message>
        <source>&amp;Tip of the Day...</source>
        <translation>&amp;Consejo del día...</translation>
    </message>
    <message>
        <source>Show a tip</source>
        <translation>Mostrar un consejo</translation>
    </message>
    <message>
        <source>&amp;About Tunedex...</source>
        <translation>&amp;Acerca de Tunedex...</translation>
    </message>
    <message>
        <source>Show version and statistics</source>
        <translation>Mostrar la versión y las estadísticas</translation>
    </message>
    <message>
        <source>Placeholders</source>
        <translation>Comodines</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Fol&amp;der:</source>
        <translation>Ca&amp;rpeta:</translation>
    </message>
    <message>
        <source>&amp;Output file:</source>
        <translation>Archi&amp;vo de salida:</translation>
    </message>
    <message>
        <source>Window &amp;title:</source>
        <translation>Tít&amp;ulo de la ventana:</translation>
    </message>
    <message>
        <source>&amp;Page title:</source>
        <translation>&amp;Título de la página:</translation>
    </message>
    <message>
        <source>Page foote&amp;r:</source>
        <translation>&amp;Pie de página:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Exa&amp;minar...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Elegir la carpeta</translation>
    </message>
    <message>
        <source>Browse for the folder</source>
        <translation>Examinar para elegir la carpeta</translation>
    </message>
    <message>
        <source>Folder &amp;list...</source>
        <translation>&amp;Lista de carpetas...</translation>
    </message>
    <message>
        <source>Edit the list of folders to search</source>
        <translation>Editar la lista de carpetas donde buscar</translation>
    </message>
    <message>
        <source>Folder list</source>
        <translation>Lista de carpetas</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Choose the folder and name of the list</source>
        <translation>Elegir la carpeta y el nombre de la lista</translation>
    </message>
    <message>
        <source>Browse for the output file</source>
        <translation>Examinar para elegir el archivo de salida</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>%1 v%2 - %3[*]</source>
        <translation>%1 v%2 - %3[*]</translation>
    </message>
    <message>
        <source>Insert a placeholder for the date, the time, a count or a size</source>
        <translation>Insertar un comodín para la fecha, la hora, un recuento o un tamaño</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>&amp;Insertar...</translation>
    </message>
    <message>
        <source>Placeholders for the window title</source>
        <translation>Comodines para el título de la ventana</translation>
    </message>
    <message>
        <source>I&amp;nsert...</source>
        <translation>I&amp;nsertar...</translation>
    </message>
    <message>
        <source>Placeholders for the page title</source>
        <translation>Comodines para el título de la página</translation>
    </message>
    <message>
        <source>Ins&amp;ert...</source>
        <translation>Ins&amp;ertar...</translation>
    </message>
    <message>
        <source>Placeholders for the page footer</source>
        <translation>Comodines para el pie de página</translation>
    </message>
    <message>
        <source>Titles of web pages</source>
        <translation>Títulos de las páginas web</translation>
    </message>
    <message>
        <source>Option&amp;s...</source>
        <translation>&amp;Opciones...</translation>
    </message>
    <message>
        <source>Contents and layout of the list</source>
        <translation>Contenido y diseño de la lista</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>Acerca &amp;de...</translation>
    </message>
    <message>
        <source>About Tunedex</source>
        <translation>Acerca de Tunedex</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Create List</source>
        <translation>&amp;Crear lista</translation>
    </message>
    <message>
        <source>Search the folders and write the list</source>
        <translation>Buscar en las carpetas y escribir la lista</translation>
    </message>
    <message>
        <source>Create list</source>
        <translation>Crear lista</translation>
    </message>
    <message>
        <source>1 folder chosen</source>
        <translation>1 carpeta elegida</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders chosen</source>
        <translation>
            <numerusform>%1 carpeta elegida</numerusform>
            <numerusform>%1 carpetas elegidas</numerusform>
        </translation>
    </message>
    <message>
        <source>One folder</source>
        <translation>Una carpeta</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>Seleccionar un directorio</translation>
    </message>
    <message>
        <source>Select the folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Seleccione la carpeta en la que Tunedex debe buscar archivos MP3 y haga clic en Aceptar.</translation>
    </message>
    <message>
        <source>Select the Output File</source>
        <translation>Seleccionar el archivo de salida</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir configuración</translation>
    </message>
    <message>
        <source>The specified settings file<byte value="xd"/>
does not exist!</source>
        <translation>¡El archivo de configuración especificado
no existe!</translation>
    </message>
    <message>
        <source>Save Settings As</source>
        <translation>Guardar configuración como</translation>
    </message>
    <message>
        <source>Saved to %1.</source>
        <translation>Guardado en %1.</translation>
    </message>
    <message>
        <source>Do you really want<byte value="xd"/>
to quit Tunedex?</source>
        <translation>¿Seguro que desea
salir de Tunedex?</translation>
    </message>
    <message>
        <source>Quit?</source>
        <translation>¿Salir?</translation>
    </message>
    <message>
        <source>Current date</source>
        <translation>Fecha actual</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Hora actual</translation>
    </message>
    <message>
        <source>Number of files</source>
        <translation>Número de archivos</translation>
    </message>
    <message>
        <source>Number of non-tagged files</source>
        <translation>Número de archivos sin etiquetas</translation>
    </message>
    <message>
        <source>Total size of all files</source>
        <translation>Tamaño total de todos los archivos</translation>
    </message>
    <message>
        <source>Total play-time of all files</source>
        <translation>Duración total de todos los archivos</translation>
    </message>
    <message>
        <source>Percent sign</source>
        <translation>Signo de porcentaje</translation>
    </message>
    <message>
        <source>Line break</source>
        <translation>Salto de línea</translation>
    </message>
    <message>
        <source>The next list has the look of this theme: %1</source>
        <translation>La próxima lista tendrá el aspecto de este tema: %1</translation>
    </message>
</context>
<context>
    <name>tunedex::frmOptions</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Search &amp;subfolders</source>
        <translation>Buscar en las &amp;subcarpetas</translation>
    </message>
    <message>
        <source>Also search the folders below the input folder</source>
        <translation>Buscar también en las carpetas que están dentro de la carpeta de entrada</translation>
    </message>
    <message>
        <source>Split HTML listings into &amp;pages</source>
        <translation>Dividir las listas &amp;HTML en páginas</translation>
    </message>
    <message>
        <source>Write several linked pages instead of one long page</source>
        <translation>Escribir varias páginas enlazadas en lugar de una página larga</translation>
    </message>
    <message>
        <source>Files per page</source>
        <translation>Archivos por página</translation>
    </message>
    <message>
        <source>Number of MP3 files on each page</source>
        <translation>Número de archivos MP3 en cada página</translation>
    </message>
    <message>
        <source>Searching and pages</source>
        <translation>Búsqueda y páginas</translation>
    </message>
    <message>
        <source>&amp;Files per page:</source>
        <translation>Archi&amp;vos por página:</translation>
    </message>
    <message>
        <source>Show file sizes in</source>
        <translation>Mostrar el tamaño de los archivos en</translation>
    </message>
    <message>
        <source>&amp;Bytes</source>
        <translation>&amp;Bytes</translation>
    </message>
    <message>
        <source>1,234,567 b.</source>
        <translation>1.234.567 b.</translation>
    </message>
    <message>
        <source>&amp;Kilobytes</source>
        <translation>&amp;Kilobytes</translation>
    </message>
    <message>
        <source>1,205.63 kB</source>
        <translation>1.205,63 kB</translation>
    </message>
    <message>
        <source>&amp;Megabytes</source>
        <translation>&amp;Megabytes</translation>
    </message>
    <message>
        <source>1.18 MB</source>
        <translation>1,18 MB</translation>
    </message>
    <message>
        <source>Sort by artist, album and title</source>
        <translation>Ordenar por artista, álbum y título</translation>
    </message>
    <message>
        <source>&amp;No sorting</source>
        <translation>Sin &amp;ordenar</translation>
    </message>
    <message>
        <source>List files in the order they are found</source>
        <translation>Mostrar los archivos en el orden en que se encuentran</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>Ascenden&amp;te</translation>
    </message>
    <message>
        <source>A to Z</source>
        <translation>De la A a la Z</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>&amp;Descendente</translation>
    </message>
    <message>
        <source>Z to A</source>
        <translation>De la Z a la A</translation>
    </message>
    <message>
        <source>Show &amp;errors in message boxes</source>
        <translation>Mostrar los errores en cuadros de mensa&amp;je</translation>
    </message>
    <message>
        <source>Show a message for each folder or file that cannot be read</source>
        <translation>Mostrar un mensaje por cada carpeta o archivo que no se pueda leer</translation>
    </message>
    <message>
        <source>&amp;Write errors to a log file</source>
        <translation>Escribir &amp;los errores en un archivo de registro</translation>
    </message>
    <message>
        <source>Write the errors of the latest run to Tunedex.log in the program folder</source>
        <translation>Escribir los errores de la última ejecución en Tunedex.log, en la carpeta del programa</translation>
    </message>
    <message>
        <source>Ask before &amp;quitting</source>
        <translation>&amp;Preguntar antes de salir</translation>
    </message>
    <message>
        <source>Ask for confirmation before quitting</source>
        <translation>Pedir confirmación antes de salir</translation>
    </message>
    <message>
        <source>Errors and questions</source>
        <translation>Errores y preguntas</translation>
    </message>
    <message>
        <source>&amp;Link each entry to its file</source>
        <translation>Enla&amp;zar cada entrada con su archivo</translation>
    </message>
    <message>
        <source>Add a column with links to the MP3 files</source>
        <translation>Añadir una columna con enlaces a los archivos MP3</translation>
    </message>
    <message>
        <source>Link prefix</source>
        <translation>Prefijo de los enlaces</translation>
    </message>
    <message>
        <source>Text before every link, for example file:/// or a web address</source>
        <translation>Texto que precede a cada enlace, por ejemplo file:/// o una dirección web</translation>
    </message>
    <message>
        <source>Links in HTML listings</source>
        <translation>Enlaces en las listas HTML</translation>
    </message>
    <message>
        <source>N&amp;ormal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>The full path of the file</source>
        <translation>La ruta completa del archivo</translation>
    </message>
    <message>
        <source>UN&amp;IX style</source>
        <translation>Est&amp;ilo UNIX</translation>
    </message>
    <message>
        <source>A slash and the full path without colons</source>
        <translation>Una barra y la ruta completa sin dos puntos</translation>
    </message>
    <message>
        <source>&amp;Relative</source>
        <translation>&amp;Relativo</translation>
    </message>
    <message>
        <source>The path relative to the input folder</source>
        <translation>La ruta relativa a la carpeta de entrada</translation>
    </message>
    <message>
        <source>Link prefi&amp;x:</source>
        <translation>Pre&amp;fijo de los enlaces:</translation>
    </message>
    <message>
        <source>Reads tags in every encoding, skips what cannot be read, and sorts by album and track.</source>
        <translation>Lee las etiquetas en cualquier codificación, omite lo ilegible y ordena por álbum y pista.</translation>
    </message>
    <message>
        <source>Modern &amp;tags and lists</source>
        <translation>Etiquetas &amp;y listas modernas</translation>
    </message>
    <message>
        <source>Code page of old tags</source>
        <translation>Página de códigos de las etiquetas antiguas</translation>
    </message>
    <message>
        <source>The code page of ID3v1 tags, and of ID3v2 texts that are not Unicode</source>
        <translation>La página de códigos de las etiquetas ID3v1 y de los textos ID3v2 que no están en Unicode</translation>
    </message>
    <message>
        <source>Tags and lists</source>
        <translation>Etiquetas y listas</translation>
    </message>
    <message>
        <source>Code pa&amp;ge of old tags:</source>
        <translation>Página de códigos de las eti&amp;quetas antiguas:</translation>
    </message>
    <message>
        <source>Edit la&amp;yout...</source>
        <translation>&amp;Editar diseño...</translation>
    </message>
    <message>
        <source>Edit columns, fonts, colours, table, document type and themes of HTML listings</source>
        <translation>Editar columnas, tipos de letra, colores, tabla, tipo de documento y temas de las listas HTML</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>&amp;Usar</translation>
    </message>
    <message>
        <source>Apply until you quit</source>
        <translation>Aplicar hasta salir del programa</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Apply, and save all settings as the default</source>
        <translation>Aplicar y guardar toda la configuración como predeterminada</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Close without changing anything</source>
        <translation>Cerrar sin cambiar nada</translation>
    </message>
    <message>
        <source>Use: until you quit. Save: also for the next start and unattended runs.</source>
        <translation>Usar: hasta salir. Guardar: también para el próximo inicio y las ejecuciones desatendidas.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ayuda</translation>
    </message>
    <message>
        <source>Sort by artist, album, disc and track</source>
        <translation>Ordenar por artista, álbum, disco y pista</translation>
    </message>
    <message>
        <source>Files per page must be between -32768 and 32767.</source>
        <translation>El número de archivos por página debe estar entre -32768 y 32767.</translation>
    </message>
    <message>
        <source>Files per page must be a numeric value.</source>
        <translation>El número de archivos por página debe ser un valor numérico.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Help &amp;Topics</source>
        <translation>&amp;Temas de ayuda</translation>
    </message>
</context>
<context>
    <name>tunedex::frmProgress</name>
    <message>
        <source>The run is over.</source>
        <translation>La ejecución ha terminado.</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Interrumpir</translation>
    </message>
    <message>
        <source>Stop the run. Tracks already written stay in the list.</source>
        <translation>Detener la ejecución. Las pistas ya escritas permanecen en la lista.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Return to the main window</source>
        <translation>Volver a la ventana principal</translation>
    </message>
    <message>
        <source>Creating List</source>
        <translation>Creando la lista</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progreso de la ejecución</translation>
    </message>
</context>
<context>
    <name>tunedex::frmTip</name>
    <message>
        <source>&amp;Show tips at start-up</source>
        <translation>&amp;Mostrar consejos al iniciar</translation>
    </message>
    <message>
        <source>Show a tip each time the program starts</source>
        <translation>Mostrar un consejo cada vez que se inicia el programa</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Consejo del día</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>Consejo &amp;siguiente</translation>
    </message>
    <message>
        <source>Show the next tip</source>
        <translation>Mostrar el consejo siguiente</translation>
    </message>
    <message>
        <source>Next tip</source>
        <translation>Consejo siguiente</translation>
    </message>
    <message>
        <source>&amp;Random Tip</source>
        <translation>&amp;Consejo al azar</translation>
    </message>
    <message>
        <source>Show a random tip</source>
        <translation>Mostrar un consejo al azar</translation>
    </message>
    <message>
        <source>Random tip</source>
        <translation>Consejo al azar</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>Save the choice and close the window</source>
        <translation>Guardar la elección y cerrar la ventana</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Consejo</translation>
    </message>
</context>
</TS>
