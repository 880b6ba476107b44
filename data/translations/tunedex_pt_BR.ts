<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>tunedex::CodePageBox</name>
    <message>
        <source>Western</source>
        <translation>Ocidental</translation>
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
        <translation>Grego</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turco</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebraico</translation>
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
        <translation>Tailandês</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonês</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>Chinês simplificado</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>Chinês tradicional</translation>
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
        <translation>Texto da página</translation>
    </message>
    <message>
        <source>The colour of the page header/footers</source>
        <translation>Cor dos cabeçalhos e rodapés da página</translation>
    </message>
    <message>
        <source>Page background</source>
        <translation>Fundo da página</translation>
    </message>
    <message>
        <source>The background colour of the page</source>
        <translation>Cor de fundo da página</translation>
    </message>
    <message>
        <source>Table header text</source>
        <translation>Texto dos cabeçalhos da tabela</translation>
    </message>
    <message>
        <source>The colour of the table headers</source>
        <translation>Cor do texto dos cabeçalhos da tabela</translation>
    </message>
    <message>
        <source>Table header background</source>
        <translation>Fundo dos cabeçalhos da tabela</translation>
    </message>
    <message>
        <source>The background colour of the table headers</source>
        <translation>Cor de fundo dos cabeçalhos da tabela</translation>
    </message>
    <message>
        <source>Cell text</source>
        <translation>Texto das células</translation>
    </message>
    <message>
        <source>The colour of the table cells</source>
        <translation>Cor do texto das células da tabela</translation>
    </message>
    <message>
        <source>Cell background</source>
        <translation>Fundo das células</translation>
    </message>
    <message>
        <source>The background colour of the table cells</source>
        <translation>Cor de fundo das células da tabela</translation>
    </message>
    <message>
        <source>Alternate cell text</source>
        <translation>Texto das células alternadas</translation>
    </message>
    <message>
        <source>The colour of the alternate table cells</source>
        <translation>Cor do texto das células alternadas da tabela</translation>
    </message>
    <message>
        <source>Alternate cell background</source>
        <translation>Fundo das células alternadas</translation>
    </message>
    <message>
        <source>The background colour of the alternate cells</source>
        <translation>Cor de fundo das células alternadas</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>The colour of generated links</source>
        <translation>Cor dos links gerados</translation>
    </message>
    <message>
        <source>Table border</source>
        <translation>Borda da tabela</translation>
    </message>
    <message>
        <source>The colour the main table&apos;s border</source>
        <translation>Cor da borda da tabela principal</translation>
    </message>
    <message>
        <source>Table cells &amp;use alternating text/background colours</source>
        <translation>Alternar as cores de texto &amp;e de fundo das células</translation>
    </message>
    <message>
        <source>Alternate between the two colours below for table cells. Aids readability.</source>
        <translation>Alterna entre as duas cores abaixo nas células da tabela. Facilita a leitura.</translation>
    </message>
    <message>
        <source>Use CSS fo&amp;r text colours.</source>
        <translation>Usar CSS para as cores do te&amp;xto.</translation>
    </message>
    <message>
        <source>Write the colours into the page&apos;s style sheet</source>
        <translation>Gravar as cores na folha de estilos da página</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for text colours.</source>
        <translation>&amp;Usar tags FONT para as cores do texto.</translation>
    </message>
    <message>
        <source>Write the colours into the markup, for browsers without style sheets</source>
        <translation>Gravar as cores na marcação, para navegadores sem folhas de estilos</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translation>&amp;Página:</translation>
    </message>
    <message>
        <source>Table header&amp;s:</source>
        <translation>Cabeçal&amp;hos da tabela:</translation>
    </message>
    <message>
        <source>Table c&amp;ells:</source>
        <translation>Célula&amp;s da tabela:</translation>
    </message>
    <message>
        <source>&amp;Alternate cells:</source>
        <translation>Células alter&amp;nadas:</translation>
    </message>
    <message>
        <source>L&amp;inks:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>Table &amp;border:</source>
        <translation>&amp;Borda da tabela:</translation>
    </message>
    <message>
        <source>RRGGBB</source>
        <translation>RRGGBB</translation>
    </message>
    <message>
        <source>%1: select colour</source>
        <translation>%1: escolher cor</translation>
    </message>
    <message>
        <source>Select a colour from the palette</source>
        <translation>Escolher uma cor da paleta</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers show %1 for it.</source>
        <translation>Não é uma cor de seis dígitos hexadecimais. Os navegadores mostram %1 no lugar dela.</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers ignore it.</source>
        <translation>Não é uma cor de seis dígitos hexadecimais. Os navegadores a ignoram.</translation>
    </message>
    <message>
        <source>A marked colour is not six hexadecimal digits. The right half of the button beside it shows what browsers show for it.</source>
        <translation>Uma cor marcada não tem seis dígitos hexadecimais. A metade direita do botão ao lado mostra o que os navegadores mostram.</translation>
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
        <translation>Duração</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>Tamanho do arquivo</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Gênero</translation>
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
        <translation>Ano</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Full Path</source>
        <translation>Caminho completo</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Faixa</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>Artista do álbum</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentário</translation>
    </message>
