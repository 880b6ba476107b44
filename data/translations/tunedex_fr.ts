<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>tunedex::CodePageBox</name>
    <message>
        <source>Western</source>
        <translation>Occidental</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Europe centrale</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cyrillique</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cyrillique (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Grec</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turc</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hébreu</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabe</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Balte</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamien</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thaï</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chinois simplifié</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chinois traditionnel</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coréen</translation>
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
        <translation>Texte de la page</translation>
    </message>
    <message>
        <source>The colour of the page header/footers</source>
        <translation>Couleur des en-têtes et des pieds de page</translation>
    </message>
    <message>
        <source>Page background</source>
        <translation>Arrière-plan de la page</translation>
    </message>
    <message>
        <source>The background colour of the page</source>
        <translation>Couleur d’arrière-plan de la page</translation>
    </message>
    <message>
        <source>Table header text</source>
        <translation>Texte des en-têtes de tableau</translation>
    </message>
    <message>
        <source>The colour of the table headers</source>
        <translation>Couleur du texte des en-têtes de tableau</translation>
    </message>
    <message>
        <source>Table header background</source>
        <translation>Arrière-plan des en-têtes de tableau</translation>
    </message>
    <message>
        <source>The background colour of the table headers</source>
        <translation>Couleur d’arrière-plan des en-têtes de tableau</translation>
    </message>
    <message>
        <source>Cell text</source>
        <translation>Texte des cellules</translation>
    </message>
    <message>
        <source>The colour of the table cells</source>
        <translation>Couleur du texte des cellules du tableau</translation>
    </message>
    <message>
        <source>Cell background</source>
        <translation>Arrière-plan des cellules</translation>
    </message>
    <message>
        <source>The background colour of the table cells</source>
        <translation>Couleur d’arrière-plan des cellules du tableau</translation>
    </message>
    <message>
        <source>Alternate cell text</source>
        <translation>Texte des cellules alternées</translation>
    </message>
    <message>
        <source>The colour of the alternate table cells</source>
        <translation>Couleur du texte des cellules alternées du tableau</translation>
    </message>
    <message>
        <source>Alternate cell background</source>
        <translation>Arrière-plan des cellules alternées</translation>
    </message>
    <message>
        <source>The background colour of the alternate cells</source>
        <translation>Couleur d’arrière-plan des cellules alternées</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>The colour of generated links</source>
        <translation>Couleur des liens générés</translation>
    </message>
    <message>
        <source>Table border</source>
        <translation>Bordure du tableau</translation>
    </message>
    <message>
        <source>The colour the main table&apos;s border</source>
        <translation>Couleur de la bordure du tableau principal</translation>
    </message>
    <message>
        <source>Table cells &amp;use alternating text/background colours</source>
        <translation>Alterner les couleurs de te&amp;xte et d’arrière-plan des cellules</translation>
    </message>
    <message>
        <source>Alternate between the two colours below for table cells. Aids readability.</source>
        <translation>Alterner entre les deux couleurs ci-dessous pour les cellules du tableau. Facilite la lecture.</translation>
    </message>
    <message>
        <source>Use CSS fo&amp;r text colours.</source>
        <translation>&amp;Utiliser CSS pour les couleurs du texte.</translation>
    </message>
    <message>
        <source>Write the colours into the page&apos;s style sheet</source>
        <translation>Écrire les couleurs dans la feuille de style de la page</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for text colours.</source>
        <translation>Ut&amp;iliser des balises FONT pour les couleurs du texte.</translation>
    </message>
    <message>
        <source>Write the colours into the markup, for browsers without style sheets</source>
        <translation>Écrire les couleurs dans le balisage, pour les navigateurs sans feuilles de style</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translation>Pa&amp;ge&#x202f;:</translation>
    </message>
    <message>
        <source>Table header&amp;s:</source>
        <translation>&amp;En-têtes de tableau&#x202f;:</translation>
    </message>
    <message>
        <source>Table c&amp;ells:</source>
        <translation>&amp;Cellules du tableau&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Alternate cells:</source>
        <translation>Cellule&amp;s alternées&#x202f;:</translation>
    </message>
    <message>
        <source>L&amp;inks:</source>
        <translation>&amp;Liens&#x202f;:</translation>
    </message>
    <message>
        <source>Table &amp;border:</source>
        <translation>&amp;Bordure du tableau&#x202f;:</translation>
    </message>
    <message>
        <source>RRGGBB</source>
        <translation>RRVVBB</translation>
    </message>
    <message>
        <source>%1: select colour</source>
        <translation>%1&#x202f;: choisir la couleur</translation>
    </message>
    <message>
        <source>Select a colour from the palette</source>
        <translation>Choisir une couleur dans la palette</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers show %1 for it.</source>
        <translation>Ce n’est pas une couleur à six chiffres hexadécimaux. Les navigateurs affichent %1 à la place.</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers ignore it.</source>
        <translation>Ce n’est pas une couleur à six chiffres hexadécimaux. Les navigateurs l’ignorent.</translation>
    </message>
    <message>
        <source>A marked colour is not six hexadecimal digits. The right half of the button beside it shows what browsers show for it.</source>
        <translation>Une couleur signalée n’a pas six chiffres hexadécimaux. La moitié droite du bouton voisin montre ce que les navigateurs affichent.</translation>
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
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Taille du fichier</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>MPEG Type</source>
        <translation>Type MPEG</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Full Path</source>
        <translation>Chemin complet</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>Artiste de l’album</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositeur</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
</context>
<context>
    <name>tunedex::ColumnsPage</name>
    <message>
        <source>Hidden columns</source>
        <translation>Colonnes masquées</translation>
    </message>
    <message>
        <source>Columns that are not listed. Double-click or drag one to show it.</source>
        <translation>Colonnes qui ne figurent pas dans la liste. Double-cliquez sur une colonne ou faites-la glisser pour l’afficher.</translation>
    </message>
    <message>
        <source>Shown columns, in display order</source>
        <translation>Colonnes affichées, dans l’ordre d’affichage</translation>
    </message>
    <message>
        <source>Double-click a column to hide it. Drag it or press Alt+Up or Alt+Down to move it.</source>
        <translation>Double-cliquez sur une colonne pour la masquer. Faites-la glisser ou appuyez sur Alt+Haut ou Alt+Bas pour la déplacer.</translation>
    </message>
    <message>
        <source>Hidden colu&amp;mns:</source>
        <translation>&amp;Colonnes masquées&#x202f;:</translation>
    </message>
    <message>
        <source>Shown, in this o&amp;rder:</source>
        <translation>Affich&amp;ées, dans cet ordre&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Show ›</source>
        <translation>Affic&amp;her ›</translation>
    </message>
    <message>
        <source>Show the selected hidden column as the last column</source>
        <translation>Afficher la colonne masquée sélectionnée en dernière position</translation>
    </message>
    <message>
        <source>‹ Hid&amp;e</source>
        <translation>‹ Mas&amp;quer</translation>
    </message>
    <message>
        <source>Hide the selected shown column</source>
        <translation>Masquer la colonne affichée sélectionnée</translation>
    </message>
    <message>
        <source>Show &amp;all »</source>
        <translation>To&amp;ut afficher&#x202f;»</translation>
    </message>
    <message>
        <source>Show every column</source>
        <translation>Afficher toutes les colonnes</translation>
    </message>
    <message>
        <source>« H&amp;ide all</source>
        <translation>«&#x202f;Tout ma&amp;squer</translation>
    </message>
    <message>
        <source>Hide every column</source>
        <translation>Masquer toutes les colonnes</translation>
    </message>
    <message>
        <source>To&amp;p</source>
        <translation>Au dé&amp;but</translation>
    </message>
    <message>
        <source>Move the selected shown column to the top</source>
        <translation>Déplacer la colonne affichée sélectionnée au début</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move the selected shown column one place up (Alt+Up)</source>
        <translation>Monter d’un rang la colonne affichée sélectionnée (Alt+Haut)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>D&amp;escendre</translation>
    </message>
    <message>
        <source>Move the selected shown column one place down (Alt+Down)</source>
        <translation>Descendre d’un rang la colonne affichée sélectionnée (Alt+Bas)</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>&amp;À la fin</translation>
    </message>
    <message>
        <source>Move the selected shown column to the bottom</source>
        <translation>Déplacer la colonne affichée sélectionnée à la fin</translation>
    </message>
    <message>
        <source>Mer&amp;ge Artist and Title into one column</source>
        <translation>Fusionner Artiste et Titre en une seu&amp;le colonne</translation>
    </message>
    <message>
        <source>Shows “Artist: Title”. Both columns must be shown.</source>
        <translation>Affiche «&#x202f;Artiste&#x202f;: Titre&#x202f;». Les deux colonnes doivent être affichées.</translation>
    </message>
    <message>
        <source>Ta&amp;ke Album into that column, too</source>
        <translation>&amp;Inclure aussi Album dans cette colonne</translation>
    </message>
    <message>
        <source>Shows “Artist (Album): Title”. Requires Artist and Title to be merged.</source>
        <translation>Affiche «&#x202f;Artiste (Album)&#x202f;: Titre&#x202f;». Artiste et Titre doivent être fusionnés.</translation>
    </message>
    <message>
        <source>Displa&amp;y a leading “The” after the artist&apos;s name</source>
        <translation>Placer «&#x202f;The&#x202f;» initial apr&amp;ès le nom de l’artiste</translation>
    </message>
    <message>
        <source>Lists “The Band” as “Band, The”, sorted under B</source>
        <translation>Affiche «&#x202f;The Band&#x202f;» sous la forme «&#x202f;Band, The&#x202f;», classé à la lettre B</translation>
    </message>
</context>
<context>
    <name>tunedex::CoreText</name>
    <message>
        <source>Error!</source>
        <translation>Erreur&#x202f;!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Tunedex (Automatic Mode)</source>
        <translation>Tunedex (mode automatique)</translation>
    </message>
    <message>
        <source>Tunedex Error! (Automatic Mode)</source>
        <translation>Erreur de Tunedex&#x202f;! (mode automatique)</translation>
    </message>
    <message>
        <source>The specified directory does not exist!</source>
        <translation>Le répertoire indiqué n’existe pas&#x202f;!</translation>
    </message>
    <message>
        <source>No input directory specified!</source>
        <translation>Aucun répertoire d’entrée n’est indiqué&#x202f;!</translation>
    </message>
    <message>
        <source>No input directories specified!</source>
        <translation>Aucun répertoire d’entrée n’est indiqué dans la liste&#x202f;!</translation>
    </message>
    <message>
        <source>No output file specified!</source>
        <translation>Aucun fichier de sortie n’est indiqué&#x202f;!</translation>
    </message>
    <message>
        <source>The output directory does not exist!

Do you want to create it?</source>
        <translation>Le répertoire de sortie n’existe pas&#x202f;!

Voulez-vous le créer&#x202f;?</translation>
    </message>
    <message>
        <source>No MP3 files!</source>
        <translation>Aucun fichier MP3&#x202f;!</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directory specified.</source>
        <translation>Aucun fichier MP3 n’a été trouvé
dans le répertoire indiqué.</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directories specified.</source>
        <translation>Aucun fichier MP3 n’a été trouvé
dans les répertoires indiqués.</translation>
    </message>
    <message>
        <source>An error occurred verifying your input directory.

This could be because you do not have permission
to access the directory, or you may be attempting
to use a non-existent network share.</source>
        <translation>Une erreur s’est produite lors de la vérification du répertoire d’entrée.

Vous n’avez peut-être pas l’autorisation d’accéder au répertoire,
ou vous tentez d’utiliser un partage réseau
qui n’existe pas.</translation>
    </message>
    <message>
        <source>An unexpected error occurred. The error was: 

Error number %1 - %2</source>
        <translation>Une erreur inattendue s’est produite&#x202f;: 

Erreur numéro %1 - %2</translation>
    </message>
    <message>
        <source>An error occurred scanning the directory: 

%1

%2: %3</source>
        <translation>Une erreur s’est produite lors de l’analyse du répertoire&#x202f;: 

%1

%2&#x202f;: %3</translation>
    </message>
    <message>
        <source>An error occurred decoding the headers of: 

%1</source>
        <translation>Une erreur s’est produite lors du décodage des en-têtes de&#x202f;: 

%1</translation>
    </message>
    <message>
        <source>A settings file cannot hold a line break.
These settings were not saved:

%1</source>
        <translation>Un fichier de paramètres ne peut pas contenir de saut de ligne.
Ces paramètres n’ont pas été enregistrés&#x202f;:

%1</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Appel de procédure ou argument non valide</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Dépassement de capacité</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Indice en dehors de la plage</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division par zéro</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Incompatibilité de type</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Nom ou numéro de fichier incorrect</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Erreur d’entrée/sortie du périphérique</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lecture au-delà de la fin du fichier</translation>
    </message>
    <message>
        <source>Too many files</source>
        <translation>Trop de fichiers</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Erreur d’accès au chemin ou au fichier</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Chemin introuvable</translation>
    </message>
    <message>
        <source>Searching for MP3 files...</source>
        <translation>Recherche des fichiers MP3...</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information...</source>
        <translation>Lecture des informations MPEG/ID3...</translation>
    </message>
    <message>
        <source>Sorting information...</source>
        <translation>Tri des informations...</translation>
    </message>
    <message>
        <source>Writing information...</source>
        <translation>Écriture des informations...</translation>
    </message>
    <message>
        <source>Operation complete!</source>
        <translation>Opération terminée&#x202f;!</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information (%1/%2)...</source>
        <translation>Lecture des informations MPEG/ID3 (%1/%2)...</translation>
    </message>
    <message>
        <source>Writing entry for file %1/%2...</source>
        <translation>Écriture de l’entrée du fichier %1/%2...</translation>
    </message>
    <message>
        <source>Writing index entry for file %1/%2...</source>
        <translation>Écriture de l’entrée d’index du fichier %1/%2...</translation>
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
        <translation>&amp;Ne plus afficher de messages pendant cette exécution</translation>
    </message>
    <message>
        <source>Errors still go to the log, if the options ask for one</source>
        <translation>Les erreurs sont toujours consignées dans le journal si les options le prévoient</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>tunedex::DocumentPage</name>
    <message>
        <source>&amp;Group by album</source>
        <translation>&amp;Grouper par album</translation>
    </message>
    <message>
        <source>Show a heading for each album (HTML5 only)</source>
        <translation>Afficher un titre pour chaque album (HTML5 uniquement)</translation>
    </message>
    <message>
        <source>Document type</source>
        <translation>Type de document</translation>
    </message>
    <message>
        <source>The document type of HTML listings</source>
        <translation>Type de document des listes HTML</translation>
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
        <translation>Type de docu&amp;ment&#x202f;:</translation>
    </message>
</context>
<context>
    <name>tunedex::FontsPage</name>
    <message>
        <source>Page heading and text</source>
        <translation>Titre et texte de la page</translation>
    </message>
    <message>
        <source>Table headers</source>
        <translation>En-têtes de tableau</translation>
    </message>
    <message>
        <source>Table cells</source>
        <translation>Cellules du tableau</translation>
    </message>
    <message>
        <source>&amp;Use CSS for fonts.</source>
        <translation>&amp;Utiliser CSS pour les polices.</translation>
    </message>
    <message>
        <source>Write the fonts into the page&apos;s style sheet</source>
        <translation>Écrire les polices dans la feuille de style de la page</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for fonts.</source>
        <translation>Utiliser des &amp;balises FONT pour les polices.</translation>
    </message>
    <message>
        <source>Write the fonts into the markup, for browsers without style sheets</source>
        <translation>Écrire les polices dans le balisage, pour les navigateurs sans feuilles de style</translation>
    </message>
    <message>
        <source>%1: typefaces</source>
        <translation>%1&#x202f;: polices</translation>
    </message>
    <message>
        <source>Typefaces in order of preference, separated by commas</source>
        <translation>Polices par ordre de préférence, séparées par des virgules</translation>
    </message>
    <message>
        <source>%1: size</source>
        <translation>%1&#x202f;: taille</translation>
    </message>
    <message>
        <source>1 (smallest) to 7 (largest). 3 is the size of normal text.</source>
        <translation>De 1 (la plus petite) à 7 (la plus grande). 3 est la taille du texte normal.</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Gras</translation>
    </message>
    <message>
        <source>%1 in bold type</source>
        <translation>%1 en gras</translation>
    </message>
    <message>
        <source>%1: bold</source>
        <translation>%1&#x202f;: gras</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>%1 in italic type</source>
        <translation>%1 en italique</translation>
    </message>
    <message>
        <source>%1: italic</source>
        <translation>%1&#x202f;: italique</translation>
    </message>
    <message>
        <source>&amp;Select...</source>
        <translation>&amp;Choisir...</translation>
    </message>
    <message>
        <source>Select a font installed on this computer</source>
        <translation>Choisir une police installée sur cet ordinateur</translation>
    </message>
    <message>
        <source>%1: select font</source>
        <translation>%1&#x202f;: choisir la police</translation>
    </message>
    <message>
        <source>T&amp;ypefaces:</source>
        <translation>Police&amp;s&#x202f;:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>Tai&amp;lle&#x202f;:</translation>
    </message>
</context>
<context>
    <name>tunedex::OpenHelp</name>
    <message>
        <source>No program could be found to open<byte value="xd"/>
%1</source>
        <translation>Aucun programme n’a été trouvé pour ouvrir
%1</translation>
    </message>
    <message>
        <source>The help file could not be found!</source>
        <translation>Le fichier d’aide est introuvable&#x202f;!</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
does not exist any more!</source>
        <translation>%1
n’existe plus&#x202f;!</translation>
    </message>
</context>
<context>
    <name>tunedex::OutputHint</name>
    <message>
        <source>The extension sets the format: .htm web page, .txt or .csv table, .m3u playlist.</source>
        <translation>L’extension détermine le format&#x202f;: .htm page web, .txt ou .csv tableau, .m3u liste de lecture.</translation>
    </message>
    <message>
        <source>The extension sets the format: .htm web page, .txt plain text, .m3u playlist.</source>
        <translation>L’extension détermine le format&#x202f;: .htm page web, .txt texte brut, .m3u liste de lecture.</translation>
    </message>
    <message>
        <source>Only modern tags and lists know %1.</source>
        <translation>Seuls les tags et listes modernes connaissent %1.</translation>
    </message>
    <message>
        <source>%1 is not the extension of a format.</source>
        <translation>%1 n’est pas l’extension d’un format.</translation>
    </message>
    <message>
        <source>The existing list will be replaced.</source>
        <translation>La liste existante sera remplacée.</translation>
    </message>
    <message>
        <source>Writes %1.</source>
        <translation>Écriture de %1.</translation>
    </message>
    <message numerus="yes">
        <source>Writes %1 … (%2 files a page).</source>
        <translation>
            <numerusform>Écriture de %1 … (%2 fichier par page).</numerusform>
            <numerusform>Écriture de %1 … (%2 fichiers par page).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::PreviewPane</name>
    <message>
        <source>&lt;p&gt;There is no preview: a listing cannot be written with this layout (%1).&lt;/p&gt;</source>
        <translation>&lt;p&gt;Aucun aperçu&#x202f;: il est impossible d’écrire une liste avec cette mise en page (%1).&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;If Album is merged, it must not come before both Artist and Title.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Si Album est fusionné, il ne doit pas précéder à la fois Artiste et Titre.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Preview of colours, fonts and columns. Only a browser shows search, sorting, album headings and the colours for the other (dark or light) setting.</source>
        <translation>Aperçu des couleurs, des polices et des colonnes. Seul un navigateur affiche la recherche, le tri, les titres d’album et les couleurs de l’autre mode (sombre ou clair).</translation>
    </message>
    <message>
        <source>Preview with sample tracks</source>
        <translation>Aperçu avec des pistes d’exemple</translation>
    </message>
    <message>
        <source>Open sample in browser</source>
        <translation>Ouvrir l’exemple dans le navigateur</translation>
    </message>
    <message>
        <source>Open a sample listing with this layout in your browser (Ctrl+B)</source>
        <translation>Ouvrir dans le navigateur un exemple de liste avec cette mise en page (Ctrl+B)</translation>
    </message>
    <message>
        <source>Preview of the listing</source>
        <translation>Aperçu de la liste</translation>
    </message>
    <message>
        <source>Sample tracks, listed with the layout shown here</source>
        <translation>Pistes d’exemple, présentées avec la mise en page affichée ici</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background, because browsers ignore the style sheet of XHTML listings. To mend it, tick “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>Une partie du texte est difficile à lire sur son arrière-plan, car les navigateurs ignorent la feuille de style des listes XHTML. Pour y remédier, cochez «&#x202f;Utiliser des balises FONT pour les couleurs du texte.&#x202f;» à la page Couleurs.</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background. To mend it, tick “Use CSS for text colours.” or “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>Une partie du texte est difficile à lire sur son arrière-plan. Pour y remédier, cochez «&#x202f;Utiliser CSS pour les couleurs du texte.&#x202f;» ou «&#x202f;Utiliser des balises FONT pour les couleurs du texte.&#x202f;» à la page Couleurs.</translation>
    </message>
    <message>
        <source>Preview: browsers ignore the style sheet of XHTML listings. Tick “Use FONT tags” on the pages Fonts and Colours instead.</source>
        <translation>Aperçu&#x202f;: les navigateurs ignorent la feuille de style des listes XHTML. Cochez plutôt les balises FONT aux pages Polices et Couleurs.</translation>
    </message>
    <message>
        <source>Preview of the theme “%1”, which is not loaded.</source>
        <translation>Aperçu du thème «&#x202f;%1&#x202f;», qui n’est pas chargé.</translation>
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
        <translation>1 fichier trouvé</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 fichier trouvé</numerusform>
            <numerusform>%1 fichiers trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files a second, %2 left</source>
        <translation>
            <numerusform>%1 fichier par seconde, encore %2</numerusform>
            <numerusform>%1 fichiers par seconde, encore %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::RecentButton</name>
    <message>
        <source>%1 (Alt+Down in the field)</source>
        <translation>%1 (Alt+Bas dans le champ)</translation>
    </message>
    <message>
        <source>&amp;Clear this list</source>
        <translation>&amp;Effacer cette liste</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultPanel</name>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open the list (Ctrl+L)</source>
        <translation>Ouvrir la liste (Ctrl+L)</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Afficher le dossier</translation>
    </message>
    <message>
        <source>Open the list&apos;s folder (Ctrl+Shift+L)</source>
        <translation>Ouvrir le dossier de la liste (Ctrl+Maj+L)</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Switch on “Modern tags and lists” (Ctrl+M)</source>
        <translation>Activer «&#x202f;Tags et listes modernes&#x202f;» (Ctrl+M)</translation>
    </message>
    <message>
        <source>Switch on Modern tags and lists</source>
        <translation>Activer Tags et listes modernes</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultText</name>
    <message>
        <source>1 track</source>
        <translation>1 piste</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <translation>
            <numerusform>%1 piste</numerusform>
            <numerusform>%1 pistes</numerusform>
        </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 page</translation>
    </message>
    <message numerus="yes">
        <source>%1 pages</source>
        <translation>
            <numerusform>%1 page</numerusform>
            <numerusform>%1 pages</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 dossier</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 dossier</numerusform>
            <numerusform>%1 dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fichier</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 fichier</numerusform>
            <numerusform>%1 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>The run was aborted. %1 has the tracks that were written.</source>
        <translation>L’exécution a été interrompue. %1 contient les pistes écrites.</translation>
    </message>
    <message>
        <source>The run was aborted. No list was written.</source>
        <translation>L’exécution a été interrompue. Aucune liste n’a été écrite.</translation>
    </message>
    <message>
        <source>No MP3 files were found. No list was written.</source>
        <translation>Aucun fichier MP3 n’a été trouvé. Aucune liste n’a été écrite.</translation>
    </message>
    <message>
        <source>The run failed: %1. No complete list was written.</source>
        <translation>L’exécution a échoué&#x202f;: %1. Aucune liste complète n’a été écrite.</translation>
    </message>
    <message>
        <source>Wrote %1: %2 on %3.</source>
        <translation>Liste %1 écrite&#x202f;: %2 sur %3.</translation>
    </message>
    <message>
        <source>Wrote %1: %2.</source>
        <translation>Liste %1 écrite&#x202f;: %2.</translation>
    </message>
    <message>
        <source>%1 and %2 could not be read.</source>
        <translation>Lecture impossible&#x202f;: %1 et %2.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>Lecture impossible&#x202f;: %1.</translation>
    </message>
    <message>
        <source>&apos;Modern tags and lists&apos; is on now: create the list again.</source>
        <translation>«&#x202f;Tags et listes modernes&#x202f;» est maintenant activé&#x202f;: créez à nouveau la liste.</translation>
    </message>
    <message>
        <source>1 file has tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>1 fichier contient des tags que «&#x202f;Tags et listes modernes&#x202f;» lirait correctement.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files have tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>
            <numerusform>%1 fichier contient des tags que «&#x202f;Tags et listes modernes&#x202f;» lirait correctement.</numerusform>
            <numerusform>%1 fichiers contiennent des tags que «&#x202f;Tags et listes modernes&#x202f;» lirait correctement.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::Statistics</name>
    <message>
        <source>Tunedex was first started on %1 and has been started %2 since.</source>
        <translation>Tunedex a été lancé pour la première fois le %1 et a été lancé %2 depuis.</translation>
    </message>
    <message>
        <source>It has created %1, and handled %2.</source>
        <translation>Il a créé %1 et traité %2.</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1 fois</translation>
    </message>
    <message numerus="yes">
        <source>%1 times</source>
        <translation>
            <numerusform>%1 fois</numerusform>
            <numerusform>%1 fois</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 list</source>
        <translation>%1 liste</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists</source>
        <translation>
            <numerusform>%1 liste</numerusform>
            <numerusform>%1 listes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MP3 file</source>
        <translation>%1 fichier MP3</translation>
    </message>
    <message numerus="yes">
        <source>%1 MP3 files</source>
        <translation>
            <numerusform>%1 fichier MP3</numerusform>
            <numerusform>%1 fichiers MP3</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::TablePage</name>
    <message>
        <source>Table width</source>
        <translation>Largeur du tableau</translation>
    </message>
    <message>
        <source>Width of the table</source>
        <translation>Largeur du tableau</translation>
    </message>
    <message>
        <source>Border size</source>
        <translation>Épaisseur de la bordure</translation>
    </message>
    <message>
        <source>Width of the lines between the cells, in pixels</source>
        <translation>Largeur des lignes entre les cellules, en pixels</translation>
    </message>
    <message>
        <source>Cell padding</source>
        <translation>Marge des cellules</translation>
    </message>
    <message>
        <source>Space between a cell&apos;s border and its text, in pixels</source>
        <translation>Espace entre la bordure d’une cellule et son texte, en pixels</translation>
    </message>
    <message>
        <source>Pi&amp;xels</source>
        <translation>Pi&amp;xels</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Largeur en pixels</translation>
    </message>
    <message>
        <source>Pe&amp;r cent</source>
        <translation>Pour &amp;cent</translation>
    </message>
    <message>
        <source>Width as a percentage of the page&apos;s width</source>
        <translation>Largeur en pourcentage de la largeur de la page</translation>
    </message>
    <message>
        <source>Table &amp;width:</source>
        <translation>&amp;Largeur du tableau&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Border size:</source>
        <translation>Épaisseur de la &amp;bordure&#x202f;:</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Cell &amp;padding:</source>
        <translation>&amp;Marge des cellules&#x202f;:</translation>
    </message>
    <message>
        <source>The table width must be a numeric value.</source>
        <translation>La largeur du tableau doit être une valeur numérique.</translation>
    </message>
    <message>
        <source>The table width must be between -32768 and 32767.</source>
        <translation>La largeur du tableau doit être comprise entre -32768 et 32767.</translation>
    </message>
    <message>
        <source>The table border size must be a numeric value.</source>
        <translation>L’épaisseur de la bordure du tableau doit être une valeur numérique.</translation>
    </message>
    <message>
        <source>The table border size must be between -32768 and 32767.</source>
        <translation>L’épaisseur de la bordure du tableau doit être comprise entre -32768 et 32767.</translation>
    </message>
    <message>
        <source>The table cell padding must be a numeric value.</source>
        <translation>La marge des cellules du tableau doit être une valeur numérique.</translation>
    </message>
    <message>
        <source>The table cell padding must be between -32768 and 32767.</source>
        <translation>La marge des cellules du tableau doit être comprise entre -32768 et 32767.</translation>
    </message>
</context>
<context>
    <name>tunedex::ThemePanel</name>
    <message>
        <source>Save Theme</source>
        <translation>Enregistrer le thème</translation>
    </message>
    <message>
        <source>This cannot be the name of a theme.<byte value="xd"/>
<byte value="xd"/>
A name must be short enough for a file name, without a slash,<byte value="xd"/>
and neither &quot;.&quot; nor &quot;..&quot;.</source>
        <translation>Ce nom ne peut pas être celui d’un thème.

Un nom doit être assez court pour un nom de fichier, ne pas contenir
de barre oblique et n’être ni «&#x202f;.&#x202f;» ni «&#x202f;..&#x202f;».</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Thèmes</translation>
    </message>
    <message>
        <source>Lo&amp;ad theme</source>
        <translation>&amp;Charger le thème</translation>
    </message>
    <message>
        <source>Apply the selected theme&apos;s fonts, colours and table settings immediately</source>
        <translation>Appliquer immédiatement les polices, les couleurs et les paramètres de tableau du thème sélectionné</translation>
    </message>
    <message>
        <source>&amp;Save theme...</source>
        <translation>&amp;Enregistrer le thème...</translation>
    </message>
    <message>
        <source>Save the fonts, colours and table settings shown here as a theme</source>
        <translation>Enregistrer comme thème les polices, les couleurs et les paramètres de tableau affichés ici</translation>
    </message>
    <message>
        <source>Delete the&amp;me...</source>
        <translation>&amp;Supprimer le thème...</translation>
    </message>
    <message>
        <source>Delete the selected theme&apos;s file</source>
        <translation>Supprimer le fichier du thème sélectionné</translation>
    </message>
    <message>
        <source>Themes are preset colour, font, and table settings that you can import into your own settings.

You can also export your own settings as a theme.</source>
        <translation>Les thèmes sont des réglages prédéfinis de couleurs, de polices et de tableau que vous pouvez importer dans vos propres paramètres.

Vous pouvez aussi exporter vos propres paramètres sous forme de thème.</translation>
    </message>
    <message>
        <source>Availa&amp;ble themes:</source>
        <translation>T&amp;hèmes disponibles&#x202f;:</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Theme loaded successfully.</source>
        <translation>Le thème a été chargé.</translation>
    </message>
    <message>
        <source>Please enter a name for your theme:</source>
        <translation>Veuillez saisir un nom pour votre thème&#x202f;:</translation>
    </message>
    <message>
        <source>Theme saved successfully.</source>
        <translation>Le thème a été enregistré.</translation>
    </message>
    <message>
        <source>This theme already exists!<byte value="xd"/>
<byte value="xd"/>
Overwrite?</source>
        <translation>Ce thème existe déjà&#x202f;!

Le remplacer&#x202f;?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
the %1 theme?<byte value="xd"/>
<byte value="xd"/>
You cannot recover it afterwards!</source>
        <translation>Voulez-vous vraiment supprimer
le thème %1&#x202f;?

Vous ne pourrez pas le récupérer ensuite&#x202f;!</translation>
    </message>
    <message>
        <source>Delete Theme</source>
        <translation>Supprimer le thème</translation>
    </message>
    <message>
        <source>Select a theme to preview it. Press Enter or double-click to load it.</source>
        <translation>Sélectionnez un thème pour en voir un aperçu. Appuyez sur Entrée ou double-cliquez pour le charger.</translation>
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
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Version %1.%2 - Build %3</source>
        <translation>Version %1.%2 - Build %3</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>E-mail the author</source>
        <translation>Écrire à l’auteur</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Home page</source>
        <translation>&amp;Site web</translation>
    </message>
    <message>
        <source>&amp;E-mail the author</source>
        <translation>&amp;Écrire à l’auteur</translation>
    </message>
</context>
<context>
    <name>tunedex::frmDirSelection</name>
    <message>
        <source>Folders to Search</source>
        <translation>Dossiers à analyser</translation>
    </message>
    <message>
        <source>&amp;Folders, in search order:</source>
        <translation>Dossiers, dans &amp;l’ordre de recherche&#x202f;:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>The folders to search, in order. Folders can be dropped here.</source>
        <translation>Les dossiers à analyser, dans l’ordre. Vous pouvez déposer des dossiers ici.</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>Ajou&amp;ter...</translation>
    </message>
    <message>
        <source>Append a folder to the list</source>
        <translation>Ajouter un dossier à la fin de la liste</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Ajouter...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Remove the selected folder from the list</source>
        <translation>Retirer de la liste le dossier sélectionné</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>Remove all folders from the list</source>
        <translation>Retirer tous les dossiers de la liste</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>Au dé&amp;but</translation>
    </message>
    <message>
        <source>Move the selected folder to the top</source>
        <translation>Déplacer le dossier sélectionné au début</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move the selected folder one row up</source>
        <translation>Monter d’une ligne le dossier sélectionné</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Move the selected folder one row down</source>
        <translation>Descendre d’une ligne le dossier sélectionné</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>À la &amp;fin</translation>
    </message>
    <message>
        <source>Move the selected folder to the bottom</source>
        <translation>Déplacer le dossier sélectionné à la fin</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Ouvrir le fichier d’aide</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Use this list and close the window</source>
        <translation>Utiliser cette liste et fermer la fenêtre</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Close the window without using this list</source>
        <translation>Fermer la fenêtre sans utiliser cette liste</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>Sélectionner un répertoire</translation>
    </message>
    <message>
        <source>Select a folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Sélectionnez un dossier dans lequel Tunedex doit rechercher des fichiers MP3, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Are you sure you want<byte value="xd"/>
to clear the list?</source>
        <translation>Voulez-vous vraiment
effacer la liste&#x202f;?</translation>
    </message>
    <message>
        <source>Clear Directories?</source>
        <translation>Effacer les répertoires&#x202f;?</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 dossier</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 dossier</numerusform>
            <numerusform>%1 dossiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::frmEditLayout</name>
    <message>
        <source>Edit Layout</source>
        <translation>Modifier la mise en page</translation>
    </message>
    <message>
        <source>Pages of the layout editor</source>
        <translation>Pages de l’éditeur de mise en page</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>C&amp;olonnes</translation>
    </message>
    <message>
        <source>&amp;Fonts</source>
        <translation>&amp;Polices</translation>
    </message>
    <message>
        <source>Co&amp;lours</source>
        <translation>Couleu&amp;rs</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tableau</translation>
    </message>
    <message>
        <source>&amp;Document and themes</source>
        <translation>&amp;Document et thèmes</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Ouvrir le fichier d’aide</translation>
    </message>
    <message>
        <source>Show pre&amp;view</source>
        <translation>A&amp;fficher l’aperçu</translation>
    </message>
    <message>
        <source>Show a sample listing with this layout</source>
        <translation>Afficher un exemple de liste avec cette mise en page</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>Use this layout</source>
        <translation>Utiliser cette mise en page</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Discard all changes except a loaded theme</source>
        <translation>Abandonner toutes les modifications, sauf un thème chargé</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes here and in the options.</source>
        <translation>Le chargement d’un thème annule vos modifications ici et dans les options.</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes to the layout.</source>
        <translation>Le chargement d’un thème annule vos modifications de la mise en page.</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes in the options.</source>
        <translation>Le chargement d’un thème annule vos modifications dans les options.</translation>
    </message>
</context>
<context>
    <name>tunedex::frmMain</name>
    <message>
        <source>HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|Winamp Playlist (*.m3u)|*.m3u|</source>
        <translation>Fichier HTML (*.htm,*.html)|*.htm;*.html|Fichier texte (*.txt)|*.txt|Liste de lecture Winamp (*.m3u)|*.m3u|</translation>
    </message>
    <message>
        <source>CSV File (*.csv)|*.csv|UTF-8 Playlist (*.m3u8)|*.m3u8|</source>
        <translation>Fichier CSV (*.csv)|*.csv|Liste de lecture UTF-8 (*.m3u8)|*.m3u8|</translation>
    </message>
    <message>
        <source>Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*</source>
        <translation>Fichiers de paramètres (*.cfg)|*.cfg|Tous les fichiers (*.*)|*.*</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>The folder to search for MP3 files. Folders can be dropped here.</source>
        <translation>Le dossier dans lequel rechercher des fichiers MP3. Vous pouvez déposer des dossiers ici.</translation>
    </message>
    <message>
        <source>Search &amp;multiple folders</source>
        <translation>E&amp;xaminer plusieurs dossiers</translation>
    </message>
    <message>
        <source>Search a list of folders instead of one</source>
        <translation>Rechercher dans une liste de dossiers au lieu d’un seul</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Fichier de sortie</translation>
    </message>
    <message>
        <source>The file to write the list to</source>
        <translation>Le fichier dans lequel écrire la liste</translation>
    </message>
    <message>
        <source>Window title</source>
        <translation>Titre de la fenêtre</translation>
    </message>
    <message>
        <source>The title of the browser window</source>
        <translation>Le titre de la fenêtre du navigateur</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Titre de la page</translation>
    </message>
    <message>
        <source>The heading of each page</source>
        <translation>Le titre de chaque page</translation>
    </message>
    <message>
        <source>Page footer</source>
        <translation>Pied de page</translation>
    </message>
    <message>
        <source>The text at the end of each page</source>
        <translation>Le texte à la fin de chaque page</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Dossiers récents</translation>
    </message>
    <message>
        <source>Recent output files</source>
        <translation>Fichiers de sortie récents</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open Settings...</source>
        <translation>&amp;Ouvrir des paramètres...</translation>
    </message>
    <message>
        <source>Load a settings file</source>
        <translation>Charger un fichier de paramètres</translation>
    </message>
    <message>
        <source>&amp;Save Settings</source>
        <translation>&amp;Enregistrer les paramètres</translation>
    </message>
    <message>
        <source>Save the settings</source>
        <translation>Enregistrer les paramètres</translation>
    </message>
    <message>
        <source>Save Settings &amp;As...</source>
        <translation>Enregistrer les paramètres &amp;sous...</translation>
    </message>
    <message>
        <source>Save the settings under another name</source>
        <translation>Enregistrer les paramètres sous un autre nom</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Rubriques d’aide</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Ouvrir le fichier d’aide</translation>
    </message>
    <message>
        <source>&amp;Tip of the Day...</source>
        <translation>&amp;Astuce du jour...</translation>
    </message>
    <message>
        <source>Show a tip</source>
        <translation>Afficher une astuce</translation>
    </message>
    <message>
        <source>&amp;About Tunedex...</source>
        <translation>À propos &amp;de Tunedex...</translation>
    </message>
    <message>
        <source>Show version and statistics</source>
        <translation>Afficher la version et les statistiques</translation>
    </message>
    <message>
        <source>Placeholders</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Fol&amp;der:</source>
        <translation>&amp;Dossier&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Output file:</source>
        <translation>Fic&amp;hier de sortie&#x202f;:</translation>
    </message>
    <message>
        <source>Window &amp;title:</source>
        <translation>&amp;Titre de la fenêtre&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Page title:</source>
        <translation>Titr&amp;e de la page&#x202f;:</translation>
    </message>
    <message>
        <source>Page foote&amp;r:</source>
        <translation>Pied de pa&amp;ge&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Choisir le dossier</translation>
    </message>
    <message>
        <source>Browse for the folder</source>
        <translation>Parcourir pour choisir le dossier</translation>
    </message>
    <message>
        <source>Folder &amp;list...</source>
        <translation>&amp;Liste des dossiers...</translation>
    </message>
    <message>
        <source>Edit the list of folders to search</source>
        <translation>Modifier la liste des dossiers à analyser</translation>
    </message>
    <message>
        <source>Folder list</source>
        <translation>Liste des dossiers</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Parco&amp;urir...</translation>
    </message>
    <message>
        <source>Choose the folder and name of the list</source>
        <translation>Choisir le dossier et le nom de la liste</translation>
    </message>
    <message>
        <source>Browse for the output file</source>
        <translation>Parcourir pour choisir le fichier de sortie</translation>
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
        <translation>Insérer une variable pour la date, l’heure, un nombre ou une taille</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>&amp;Insérer...</translation>
    </message>
    <message>
        <source>Placeholders for the window title</source>
        <translation>Variables pour le titre de la fenêtre</translation>
    </message>
    <message>
        <source>I&amp;nsert...</source>
        <translation>In&amp;sérer...</translation>
    </message>
    <message>
        <source>Placeholders for the page title</source>
        <translation>Variables pour le titre de la page</translation>
    </message>
    <message>
        <source>Ins&amp;ert...</source>
        <translation>I&amp;nsérer...</translation>
    </message>
    <message>
        <source>Placeholders for the page footer</source>
        <translation>Variables pour le pied de page</translation>
    </message>
    <message>
        <source>Titles of web pages</source>
        <translation>Titres des pages web</translation>
    </message>
    <message>
        <source>Option&amp;s...</source>
        <translation>&amp;Options...</translation>
    </message>
    <message>
        <source>Contents and layout of the list</source>
        <translation>Contenu et mise en page de la liste</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À p&amp;ropos...</translation>
    </message>
    <message>
        <source>About Tunedex</source>
        <translation>À propos de Tunedex</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Create List</source>
        <translation>&amp;Créer la liste</translation>
    </message>
    <message>
        <source>Search the folders and write the list</source>
        <translation>Parcourir les dossiers et écrire la liste</translation>
    </message>
    <message>
        <source>Create list</source>
        <translation>Créer la liste</translation>
    </message>
    <message>
        <source>1 folder chosen</source>
        <translation>1 dossier choisi</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders chosen</source>
        <translation>
            <numerusform>%1 dossier choisi</numerusform>
            <numerusform>%1 dossiers choisis</numerusform>
        </translation>
    </message>
    <message>
        <source>One folder</source>
        <translation>Un dossier</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>Sélectionner un répertoire</translation>
    </message>
    <message>
        <source>Select the folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Sélectionnez le dossier dans lequel Tunedex doit rechercher des fichiers MP3, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Select the Output File</source>
        <translation>Sélectionner le fichier de sortie</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir des paramètres</translation>
    </message>
    <message>
        <source>The specified settings file<byte value="xd"/>
does not exist!</source>
        <translation>Le fichier de paramètres indiqué
n’existe pas&#x202f;!</translation>
    </message>
    <message>
        <source>Save Settings As</source>
        <translation>Enregistrer les paramètres sous</translation>
    </message>
    <message>
        <source>Saved to %1.</source>
        <translation>Enregistré dans %1.</translation>
    </message>
    <message>
        <source>Do you really want<byte value="xd"/>
to quit Tunedex?</source>
        <translation>Voulez-vous vraiment
quitter Tunedex&#x202f;?</translation>
    </message>
    <message>
        <source>Quit?</source>
        <translation>Quitter&#x202f;?</translation>
    </message>
    <message>
        <source>Current date</source>
        <translation>Date actuelle</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Heure actuelle</translation>
    </message>
    <message>
        <source>Number of files</source>
        <translation>Nombre de fichiers</translation>
    </message>
    <message>
        <source>Number of non-tagged files</source>
        <translation>Nombre de fichiers sans tag</translation>
    </message>
    <message>
        <source>Total size of all files</source>
        <translation>Taille totale de tous les fichiers</translation>
    </message>
    <message>
        <source>Total play-time of all files</source>
        <translation>Durée totale de tous les fichiers</translation>
    </message>
    <message>
        <source>Percent sign</source>
        <translation>Signe pour cent</translation>
    </message>
    <message>
        <source>Line break</source>
        <translation>Saut de ligne</translation>
    </message>
    <message>
        <source>The next list has the look of this theme: %1</source>
        <translation>La prochaine liste aura l’aspect de ce thème&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>tunedex::frmOptions</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Search &amp;subfolders</source>
        <translation>Rechercher dans les &amp;sous-dossiers</translation>
    </message>
    <message>
        <source>Also search the folders below the input folder</source>
        <translation>Rechercher aussi dans les dossiers situés sous le dossier d’entrée</translation>
    </message>
    <message>
        <source>Split HTML listings into &amp;pages</source>
        <translation>Répartir les listes &amp;HTML sur plusieurs pages</translation>
    </message>
    <message>
        <source>Write several linked pages instead of one long page</source>
        <translation>Écrire plusieurs pages liées au lieu d’une seule longue page</translation>
    </message>
    <message>
        <source>Files per page</source>
        <translation>Fichiers par page</translation>
    </message>
    <message>
        <source>Number of MP3 files on each page</source>
        <translation>Nombre de fichiers MP3 sur chaque page</translation>
    </message>
    <message>
        <source>Searching and pages</source>
        <translation>Recherche et pages</translation>
    </message>
    <message>
        <source>&amp;Files per page:</source>
        <translation>&amp;Fichiers par page&#x202f;:</translation>
    </message>
    <message>
        <source>Show file sizes in</source>
        <translation>Taille des fichiers en</translation>
    </message>
    <message>
        <source>&amp;Bytes</source>
        <translation>&amp;Octets</translation>
    </message>
    <message>
        <source>1,234,567 b.</source>
        <translation>1 234 567 b.</translation>
    </message>
    <message>
        <source>&amp;Kilobytes</source>
        <translation>&amp;Kilo-octets</translation>
    </message>
    <message>
        <source>1,205.63 kB</source>
        <translation>1 205,63 kB</translation>
    </message>
    <message>
        <source>&amp;Megabytes</source>
        <translation>M&amp;égaoctets</translation>
    </message>
    <message>
        <source>1.18 MB</source>
        <translation>1,18 MB</translation>
    </message>
    <message>
        <source>Sort by artist, album and title</source>
        <translation>Trier par artiste, album et titre</translation>
    </message>
    <message>
        <source>&amp;No sorting</source>
        <translation>Ne pas tr&amp;ier</translation>
    </message>
    <message>
        <source>List files in the order they are found</source>
        <translation>Lister les fichiers dans l’ordre où ils sont trouvés</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Croissant</translation>
    </message>
    <message>
        <source>A to Z</source>
        <translation>De A à Z</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>&amp;Décroissant</translation>
    </message>
    <message>
        <source>Z to A</source>
        <translation>De Z à A</translation>
    </message>
    <message>
        <source>Show &amp;errors in message boxes</source>
        <translation>Afficher les erreurs dans des messa&amp;ges</translation>
    </message>
    <message>
        <source>Show a message for each folder or file that cannot be read</source>
        <translation>Afficher un message pour chaque dossier ou fichier qui ne peut pas être lu</translation>
    </message>
    <message>
        <source>&amp;Write errors to a log file</source>
        <translation>Écrire les erreurs dans un &amp;journal</translation>
    </message>
    <message>
        <source>Write the errors of the latest run to Tunedex.log in the program folder</source>
        <translation>Écrire les erreurs de la dernière exécution dans Tunedex.log, dans le dossier du programme</translation>
    </message>
    <message>
        <source>Ask before &amp;quitting</source>
        <translation>Demander a&amp;vant de quitter</translation>
    </message>
    <message>
        <source>Ask for confirmation before quitting</source>
        <translation>Demander confirmation avant de quitter</translation>
    </message>
    <message>
        <source>Errors and questions</source>
        <translation>Erreurs et questions</translation>
    </message>
    <message>
        <source>&amp;Link each entry to its file</source>
        <translation>Lier cha&amp;que entrée à son fichier</translation>
    </message>
    <message>
        <source>Add a column with links to the MP3 files</source>
        <translation>Ajouter une colonne avec des liens vers les fichiers MP3</translation>
    </message>
    <message>
        <source>Link prefix</source>
        <translation>Préfixe des liens</translation>
    </message>
    <message>
        <source>Text before every link, for example file:/// or a web address</source>
        <translation>Texte placé avant chaque lien, par exemple file:/// ou une adresse web</translation>
    </message>
    <message>
        <source>Links in HTML listings</source>
        <translation>Liens dans les listes HTML</translation>
    </message>
    <message>
        <source>N&amp;ormal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>The full path of the file</source>
        <translation>Le chemin complet du fichier</translation>
    </message>
    <message>
        <source>UN&amp;IX style</source>
        <translation>St&amp;yle UNIX</translation>
    </message>
    <message>
        <source>A slash and the full path without colons</source>
        <translation>Une barre oblique et le chemin complet sans deux-points</translation>
    </message>
    <message>
        <source>&amp;Relative</source>
        <translation>&amp;Relatif</translation>
    </message>
    <message>
        <source>The path relative to the input folder</source>
        <translation>Le chemin relatif au dossier d’entrée</translation>
    </message>
    <message>
        <source>Link prefi&amp;x:</source>
        <translation>Préfi&amp;xe des liens&#x202f;:</translation>
    </message>
    <message>
        <source>Reads tags in every encoding, skips what cannot be read, and sorts by album and track.</source>
        <translation>Lit les tags dans tous les codages, ignore ce qui est illisible et trie par album et par piste.</translation>
    </message>
    <message>
        <source>Modern &amp;tags and lists</source>
        <translation>&amp;Tags et listes modernes</translation>
    </message>
    <message>
        <source>Code page of old tags</source>
        <translation>Page de codes des anciens tags</translation>
    </message>
    <message>
        <source>The code page of ID3v1 tags, and of ID3v2 texts that are not Unicode</source>
        <translation>La page de codes des tags ID3v1 et des textes ID3v2 qui ne sont pas en Unicode</translation>
    </message>
    <message>
        <source>Tags and lists</source>
        <translation>Tags et listes</translation>
    </message>
    <message>
        <source>Code pa&amp;ge of old tags:</source>
        <translation>&amp;Page de codes des anciens tags&#x202f;:</translation>
    </message>
    <message>
        <source>Edit la&amp;yout...</source>
        <translation>&amp;Modifier la mise en page...</translation>
    </message>
    <message>
        <source>Edit columns, fonts, colours, table, document type and themes of HTML listings</source>
        <translation>Modifier les colonnes, les polices, les couleurs, le tableau, le type de document et les thèmes des listes HTML</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>&amp;Utiliser</translation>
    </message>
    <message>
        <source>Apply until you quit</source>
        <translation>Appliquer jusqu’à la fermeture du programme</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Apply, and save all settings as the default</source>
        <translation>Appliquer et enregistrer tous les paramètres par défaut</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Annu&amp;ler</translation>
    </message>
    <message>
        <source>Close without changing anything</source>
        <translation>Fermer sans rien modifier</translation>
    </message>
    <message>
        <source>Use: until you quit. Save: also for the next start and unattended runs.</source>
        <translation>Utiliser&#x202f;: jusqu’à la fermeture. Enregistrer&#x202f;: aussi au prochain démarrage et sans surveillance.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Sort by artist, album, disc and track</source>
        <translation>Trier par artiste, album, disque et piste</translation>
    </message>
    <message>
        <source>Files per page must be between -32768 and 32767.</source>
        <translation>Le nombre de fichiers par page doit être compris entre -32768 et 32767.</translation>
    </message>
    <message>
        <source>Files per page must be a numeric value.</source>
        <translation>Le nombre de fichiers par page doit être une valeur numérique.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Help &amp;Topics</source>
        <translation>Rubriques d’ai&amp;de</translation>
    </message>
</context>
<context>
    <name>tunedex::frmProgress</name>
    <message>
        <source>The run is over.</source>
        <translation>L’exécution est terminée.</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Interrompre</translation>
    </message>
    <message>
        <source>Stop the run. Tracks already written stay in the list.</source>
        <translation>Arrêter l’exécution. Les pistes déjà écrites restent dans la liste.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Return to the main window</source>
        <translation>Revenir à la fenêtre principale</translation>
    </message>
    <message>
        <source>Creating List</source>
        <translation>Création de la liste</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progression de l’exécution</translation>
    </message>
</context>
<context>
    <name>tunedex::frmTip</name>
    <message>
        <source>&amp;Show tips at start-up</source>
        <translation>&amp;Afficher les astuces au démarrage</translation>
    </message>
    <message>
        <source>Show a tip each time the program starts</source>
        <translation>Afficher une astuce à chaque démarrage du programme</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Astuce du jour</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>Astuce &amp;suivante</translation>
    </message>
    <message>
        <source>Show the next tip</source>
        <translation>Afficher l’astuce suivante</translation>
    </message>
    <message>
        <source>Next tip</source>
        <translation>Astuce suivante</translation>
    </message>
    <message>
        <source>&amp;Random Tip</source>
        <translation>Astuce au &amp;hasard</translation>
    </message>
    <message>
        <source>Show a random tip</source>
        <translation>Afficher une astuce au hasard</translation>
    </message>
    <message>
        <source>Random tip</source>
        <translation>Astuce au hasard</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Save the choice and close the window</source>
        <translation>Enregistrer le choix et fermer la fenêtre</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Astuce</translation>
    </message>
</context>
</TS>
