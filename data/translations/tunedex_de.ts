<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>tunedex::CodePageBox</name>
    <message>
        <source>Western</source>
        <translation>Westlich</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Mitteleuropäisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>Kyrillisch (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Baltisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chinesisch (traditionell)</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
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
        <translation>Seitentext</translation>
    </message>
    <message>
        <source>The colour of the page header/footers</source>
        <translation>Farbe der Kopf- und Fußzeilen der Seite</translation>
    </message>
    <message>
        <source>Page background</source>
        <translation>Seitenhintergrund</translation>
    </message>
    <message>
        <source>The background colour of the page</source>
        <translation>Hintergrundfarbe der Seite</translation>
    </message>
    <message>
        <source>Table header text</source>
        <translation>Text der Tabellenköpfe</translation>
    </message>
    <message>
        <source>The colour of the table headers</source>
        <translation>Textfarbe der Tabellenköpfe</translation>
    </message>
    <message>
        <source>Table header background</source>
        <translation>Hintergrund der Tabellenköpfe</translation>
    </message>
    <message>
        <source>The background colour of the table headers</source>
        <translation>Hintergrundfarbe der Tabellenköpfe</translation>
    </message>
    <message>
        <source>Cell text</source>
        <translation>Zellentext</translation>
    </message>
    <message>
        <source>The colour of the table cells</source>
        <translation>Textfarbe der Tabellenzellen</translation>
    </message>
    <message>
        <source>Cell background</source>
        <translation>Zellenhintergrund</translation>
    </message>
    <message>
        <source>The background colour of the table cells</source>
        <translation>Hintergrundfarbe der Tabellenzellen</translation>
    </message>
    <message>
        <source>Alternate cell text</source>
        <translation>Text der Wechselzellen</translation>
    </message>
    <message>
        <source>The colour of the alternate table cells</source>
        <translation>Textfarbe jeder zweiten Tabellenzeile</translation>
    </message>
    <message>
        <source>Alternate cell background</source>
        <translation>Hintergrund der Wechselzellen</translation>
    </message>
    <message>
        <source>The background colour of the alternate cells</source>
        <translation>Hintergrundfarbe jeder zweiten Tabellenzeile</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>The colour of generated links</source>
        <translation>Farbe der erzeugten Links</translation>
    </message>
    <message>
        <source>Table border</source>
        <translation>Tabellenrahmen</translation>
    </message>
    <message>
        <source>The colour the main table&apos;s border</source>
        <translation>Farbe des Rahmens der Haupttabelle</translation>
    </message>
    <message>
        <source>Table cells &amp;use alternating text/background colours</source>
        <translation>&amp;Zeilen mit wechselnden Text- und Hintergrundfarben</translation>
    </message>
    <message>
        <source>Alternate between the two colours below for table cells. Aids readability.</source>
        <translation>Tabellenzeilen abwechselnd in den beiden Farbpaaren darunter anzeigen. Das erleichtert das Lesen.</translation>
    </message>
    <message>
        <source>Use CSS fo&amp;r text colours.</source>
        <translation>CSS fü&amp;r Textfarben verwenden.</translation>
    </message>
    <message>
        <source>Write the colours into the page&apos;s style sheet</source>
        <translation>Farben in das Stylesheet der Seite schreiben</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for text colours.</source>
        <translation>FONT-Tags für Te&amp;xtfarben verwenden.</translation>
    </message>
    <message>
        <source>Write the colours into the markup, for browsers without style sheets</source>
        <translation>Farben in das Markup schreiben, für Browser ohne Stylesheets</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translation>&amp;Seite:</translation>
    </message>
    <message>
        <source>Table header&amp;s:</source>
        <translation>&amp;Tabellenköpfe:</translation>
    </message>
    <message>
        <source>Table c&amp;ells:</source>
        <translation>Ta&amp;bellenzellen:</translation>
    </message>
    <message>
        <source>&amp;Alternate cells:</source>
        <translation>&amp;Wechselzellen:</translation>
    </message>
    <message>
        <source>L&amp;inks:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>Table &amp;border:</source>
        <translation>Tabellenrah&amp;men:</translation>
    </message>
    <message>
        <source>RRGGBB</source>
        <translation>RRGGBB</translation>
    </message>
    <message>
        <source>%1: select colour</source>
        <translation>%1: Farbe wählen</translation>
    </message>
    <message>
        <source>Select a colour from the palette</source>
        <translation>Eine Farbe aus der Palette wählen</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers show %1 for it.</source>
        <translation>Das ist keine Farbe aus sechs hexadezimalen Ziffern. Browser zeigen dafür %1.</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers ignore it.</source>
        <translation>Das ist keine Farbe aus sechs hexadezimalen Ziffern. Browser beachten sie nicht.</translation>
    </message>
    <message>
        <source>A marked colour is not six hexadecimal digits. The right half of the button beside it shows what browsers show for it.</source>
        <translation>Eine markierte Farbe besteht nicht aus sechs hexadezimalen Ziffern. Die rechte Hälfte der Schaltfläche daneben zeigt, was Browser dafür zeigen.</translation>
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
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>MPEG Type</source>
        <translation>MPEG-Typ</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Full Path</source>
        <translation>Vollständiger Pfad</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Titelnummer</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>CD</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>Albuminterpret</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Komponist</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
</context>
<context>
    <name>tunedex::ColumnsPage</name>
    <message>
        <source>Hidden columns</source>
        <translation>Ausgeblendete Spalten</translation>
    </message>
    <message>
        <source>Columns that are not listed. Double-click or drag one to show it.</source>
        <translation>Spalten, die nicht aufgelistet werden. Doppelklicken oder ziehen Sie eine Spalte, um sie einzublenden.</translation>
    </message>
    <message>
        <source>Shown columns, in display order</source>
        <translation>Eingeblendete Spalten in Anzeigereihenfolge</translation>
    </message>
    <message>
        <source>Double-click a column to hide it. Drag it or press Alt+Up or Alt+Down to move it.</source>
        <translation>Doppelklicken Sie eine Spalte, um sie auszublenden. Verschieben Sie sie durch Ziehen oder mit Alt+Aufwärts und Alt+Abwärts.</translation>
    </message>
    <message>
        <source>Hidden colu&amp;mns:</source>
        <translation>Ausgeblendete &amp;Spalten:</translation>
    </message>
    <message>
        <source>Shown, in this o&amp;rder:</source>
        <translation>Ein&amp;geblendet, in dieser Folge:</translation>
    </message>
    <message>
        <source>&amp;Show ›</source>
        <translation>&amp;Einblenden ›</translation>
    </message>
    <message>
        <source>Show the selected hidden column as the last column</source>
        <translation>Die markierte Spalte als letzte Spalte einblenden</translation>
    </message>
    <message>
        <source>‹ Hid&amp;e</source>
        <translation>‹ Aus&amp;blenden</translation>
    </message>
    <message>
        <source>Hide the selected shown column</source>
        <translation>Die markierte Spalte ausblenden</translation>
    </message>
    <message>
        <source>Show &amp;all »</source>
        <translation>A&amp;lle einblenden »</translation>
    </message>
    <message>
        <source>Show every column</source>
        <translation>Alle Spalten einblenden</translation>
    </message>
    <message>
        <source>« H&amp;ide all</source>
        <translation>« Alle a&amp;usblenden</translation>
    </message>
    <message>
        <source>Hide every column</source>
        <translation>Alle Spalten ausblenden</translation>
    </message>
    <message>
        <source>To&amp;p</source>
        <translation>&amp;Zum Anfang</translation>
    </message>
    <message>
        <source>Move the selected shown column to the top</source>
        <translation>Die markierte Spalte an den Anfang verschieben</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Auf&amp;wärts</translation>
    </message>
    <message>
        <source>Move the selected shown column one place up (Alt+Up)</source>
        <translation>Die markierte Spalte um eine Stelle nach oben verschieben (Alt+Aufwärts)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Abwä&amp;rts</translation>
    </message>
    <message>
        <source>Move the selected shown column one place down (Alt+Down)</source>
        <translation>Die markierte Spalte um eine Stelle nach unten verschieben (Alt+Abwärts)</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>Zu&amp;m Ende</translation>
    </message>
    <message>
        <source>Move the selected shown column to the bottom</source>
        <translation>Die markierte Spalte an das Ende verschieben</translation>
    </message>
    <message>
        <source>Mer&amp;ge Artist and Title into one column</source>
        <translation>&amp;Interpret und Titel in einer Spalte zusammenfassen</translation>
    </message>
    <message>
        <source>Shows “Artist: Title”. Both columns must be shown.</source>
        <translation>Zeigt „Interpret: Titel“. Beide Spalten müssen eingeblendet sein.</translation>
    </message>
    <message>
        <source>Ta&amp;ke Album into that column, too</source>
        <translation>Album ebenfalls in &amp;diese Spalte aufnehmen</translation>
    </message>
    <message>
        <source>Shows “Artist (Album): Title”. Requires Artist and Title to be merged.</source>
        <translation>Zeigt „Interpret (Album): Titel“. Interpret und Titel müssen zusammengefasst sein.</translation>
    </message>
    <message>
        <source>Displa&amp;y a leading “The” after the artist&apos;s name</source>
        <translation>„&amp;The“ hinter den Namen des Interpreten stellen</translation>
    </message>
    <message>
        <source>Lists “The Band” as “Band, The”, sorted under B</source>
        <translation>Listet „The Band“ als „Band, The“, einsortiert unter B</translation>
    </message>
</context>
<context>
    <name>tunedex::CoreText</name>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Tunedex (Automatic Mode)</source>
        <translation>Tunedex (automatischer Modus)</translation>
    </message>
    <message>
        <source>Tunedex Error! (Automatic Mode)</source>
        <translation>Tunedex-Fehler! (automatischer Modus)</translation>
    </message>
    <message>
        <source>The specified directory does not exist!</source>
        <translation>Das angegebene Verzeichnis ist nicht vorhanden!</translation>
    </message>
    <message>
        <source>No input directory specified!</source>
        <translation>Es wurde kein Eingabeverzeichnis angegeben!</translation>
    </message>
    <message>
        <source>No input directories specified!</source>
        <translation>Es wurden keine Eingabeverzeichnisse angegeben!</translation>
    </message>
    <message>
        <source>No output file specified!</source>
        <translation>Es wurde keine Ausgabedatei angegeben!</translation>
    </message>
    <message>
        <source>The output directory does not exist!

Do you want to create it?</source>
        <translation>Das Ausgabeverzeichnis ist nicht vorhanden!

Möchten Sie es anlegen?</translation>
    </message>
    <message>
        <source>No MP3 files!</source>
        <translation>Keine MP3-Dateien!</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directory specified.</source>
        <translation>Im angegebenen Verzeichnis wurden
keine MP3-Dateien gefunden.</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directories specified.</source>
        <translation>In den angegebenen Verzeichnissen wurden
keine MP3-Dateien gefunden.</translation>
    </message>
    <message>
        <source>An error occurred verifying your input directory.

This could be because you do not have permission
to access the directory, or you may be attempting
to use a non-existent network share.</source>
        <translation>Beim Prüfen des Eingabeverzeichnisses ist ein Fehler aufgetreten.

Möglicherweise haben Sie keine Berechtigung für den Zugriff
auf das Verzeichnis, oder Sie haben eine Netzwerkfreigabe
angegeben, die nicht vorhanden ist.</translation>
    </message>
    <message>
        <source>An unexpected error occurred. The error was: 

Error number %1 - %2</source>
        <translation>Ein unerwarteter Fehler ist aufgetreten: 

Fehlernummer %1 - %2</translation>
    </message>
    <message>
        <source>An error occurred scanning the directory: 

%1

%2: %3</source>
        <translation>Fehler beim Durchsuchen des Verzeichnisses: 

%1

%2: %3</translation>
    </message>
    <message>
        <source>An error occurred decoding the headers of: 

%1</source>
        <translation>Fehler beim Dekodieren der Header von: 

%1</translation>
    </message>
    <message>
        <source>A settings file cannot hold a line break.
These settings were not saved:

%1</source>
        <translation>Eine Einstellungsdatei kann keinen Zeilenumbruch enthalten.
Diese Einstellungen wurden nicht gespeichert:

%1</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Ungültiger Prozeduraufruf oder ungültiges Argument</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Nicht genügend Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division durch null</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Typen unverträglich</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Ungültiger Dateiname oder ungültige Dateinummer</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>E/A-Fehler des Geräts</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lesen über das Dateiende hinaus</translation>
    </message>
    <message>
        <source>Too many files</source>
        <translation>Zu viele Dateien</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad oder Datei</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Searching for MP3 files...</source>
        <translation>MP3-Dateien werden gesucht...</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information...</source>
        <translation>MPEG-/ID3-Daten werden gelesen...</translation>
    </message>
    <message>
        <source>Sorting information...</source>
        <translation>Daten werden sortiert...</translation>
    </message>
    <message>
        <source>Writing information...</source>
        <translation>Daten werden geschrieben...</translation>
    </message>
    <message>
        <source>Operation complete!</source>
        <translation>Vorgang abgeschlossen!</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information (%1/%2)...</source>
        <translation>MPEG-/ID3-Daten werden gelesen (%1/%2)...</translation>
    </message>
    <message>
        <source>Writing entry for file %1/%2...</source>
        <translation>Eintrag für Datei %1/%2 wird geschrieben...</translation>
    </message>
    <message>
        <source>Writing index entry for file %1/%2...</source>
        <translation>Indexeintrag für Datei %1/%2 wird geschrieben...</translation>
    </message>
</context>
<context>
    <name>tunedex::Dialogs</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;No more messages in this run</source>
        <translation>&amp;Keine weiteren Meldungen in diesem Lauf</translation>
    </message>
    <message>
        <source>Errors still go to the log, if the options ask for one</source>
        <translation>Fehler werden weiterhin protokolliert, wenn es in den Optionen eingestellt ist</translation>
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
        <translation>Nach Album &amp;gruppieren</translation>
    </message>
    <message>
        <source>Show a heading for each album (HTML5 only)</source>
        <translation>Eine Überschrift für jedes Album anzeigen (nur HTML5)</translation>
    </message>
    <message>
        <source>Document type</source>
        <translation>Dokumenttyp</translation>
    </message>
    <message>
        <source>The document type of HTML listings</source>
        <translation>Dokumenttyp der HTML-Listen</translation>
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
        <translation>Doku&amp;menttyp:</translation>
    </message>
</context>
<context>
    <name>tunedex::FontsPage</name>
    <message>
        <source>Page heading and text</source>
        <translation>Seitenüberschrift und Text</translation>
    </message>
    <message>
        <source>Table headers</source>
        <translation>Tabellenköpfe</translation>
    </message>
    <message>
        <source>Table cells</source>
        <translation>Tabellenzellen</translation>
    </message>
    <message>
        <source>&amp;Use CSS for fonts.</source>
        <translation>CSS für Schriften verwen&amp;den.</translation>
    </message>
    <message>
        <source>Write the fonts into the page&apos;s style sheet</source>
        <translation>Schriften in das Stylesheet der Seite schreiben</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for fonts.</source>
        <translation>FONT-&amp;Tags für Schriften verwenden.</translation>
    </message>
    <message>
        <source>Write the fonts into the markup, for browsers without style sheets</source>
        <translation>Schriften in das Markup schreiben, für Browser ohne Stylesheets</translation>
    </message>
    <message>
        <source>%1: typefaces</source>
        <translation>%1: Schriftarten</translation>
    </message>
    <message>
        <source>Typefaces in order of preference, separated by commas</source>
        <translation>Schriftarten in der Reihenfolge der Bevorzugung, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>%1: size</source>
        <translation>%1: Größe</translation>
    </message>
    <message>
        <source>1 (smallest) to 7 (largest). 3 is the size of normal text.</source>
        <translation>1 (kleinste) bis 7 (größte). 3 ist die Größe von normalem Text.</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>F&amp;ett</translation>
    </message>
    <message>
        <source>%1 in bold type</source>
        <translation>%1 in Fettschrift</translation>
    </message>
    <message>
        <source>%1: bold</source>
        <translation>%1: fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>Ku&amp;rsiv</translation>
    </message>
    <message>
        <source>%1 in italic type</source>
        <translation>%1 in Kursivschrift</translation>
    </message>
    <message>
        <source>%1: italic</source>
        <translation>%1: kursiv</translation>
    </message>
    <message>
        <source>&amp;Select...</source>
        <translation>Aus&amp;wählen...</translation>
    </message>
    <message>
        <source>Select a font installed on this computer</source>
        <translation>Eine auf diesem Computer installierte Schrift auswählen</translation>
    </message>
    <message>
        <source>%1: select font</source>
        <translation>%1: Schrift auswählen</translation>
    </message>
    <message>
        <source>T&amp;ypefaces:</source>
        <translation>&amp;Schriftarten:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>&amp;Größe:</translation>
    </message>
</context>
<context>
    <name>tunedex::OpenHelp</name>
    <message>
        <source>No program could be found to open<byte value="xd"/>
%1</source>
        <translation>Es wurde kein Programm gefunden zum Öffnen von
%1</translation>
    </message>
    <message>
        <source>The help file could not be found!</source>
        <translation>Die Hilfedatei wurde nicht gefunden!</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
does not exist any more!</source>
        <translation>%1
ist nicht mehr vorhanden!</translation>
    </message>
</context>
<context>
    <name>tunedex::OutputHint</name>
    <message>
        <source>The extension sets the format: .htm web page, .txt or .csv table, .m3u playlist.</source>
        <translation>Die Endung bestimmt das Format: .htm Webseite, .txt oder .csv Tabelle, .m3u Wiedergabeliste.</translation>
    </message>
    <message>
        <source>The extension sets the format: .htm web page, .txt plain text, .m3u playlist.</source>
        <translation>Die Endung bestimmt das Format: .htm Webseite, .txt reiner Text, .m3u Wiedergabeliste.</translation>
    </message>
    <message>
        <source>Only modern tags and lists know %1.</source>
        <translation>Nur moderne Tags und Listen kennen %1.</translation>
    </message>
    <message>
        <source>%1 is not the extension of a format.</source>
        <translation>%1 ist keine Endung eines Formats.</translation>
    </message>
    <message>
        <source>The existing list will be replaced.</source>
        <translation>Die vorhandene Liste wird ersetzt.</translation>
    </message>
    <message>
        <source>Writes %1.</source>
        <translation>Schreibt %1.</translation>
    </message>
    <message numerus="yes">
        <source>Writes %1 … (%2 files a page).</source>
        <translation>
            <numerusform>Schreibt %1 … (%2 Datei pro Seite).</numerusform>
            <numerusform>Schreibt %1 … (%2 Dateien pro Seite).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::PreviewPane</name>
    <message>
        <source>&lt;p&gt;There is no preview: a listing cannot be written with this layout (%1).&lt;/p&gt;</source>
        <translation>&lt;p&gt;Keine Vorschau: Mit diesem Layout kann keine Liste geschrieben werden (%1).&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;If Album is merged, it must not come before both Artist and Title.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ein zusammengefasstes Album darf nicht vor Interpret und Titel stehen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Preview of colours, fonts and columns. Only a browser shows search, sorting, album headings and the colours for the other (dark or light) setting.</source>
        <translation>Vorschau von Farben, Schriften und Spalten. Nur ein Browser zeigt Suche, Sortierung, Albumüberschriften und die Farben für die andere (dunkle oder helle) Einstellung.</translation>
    </message>
    <message>
        <source>Preview with sample tracks</source>
        <translation>Vorschau mit Beispieltiteln</translation>
    </message>
    <message>
        <source>Open sample in browser</source>
        <translation>Beispiel im Browser öffnen</translation>
    </message>
    <message>
        <source>Open a sample listing with this layout in your browser (Ctrl+B)</source>
        <translation>Eine Beispielliste mit diesem Layout im Browser öffnen (Strg+B)</translation>
    </message>
    <message>
        <source>Preview of the listing</source>
        <translation>Vorschau der Liste</translation>
    </message>
    <message>
        <source>Sample tracks, listed with the layout shown here</source>
        <translation>Beispieltitel, aufgelistet mit dem hier gezeigten Layout</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background, because browsers ignore the style sheet of XHTML listings. To mend it, tick “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>Ein Teil des Texts ist auf seinem Hintergrund schwer zu lesen, weil Browser das Stylesheet von XHTML-Listen nicht beachten. Abhilfe: „FONT-Tags für Textfarben verwenden.“ auf der Seite Farben ankreuzen.</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background. To mend it, tick “Use CSS for text colours.” or “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>Ein Teil des Texts ist auf seinem Hintergrund schwer zu lesen. Abhilfe: „CSS für Textfarben verwenden.“ oder „FONT-Tags für Textfarben verwenden.“ auf der Seite Farben ankreuzen.</translation>
    </message>
    <message>
        <source>Preview: browsers ignore the style sheet of XHTML listings. Tick “Use FONT tags” on the pages Fonts and Colours instead.</source>
        <translation>Vorschau: Browser beachten das Stylesheet von XHTML-Listen nicht. Kreuzen Sie stattdessen auf den Seiten Schriften und Farben die FONT-Tags an.</translation>
    </message>
    <message>
        <source>Preview of the theme “%1”, which is not loaded.</source>
        <translation>Vorschau des Designs „%1“, das nicht geladen ist.</translation>
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
        <translation>1 Datei gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 Datei gefunden</numerusform>
            <numerusform>%1 Dateien gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files a second, %2 left</source>
        <translation>
            <numerusform>%1 Datei pro Sekunde, noch %2</numerusform>
            <numerusform>%1 Dateien pro Sekunde, noch %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::RecentButton</name>
    <message>
        <source>%1 (Alt+Down in the field)</source>
        <translation>%1 (Alt+Abwärts im Feld)</translation>
    </message>
    <message>
        <source>&amp;Clear this list</source>
        <translation>&amp;Diese Liste leeren</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultPanel</name>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open the list (Ctrl+L)</source>
        <translation>Die Liste öffnen (Strg+L)</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ordner anzeigen</translation>
    </message>
    <message>
        <source>Open the list&apos;s folder (Ctrl+Shift+L)</source>
        <translation>Den Ordner der Liste öffnen (Strg+Umschalt+L)</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Switch on “Modern tags and lists” (Ctrl+M)</source>
        <translation>„Moderne Tags und Listen“ einschalten (Strg+M)</translation>
    </message>
    <message>
        <source>Switch on Modern tags and lists</source>
        <translation>Moderne Tags und Listen einschalten</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultText</name>
    <message>
        <source>1 track</source>
        <translation>1 Titel</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <translation>
            <numerusform>%1 Titel</numerusform>
            <numerusform>%1 Titel</numerusform>
        </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 Seite</translation>
    </message>
    <message numerus="yes">
        <source>%1 pages</source>
        <translation>
            <numerusform>%1 Seite</numerusform>
            <numerusform>%1 Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 Ordner</numerusform>
            <numerusform>%1 Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>The run was aborted. %1 has the tracks that were written.</source>
        <translation>Der Lauf wurde abgebrochen. %1 enthält die geschriebenen Titel.</translation>
    </message>
    <message>
        <source>The run was aborted. No list was written.</source>
        <translation>Der Lauf wurde abgebrochen. Es wurde keine Liste geschrieben.</translation>
    </message>
    <message>
        <source>No MP3 files were found. No list was written.</source>
        <translation>Es wurden keine MP3-Dateien gefunden. Es wurde keine Liste geschrieben.</translation>
    </message>
    <message>
        <source>The run failed: %1. No complete list was written.</source>
        <translation>Der Lauf ist fehlgeschlagen: %1. Es wurde keine vollständige Liste geschrieben.</translation>
    </message>
    <message>
        <source>Wrote %1: %2 on %3.</source>
        <translation>%1 geschrieben: %2 auf %3.</translation>
    </message>
    <message>
        <source>Wrote %1: %2.</source>
        <translation>%1 geschrieben: %2.</translation>
    </message>
    <message>
        <source>%1 and %2 could not be read.</source>
        <translation>Nicht gelesen werden konnten: %1 und %2.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>Nicht gelesen werden konnten: %1.</translation>
    </message>
    <message>
        <source>&apos;Modern tags and lists&apos; is on now: create the list again.</source>
        <translation>„Moderne Tags und Listen“ ist jetzt eingeschaltet: Erstellen Sie die Liste neu.</translation>
    </message>
    <message>
        <source>1 file has tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>1 Datei hat Tags, die „Moderne Tags und Listen“ korrekt lesen würde.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files have tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>
            <numerusform>%1 Datei hat Tags, die „Moderne Tags und Listen“ korrekt lesen würde.</numerusform>
            <numerusform>%1 Dateien haben Tags, die „Moderne Tags und Listen“ korrekt lesen würde.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::Statistics</name>
    <message>
        <source>Tunedex was first started on %1 and has been started %2 since.</source>
        <translation>Tunedex wurde zum ersten Mal am %1 und seither %2 gestartet.</translation>
    </message>
    <message>
        <source>It has created %1, and handled %2.</source>
        <translation>Es hat %1 erstellt und %2 verarbeitet.</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1-mal</translation>
    </message>
    <message numerus="yes">
        <source>%1 times</source>
        <translation>
            <numerusform>%1-mal</numerusform>
            <numerusform>%1-mal</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 list</source>
        <translation>%1 Liste</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists</source>
        <translation>
            <numerusform>%1 Liste</numerusform>
            <numerusform>%1 Listen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MP3 file</source>
        <translation>%1 MP3-Datei</translation>
    </message>
    <message numerus="yes">
        <source>%1 MP3 files</source>
        <translation>
            <numerusform>%1 MP3-Datei</numerusform>
            <numerusform>%1 MP3-Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::TablePage</name>
    <message>
        <source>Table width</source>
        <translation>Tabellenbreite</translation>
    </message>
    <message>
        <source>Width of the table</source>
        <translation>Breite der Tabelle</translation>
    </message>
    <message>
        <source>Border size</source>
        <translation>Rahmenstärke</translation>
    </message>
    <message>
        <source>Width of the lines between the cells, in pixels</source>
        <translation>Breite der Linien zwischen den Zellen in Pixel</translation>
    </message>
    <message>
        <source>Cell padding</source>
        <translation>Zellenabstand</translation>
    </message>
    <message>
        <source>Space between a cell&apos;s border and its text, in pixels</source>
        <translation>Abstand zwischen dem Rahmen einer Zelle und ihrem Text in Pixel</translation>
    </message>
    <message>
        <source>Pi&amp;xels</source>
        <translation>Pi&amp;xel</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breite in Pixel</translation>
    </message>
    <message>
        <source>Pe&amp;r cent</source>
        <translation>Proz&amp;ent</translation>
    </message>
    <message>
        <source>Width as a percentage of the page&apos;s width</source>
        <translation>Breite in Prozent der Seitenbreite</translation>
    </message>
    <message>
        <source>Table &amp;width:</source>
        <translation>&amp;Tabellenbreite:</translation>
    </message>
    <message>
        <source>&amp;Border size:</source>
        <translation>&amp;Rahmenstärke:</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Cell &amp;padding:</source>
        <translation>&amp;Zellenabstand:</translation>
    </message>
    <message>
        <source>The table width must be a numeric value.</source>
        <translation>Die Tabellenbreite muss ein numerischer Wert sein.</translation>
    </message>
    <message>
        <source>The table width must be between -32768 and 32767.</source>
        <translation>Die Tabellenbreite muss zwischen -32768 und 32767 liegen.</translation>
    </message>
    <message>
        <source>The table border size must be a numeric value.</source>
        <translation>Die Rahmenstärke der Tabelle muss ein numerischer Wert sein.</translation>
    </message>
    <message>
        <source>The table border size must be between -32768 and 32767.</source>
        <translation>Die Rahmenstärke der Tabelle muss zwischen -32768 und 32767 liegen.</translation>
    </message>
    <message>
        <source>The table cell padding must be a numeric value.</source>
        <translation>Der Zellenabstand der Tabelle muss ein numerischer Wert sein.</translation>
    </message>
    <message>
        <source>The table cell padding must be between -32768 and 32767.</source>
        <translation>Der Zellenabstand der Tabelle muss zwischen -32768 und 32767 liegen.</translation>
    </message>
</context>
<context>
    <name>tunedex::ThemePanel</name>
    <message>
        <source>Save Theme</source>
        <translation>Design speichern</translation>
    </message>
    <message>
        <source>This cannot be the name of a theme.<byte value="xd"/>
<byte value="xd"/>
A name must be short enough for a file name, without a slash,<byte value="xd"/>
and neither &quot;.&quot; nor &quot;..&quot;.</source>
        <translation>Dies kann nicht der Name eines Designs sein.

Der Name muss kurz genug für einen Dateinamen sein, darf keinen
Schrägstrich enthalten und weder „.“ noch „..“ lauten.</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Designs</translation>
    </message>
    <message>
        <source>Lo&amp;ad theme</source>
        <translation>Design &amp;laden</translation>
    </message>
    <message>
        <source>Apply the selected theme&apos;s fonts, colours and table settings immediately</source>
        <translation>Schriften, Farben und Tabelleneinstellungen des markierten Designs sofort anwenden</translation>
    </message>
    <message>
        <source>&amp;Save theme...</source>
        <translation>Design &amp;speichern...</translation>
    </message>
    <message>
        <source>Save the fonts, colours and table settings shown here as a theme</source>
        <translation>Die hier gezeigten Schriften, Farben und Tabelleneinstellungen als Design speichern</translation>
    </message>
    <message>
        <source>Delete the&amp;me...</source>
        <translation>&amp;Design löschen...</translation>
    </message>
    <message>
        <source>Delete the selected theme&apos;s file</source>
        <translation>Die Datei des markierten Designs löschen</translation>
    </message>
    <message>
        <source>Themes are preset colour, font, and table settings that you can import into your own settings.

You can also export your own settings as a theme.</source>
        <translation>Designs sind vorgefertigte Farb-, Schrift- und Tabelleneinstellungen, die Sie in Ihre eigenen Einstellungen übernehmen können.

Sie können auch Ihre eigenen Einstellungen als Design speichern.</translation>
    </message>
    <message>
        <source>Availa&amp;ble themes:</source>
        <translation>Ve&amp;rfügbare Designs:</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Theme loaded successfully.</source>
        <translation>Das Design wurde geladen.</translation>
    </message>
    <message>
        <source>Please enter a name for your theme:</source>
        <translation>Bitte geben Sie einen Namen für Ihr Design ein:</translation>
    </message>
    <message>
        <source>Theme saved successfully.</source>
        <translation>Das Design wurde gespeichert.</translation>
    </message>
    <message>
        <source>This theme already exists!<byte value="xd"/>
<byte value="xd"/>
Overwrite?</source>
        <translation>Dieses Design ist bereits vorhanden!

Überschreiben?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
the %1 theme?<byte value="xd"/>
<byte value="xd"/>
You cannot recover it afterwards!</source>
        <translation>Möchten Sie das Design %1
wirklich löschen?

Es kann danach nicht wiederhergestellt werden!</translation>
    </message>
    <message>
        <source>Delete Theme</source>
        <translation>Design löschen</translation>
    </message>
    <message>
        <source>Select a theme to preview it. Press Enter or double-click to load it.</source>
        <translation>Wählen Sie ein Design aus, um es in der Vorschau zu sehen. Mit der Eingabetaste oder einem Doppelklick laden Sie es.</translation>
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
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Version %1.%2 - Build %3</source>
        <translation>Version %1.%2 - Build %3</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Homepage</translation>
    </message>
    <message>
        <source>E-mail the author</source>
        <translation>E-Mail an den Autor</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Das Fenster schließen</translation>
    </message>
    <message>
        <source>&amp;Home page</source>
        <translation>&amp;Homepage</translation>
    </message>
    <message>
        <source>&amp;E-mail the author</source>
        <translation>&amp;E-Mail an den Autor</translation>
    </message>
</context>
<context>
    <name>tunedex::frmDirSelection</name>
    <message>
        <source>Folders to Search</source>
        <translation>Zu durchsuchende Ordner</translation>
    </message>
    <message>
        <source>&amp;Folders, in search order:</source>
        <translation>Ordner, in &amp;Suchreihenfolge:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The folders to search, in order. Folders can be dropped here.</source>
        <translation>Die zu durchsuchenden Ordner in ihrer Reihenfolge. Ordner können hier abgelegt werden.</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>Hi&amp;nzufügen...</translation>
    </message>
    <message>
        <source>Append a folder to the list</source>
        <translation>Einen Ordner an die Liste anhängen</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected folder from the list</source>
        <translation>Den markierten Ordner aus der Liste entfernen</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Remove all folders from the list</source>
        <translation>Alle Ordner aus der Liste entfernen</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Zum Anfang</translation>
    </message>
    <message>
        <source>Move the selected folder to the top</source>
        <translation>Den markierten Ordner an den Anfang verschieben</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Au&amp;fwärts</translation>
    </message>
    <message>
        <source>Move the selected folder one row up</source>
        <translation>Den markierten Ordner um eine Zeile nach oben verschieben</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>A&amp;bwärts</translation>
    </message>
    <message>
        <source>Move the selected folder one row down</source>
        <translation>Den markierten Ordner um eine Zeile nach unten verschieben</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>Zu&amp;m Ende</translation>
    </message>
    <message>
        <source>Move the selected folder to the bottom</source>
        <translation>Den markierten Ordner an das Ende verschieben</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Die Hilfedatei öffnen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Use this list and close the window</source>
        <translation>Diese Liste verwenden und das Fenster schließen</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Close the window without using this list</source>
        <translation>Das Fenster schließen, ohne diese Liste zu verwenden</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>Verzeichnis auswählen</translation>
    </message>
    <message>
        <source>Select a folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Wählen Sie einen Ordner aus, den Tunedex nach MP3-Dateien durchsuchen soll, und klicken Sie auf OK.</translation>
    </message>
    <message>
        <source>Are you sure you want<byte value="xd"/>
to clear the list?</source>
        <translation>Möchten Sie die Liste
wirklich leeren?</translation>
    </message>
    <message>
        <source>Clear Directories?</source>
        <translation>Verzeichnisse entfernen?</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 Ordner</numerusform>
            <numerusform>%1 Ordner</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::frmEditLayout</name>
    <message>
        <source>Edit Layout</source>
        <translation>Layout bearbeiten</translation>
    </message>
    <message>
        <source>Pages of the layout editor</source>
        <translation>Seiten des Layout-Editors</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>S&amp;palten</translation>
    </message>
    <message>
        <source>&amp;Fonts</source>
        <translation>S&amp;chriften</translation>
    </message>
    <message>
        <source>Co&amp;lours</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>T&amp;abelle</translation>
    </message>
    <message>
        <source>&amp;Document and themes</source>
        <translation>Do&amp;kument und Designs</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Die Hilfedatei öffnen</translation>
    </message>
    <message>
        <source>Show pre&amp;view</source>
        <translation>&amp;Vorschau anzeigen</translation>
    </message>
    <message>
        <source>Show a sample listing with this layout</source>
        <translation>Eine Beispielliste mit diesem Layout anzeigen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Use this layout</source>
        <translation>Dieses Layout verwenden</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>Abbreche&amp;n</translation>
    </message>
    <message>
        <source>Discard all changes except a loaded theme</source>
        <translation>Alle Änderungen außer einem geladenen Design verwerfen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes here and in the options.</source>
        <translation>Beim Laden eines Designs gehen Ihre Änderungen hier und in den Optionen verloren.</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes to the layout.</source>
        <translation>Beim Laden eines Designs gehen Ihre Änderungen am Layout verloren.</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes in the options.</source>
        <translation>Beim Laden eines Designs gehen Ihre Änderungen in den Optionen verloren.</translation>
    </message>
</context>
<context>
    <name>tunedex::frmMain</name>
    <message>
        <source>HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|Winamp Playlist (*.m3u)|*.m3u|</source>
        <translation>HTML-Datei (*.htm,*.html)|*.htm;*.html|Textdatei (*.txt)|*.txt|Winamp-Wiedergabeliste (*.m3u)|*.m3u|</translation>
    </message>
    <message>
        <source>CSV File (*.csv)|*.csv|UTF-8 Playlist (*.m3u8)|*.m3u8|</source>
        <translation>CSV-Datei (*.csv)|*.csv|UTF-8-Wiedergabeliste (*.m3u8)|*.m3u8|</translation>
    </message>
    <message>
        <source>Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*</source>
        <translation>Einstellungsdateien (*.cfg)|*.cfg|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The folder to search for MP3 files. Folders can be dropped here.</source>
        <translation>Der Ordner, der nach MP3-Dateien durchsucht wird. Ordner können hier abgelegt werden.</translation>
    </message>
    <message>
        <source>Search &amp;multiple folders</source>
        <translation>&amp;Mehrere Ordner durchsuchen</translation>
    </message>
    <message>
        <source>Search a list of folders instead of one</source>
        <translation>Eine Liste von Ordnern statt eines Ordners durchsuchen</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Ausgabedatei</translation>
    </message>
    <message>
        <source>The file to write the list to</source>
        <translation>Die Datei, in die die Liste geschrieben wird</translation>
    </message>
    <message>
        <source>Window title</source>
        <translation>Fenstertitel</translation>
    </message>
    <message>
        <source>The title of the browser window</source>
        <translation>Der Titel des Browserfensters</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Seitentitel</translation>
    </message>
    <message>
        <source>The heading of each page</source>
        <translation>Die Überschrift jeder Seite</translation>
    </message>
    <message>
        <source>Page footer</source>
        <translation>Seitenfuß</translation>
    </message>
    <message>
        <source>The text at the end of each page</source>
        <translation>Der Text am Ende jeder Seite</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Zuletzt verwendete Ordner</translation>
    </message>
    <message>
        <source>Recent output files</source>
        <translation>Zuletzt verwendete Ausgabedateien</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open Settings...</source>
        <translation>&amp;Einstellungen öffnen...</translation>
    </message>
    <message>
        <source>Load a settings file</source>
        <translation>Eine Einstellungsdatei laden</translation>
    </message>
    <message>
        <source>&amp;Save Settings</source>
        <translation>Einstellungen &amp;speichern</translation>
    </message>
    <message>
        <source>Save the settings</source>
        <translation>Die Einstellungen speichern</translation>
    </message>
    <message>
        <source>Save Settings &amp;As...</source>
        <translation>Einstellungen speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the settings under another name</source>
        <translation>Die Einstellungen unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Hilfethemen</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Die Hilfedatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Tip of the Day...</source>
        <translation>Tipp &amp;des Tages...</translation>
    </message>
    <message>
        <source>Show a tip</source>
        <translation>Einen Tipp anzeigen</translation>
    </message>
    <message>
        <source>&amp;About Tunedex...</source>
        <translation>Über &amp;Tunedex...</translation>
    </message>
    <message>
        <source>Show version and statistics</source>
        <translation>Version und Statistik anzeigen</translation>
    </message>
    <message>
        <source>Placeholders</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Fol&amp;der:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Output file:</source>
        <translation>&amp;Ausgabedatei:</translation>
    </message>
    <message>
        <source>Window &amp;title:</source>
        <translation>&amp;Fenstertitel:</translation>
    </message>
    <message>
        <source>&amp;Page title:</source>
        <translation>&amp;Seitentitel:</translation>
    </message>
    <message>
        <source>Page foote&amp;r:</source>
        <translation>Sei&amp;tenfuß:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Dur&amp;chsuchen...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Den Ordner auswählen</translation>
    </message>
    <message>
        <source>Browse for the folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Folder &amp;list...</source>
        <translation>Ord&amp;nerliste...</translation>
    </message>
    <message>
        <source>Edit the list of folders to search</source>
        <translation>Die Liste der zu durchsuchenden Ordner bearbeiten</translation>
    </message>
    <message>
        <source>Folder list</source>
        <translation>Ordnerliste</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>Choose the folder and name of the list</source>
        <translation>Ordner und Namen der Liste auswählen</translation>
    </message>
    <message>
        <source>Browse for the output file</source>
        <translation>Ausgabedatei auswählen</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>%1 v%2 - %3[*]</source>
        <translation>%1 v%2 - %3[*]</translation>
    </message>
    <message>
        <source>Insert a placeholder for the date, the time, a count or a size</source>
        <translation>Einen Platzhalter für Datum, Uhrzeit, eine Anzahl oder eine Größe einfügen</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>&amp;Einfügen...</translation>
    </message>
    <message>
        <source>Placeholders for the window title</source>
        <translation>Platzhalter für den Fenstertitel</translation>
    </message>
    <message>
        <source>I&amp;nsert...</source>
        <translation>E&amp;infügen...</translation>
    </message>
    <message>
        <source>Placeholders for the page title</source>
        <translation>Platzhalter für den Seitentitel</translation>
    </message>
    <message>
        <source>Ins&amp;ert...</source>
        <translation>Einfü&amp;gen...</translation>
    </message>
    <message>
        <source>Placeholders for the page footer</source>
        <translation>Platzhalter für den Seitenfuß</translation>
    </message>
    <message>
        <source>Titles of web pages</source>
        <translation>Titel der Webseiten</translation>
    </message>
    <message>
        <source>Option&amp;s...</source>
        <translation>O&amp;ptionen...</translation>
    </message>
    <message>
        <source>Contents and layout of the list</source>
        <translation>Inhalt und Layout der Liste</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>Übe&amp;r...</translation>
    </message>
    <message>
        <source>About Tunedex</source>
        <translation>Über Tunedex</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Create List</source>
        <translation>&amp;Liste erstellen</translation>
    </message>
    <message>
        <source>Search the folders and write the list</source>
        <translation>Die Ordner durchsuchen und die Liste schreiben</translation>
    </message>
    <message>
        <source>Create list</source>
        <translation>Liste erstellen</translation>
    </message>
    <message>
        <source>1 folder chosen</source>
        <translation>1 Ordner ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders chosen</source>
        <translation>
            <numerusform>%1 Ordner ausgewählt</numerusform>
            <numerusform>%1 Ordner ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>One folder</source>
        <translation>Ein Ordner</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>Verzeichnis auswählen</translation>
    </message>
    <message>
        <source>Select the folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Wählen Sie den Ordner aus, den Tunedex nach MP3-Dateien durchsuchen soll, und klicken Sie auf OK.</translation>
    </message>
    <message>
        <source>Select the Output File</source>
        <translation>Ausgabedatei auswählen</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>The specified settings file<byte value="xd"/>
does not exist!</source>
        <translation>Die angegebene Einstellungsdatei
ist nicht vorhanden!</translation>
    </message>
    <message>
        <source>Save Settings As</source>
        <translation>Einstellungen speichern unter</translation>
    </message>
    <message>
        <source>Saved to %1.</source>
        <translation>Gespeichert in %1.</translation>
    </message>
    <message>
        <source>Do you really want<byte value="xd"/>
to quit Tunedex?</source>
        <translation>Möchten Sie Tunedex
wirklich beenden?</translation>
    </message>
    <message>
        <source>Quit?</source>
        <translation>Beenden?</translation>
    </message>
    <message>
        <source>Current date</source>
        <translation>Aktuelles Datum</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Aktuelle Uhrzeit</translation>
    </message>
    <message>
        <source>Number of files</source>
        <translation>Anzahl der Dateien</translation>
    </message>
    <message>
        <source>Number of non-tagged files</source>
        <translation>Anzahl der Dateien ohne Tags</translation>
    </message>
    <message>
        <source>Total size of all files</source>
        <translation>Gesamtgröße aller Dateien</translation>
    </message>
    <message>
        <source>Total play-time of all files</source>
        <translation>Gesamtspieldauer aller Dateien</translation>
    </message>
    <message>
        <source>Percent sign</source>
        <translation>Prozentzeichen</translation>
    </message>
    <message>
        <source>Line break</source>
        <translation>Zeilenumbruch</translation>
    </message>
    <message>
        <source>The next list has the look of this theme: %1</source>
        <translation>Die nächste Liste erscheint in diesem Design: %1</translation>
    </message>
</context>
<context>
    <name>tunedex::frmOptions</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Search &amp;subfolders</source>
        <translation>&amp;Unterordner durchsuchen</translation>
    </message>
    <message>
        <source>Also search the folders below the input folder</source>
        <translation>Auch die Ordner unterhalb des Eingabeordners durchsuchen</translation>
    </message>
    <message>
        <source>Split HTML listings into &amp;pages</source>
        <translation>HTML-&amp;Listen auf Seiten aufteilen</translation>
    </message>
    <message>
        <source>Write several linked pages instead of one long page</source>
        <translation>Mehrere verlinkte Seiten statt einer langen Seite schreiben</translation>
    </message>
    <message>
        <source>Files per page</source>
        <translation>Dateien pro Seite</translation>
    </message>
    <message>
        <source>Number of MP3 files on each page</source>
        <translation>Anzahl der MP3-Dateien auf jeder Seite</translation>
    </message>
    <message>
        <source>Searching and pages</source>
        <translation>Suche und Seiten</translation>
    </message>
    <message>
        <source>&amp;Files per page:</source>
        <translation>&amp;Dateien pro Seite:</translation>
    </message>
    <message>
        <source>Show file sizes in</source>
        <translation>Dateigrößen anzeigen in</translation>
    </message>
    <message>
        <source>&amp;Bytes</source>
        <translation>&amp;Byte</translation>
    </message>
    <message>
        <source>1,234,567 b.</source>
        <translation>1.234.567 b.</translation>
    </message>
    <message>
        <source>&amp;Kilobytes</source>
        <translation>&amp;Kilobyte</translation>
    </message>
    <message>
        <source>1,205.63 kB</source>
        <translation>1.205,63 kB</translation>
    </message>
    <message>
        <source>&amp;Megabytes</source>
        <translation>&amp;Megabyte</translation>
    </message>
    <message>
        <source>1.18 MB</source>
        <translation>1,18 MB</translation>
    </message>
    <message>
        <source>Sort by artist, album and title</source>
        <translation>Nach Interpret, Album und Titel sortieren</translation>
    </message>
    <message>
        <source>&amp;No sorting</source>
        <translation>&amp;Nicht sortieren</translation>
    </message>
    <message>
        <source>List files in the order they are found</source>
        <translation>Dateien in der Reihenfolge auflisten, in der sie gefunden werden</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Aufsteigend</translation>
    </message>
    <message>
        <source>A to Z</source>
        <translation>A bis Z</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>Abstei&amp;gend</translation>
    </message>
    <message>
        <source>Z to A</source>
        <translation>Z bis A</translation>
    </message>
    <message>
        <source>Show &amp;errors in message boxes</source>
        <translation>&amp;Fehler in Meldungsfenstern anzeigen</translation>
    </message>
    <message>
        <source>Show a message for each folder or file that cannot be read</source>
        <translation>Eine Meldung für jeden Ordner und jede Datei anzeigen, die nicht gelesen werden können</translation>
    </message>
    <message>
        <source>&amp;Write errors to a log file</source>
        <translation>Fehler &amp;in eine Protokolldatei schreiben</translation>
    </message>
    <message>
        <source>Write the errors of the latest run to Tunedex.log in the program folder</source>
        <translation>Die Fehler des letzten Laufs in die Datei Tunedex.log im Programmordner schreiben</translation>
    </message>
    <message>
        <source>Ask before &amp;quitting</source>
        <translation>&amp;Vor dem Beenden nachfragen</translation>
    </message>
    <message>
        <source>Ask for confirmation before quitting</source>
        <translation>Vor dem Beenden eine Bestätigung verlangen</translation>
    </message>
    <message>
        <source>Errors and questions</source>
        <translation>Fehler und Rückfragen</translation>
    </message>
    <message>
        <source>&amp;Link each entry to its file</source>
        <translation>&amp;Jeden Eintrag mit seiner Datei verlinken</translation>
    </message>
    <message>
        <source>Add a column with links to the MP3 files</source>
        <translation>Eine Spalte mit Links zu den MP3-Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Link prefix</source>
        <translation>Link-Präfix</translation>
    </message>
    <message>
        <source>Text before every link, for example file:/// or a web address</source>
        <translation>Text vor jedem Link, zum Beispiel file:/// oder eine Webadresse</translation>
    </message>
    <message>
        <source>Links in HTML listings</source>
        <translation>Links in HTML-Listen</translation>
    </message>
    <message>
        <source>N&amp;ormal</source>
        <translation>N&amp;ormal</translation>
    </message>
    <message>
        <source>The full path of the file</source>
        <translation>Der vollständige Pfad der Datei</translation>
    </message>
    <message>
        <source>UN&amp;IX style</source>
        <translation>UNI&amp;X-Stil</translation>
    </message>
    <message>
        <source>A slash and the full path without colons</source>
        <translation>Ein Schrägstrich und der vollständige Pfad ohne Doppelpunkte</translation>
    </message>
    <message>
        <source>&amp;Relative</source>
        <translation>&amp;Relativ</translation>
    </message>
    <message>
        <source>The path relative to the input folder</source>
        <translation>Der Pfad relativ zum Eingabeordner</translation>
    </message>
    <message>
        <source>Link prefi&amp;x:</source>
        <translation>Link-&amp;Präfix:</translation>
    </message>
    <message>
        <source>Reads tags in every encoding, skips what cannot be read, and sorts by album and track.</source>
        <translation>Liest Tags in jeder Kodierung, überspringt Unlesbares und sortiert nach Album und Titelnummer.</translation>
    </message>
    <message>
        <source>Modern &amp;tags and lists</source>
        <translation>Moderne &amp;Tags und Listen</translation>
    </message>
    <message>
        <source>Code page of old tags</source>
        <translation>Codepage alter Tags</translation>
    </message>
    <message>
        <source>The code page of ID3v1 tags, and of ID3v2 texts that are not Unicode</source>
        <translation>Die Codepage von ID3v1-Tags und von ID3v2-Texten, die nicht in Unicode sind</translation>
    </message>
    <message>
        <source>Tags and lists</source>
        <translation>Tags und Listen</translation>
    </message>
    <message>
        <source>Code pa&amp;ge of old tags:</source>
        <translation>&amp;Codepage alter Tags:</translation>
    </message>
    <message>
        <source>Edit la&amp;yout...</source>
        <translation>La&amp;yout bearbeiten...</translation>
    </message>
    <message>
        <source>Edit columns, fonts, colours, table, document type and themes of HTML listings</source>
        <translation>Spalten, Schriften, Farben, Tabelle, Dokumenttyp und Designs der HTML-Listen bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>Ver&amp;wenden</translation>
    </message>
    <message>
        <source>Apply until you quit</source>
        <translation>Bis zum Beenden des Programms anwenden</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Apply, and save all settings as the default</source>
        <translation>Anwenden und alle Einstellungen als Standard speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbr&amp;echen</translation>
    </message>
    <message>
        <source>Close without changing anything</source>
        <translation>Schließen, ohne etwas zu ändern</translation>
    </message>
    <message>
        <source>Use: until you quit. Save: also for the next start and unattended runs.</source>
        <translation>Verwenden: bis zum Beenden. Speichern: auch für den nächsten Start und unbeaufsichtigte Läufe.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Sort by artist, album, disc and track</source>
        <translation>Nach Interpret, Album, CD und Titelnummer sortieren</translation>
    </message>
    <message>
        <source>Files per page must be between -32768 and 32767.</source>
        <translation>Die Anzahl der Dateien pro Seite muss zwischen -32768 und 32767 liegen.</translation>
    </message>
    <message>
        <source>Files per page must be a numeric value.</source>
        <translation>Die Anzahl der Dateien pro Seite muss ein numerischer Wert sein.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Help &amp;Topics</source>
        <translation>Hilfe&amp;themen</translation>
    </message>
</context>
<context>
    <name>tunedex::frmProgress</name>
    <message>
        <source>The run is over.</source>
        <translation>Der Lauf ist beendet.</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Stop the run. Tracks already written stay in the list.</source>
        <translation>Den Lauf beenden. Bereits geschriebene Titel bleiben in der Liste.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Return to the main window</source>
        <translation>Zum Hauptfenster zurückkehren</translation>
    </message>
    <message>
        <source>Creating List</source>
        <translation>Liste wird erstellt</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Fortschritt des Laufs</translation>
    </message>
</context>
<context>
    <name>tunedex::frmTip</name>
    <message>
        <source>&amp;Show tips at start-up</source>
        <translation>&amp;Tipps beim Start anzeigen</translation>
    </message>
    <message>
        <source>Show a tip each time the program starts</source>
        <translation>Bei jedem Start des Programms einen Tipp anzeigen</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Tipp des Tages</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>&amp;Nächster Tipp</translation>
    </message>
    <message>
        <source>Show the next tip</source>
        <translation>Den nächsten Tipp anzeigen</translation>
    </message>
    <message>
        <source>Next tip</source>
        <translation>Nächster Tipp</translation>
    </message>
    <message>
        <source>&amp;Random Tip</source>
        <translation>&amp;Zufälliger Tipp</translation>
    </message>
    <message>
        <source>Show a random tip</source>
        <translation>Einen zufälligen Tipp anzeigen</translation>
    </message>
    <message>
        <source>Random tip</source>
        <translation>Zufälliger Tipp</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Save the choice and close the window</source>
        <translation>Die Auswahl speichern und das Fenster schließen</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Tipp</translation>
    </message>
</context>
</TS>