</context>
<context>
    <name>tunedex::ColumnsPage</name>
    <message>
        <source>Hidden columns</source>
        <translation>Colunas ocultas</translation>
    </message>
    <message>
        <source>Columns that are not listed. Double-click or drag one to show it.</source>
        <translation>Colunas que não são listadas. Clique duas vezes em uma coluna ou arraste-a para exibi-la.</translation>
    </message>
    <message>
        <source>Shown columns, in display order</source>
        <translation>Colunas exibidas, na ordem de exibição</translation>
    </message>
    <message>
        <source>Double-click a column to hide it. Drag it or press Alt+Up or Alt+Down to move it.</source>
        <translation>Clique duas vezes em uma coluna para ocultá-la. Arraste-a ou pressione Alt+Seta para cima ou Alt+Seta para baixo para movê-la.</translation>
    </message>
    <message>
        <source>Hidden colu&amp;mns:</source>
        <translation>Coluna&amp;s ocultas:</translation>
    </message>
    <message>
        <source>Shown, in this o&amp;rder:</source>
        <translation>Exibidas, &amp;nesta ordem:</translation>
    </message>
    <message>
        <source>&amp;Show ›</source>
        <translation>&amp;Exibir ›</translation>
    </message>
    <message>
        <source>Show the selected hidden column as the last column</source>
        <translation>Exibir a coluna oculta selecionada como última coluna</translation>
    </message>
    <message>
        <source>‹ Hid&amp;e</source>
        <translation>‹ Oc&amp;ultar</translation>
    </message>
    <message>
        <source>Hide the selected shown column</source>
        <translation>Ocultar a coluna exibida selecionada</translation>
    </message>
    <message>
        <source>Show &amp;all »</source>
        <translation>E&amp;xibir todas »</translation>
    </message>
    <message>
        <source>Show every column</source>
        <translation>Exibir todas as colunas</translation>
    </message>
    <message>
        <source>« H&amp;ide all</source>
        <translation>« Ocu&amp;ltar todas</translation>
    </message>
    <message>
        <source>Hide every column</source>
        <translation>Ocultar todas as colunas</translation>
    </message>
    <message>
        <source>To&amp;p</source>
        <translation>&amp;Início</translation>
    </message>
    <message>
        <source>Move the selected shown column to the top</source>
        <translation>Mover a coluna exibida selecionada para o início</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Para cima</translation>
    </message>
    <message>
        <source>Move the selected shown column one place up (Alt+Up)</source>
        <translation>Mover a coluna exibida selecionada uma posição para cima (Alt+Seta para cima)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Para &amp;baixo</translation>
    </message>
    <message>
        <source>Move the selected shown column one place down (Alt+Down)</source>
        <translation>Mover a coluna exibida selecionada uma posição para baixo (Alt+Seta para baixo)</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>Fi&amp;m</translation>
    </message>
    <message>
        <source>Move the selected shown column to the bottom</source>
        <translation>Mover a coluna exibida selecionada para o fim</translation>
    </message>
    <message>
        <source>Mer&amp;ge Artist and Title into one column</source>
        <translation>A&amp;grupar Artista e Título em uma só coluna</translation>
    </message>
    <message>
        <source>Shows “Artist: Title”. Both columns must be shown.</source>
        <translation>Exibe “Artista: Título”. As duas colunas precisam ser exibidas.</translation>
    </message>
    <message>
        <source>Ta&amp;ke Album into that column, too</source>
        <translation>&amp;Juntar também Álbum nessa coluna</translation>
    </message>
    <message>
        <source>Shows “Artist (Album): Title”. Requires Artist and Title to be merged.</source>
        <translation>Exibe “Artista (Álbum): Título”. Artista e Título precisam estar agrupados.</translation>
    </message>
    <message>
        <source>Displa&amp;y a leading “The” after the artist&apos;s name</source>
        <translation>Mover “T&amp;he” para depois do nome do artista</translation>
    </message>
    <message>
        <source>Lists “The Band” as “Band, The”, sorted under B</source>
        <translation>Lista “The Band” como “Band, The”, na letra B</translation>
    </message>
</context>
<context>
    <name>tunedex::CoreText</name>
    <message>
        <source>Error!</source>
        <translation>Erro!</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Tunedex (Automatic Mode)</source>
        <translation>Tunedex (modo automático)</translation>
    </message>
    <message>
        <source>Tunedex Error! (Automatic Mode)</source>
        <translation>Erro do Tunedex! (modo automático)</translation>
    </message>
    <message>
        <source>The specified directory does not exist!</source>
        <translation>O diretório especificado não existe!</translation>
    </message>
    <message>
        <source>No input directory specified!</source>
        <translation>Nenhum diretório de entrada foi especificado!</translation>
    </message>
    <message>
        <source>No input directories specified!</source>
        <translation>Não foram especificados diretórios de entrada!</translation>
    </message>
    <message>
        <source>No output file specified!</source>
        <translation>Nenhum arquivo de saída foi especificado!</translation>
    </message>
    <message>
        <source>The output directory does not exist!

Do you want to create it?</source>
        <translation>O diretório de saída não existe!

Deseja criá-lo?</translation>
    </message>
    <message>
        <source>No MP3 files!</source>
        <translation>Nenhum arquivo MP3!</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directory specified.</source>
        <translation>Nenhum arquivo MP3 foi encontrado
no diretório especificado.</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directories specified.</source>
        <translation>Nenhum arquivo MP3 foi encontrado
nos diretórios especificados.</translation>
    </message>
    <message>
        <source>An error occurred verifying your input directory.

This could be because you do not have permission
to access the directory, or you may be attempting
to use a non-existent network share.</source>
        <translation>Ocorreu um erro ao verificar o diretório de entrada.

Talvez você não tenha permissão para acessar o diretório
ou esteja tentando usar um compartilhamento de rede
que não existe.</translation>
    </message>
    <message>
        <source>An unexpected error occurred. The error was: 

Error number %1 - %2</source>
        <translation>Ocorreu um erro inesperado: 

Erro número %1 - %2</translation>
    </message>
    <message>
        <source>An error occurred scanning the directory: 

%1

%2: %3</source>
        <translation>Ocorreu um erro ao examinar o diretório: 

%1

%2: %3</translation>
    </message>
    <message>
        <source>An error occurred decoding the headers of: 

%1</source>
        <translation>Ocorreu um erro ao decodificar os cabeçalhos de: 

%1</translation>
    </message>
    <message>
        <source>A settings file cannot hold a line break.
These settings were not saved:

%1</source>
        <translation>Um arquivo de configurações não pode conter quebras de linha.
Estas configurações não foram salvas:

%1</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Chamada de procedimento ou argumento inválido</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Estouro</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memória insuficiente</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Índice fora do intervalo</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Divisão por zero</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Tipos incompatíveis</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>Nome ou número de arquivo incorreto</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Arquivo não encontrado</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Erro de E/S do dispositivo</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco cheio</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Leitura além do fim do arquivo</translation>
    </message>
    <message>
        <source>Too many files</source>
        <translation>Arquivos demais</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Erro de acesso ao caminho ou arquivo</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Caminho não encontrado</translation>
    </message>
    <message>
        <source>Searching for MP3 files...</source>
        <translation>Procurando arquivos MP3...</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information...</source>
        <translation>Lendo as informações MPEG/ID3...</translation>
    </message>
    <message>
        <source>Sorting information...</source>
        <translation>Classificando as informações...</translation>
    </message>
    <message>
        <source>Writing information...</source>
        <translation>Gravando as informações...</translation>
    </message>
    <message>
        <source>Operation complete!</source>
        <translation>Operação concluída!</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information (%1/%2)...</source>
        <translation>Lendo as informações MPEG/ID3 (%1/%2)...</translation>
    </message>
    <message>
        <source>Writing entry for file %1/%2...</source>
        <translation>Gravando a entrada do arquivo %1/%2...</translation>
    </message>
    <message>
        <source>Writing index entry for file %1/%2...</source>
        <translation>Gravando a entrada de índice do arquivo %1/%2...</translation>
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
        <translation>&amp;Não exibir mais mensagens nesta execução</translation>
    </message>
    <message>
        <source>Errors still go to the log, if the options ask for one</source>
        <translation>Os erros continuam sendo gravados no log, se as opções pedirem</translation>
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
        <translation>Exibir um título para cada álbum (somente HTML5)</translation>
    </message>
    <message>
        <source>Document type</source>
        <translation>Tipo de documento</translation>
    </message>
    <message>
        <source>The document type of HTML listings</source>
        <translation>Tipo de documento das listas HTML</translation>
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
        <translation>Tipo de docume&amp;nto:</translation>
    </message>
</context>
<context>
    <name>tunedex::FontsPage</name>
    <message>
        <source>Page heading and text</source>
        <translation>Título e texto da página</translation>
    </message>
    <message>
        <source>Table headers</source>
        <translation>Cabeçalhos da tabela</translation>
    </message>
    <message>
        <source>Table cells</source>
        <translation>Células da tabela</translation>
    </message>
    <message>
        <source>&amp;Use CSS for fonts.</source>
        <translation>Usar CSS &amp;para as fontes.</translation>
    </message>
    <message>
        <source>Write the fonts into the page&apos;s style sheet</source>
        <translation>Gravar as fontes na folha de estilos da página</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for fonts.</source>
        <translation>&amp;Usar tags FONT para as fontes.</translation>
    </message>
    <message>
        <source>Write the fonts into the markup, for browsers without style sheets</source>
        <translation>Gravar as fontes na marcação, para navegadores sem folhas de estilos</translation>
    </message>
    <message>
        <source>%1: typefaces</source>
        <translation>%1: fontes</translation>
    </message>
    <message>
        <source>Typefaces in order of preference, separated by commas</source>
        <translation>Fontes em ordem de preferência, separadas por vírgulas</translation>
    </message>
    <message>
        <source>%1: size</source>
        <translation>%1: tamanho</translation>
    </message>
    <message>
        <source>1 (smallest) to 7 (largest). 3 is the size of normal text.</source>
        <translation>De 1 (menor) a 7 (maior). 3 é o tamanho do texto normal.</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrito</translation>
    </message>
    <message>
        <source>%1 in bold type</source>
        <translation>%1 em negrito</translation>
    </message>
    <message>
        <source>%1: bold</source>
        <translation>%1: negrito</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Itálico</translation>
    </message>
    <message>
        <source>%1 in italic type</source>
        <translation>%1 em itálico</translation>
    </message>
    <message>
        <source>%1: italic</source>
        <translation>%1: itálico</translation>
    </message>
    <message>
        <source>&amp;Select...</source>
        <translation>&amp;Selecionar...</translation>
    </message>
    <message>
        <source>Select a font installed on this computer</source>
        <translation>Selecionar uma fonte instalada neste computador</translation>
    </message>
    <message>
        <source>%1: select font</source>
        <translation>%1: selecionar fonte</translation>
    </message>
    <message>
        <source>T&amp;ypefaces:</source>
        <translation>Font&amp;es:</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>Ta&amp;manho:</translation>
    </message>
</context>
<context>
    <name>tunedex::OpenHelp</name>
    <message>
        <source>No program could be found to open<byte value="xd"/>
%1</source>
        <translation>Não foi encontrado um programa para abrir
%1</translation>
    </message>
    <message>
        <source>The help file could not be found!</source>
        <translation>O arquivo de ajuda não foi encontrado!</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
does not exist any more!</source>
        <translation>%1
não existe mais!</translation>
    </message>
</context>
<context>
    <name>tunedex::OutputHint</name>
    <message>
        <source>The extension sets the format: .htm web page, .txt or .csv table, .m3u playlist.</source>
        <translation>A extensão define o formato: .htm página web, .txt ou .csv tabela, .m3u lista de reprodução.</translation>
    </message>
    <message>
        <source>The extension sets the format: .htm web page, .txt plain text, .m3u playlist.</source>
        <translation>A extensão define o formato: .htm página web, .txt texto simples, .m3u lista de reprodução.</translation>
    </message>
    <message>
        <source>Only modern tags and lists know %1.</source>
        <translation>Somente tags e listas modernas aceitam %1.</translation>
    </message>
    <message>
        <source>%1 is not the extension of a format.</source>
        <translation>%1 não é a extensão de um formato.</translation>
    </message>
    <message>
        <source>The existing list will be replaced.</source>
        <translation>A lista existente será substituída.</translation>
    </message>
    <message>
        <source>Writes %1.</source>
        <translation>Grava %1.</translation>
    </message>
    <message numerus="yes">
        <source>Writes %1 … (%2 files a page).</source>
        <translation>
            <numerusform>Grava %1 … (%2 arquivo por página).</numerusform>
            <numerusform>Grava %1 … (%2 arquivos por página).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::PreviewPane</name>
    <message>
        <source>&lt;p&gt;There is no preview: a listing cannot be written with this layout (%1).&lt;/p&gt;</source>
        <translation>&lt;p&gt;Não há visualização: não é possível gravar uma lista com este layout (%1).&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;If Album is merged, it must not come before both Artist and Title.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Se Álbum for agrupado, não pode vir antes de Artista e Título.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Preview of colours, fonts and columns. Only a browser shows search, sorting, album headings and the colours for the other (dark or light) setting.</source>
        <translation>Visualização de cores, fontes e colunas. Somente um navegador mostra a pesquisa, a classificação, os títulos dos álbuns e as cores do outro modo (escuro ou claro).</translation>
    </message>
    <message>
        <source>Preview with sample tracks</source>
        <translation>Visualização com faixas de exemplo</translation>
    </message>
    <message>
        <source>Open sample in browser</source>
        <translation>Abrir exemplo no navegador</translation>
    </message>
    <message>
        <source>Open a sample listing with this layout in your browser (Ctrl+B)</source>
        <translation>Abrir no navegador uma lista de exemplo com este layout (Ctrl+B)</translation>
    </message>
    <message>
        <source>Preview of the listing</source>
        <translation>Visualização da lista</translation>
    </message>
    <message>
        <source>Sample tracks, listed with the layout shown here</source>
        <translation>Faixas de exemplo, listadas com o layout mostrado aqui</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background, because browsers ignore the style sheet of XHTML listings. To mend it, tick “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>Parte do texto é difícil de ler sobre o fundo, porque os navegadores ignoram a folha de estilos das listas XHTML. Para corrigir, marque “Usar tags FONT para as cores do texto.” na página Cores.</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background. To mend it, tick “Use CSS for text colours.” or “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>Parte do texto é difícil de ler sobre o fundo. Para corrigir, marque “Usar CSS para as cores do texto.” ou “Usar tags FONT para as cores do texto.” na página Cores.</translation>
    </message>
    <message>
        <source>Preview: browsers ignore the style sheet of XHTML listings. Tick “Use FONT tags” on the pages Fonts and Colours instead.</source>
        <translation>Visualização: os navegadores ignoram a folha de estilos das listas XHTML. Marque em vez disso as tags FONT nas páginas Fontes e Cores.</translation>
    </message>
    <message>
        <source>Preview of the theme “%1”, which is not loaded.</source>
        <translation>Visualização do tema “%1”, que não está carregado.</translation>
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
        <translation>1 arquivo encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 arquivo encontrado</numerusform>
            <numerusform>%1 arquivos encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files a second, %2 left</source>
        <translation>
            <numerusform>%1 arquivo por segundo, restam %2</numerusform>
            <numerusform>%1 arquivos por segundo, restam %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::RecentButton</name>
    <message>
        <source>%1 (Alt+Down in the field)</source>
        <translation>%1 (Alt+Seta para baixo no campo)</translation>
    </message>
    <message>
        <source>&amp;Clear this list</source>
        <translation>&amp;Limpar esta lista</translation>
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
        <translation>Abrir a lista (Ctrl+L)</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Mostrar pasta</translation>
    </message>
    <message>
        <source>Open the list&apos;s folder (Ctrl+Shift+L)</source>
        <translation>Abrir a pasta da lista (Ctrl+Shift+L)</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>Switch on “Modern tags and lists” (Ctrl+M)</source>
        <translation>Ativar “Tags e listas modernas” (Ctrl+M)</translation>
    </message>
    <message>
        <source>Switch on Modern tags and lists</source>
        <translation>Ativar Tags e listas modernas</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultText</name>
    <message>
        <source>1 track</source>
        <translation>1 faixa</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <translation>
            <numerusform>%1 faixa</numerusform>
            <numerusform>%1 faixas</numerusform>
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
        <translation>1 pasta</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 pasta</numerusform>
            <numerusform>%1 pastas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 arquivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 arquivo</numerusform>
            <numerusform>%1 arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>The run was aborted. %1 has the tracks that were written.</source>
        <translation>A execução foi interrompida. %1 contém as faixas que foram gravadas.</translation>
    </message>
    <message>
        <source>The run was aborted. No list was written.</source>
        <translation>A execução foi interrompida. Nenhuma lista foi gravada.</translation>
    </message>
    <message>
        <source>No MP3 files were found. No list was written.</source>
        <translation>Nenhum arquivo MP3 foi encontrado. Nenhuma lista foi gravada.</translation>
    </message>
    <message>
        <source>The run failed: %1. No complete list was written.</source>
        <translation>A execução falhou: %1. Nenhuma lista completa foi gravada.</translation>
    </message>
    <message>
        <source>Wrote %1: %2 on %3.</source>
        <translation>%1 gravado: %2 em %3.</translation>
    </message>
    <message>
        <source>Wrote %1: %2.</source>
        <translation>%1 gravado: %2.</translation>
    </message>
    <message>
        <source>%1 and %2 could not be read.</source>
        <translation>Não foi possível ler %1 e %2.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>Não foi possível ler %1.</translation>
    </message>
    <message>
        <source>&apos;Modern tags and lists&apos; is on now: create the list again.</source>
        <translation>“Tags e listas modernas” está ativado agora: crie a lista novamente.</translation>
    </message>
    <message>
        <source>1 file has tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>1 arquivo tem tags que “Tags e listas modernas” leria corretamente.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files have tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>
            <numerusform>%1 arquivo tem tags que “Tags e listas modernas” leria corretamente.</numerusform>
            <numerusform>%1 arquivos têm tags que “Tags e listas modernas” leria corretamente.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::Statistics</name>
    <message>
        <source>Tunedex was first started on %1 and has been started %2 since.</source>
        <translation>O Tunedex foi iniciado pela primeira vez em %1 e foi iniciado %2 desde então.</translation>
    </message>
    <message>
        <source>It has created %1, and handled %2.</source>
        <translation>Ele criou %1 e processou %2.</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1 vez</translation>
    </message>
    <message numerus="yes">
        <source>%1 times</source>
        <translation>
            <numerusform>%1 vez</numerusform>
            <numerusform>%1 vezes</numerusform>
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
        <translation>%1 arquivo MP3</translation>
    </message>
    <message numerus="yes">
        <source>%1 MP3 files</source>
        <translation>
            <numerusform>%1 arquivo MP3</numerusform>
            <numerusform>%1 arquivos MP3</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::TablePage</name>
    <message>
        <source>Table width</source>
        <translation>Largura da tabela</translation>
    </message>
    <message>
        <source>Width of the table</source>
        <translation>Largura da tabela</translation>
    </message>
    <message>
        <source>Border size</source>
        <translation>Espessura da borda</translation>
    </message>
    <message>
        <source>Width of the lines between the cells, in pixels</source>
        <translation>Largura das linhas entre as células, em pixels</translation>
    </message>
    <message>
        <source>Cell padding</source>
        <translation>Margem das células</translation>
    </message>
    <message>
        <source>Space between a cell&apos;s border and its text, in pixels</source>
        <translation>Espaço entre a borda de uma célula e seu texto, em pixels</translation>
    </message>
    <message>
        <source>Pi&amp;xels</source>
        <translation>Pi&amp;xels</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Largura em pixels</translation>
    </message>
    <message>
        <source>Pe&amp;r cent</source>
        <translation>&amp;Por cento</translation>
    </message>
    <message>
        <source>Width as a percentage of the page&apos;s width</source>
        <translation>Largura como porcentagem da largura da página</translation>
    </message>
    <message>
        <source>Table &amp;width:</source>
        <translation>&amp;Largura da tabela:</translation>
    </message>
    <message>
        <source>&amp;Border size:</source>
        <translation>&amp;Espessura da borda:</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Cell &amp;padding:</source>
        <translation>&amp;Margem das células:</translation>
    </message>
    <message>
        <source>The table width must be a numeric value.</source>
        <translation>A largura da tabela deve ser um valor numérico.</translation>
    </message>
    <message>
        <source>The table width must be between -32768 and 32767.</source>
        <translation>A largura da tabela deve estar entre -32768 e 32767.</translation>
    </message>
    <message>
        <source>The table border size must be a numeric value.</source>
        <translation>A espessura da borda da tabela deve ser um valor numérico.</translation>
    </message>
    <message>
        <source>The table border size must be between -32768 and 32767.</source>
        <translation>A espessura da borda da tabela deve estar entre -32768 e 32767.</translation>
    </message>
    <message>
        <source>The table cell padding must be a numeric value.</source>
        <translation>A margem das células da tabela deve ser um valor numérico.</translation>
    </message>
    <message>
        <source>The table cell padding must be between -32768 and 32767.</source>
        <translation>A margem das células da tabela deve estar entre -32768 e 32767.</translation>
    </message>
</context>
<context>
    <name>tunedex::ThemePanel</name>
    <message>
        <source>Save Theme</source>
        <translation>Salvar tema</translation>
    </message>
    <message>
        <source>This cannot be the name of a theme.<byte value="xd"/>
<byte value="xd"/>
A name must be short enough for a file name, without a slash,<byte value="xd"/>
and neither &quot;.&quot; nor &quot;..&quot;.</source>
        <translation>Este não pode ser o nome de um tema.

O nome deve ser curto o bastante para um arquivo, sem barras,
e não pode ser “.” nem “..”.</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>Temas</translation>
    </message>
    <message>
        <source>Lo&amp;ad theme</source>
        <translation>Carre&amp;gar tema</translation>
    </message>
    <message>
        <source>Apply the selected theme&apos;s fonts, colours and table settings immediately</source>
        <translation>Aplicar imediatamente as fontes, as cores e as configurações de tabela do tema selecionado</translation>
    </message>
    <message>
        <source>&amp;Save theme...</source>
        <translation>&amp;Salvar tema...</translation>
    </message>
    <message>
        <source>Save the fonts, colours and table settings shown here as a theme</source>
        <translation>Salvar como tema as fontes, as cores e as configurações de tabela mostradas aqui</translation>
    </message>
    <message>
        <source>Delete the&amp;me...</source>
        <translation>&amp;Excluir tema...</translation>
    </message>
    <message>
        <source>Delete the selected theme&apos;s file</source>
        <translation>Excluir o arquivo do tema selecionado</translation>
    </message>
    <message>
        <source>Themes are preset colour, font, and table settings that you can import into your own settings.

You can also export your own settings as a theme.</source>
        <translation>Temas são configurações predefinidas de cores, fontes e tabela que você pode importar para as suas próprias configurações.

Você também pode exportar as suas configurações como tema.</translation>
    </message>
    <message>
        <source>Availa&amp;ble themes:</source>
        <translation>Te&amp;mas disponíveis:</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Theme loaded successfully.</source>
        <translation>O tema foi carregado com sucesso.</translation>
    </message>
    <message>
        <source>Please enter a name for your theme:</source>
        <translation>Digite um nome para o seu tema:</translation>
    </message>
    <message>
        <source>Theme saved successfully.</source>
        <translation>O tema foi salvo com sucesso.</translation>
    </message>
    <message>
        <source>This theme already exists!<byte value="xd"/>
<byte value="xd"/>
Overwrite?</source>
        <translation>Este tema já existe!

Substituir?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
the %1 theme?<byte value="xd"/>
<byte value="xd"/>
You cannot recover it afterwards!</source>
        <translation>Tem certeza de que deseja excluir
o tema %1?

Não será possível recuperá-lo depois!</translation>
    </message>
    <message>
        <source>Delete Theme</source>
        <translation>Excluir tema</translation>
    </message>
    <message>
        <source>Select a theme to preview it. Press Enter or double-click to load it.</source>
        <translation>Selecione um tema para visualizá-lo. Pressione Enter ou clique duas vezes para carregá-lo.</translation>
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
        <translation>Sobre o %1</translation>
    </message>
    <message>
        <source>Version %1.%2 - Build %3</source>
        <translation>Versão %1.%2 - Compilação %3</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Página na web</translation>
    </message>
    <message>
        <source>E-mail the author</source>
        <translation>Enviar e-mail ao autor</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fechar a janela</translation>
    </message>
    <message>
        <source>&amp;Home page</source>
        <translation>&amp;Página na web</translation>
    </message>
    <message>
        <source>&amp;E-mail the author</source>
        <translation>&amp;Enviar e-mail ao autor</translation>
    </message>
</context>
<context>
    <name>tunedex::frmDirSelection</name>
    <message>
        <source>Folders to Search</source>
        <translation>Pastas a pesquisar</translation>
    </message>
    <message>
        <source>&amp;Folders, in search order:</source>
        <translation>Pastas, &amp;na ordem de pesquisa:</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>The folders to search, in order. Folders can be dropped here.</source>
        <translation>As pastas a pesquisar, em ordem. É possível soltar pastas aqui.</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>A&amp;dicionar...</translation>
    </message>
    <message>
        <source>Append a folder to the list</source>
        <translation>Adicionar uma pasta ao fim da lista</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Adicionar...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>Remove the selected folder from the list</source>
        <translation>Remover da lista a pasta selecionada</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Limpar</translation>
    </message>
    <message>
        <source>Remove all folders from the list</source>
        <translation>Remover todas as pastas da lista</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Início</translation>
    </message>
    <message>
        <source>Move the selected folder to the top</source>
        <translation>Mover a pasta selecionada para o início</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Para cima</translation>
    </message>
    <message>
        <source>Move the selected folder one row up</source>
        <translation>Mover a pasta selecionada uma linha para cima</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>Para &amp;baixo</translation>
    </message>
    <message>
        <source>Move the selected folder one row down</source>
        <translation>Mover a pasta selecionada uma linha para baixo</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>&amp;Fim</translation>
    </message>
    <message>
        <source>Move the selected folder to the bottom</source>
        <translation>Mover a pasta selecionada para o fim</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ajuda</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Abrir o arquivo de ajuda</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Use this list and close the window</source>
        <translation>Usar esta lista e fechar a janela</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Close the window without using this list</source>
        <translation>Fechar a janela sem usar esta lista</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>Selecionar um diretório</translation>
    </message>
    <message>
        <source>Select a folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Selecione uma pasta na qual o Tunedex deve procurar arquivos MP3 e clique em OK.</translation>
    </message>
    <message>
        <source>Are you sure you want<byte value="xd"/>
to clear the list?</source>
        <translation>Tem certeza de que deseja
limpar a lista?</translation>
    </message>
    <message>
        <source>Clear Directories?</source>
        <translation>Limpar os diretórios?</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 pasta</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 pasta</numerusform>
            <numerusform>%1 pastas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::frmEditLayout</name>
    <message>
        <source>Edit Layout</source>
        <translation>Editar layout</translation>
    </message>
    <message>
        <source>Pages of the layout editor</source>
        <translation>Páginas do editor de layout</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>C&amp;olunas</translation>
    </message>
    <message>
        <source>&amp;Fonts</source>
        <translation>&amp;Fontes</translation>
    </message>
    <message>
        <source>Co&amp;lours</source>
        <translation>Co&amp;res</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabela</translation>
    </message>
    <message>
        <source>&amp;Document and themes</source>
        <translation>&amp;Documento e temas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ajuda</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Abrir o arquivo de ajuda</translation>
    </message>
    <message>
        <source>Show pre&amp;view</source>
        <translation>Mostrar &amp;visualização</translation>
    </message>
    <message>
        <source>Show a sample listing with this layout</source>
        <translation>Mostrar uma lista de exemplo com este layout</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>Use this layout</source>
        <translation>Usar este layout</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Discard all changes except a loaded theme</source>
        <translation>Descartar todas as alterações, exceto um tema carregado</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes here and in the options.</source>
        <translation>Carregar um tema descarta suas alterações aqui e nas opções.</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes to the layout.</source>
        <translation>Carregar um tema descarta suas alterações no layout.</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes in the options.</source>
        <translation>Carregar um tema descarta suas alterações nas opções.</translation>
    </message>
</context>
<context>
    <name>tunedex::frmMain</name>
    <message>
        <source>HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|Winamp Playlist (*.m3u)|*.m3u|</source>
        <translation>Arquivo HTML (*.htm,*.html)|*.htm;*.html|Arquivo de texto (*.txt)|*.txt|Lista de reprodução do Winamp (*.m3u)|*.m3u|</translation>
    </message>
    <message>
        <source>CSV File (*.csv)|*.csv|UTF-8 Playlist (*.m3u8)|*.m3u8|</source>
        <translation>Arquivo CSV (*.csv)|*.csv|Lista de reprodução UTF-8 (*.m3u8)|*.m3u8|</translation>
    </message>
    <message>
        <source>Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*</source>
        <translation>Arquivos de configurações (*.cfg)|*.cfg|Todos os arquivos (*.*)|*.*</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>The folder to search for MP3 files. Folders can be dropped here.</source>
        <translation>A pasta em que os arquivos MP3 são procurados. É possível soltar pastas aqui.</translation>
    </message>
    <message>
        <source>Search &amp;multiple folders</source>
        <translation>Pesquisar e&amp;m várias pastas</translation>
    </message>
    <message>
        <source>Search a list of folders instead of one</source>
        <translation>Pesquisar em uma lista de pastas em vez de uma só</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Arquivo de saída</translation>
    </message>
    <message>
        <source>The file to write the list to</source>
        <translation>O arquivo em que a lista é gravada</translation>
    </message>
    <message>
        <source>Window title</source>
        <translation>Título da janela</translation>
    </message>
    <message>
        <source>The title of the browser window</source>
        <translation>O título da janela do navegador</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>Título da página</translation>
    </message>
    <message>
        <source>The heading of each page</source>
        <translation>O título de cada página</translation>
    </message>
    <message>
        <source>Page footer</source>
        <translation>Rodapé da página</translation>
    </message>
    <message>
        <source>The text at the end of each page</source>
        <translation>O texto no fim de cada página</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>Pastas recentes</translation>
    </message>
    <message>
        <source>Recent output files</source>
        <translation>Arquivos de saída recentes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Arqui&amp;vo</translation>
    </message>
    <message>
        <source>&amp;Open Settings...</source>
        <translation>&amp;Abrir configurações...</translation>
    </message>
    <message>
        <source>Load a settings file</source>
        <translation>Carregar um arquivo de configurações</translation>
    </message>
    <message>
        <source>&amp;Save Settings</source>
        <translation>&amp;Salvar configurações</translation>
    </message>
    <message>
        <source>Save the settings</source>
        <translation>Salvar as configurações</translation>
    </message>
    <message>
        <source>Save Settings &amp;As...</source>
        <translation>Salvar &amp;configurações como...</translation>
    </message>
    <message>
        <source>Save the settings under another name</source>
        <translation>Salvar as configurações com outro nome</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Ajuda</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Tópicos de ajuda</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>Abrir o arquivo de ajuda</translation>
    </message>
    <message>
        <source>&amp;Tip of the Day...</source>
        <translation>&amp;Dica do dia...</translation>
    </message>
    <message>
        <source>Show a tip</source>
        <translation>Mostrar uma dica</translation>
    </message>
    <message>
        <source>&amp;About Tunedex...</source>
        <translation>&amp;Sobre o Tunedex...</translation>
    </message>
    <message>
        <source>Show version and statistics</source>
        <translation>Mostrar a versão e as estatísticas</translation>
    </message>
    <message>
        <source>Placeholders</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Fol&amp;der:</source>
        <translation>&amp;Pasta:</translation>
    </message>
    <message>
        <source>&amp;Output file:</source>
        <translation>Ar&amp;quivo de saída:</translation>
    </message>
    <message>
        <source>Window &amp;title:</source>
        <translation>Título da &amp;janela:</translation>
    </message>
    <message>
        <source>&amp;Page title:</source>
        <translation>&amp;Título da página:</translation>
    </message>
    <message>
        <source>Page foote&amp;r:</source>
        <translation>Rodapé &amp;da página:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>P&amp;rocurar...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Escolher a pasta</translation>
    </message>
    <message>
        <source>Browse for the folder</source>
        <translation>Procurar a pasta</translation>
    </message>
    <message>
        <source>Folder &amp;list...</source>
        <translation>&amp;Lista de pastas...</translation>
    </message>
    <message>
        <source>Edit the list of folders to search</source>
        <translation>Editar a lista de pastas a pesquisar</translation>
    </message>
    <message>
        <source>Folder list</source>
        <translation>Lista de pastas</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Proc&amp;urar...</translation>
    </message>
    <message>
        <source>Choose the folder and name of the list</source>
        <translation>Escolher a pasta e o nome da lista</translation>
    </message>
    <message>
        <source>Browse for the output file</source>
        <translation>Procurar o arquivo de saída</translation>
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
        <translation>Inserir um marcador para a data, a hora, uma contagem ou um tamanho</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>&amp;Inserir...</translation>
    </message>
    <message>
        <source>Placeholders for the window title</source>
        <translation>Marcadores para o título da janela</translation>
    </message>
    <message>
        <source>I&amp;nsert...</source>
        <translation>I&amp;nserir...</translation>
    </message>
    <message>
        <source>Placeholders for the page title</source>
        <translation>Marcadores para o título da página</translation>
    </message>
    <message>
        <source>Ins&amp;ert...</source>
        <translation>Ins&amp;erir...</translation>
    </message>
    <message>
        <source>Placeholders for the page footer</source>
        <translation>Marcadores para o rodapé da página</translation>
    </message>
    <message>
        <source>Titles of web pages</source>
        <translation>Títulos das páginas web</translation>
    </message>
    <message>
        <source>Option&amp;s...</source>
        <translation>&amp;Opções...</translation>
    </message>
    <message>
        <source>Contents and layout of the list</source>
        <translation>Conteúdo e layout da lista</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>So&amp;bre...</translation>
    </message>
    <message>
        <source>About Tunedex</source>
        <translation>Sobre o Tunedex</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Create List</source>
        <translation>&amp;Criar lista</translation>
    </message>
    <message>
        <source>Search the folders and write the list</source>
        <translation>Pesquisar as pastas e gravar a lista</translation>
    </message>
    <message>
        <source>Create list</source>
        <translation>Criar lista</translation>
    </message>
    <message>
        <source>1 folder chosen</source>
        <translation>1 pasta escolhida</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders chosen</source>
        <translation>
            <numerusform>%1 pasta escolhida</numerusform>
            <numerusform>%1 pastas escolhidas</numerusform>
        </translation>
    </message>
    <message>
        <source>One folder</source>
        <translation>Uma pasta</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>Selecionar um diretório</translation>
    </message>
    <message>
        <source>Select the folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Selecione a pasta na qual o Tunedex deve procurar arquivos MP3 e clique em OK.</translation>
    </message>
    <message>
        <source>Select the Output File</source>
        <translation>Selecionar o arquivo de saída</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir configurações</translation>
    </message>
    <message>
        <source>The specified settings file<byte value="xd"/>
does not exist!</source>
        <translation>O arquivo de configurações especificado
não existe!</translation>
    </message>
    <message>
        <source>Save Settings As</source>
        <translation>Salvar configurações como</translation>
    </message>
    <message>
        <source>Saved to %1.</source>
        <translation>Salvo em %1.</translation>
    </message>
    <message>
        <source>Do you really want<byte value="xd"/>
to quit Tunedex?</source>
        <translation>Deseja realmente
sair do Tunedex?</translation>
    </message>
    <message>
        <source>Quit?</source>
        <translation>Sair?</translation>
    </message>
    <message>
        <source>Current date</source>
        <translation>Data atual</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Hora atual</translation>
    </message>
    <message>
        <source>Number of files</source>
        <translation>Número de arquivos</translation>
    </message>
    <message>
        <source>Number of non-tagged files</source>
        <translation>Número de arquivos sem tags</translation>
    </message>
    <message>
        <source>Total size of all files</source>
        <translation>Tamanho total de todos os arquivos</translation>
    </message>
    <message>
        <source>Total play-time of all files</source>
        <translation>Duração total de todos os arquivos</translation>
    </message>
    <message>
        <source>Percent sign</source>
        <translation>Sinal de porcentagem</translation>
    </message>
    <message>
        <source>Line break</source>
        <translation>Quebra de linha</translation>
    </message>
    <message>
        <source>The next list has the look of this theme: %1</source>
        <translation>A próxima lista terá a aparência deste tema: %1</translation>
    </message>
</context>
<context>
    <name>tunedex::frmOptions</name>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Search &amp;subfolders</source>
        <translation>Pes&amp;quisar nas subpastas</translation>
    </message>
    <message>
        <source>Also search the folders below the input folder</source>
        <translation>Pesquisar também nas pastas abaixo da pasta de entrada</translation>
    </message>
    <message>
        <source>Split HTML listings into &amp;pages</source>
        <translation>Dividir as listas &amp;HTML em páginas</translation>
    </message>
    <message>
        <source>Write several linked pages instead of one long page</source>
        <translation>Gravar várias páginas vinculadas em vez de uma página longa</translation>
    </message>
    <message>
        <source>Files per page</source>
        <translation>Arquivos por página</translation>
    </message>
    <message>
        <source>Number of MP3 files on each page</source>
        <translation>Número de arquivos MP3 em cada página</translation>
    </message>
    <message>
        <source>Searching and pages</source>
        <translation>Pesquisa e páginas</translation>
    </message>
    <message>
        <source>&amp;Files per page:</source>
        <translation>&amp;Arquivos por página:</translation>
    </message>
    <message>
        <source>Show file sizes in</source>
        <translation>Mostrar o tamanho dos arquivos em</translation>
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
        <translation>Classificar por artista, álbum e título</translation>
    </message>
    <message>
        <source>&amp;No sorting</source>
        <translation>Não classi&amp;ficar</translation>
    </message>
    <message>
        <source>List files in the order they are found</source>
        <translation>Listar os arquivos na ordem em que são encontrados</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Crescente</translation>
    </message>
    <message>
        <source>A to Z</source>
        <translation>De A a Z</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>&amp;Decrescente</translation>
    </message>
    <message>
        <source>Z to A</source>
        <translation>De Z a A</translation>
    </message>
    <message>
        <source>Show &amp;errors in message boxes</source>
        <translation>Mostrar &amp;os erros em caixas de mensagem</translation>
    </message>
    <message>
        <source>Show a message for each folder or file that cannot be read</source>
        <translation>Mostrar uma mensagem para cada pasta ou arquivo que não pode ser lido</translation>
    </message>
    <message>
        <source>&amp;Write errors to a log file</source>
        <translation>&amp;Gravar os erros em um arquivo de log</translation>
    </message>
    <message>
        <source>Write the errors of the latest run to Tunedex.log in the program folder</source>
        <translation>Gravar os erros da última execução em Tunedex.log, na pasta do programa</translation>
    </message>
    <message>
        <source>Ask before &amp;quitting</source>
        <translation>&amp;Perguntar antes de sair</translation>
    </message>
    <message>
        <source>Ask for confirmation before quitting</source>
        <translation>Pedir confirmação antes de sair</translation>
    </message>
    <message>
        <source>Errors and questions</source>
        <translation>Erros e perguntas</translation>
    </message>
    <message>
        <source>&amp;Link each entry to its file</source>
        <translation>&amp;Vincular cada entrada ao seu arquivo</translation>
    </message>
    <message>
        <source>Add a column with links to the MP3 files</source>
        <translation>Adicionar uma coluna com links para os arquivos MP3</translation>
    </message>
    <message>
        <source>Link prefix</source>
        <translation>Prefixo dos links</translation>
    </message>
    <message>
        <source>Text before every link, for example file:/// or a web address</source>
        <translation>Texto antes de cada link, por exemplo file:/// ou um endereço web</translation>
    </message>
    <message>
        <source>Links in HTML listings</source>
        <translation>Links nas listas HTML</translation>
    </message>
    <message>
        <source>N&amp;ormal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>The full path of the file</source>
        <translation>O caminho completo do arquivo</translation>
    </message>
    <message>
        <source>UN&amp;IX style</source>
        <translation>&amp;Estilo UNIX</translation>
    </message>
    <message>
        <source>A slash and the full path without colons</source>
        <translation>Uma barra e o caminho completo sem dois-pontos</translation>
    </message>
    <message>
        <source>&amp;Relative</source>
        <translation>&amp;Relativo</translation>
    </message>
    <message>
        <source>The path relative to the input folder</source>
        <translation>O caminho relativo à pasta de entrada</translation>
    </message>
    <message>
        <source>Link prefi&amp;x:</source>
        <translation>Prefi&amp;xo dos links:</translation>
    </message>
    <message>
        <source>Reads tags in every encoding, skips what cannot be read, and sorts by album and track.</source>
        <translation>Lê tags em qualquer codificação, ignora o que não pode ser lido e classifica por álbum e faixa.</translation>
    </message>
    <message>
        <source>Modern &amp;tags and lists</source>
        <translation>&amp;Tags e listas modernas</translation>
    </message>
    <message>
        <source>Code page of old tags</source>
        <translation>Página de código das tags antigas</translation>
    </message>
    <message>
        <source>The code page of ID3v1 tags, and of ID3v2 texts that are not Unicode</source>
        <translation>A página de código das tags ID3v1 e dos textos ID3v2 que não estão em Unicode</translation>
    </message>
    <message>
        <source>Tags and lists</source>
        <translation>Tags e listas</translation>
    </message>
    <message>
        <source>Code pa&amp;ge of old tags:</source>
        <translation>Pág&amp;ina de código das tags antigas:</translation>
    </message>
    <message>
        <source>Edit la&amp;yout...</source>
        <translation>Editar la&amp;yout...</translation>
    </message>
    <message>
        <source>Edit columns, fonts, colours, table, document type and themes of HTML listings</source>
        <translation>Editar colunas, fontes, cores, tabela, tipo de documento e temas das listas HTML</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>&amp;Usar</translation>
    </message>
    <message>
        <source>Apply until you quit</source>
        <translation>Aplicar até sair do programa</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Apply, and save all settings as the default</source>
        <translation>Aplicar e salvar todas as configurações como padrão</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>Close without changing anything</source>
        <translation>Fechar sem alterar nada</translation>
    </message>
    <message>
        <source>Use: until you quit. Save: also for the next start and unattended runs.</source>
        <translation>Usar: até sair. Salvar: também para o próximo início e as execuções não assistidas.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Sort by artist, album, disc and track</source>
        <translation>Classificar por artista, álbum, disco e faixa</translation>
    </message>
    <message>
        <source>Files per page must be between -32768 and 32767.</source>
        <translation>O número de arquivos por página deve estar entre -32768 e 32767.</translation>
    </message>
    <message>
        <source>Files per page must be a numeric value.</source>
        <translation>O número de arquivos por página deve ser um valor numérico.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Help &amp;Topics</source>
        <translation>&amp;Tópicos de ajuda</translation>
    </message>
</context>
<context>
    <name>tunedex::frmProgress</name>
    <message>
        <source>The run is over.</source>
        <translation>A execução terminou.</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>&amp;Interromper</translation>
    </message>
    <message>
        <source>Stop the run. Tracks already written stay in the list.</source>
        <translation>Parar a execução. As faixas já gravadas permanecem na lista.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Return to the main window</source>
        <translation>Voltar à janela principal</translation>
    </message>
    <message>
        <source>Creating List</source>
        <translation>Criando a lista</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progresso da execução</translation>
    </message>
</context>
<context>
    <name>tunedex::frmTip</name>
    <message>
        <source>&amp;Show tips at start-up</source>
        <translation>&amp;Mostrar dicas ao iniciar</translation>
    </message>
    <message>
        <source>Show a tip each time the program starts</source>
        <translation>Mostrar uma dica sempre que o programa é iniciado</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>Dica do dia</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>&amp;Próxima dica</translation>
    </message>
    <message>
        <source>Show the next tip</source>
        <translation>Mostrar a próxima dica</translation>
    </message>
    <message>
        <source>Next tip</source>
        <translation>Próxima dica</translation>
    </message>
    <message>
        <source>&amp;Random Tip</source>
        <translation>&amp;Dica aleatória</translation>
    </message>
    <message>
        <source>Show a random tip</source>
        <translation>Mostrar uma dica aleatória</translation>
    </message>
    <message>
        <source>Random tip</source>
        <translation>Dica aleatória</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Save the choice and close the window</source>
        <translation>Salvar a escolha e fechar a janela</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Dica</translation>
    </message>
</context>
</TS>
