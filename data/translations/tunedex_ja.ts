<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>tunedex::CodePageBox</name>
    <message>
        <source>Western</source>
        <translation>西ヨーロッパ言語</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>中央ヨーロッパ言語</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>キリル言語</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8-R)</source>
        <translation>キリル言語 (KOI8-R)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>ギリシャ語</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>トルコ語</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>ヘブライ語</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>アラビア語</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>バルト言語</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>ベトナム語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>タイ語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>簡体字中国語</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>繁体字中国語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
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
        <translation>ページの文字</translation>
    </message>
    <message>
        <source>The colour of the page header/footers</source>
        <translation>ページのヘッダーとフッターの色</translation>
    </message>
    <message>
        <source>Page background</source>
        <translation>ページの背景</translation>
    </message>
    <message>
        <source>The background colour of the page</source>
        <translation>ページの背景色</translation>
    </message>
    <message>
        <source>Table header text</source>
        <translation>表の見出しの文字</translation>
    </message>
    <message>
        <source>The colour of the table headers</source>
        <translation>表の見出しの文字色</translation>
    </message>
    <message>
        <source>Table header background</source>
        <translation>表の見出しの背景</translation>
    </message>
    <message>
        <source>The background colour of the table headers</source>
        <translation>表の見出しの背景色</translation>
    </message>
    <message>
        <source>Cell text</source>
        <translation>セルの文字</translation>
    </message>
    <message>
        <source>The colour of the table cells</source>
        <translation>表のセルの文字色</translation>
    </message>
    <message>
        <source>Cell background</source>
        <translation>セルの背景</translation>
    </message>
    <message>
        <source>The background colour of the table cells</source>
        <translation>表のセルの背景色</translation>
    </message>
    <message>
        <source>Alternate cell text</source>
        <translation>交互のセルの文字</translation>
    </message>
    <message>
        <source>The colour of the alternate table cells</source>
        <translation>表の交互のセルの文字色</translation>
    </message>
    <message>
        <source>Alternate cell background</source>
        <translation>交互のセルの背景</translation>
    </message>
    <message>
        <source>The background colour of the alternate cells</source>
        <translation>交互のセルの背景色</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>The colour of generated links</source>
        <translation>生成されるリンクの色</translation>
    </message>
    <message>
        <source>Table border</source>
        <translation>表の枠線</translation>
    </message>
    <message>
        <source>The colour the main table&apos;s border</source>
        <translation>メインの表の枠線の色</translation>
    </message>
    <message>
        <source>Table cells &amp;use alternating text/background colours</source>
        <translation>表のセルで文字色と背景色を交互に使う(&amp;U)</translation>
    </message>
    <message>
        <source>Alternate between the two colours below for table cells. Aids readability.</source>
        <translation>表のセルに下の 2 組の色を交互に使います。読みやすくなります。</translation>
    </message>
    <message>
        <source>Use CSS fo&amp;r text colours.</source>
        <translation>文字色に CSS を使う(&amp;R)</translation>
    </message>
    <message>
        <source>Write the colours into the page&apos;s style sheet</source>
        <translation>色をページのスタイルシートに書き込みます</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for text colours.</source>
        <translation>文字色に FONT タグを使う(&amp;G)</translation>
    </message>
    <message>
        <source>Write the colours into the markup, for browsers without style sheets</source>
        <translation>スタイルシートに対応していないブラウザー用に、色をマークアップに書き込みます</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>&amp;Page:</source>
        <translation>ページ(&amp;P):</translation>
    </message>
    <message>
        <source>Table header&amp;s:</source>
        <translation>表の見出し(&amp;S):</translation>
    </message>
    <message>
        <source>Table c&amp;ells:</source>
        <translation>表のセル(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Alternate cells:</source>
        <translation>交互のセル(&amp;A):</translation>
    </message>
    <message>
        <source>L&amp;inks:</source>
        <translation>リンク(&amp;I):</translation>
    </message>
    <message>
        <source>Table &amp;border:</source>
        <translation>表の枠線(&amp;B):</translation>
    </message>
    <message>
        <source>RRGGBB</source>
        <translation>RRGGBB</translation>
    </message>
    <message>
        <source>%1: select colour</source>
        <translation>%1: 色の選択</translation>
    </message>
    <message>
        <source>Select a colour from the palette</source>
        <translation>パレットから色を選択します</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers show %1 for it.</source>
        <translation>16 進数 6 桁の色ではありません。ブラウザーでは %1 が表示されます。</translation>
    </message>
    <message>
        <source>This is not a colour of six hexadecimal digits. Browsers ignore it.</source>
        <translation>16 進数 6 桁の色ではありません。ブラウザーでは無視されます。</translation>
    </message>
    <message>
        <source>A marked colour is not six hexadecimal digits. The right half of the button beside it shows what browsers show for it.</source>
        <translation>印の付いた色は 16 進数 6 桁ではありません。横のボタンの右半分に、ブラウザーで表示される色を示します。</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>tunedex::Columns</name>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>再生時間</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>MPEG Type</source>
        <translation>MPEG の種類</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Full Path</source>
        <translation>フルパス</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>アルバムアーティスト</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>作曲者</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
</context>
<context>
    <name>tunedex::ColumnsPage</name>
    <message>
        <source>Hidden columns</source>
        <translation>非表示の列</translation>
    </message>
    <message>
        <source>Columns that are not listed. Double-click or drag one to show it.</source>
        <translation>一覧に出力されない列です。列をダブルクリックするかドラッグすると表示されます。</translation>
    </message>
    <message>
        <source>Shown columns, in display order</source>
        <translation>表示する列 (表示順)</translation>
    </message>
    <message>
        <source>Double-click a column to hide it. Drag it or press Alt+Up or Alt+Down to move it.</source>
        <translation>列をダブルクリックすると非表示になります。ドラッグするか、Alt+↑ または Alt+↓ を押すと移動します。</translation>
    </message>
    <message>
        <source>Hidden colu&amp;mns:</source>
        <translation>非表示の列(&amp;M):</translation>
    </message>
    <message>
        <source>Shown, in this o&amp;rder:</source>
        <translation>表示する列 (表示順)(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Show ›</source>
        <translation>表示(&amp;S) ›</translation>
    </message>
    <message>
        <source>Show the selected hidden column as the last column</source>
        <translation>選択した非表示の列を最後の列として表示します</translation>
    </message>
    <message>
        <source>‹ Hid&amp;e</source>
        <translation>‹ 非表示(&amp;E)</translation>
    </message>
    <message>
        <source>Hide the selected shown column</source>
        <translation>選択した列を非表示にします</translation>
    </message>
    <message>
        <source>Show &amp;all »</source>
        <translation>すべて表示(&amp;A) »</translation>
    </message>
    <message>
        <source>Show every column</source>
        <translation>すべての列を表示します</translation>
    </message>
    <message>
        <source>« H&amp;ide all</source>
        <translation>« すべて非表示(&amp;I)</translation>
    </message>
    <message>
        <source>Hide every column</source>
        <translation>すべての列を非表示にします</translation>
    </message>
    <message>
        <source>To&amp;p</source>
        <translation>先頭へ(&amp;P)</translation>
    </message>
    <message>
        <source>Move the selected shown column to the top</source>
        <translation>選択した列を先頭に移動します</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>Move the selected shown column one place up (Alt+Up)</source>
        <translation>選択した列を 1 つ上に移動します (Alt+↑)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>下へ(&amp;W)</translation>
    </message>
    <message>
        <source>Move the selected shown column one place down (Alt+Down)</source>
        <translation>選択した列を 1 つ下に移動します (Alt+↓)</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>末尾へ(&amp;B)</translation>
    </message>
    <message>
        <source>Move the selected shown column to the bottom</source>
        <translation>選択した列を末尾に移動します</translation>
    </message>
    <message>
        <source>Mer&amp;ge Artist and Title into one column</source>
        <translation>アーティストとタイトルを 1 つの列にまとめる(&amp;G)</translation>
    </message>
    <message>
        <source>Shows “Artist: Title”. Both columns must be shown.</source>
        <translation>「アーティスト: タイトル」と表示します。両方の列が表示されている必要があります。</translation>
    </message>
    <message>
        <source>Ta&amp;ke Album into that column, too</source>
        <translation>アルバムもその列にまとめる(&amp;K)</translation>
    </message>
    <message>
        <source>Shows “Artist (Album): Title”. Requires Artist and Title to be merged.</source>
        <translation>「アーティスト (アルバム): タイトル」と表示します。アーティストとタイトルをまとめておく必要があります。</translation>
    </message>
    <message>
        <source>Displa&amp;y a leading “The” after the artist&apos;s name</source>
        <translation>先頭の「The」をアーティスト名の後に表示する(&amp;Y)</translation>
    </message>
    <message>
        <source>Lists “The Band” as “Band, The”, sorted under B</source>
        <translation>「The Band」を「Band, The」として B の位置に並べます</translation>
    </message>
</context>
<context>
    <name>tunedex::CoreText</name>
    <message>
        <source>Error!</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Tunedex (Automatic Mode)</source>
        <translation>Tunedex (自動モード)</translation>
    </message>
    <message>
        <source>Tunedex Error! (Automatic Mode)</source>
        <translation>Tunedex エラー (自動モード)</translation>
    </message>
    <message>
        <source>The specified directory does not exist!</source>
        <translation>指定されたディレクトリは存在しません。</translation>
    </message>
    <message>
        <source>No input directory specified!</source>
        <translation>入力ディレクトリが指定されていません。</translation>
    </message>
    <message>
        <source>No input directories specified!</source>
        <translation>入力ディレクトリが 1 つも指定されていません。</translation>
    </message>
    <message>
        <source>No output file specified!</source>
        <translation>出力ファイルが指定されていません。</translation>
    </message>
    <message>
        <source>The output directory does not exist!

Do you want to create it?</source>
        <translation>出力ディレクトリが存在しません。

作成しますか?</translation>
    </message>
    <message>
        <source>No MP3 files!</source>
        <translation>MP3 ファイルがありません</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directory specified.</source>
        <translation>指定されたディレクトリに
MP3 ファイルは見つかりませんでした。</translation>
    </message>
    <message>
        <source>No MP3 files were found
in the directories specified.</source>
        <translation>指定された複数のディレクトリに
MP3 ファイルは見つかりませんでした。</translation>
    </message>
    <message>
        <source>An error occurred verifying your input directory.

This could be because you do not have permission
to access the directory, or you may be attempting
to use a non-existent network share.</source>
        <translation>入力ディレクトリの確認中にエラーが発生しました。

ディレクトリへのアクセス権がないか、
存在しないネットワーク共有を
使おうとしている可能性があります。</translation>
    </message>
    <message>
        <source>An unexpected error occurred. The error was: 

Error number %1 - %2</source>
        <translation>予期しないエラーが発生しました。エラーの内容: 

エラー番号 %1 - %2</translation>
    </message>
    <message>
        <source>An error occurred scanning the directory: 

%1

%2: %3</source>
        <translation>次のディレクトリのスキャン中にエラーが発生しました: 

%1

%2: %3</translation>
    </message>
    <message>
        <source>An error occurred decoding the headers of: 

%1</source>
        <translation>次のファイルのヘッダーのデコード中にエラーが発生しました: 

%1</translation>
    </message>
    <message>
        <source>A settings file cannot hold a line break.
These settings were not saved:

%1</source>
        <translation>設定ファイルに改行を含めることはできません。
次の設定は保存されませんでした:

%1</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>プロシージャの呼び出しまたは引数が不正です</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>オーバーフローしました</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>メモリが不足しています</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>インデックスが範囲外です</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>0 で除算しました</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>型が一致しません</translation>
    </message>
    <message>
        <source>Bad file name or number</source>
        <translation>ファイル名またはファイル番号が不正です</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>デバイス I/O エラーです</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>ディスクの空き容量が不足しています</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>ファイルの終端を越えて読み取ろうとしました</translation>
    </message>
    <message>
        <source>Too many files</source>
        <translation>ファイルが多すぎます</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>パスまたはファイルのアクセスエラーです</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>パスが見つかりません</translation>
    </message>
    <message>
        <source>Searching for MP3 files...</source>
        <translation>MP3 ファイルを検索しています...</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information...</source>
        <translation>MPEG/ID3 情報を取得しています...</translation>
    </message>
    <message>
        <source>Sorting information...</source>
        <translation>情報を並べ替えています...</translation>
    </message>
    <message>
        <source>Writing information...</source>
        <translation>情報を書き込んでいます...</translation>
    </message>
    <message>
        <source>Operation complete!</source>
        <translation>処理が完了しました。</translation>
    </message>
    <message>
        <source>Retrieving MPEG/ID3 information (%1/%2)...</source>
        <translation>MPEG/ID3 情報を取得しています (%1/%2)...</translation>
    </message>
    <message>
        <source>Writing entry for file %1/%2...</source>
        <translation>ファイル %1/%2 の項目を書き込んでいます...</translation>
    </message>
    <message>
        <source>Writing index entry for file %1/%2...</source>
        <translation>ファイル %1/%2 の索引項目を書き込んでいます...</translation>
    </message>
</context>
<context>
    <name>tunedex::Dialogs</name>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;No more messages in this run</source>
        <translation>この実行中は以後メッセージを表示しない(&amp;N)</translation>
    </message>
    <message>
        <source>Errors still go to the log, if the options ask for one</source>
        <translation>オプションで指定されていれば、エラーは引き続きログに記録されます</translation>
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
        <translation>アルバムごとにまとめる(&amp;G)</translation>
    </message>
    <message>
        <source>Show a heading for each album (HTML5 only)</source>
        <translation>アルバムごとに見出しを表示します (HTML5 のみ)</translation>
    </message>
    <message>
        <source>Document type</source>
        <translation>文書の種類</translation>
    </message>
    <message>
        <source>The document type of HTML listings</source>
        <translation>HTML 一覧の文書の種類</translation>
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
        <translation>文書の種類(&amp;U):</translation>
    </message>
</context>
<context>
    <name>tunedex::FontsPage</name>
    <message>
        <source>Page heading and text</source>
        <translation>ページの見出しと本文</translation>
    </message>
    <message>
        <source>Table headers</source>
        <translation>表の見出し</translation>
    </message>
    <message>
        <source>Table cells</source>
        <translation>表のセル</translation>
    </message>
    <message>
        <source>&amp;Use CSS for fonts.</source>
        <translation>フォントに CSS を使う(&amp;U)</translation>
    </message>
    <message>
        <source>Write the fonts into the page&apos;s style sheet</source>
        <translation>フォントをページのスタイルシートに書き込みます</translation>
    </message>
    <message>
        <source>Use FONT ta&amp;gs for fonts.</source>
        <translation>フォントに FONT タグを使う(&amp;G)</translation>
    </message>
    <message>
        <source>Write the fonts into the markup, for browsers without style sheets</source>
        <translation>スタイルシートに対応していないブラウザー用に、フォントをマークアップに書き込みます</translation>
    </message>
    <message>
        <source>%1: typefaces</source>
        <translation>%1: 書体</translation>
    </message>
    <message>
        <source>Typefaces in order of preference, separated by commas</source>
        <translation>優先順の書体 (コンマ区切り)</translation>
    </message>
    <message>
        <source>%1: size</source>
        <translation>%1: サイズ</translation>
    </message>
    <message>
        <source>1 (smallest) to 7 (largest). 3 is the size of normal text.</source>
        <translation>1 (最小) から 7 (最大) まで。3 が標準の文字サイズです。</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>太字(&amp;B)</translation>
    </message>
    <message>
        <source>%1 in bold type</source>
        <translation>%1を太字にします</translation>
    </message>
    <message>
        <source>%1: bold</source>
        <translation>%1: 太字</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>%1 in italic type</source>
        <translation>%1を斜体にします</translation>
    </message>
    <message>
        <source>%1: italic</source>
        <translation>%1: 斜体</translation>
    </message>
    <message>
        <source>&amp;Select...</source>
        <translation>選択(&amp;S)...</translation>
    </message>
    <message>
        <source>Select a font installed on this computer</source>
        <translation>このコンピューターにインストールされているフォントを選択します</translation>
    </message>
    <message>
        <source>%1: select font</source>
        <translation>%1: フォントの選択</translation>
    </message>
    <message>
        <source>T&amp;ypefaces:</source>
        <translation>書体(&amp;Y):</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>サイズ(&amp;Z):</translation>
    </message>
</context>
<context>
    <name>tunedex::OpenHelp</name>
    <message>
        <source>No program could be found to open<byte value="xd"/>
%1</source>
        <translation>次の項目を開くプログラムが見つかりませんでした:
%1</translation>
    </message>
    <message>
        <source>The help file could not be found!</source>
        <translation>ヘルプファイルが見つかりませんでした。</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
does not exist any more!</source>
        <translation>%1
はもう存在しません。</translation>
    </message>
</context>
<context>
    <name>tunedex::OutputHint</name>
    <message>
        <source>The extension sets the format: .htm web page, .txt or .csv table, .m3u playlist.</source>
        <translation>拡張子で形式が決まります: .htm Web ページ、.txt または .csv 表、.m3u プレイリスト。</translation>
    </message>
    <message>
        <source>The extension sets the format: .htm web page, .txt plain text, .m3u playlist.</source>
        <translation>拡張子で形式が決まります: .htm Web ページ、.txt テキスト、.m3u プレイリスト。</translation>
    </message>
    <message>
        <source>Only modern tags and lists know %1.</source>
        <translation>%1 に対応しているのは新しいタグと一覧だけです。</translation>
    </message>
    <message>
        <source>%1 is not the extension of a format.</source>
        <translation>%1 に対応する形式はありません。</translation>
    </message>
    <message>
        <source>The existing list will be replaced.</source>
        <translation>既存の一覧は置き換えられます。</translation>
    </message>
    <message>
        <source>Writes %1.</source>
        <translation>%1 に書き込みます。</translation>
    </message>
    <message numerus="yes">
        <source>Writes %1 … (%2 files a page).</source>
        <translation>
            <numerusform>%1 … に書き込みます (1 ページに %2 ファイル)。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::PreviewPane</name>
    <message>
        <source>&lt;p&gt;There is no preview: a listing cannot be written with this layout (%1).&lt;/p&gt;</source>
        <translation>&lt;p&gt;プレビューを表示できません: このレイアウトでは一覧を書き込めません (%1)。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;If Album is merged, it must not come before both Artist and Title.&lt;/p&gt;</source>
        <translation>&lt;p&gt;アルバムをまとめる場合、アルバムをアーティストとタイトルの両方より前に置くことはできません。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Preview of colours, fonts and columns. Only a browser shows search, sorting, album headings and the colours for the other (dark or light) setting.</source>
        <translation>色、フォント、列のプレビューです。検索、並べ替え、アルバムの見出し、もう一方の設定 (ダークまたはライト) の色は、ブラウザーでのみ表示されます。</translation>
    </message>
    <message>
        <source>Preview with sample tracks</source>
        <translation>サンプルトラックによるプレビュー</translation>
    </message>
    <message>
        <source>Open sample in browser</source>
        <translation>サンプルをブラウザーで開く</translation>
    </message>
    <message>
        <source>Open a sample listing with this layout in your browser (Ctrl+B)</source>
        <translation>このレイアウトのサンプル一覧をブラウザーで開きます (Ctrl+B)</translation>
    </message>
    <message>
        <source>Preview of the listing</source>
        <translation>一覧のプレビュー</translation>
    </message>
    <message>
        <source>Sample tracks, listed with the layout shown here</source>
        <translation>ここに示すレイアウトで出力したサンプルトラック</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background, because browsers ignore the style sheet of XHTML listings. To mend it, tick “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>ブラウザーは XHTML の一覧のスタイルシートを無視するため、背景に対して読みにくい文字があります。直すには、「色」ページの「文字色に FONT タグを使う」をオンにしてください。</translation>
    </message>
    <message>
        <source>Some text is hard to read on its background. To mend it, tick “Use CSS for text colours.” or “Use FONT tags for text colours.” on the page Colours.</source>
        <translation>背景に対して読みにくい文字があります。直すには、「色」ページの「文字色に CSS を使う」または「文字色に FONT タグを使う」をオンにしてください。</translation>
    </message>
    <message>
        <source>Preview: browsers ignore the style sheet of XHTML listings. Tick “Use FONT tags” on the pages Fonts and Colours instead.</source>
        <translation>プレビュー: ブラウザーは XHTML の一覧のスタイルシートを無視します。代わりに「フォント」と「色」のページで FONT タグをオンにしてください。</translation>
    </message>
    <message>
        <source>Preview of the theme “%1”, which is not loaded.</source>
        <translation>読み込まれていないテーマ「%1」のプレビューです。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>tunedex::ProgressMonitor</name>
    <message>
        <source>1 file found</source>
        <translation>1 個のファイルが見つかりました</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 個のファイルが見つかりました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files a second, %2 left</source>
        <translation>
            <numerusform>毎秒 %1 ファイル、残り %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::RecentButton</name>
    <message>
        <source>%1 (Alt+Down in the field)</source>
        <translation>%1 (フィールドで Alt+↓)</translation>
    </message>
    <message>
        <source>&amp;Clear this list</source>
        <translation>この一覧を消去(&amp;C)</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultPanel</name>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open the list (Ctrl+L)</source>
        <translation>一覧を開きます (Ctrl+L)</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>フォルダーを表示</translation>
    </message>
    <message>
        <source>Open the list&apos;s folder (Ctrl+Shift+L)</source>
        <translation>一覧のフォルダーを開きます (Ctrl+Shift+L)</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>Switch on “Modern tags and lists” (Ctrl+M)</source>
        <translation>「新しいタグと一覧」を有効にします (Ctrl+M)</translation>
    </message>
    <message>
        <source>Switch on Modern tags and lists</source>
        <translation>新しいタグと一覧を有効にする</translation>
    </message>
</context>
<context>
    <name>tunedex::ResultText</name>
    <message>
        <source>1 track</source>
        <translation>1 トラック</translation>
    </message>
    <message numerus="yes">
        <source>%1 tracks</source>
        <translation>
            <numerusform>%1 トラック</numerusform>
        </translation>
    </message>
    <message>
        <source>1 page</source>
        <translation>1 ページ</translation>
    </message>
    <message numerus="yes">
        <source>%1 pages</source>
        <translation>
            <numerusform>%1 ページ</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 個のフォルダー</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 個のフォルダー</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 個のファイル</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>The run was aborted. %1 has the tracks that were written.</source>
        <translation>実行は中止されました。%1 には書き込み済みのトラックが含まれています。</translation>
    </message>
    <message>
        <source>The run was aborted. No list was written.</source>
        <translation>実行は中止されました。一覧は書き込まれませんでした。</translation>
    </message>
    <message>
        <source>No MP3 files were found. No list was written.</source>
        <translation>MP3 ファイルは見つかりませんでした。一覧は書き込まれませんでした。</translation>
    </message>
    <message>
        <source>The run failed: %1. No complete list was written.</source>
        <translation>実行は失敗しました: %1。完全な一覧は書き込まれませんでした。</translation>
    </message>
    <message>
        <source>Wrote %1: %2 on %3.</source>
        <translation>%1 に書き込みました: %2 (%3)。</translation>
    </message>
    <message>
        <source>Wrote %1: %2.</source>
        <translation>%1 に書き込みました: %2。</translation>
    </message>
    <message>
        <source>%1 and %2 could not be read.</source>
        <translation>%1と%2を読み取れませんでした。</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>%1を読み取れませんでした。</translation>
    </message>
    <message>
        <source>&apos;Modern tags and lists&apos; is on now: create the list again.</source>
        <translation>「新しいタグと一覧」が有効になりました。一覧をもう一度作成してください。</translation>
    </message>
    <message>
        <source>1 file has tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>1 個のファイルに、「新しいタグと一覧」なら正しく読み取れるタグがあります。</translation>
    </message>
    <message numerus="yes">
        <source>%1 files have tags that &apos;Modern tags and lists&apos; would read correctly.</source>
        <translation>
            <numerusform>%1 個のファイルに、「新しいタグと一覧」なら正しく読み取れるタグがあります。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::Statistics</name>
    <message>
        <source>Tunedex was first started on %1 and has been started %2 since.</source>
        <translation>Tunedex は %1 に初めて起動され、これまでに %2起動されました。</translation>
    </message>
    <message>
        <source>It has created %1, and handled %2.</source>
        <translation>%1を作成し、%2を処理しました。</translation>
    </message>
    <message>
        <source>%1 time</source>
        <translation>%1 回</translation>
    </message>
    <message numerus="yes">
        <source>%1 times</source>
        <translation>
            <numerusform>%1 回</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 list</source>
        <translation>%1 個の一覧</translation>
    </message>
    <message numerus="yes">
        <source>%1 lists</source>
        <translation>
            <numerusform>%1 個の一覧</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 MP3 file</source>
        <translation>%1 個の MP3 ファイル</translation>
    </message>
    <message numerus="yes">
        <source>%1 MP3 files</source>
        <translation>
            <numerusform>%1 個の MP3 ファイル</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::TablePage</name>
    <message>
        <source>Table width</source>
        <translation>表の幅</translation>
    </message>
    <message>
        <source>Width of the table</source>
        <translation>表の幅</translation>
    </message>
    <message>
        <source>Border size</source>
        <translation>枠線の太さ</translation>
    </message>
    <message>
        <source>Width of the lines between the cells, in pixels</source>
        <translation>セル間の線の幅 (ピクセル)</translation>
    </message>
    <message>
        <source>Cell padding</source>
        <translation>セルの余白</translation>
    </message>
    <message>
        <source>Space between a cell&apos;s border and its text, in pixels</source>
        <translation>セルの枠線と文字の間隔 (ピクセル)</translation>
    </message>
    <message>
        <source>Pi&amp;xels</source>
        <translation>ピクセル(&amp;X)</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>幅をピクセルで指定します</translation>
    </message>
    <message>
        <source>Pe&amp;r cent</source>
        <translation>パーセント(&amp;R)</translation>
    </message>
    <message>
        <source>Width as a percentage of the page&apos;s width</source>
        <translation>ページの幅に対する割合で幅を指定します</translation>
    </message>
    <message>
        <source>Table &amp;width:</source>
        <translation>表の幅(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Border size:</source>
        <translation>枠線の太さ(&amp;B):</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>Cell &amp;padding:</source>
        <translation>セルの余白(&amp;P):</translation>
    </message>
    <message>
        <source>The table width must be a numeric value.</source>
        <translation>表の幅には数値を指定してください。</translation>
    </message>
    <message>
        <source>The table width must be between -32768 and 32767.</source>
        <translation>表の幅には -32768 から 32767 までの値を指定してください。</translation>
    </message>
    <message>
        <source>The table border size must be a numeric value.</source>
        <translation>表の枠線の太さには数値を指定してください。</translation>
    </message>
    <message>
        <source>The table border size must be between -32768 and 32767.</source>
        <translation>表の枠線の太さには -32768 から 32767 までの値を指定してください。</translation>
    </message>
    <message>
        <source>The table cell padding must be a numeric value.</source>
        <translation>表のセルの余白には数値を指定してください。</translation>
    </message>
    <message>
        <source>The table cell padding must be between -32768 and 32767.</source>
        <translation>表のセルの余白には -32768 から 32767 までの値を指定してください。</translation>
    </message>
</context>
<context>
    <name>tunedex::ThemePanel</name>
    <message>
        <source>Save Theme</source>
        <translation>テーマの保存</translation>
    </message>
    <message>
        <source>This cannot be the name of a theme.<byte value="xd"/>
<byte value="xd"/>
A name must be short enough for a file name, without a slash,<byte value="xd"/>
and neither &quot;.&quot; nor &quot;..&quot;.</source>
        <translation>テーマの名前として使えません。

名前はファイル名として使える長さにしてください。スラッシュは使えません。
「.」と「..」も使えません。</translation>
    </message>
    <message>
        <source>Themes</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Lo&amp;ad theme</source>
        <translation>テーマを読み込む(&amp;A)</translation>
    </message>
    <message>
        <source>Apply the selected theme&apos;s fonts, colours and table settings immediately</source>
        <translation>選択したテーマのフォント、色、表の設定をすぐに適用します</translation>
    </message>
    <message>
        <source>&amp;Save theme...</source>
        <translation>テーマを保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Save the fonts, colours and table settings shown here as a theme</source>
        <translation>ここに示すフォント、色、表の設定をテーマとして保存します</translation>
    </message>
    <message>
        <source>Delete the&amp;me...</source>
        <translation>テーマを削除(&amp;M)...</translation>
    </message>
    <message>
        <source>Delete the selected theme&apos;s file</source>
        <translation>選択したテーマのファイルを削除します</translation>
    </message>
    <message>
        <source>Themes are preset colour, font, and table settings that you can import into your own settings.

You can also export your own settings as a theme.</source>
        <translation>テーマは、色、フォント、表のあらかじめ用意された設定で、自分の設定に取り込むことができます。

自分の設定をテーマとして書き出すこともできます。</translation>
    </message>
    <message>
        <source>Availa&amp;ble themes:</source>
        <translation>使用可能なテーマ(&amp;B):</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Theme loaded successfully.</source>
        <translation>テーマを読み込みました。</translation>
    </message>
    <message>
        <source>Please enter a name for your theme:</source>
        <translation>テーマの名前を入力してください:</translation>
    </message>
    <message>
        <source>Theme saved successfully.</source>
        <translation>テーマを保存しました。</translation>
    </message>
    <message>
        <source>This theme already exists!<byte value="xd"/>
<byte value="xd"/>
Overwrite?</source>
        <translation>このテーマは既に存在します。

上書きしますか?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete<byte value="xd"/>
the %1 theme?<byte value="xd"/>
<byte value="xd"/>
You cannot recover it afterwards!</source>
        <translation>テーマ %1 を
削除しますか?

削除すると元に戻せません。</translation>
    </message>
    <message>
        <source>Delete Theme</source>
        <translation>テーマの削除</translation>
    </message>
    <message>
        <source>Select a theme to preview it. Press Enter or double-click to load it.</source>
        <translation>テーマを選択するとプレビューが表示されます。Enter キーを押すかダブルクリックすると読み込まれます。</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>tunedex::frmAbout</name>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>Version %1.%2 - Build %3</source>
        <translation>バージョン %1.%2 - ビルド %3</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>ホームページ</translation>
    </message>
    <message>
        <source>E-mail the author</source>
        <translation>作者にメール</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>ウィンドウを閉じます</translation>
    </message>
    <message>
        <source>&amp;Home page</source>
        <translation>ホームページ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;E-mail the author</source>
        <translation>作者にメール(&amp;E)</translation>
    </message>
</context>
<context>
    <name>tunedex::frmDirSelection</name>
    <message>
        <source>Folders to Search</source>
        <translation>検索するフォルダー</translation>
    </message>
    <message>
        <source>&amp;Folders, in search order:</source>
        <translation>フォルダー (検索順)(&amp;F):</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>The folders to search, in order. Folders can be dropped here.</source>
        <translation>検索するフォルダー (検索順)。ここにフォルダーをドロップできます。</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>追加(&amp;A)...</translation>
    </message>
    <message>
        <source>Append a folder to the list</source>
        <translation>一覧の最後にフォルダーを追加します</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>追加...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Remove the selected folder from the list</source>
        <translation>選択したフォルダーを一覧から削除します</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>クリア(&amp;C)</translation>
    </message>
    <message>
        <source>Remove all folders from the list</source>
        <translation>すべてのフォルダーを一覧から削除します</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>先頭へ(&amp;T)</translation>
    </message>
    <message>
        <source>Move the selected folder to the top</source>
        <translation>選択したフォルダーを先頭に移動します</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>Move the selected folder one row up</source>
        <translation>選択したフォルダーを 1 行上に移動します</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <source>Move the selected folder one row down</source>
        <translation>選択したフォルダーを 1 行下に移動します</translation>
    </message>
    <message>
        <source>&amp;Bottom</source>
        <translation>末尾へ(&amp;B)</translation>
    </message>
    <message>
        <source>Move the selected folder to the bottom</source>
        <translation>選択したフォルダーを末尾に移動します</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>ヘルプファイルを開きます</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>Use this list and close the window</source>
        <translation>この一覧を使い、ウィンドウを閉じます</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>キャンセル(&amp;L)</translation>
    </message>
    <message>
        <source>Close the window without using this list</source>
        <translation>この一覧を使わずにウィンドウを閉じます</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>ディレクトリの選択</translation>
    </message>
    <message>
        <source>Select a folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Tunedex で MP3 ファイルを検索するフォルダーを選択し、[OK] をクリックしてください。</translation>
    </message>
    <message>
        <source>Are you sure you want<byte value="xd"/>
to clear the list?</source>
        <translation>一覧を
クリアしますか?</translation>
    </message>
    <message>
        <source>Clear Directories?</source>
        <translation>ディレクトリのクリア</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 個のフォルダー</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 個のフォルダー</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tunedex::frmEditLayout</name>
    <message>
        <source>Edit Layout</source>
        <translation>レイアウトの編集</translation>
    </message>
    <message>
        <source>Pages of the layout editor</source>
        <translation>レイアウトエディターのページ</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Fonts</source>
        <translation>フォント(&amp;F)</translation>
    </message>
    <message>
        <source>Co&amp;lours</source>
        <translation>色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>表(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Document and themes</source>
        <translation>文書とテーマ(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>ヘルプファイルを開きます</translation>
    </message>
    <message>
        <source>Show pre&amp;view</source>
        <translation>プレビューを表示(&amp;V)</translation>
    </message>
    <message>
        <source>Show a sample listing with this layout</source>
        <translation>このレイアウトのサンプル一覧を表示します</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>Use this layout</source>
        <translation>このレイアウトを使います</translation>
    </message>
    <message>
        <source>Ca&amp;ncel</source>
        <translation>キャンセル(&amp;N)</translation>
    </message>
    <message>
        <source>Discard all changes except a loaded theme</source>
        <translation>読み込んだテーマ以外の変更をすべて破棄します</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes here and in the options.</source>
        <translation>テーマを読み込むと、ここと「オプション」での変更は破棄されます。</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes to the layout.</source>
        <translation>テーマを読み込むと、レイアウトの変更は破棄されます。</translation>
    </message>
    <message>
        <source>Loading a theme discards your changes in the options.</source>
        <translation>テーマを読み込むと、「オプション」での変更は破棄されます。</translation>
    </message>
</context>
<context>
    <name>tunedex::frmMain</name>
    <message>
        <source>HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|Winamp Playlist (*.m3u)|*.m3u|</source>
        <translation>HTML ファイル (*.htm,*.html)|*.htm;*.html|テキストファイル (*.txt)|*.txt|Winamp プレイリスト (*.m3u)|*.m3u|</translation>
    </message>
    <message>
        <source>CSV File (*.csv)|*.csv|UTF-8 Playlist (*.m3u8)|*.m3u8|</source>
        <translation>CSV ファイル (*.csv)|*.csv|UTF-8 プレイリスト (*.m3u8)|*.m3u8|</translation>
    </message>
    <message>
        <source>Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*</source>
        <translation>設定ファイル (*.cfg)|*.cfg|すべてのファイル (*.*)|*.*</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>The folder to search for MP3 files. Folders can be dropped here.</source>
        <translation>MP3 ファイルを検索するフォルダー。ここにフォルダーをドロップできます。</translation>
    </message>
    <message>
        <source>Search &amp;multiple folders</source>
        <translation>複数のフォルダーを検索(&amp;M)</translation>
    </message>
    <message>
        <source>Search a list of folders instead of one</source>
        <translation>1 つのフォルダーの代わりにフォルダーの一覧を検索します</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>出力ファイル</translation>
    </message>
    <message>
        <source>The file to write the list to</source>
        <translation>一覧を書き込むファイル</translation>
    </message>
    <message>
        <source>Window title</source>
        <translation>ウィンドウのタイトル</translation>
    </message>
    <message>
        <source>The title of the browser window</source>
        <translation>ブラウザーのウィンドウのタイトル</translation>
    </message>
    <message>
        <source>Page title</source>
        <translation>ページのタイトル</translation>
    </message>
    <message>
        <source>The heading of each page</source>
        <translation>各ページの見出し</translation>
    </message>
    <message>
        <source>Page footer</source>
        <translation>ページのフッター</translation>
    </message>
    <message>
        <source>The text at the end of each page</source>
        <translation>各ページの末尾の文字列</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>最近使ったフォルダー</translation>
    </message>
    <message>
        <source>Recent output files</source>
        <translation>最近使った出力ファイル</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open Settings...</source>
        <translation>設定を開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Load a settings file</source>
        <translation>設定ファイルを読み込みます</translation>
    </message>
    <message>
        <source>&amp;Save Settings</source>
        <translation>設定を保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save the settings</source>
        <translation>設定を保存します</translation>
    </message>
    <message>
        <source>Save Settings &amp;As...</source>
        <translation>名前を付けて設定を保存(&amp;A)...</translation>
    </message>
    <message>
        <source>Save the settings under another name</source>
        <translation>設定を別の名前で保存します</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Quit the program</source>
        <translation>プログラムを終了します</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>ヘルプトピック(&amp;H)</translation>
    </message>
    <message>
        <source>Open the help file</source>
        <translation>ヘルプファイルを開きます</translation>
    </message>
    <message>
        <source>&amp;Tip of the Day...</source>
        <translation>今日のヒント(&amp;T)...</translation>
    </message>
    <message>
        <source>Show a tip</source>
        <translation>ヒントを表示します</translation>
    </message>
    <message>
        <source>&amp;About Tunedex...</source>
        <translation>Tunedex について(&amp;A)...</translation>
    </message>
    <message>
        <source>Show version and statistics</source>
        <translation>バージョンと統計を表示します</translation>
    </message>
    <message>
        <source>Placeholders</source>
        <translation>プレースホルダー</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Fol&amp;der:</source>
        <translation>フォルダー(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;Output file:</source>
        <translation>出力ファイル(&amp;O):</translation>
    </message>
    <message>
        <source>Window &amp;title:</source>
        <translation>ウィンドウのタイトル(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Page title:</source>
        <translation>ページのタイトル(&amp;P):</translation>
    </message>
    <message>
        <source>Page foote&amp;r:</source>
        <translation>ページのフッター(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>フォルダーを選択します</translation>
    </message>
    <message>
        <source>Browse for the folder</source>
        <translation>フォルダーの参照</translation>
    </message>
    <message>
        <source>Folder &amp;list...</source>
        <translation>フォルダー一覧(&amp;L)...</translation>
    </message>
    <message>
        <source>Edit the list of folders to search</source>
        <translation>検索するフォルダーの一覧を編集します</translation>
    </message>
    <message>
        <source>Folder list</source>
        <translation>フォルダー一覧</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音楽</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>参照(&amp;W)...</translation>
    </message>
    <message>
        <source>Choose the folder and name of the list</source>
        <translation>一覧のフォルダーと名前を選択します</translation>
    </message>
    <message>
        <source>Browse for the output file</source>
        <translation>出力ファイルの参照</translation>
    </message>
    <message>
        <source>List</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>%1 v%2 - %3[*]</source>
        <translation>%1 v%2 - %3[*]</translation>
    </message>
    <message>
        <source>Insert a placeholder for the date, the time, a count or a size</source>
        <translation>日付、時刻、個数、サイズのプレースホルダーを挿入します</translation>
    </message>
    <message>
        <source>&amp;Insert...</source>
        <translation>挿入(&amp;I)...</translation>
    </message>
    <message>
        <source>Placeholders for the window title</source>
        <translation>ウィンドウのタイトルのプレースホルダー</translation>
    </message>
    <message>
        <source>I&amp;nsert...</source>
        <translation>挿入(&amp;N)...</translation>
    </message>
    <message>
        <source>Placeholders for the page title</source>
        <translation>ページのタイトルのプレースホルダー</translation>
    </message>
    <message>
        <source>Ins&amp;ert...</source>
        <translation>挿入(&amp;E)...</translation>
    </message>
    <message>
        <source>Placeholders for the page footer</source>
        <translation>ページのフッターのプレースホルダー</translation>
    </message>
    <message>
        <source>Titles of web pages</source>
        <translation>Web ページのタイトル</translation>
    </message>
    <message>
        <source>Option&amp;s...</source>
        <translation>オプション(&amp;S)...</translation>
    </message>
    <message>
        <source>Contents and layout of the list</source>
        <translation>一覧の内容とレイアウト</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>バージョン情報(&amp;A)...</translation>
    </message>
    <message>
        <source>About Tunedex</source>
        <translation>Tunedex について</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Create List</source>
        <translation>一覧を作成(&amp;C)</translation>
    </message>
    <message>
        <source>Search the folders and write the list</source>
        <translation>フォルダーを検索し、一覧を書き込みます</translation>
    </message>
    <message>
        <source>Create list</source>
        <translation>一覧を作成</translation>
    </message>
    <message>
        <source>1 folder chosen</source>
        <translation>1 個のフォルダーを選択済み</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders chosen</source>
        <translation>
            <numerusform>%1 個のフォルダーを選択済み</numerusform>
        </translation>
    </message>
    <message>
        <source>One folder</source>
        <translation>1 つのフォルダー</translation>
    </message>
    <message>
        <source>Select a Directory</source>
        <translation>ディレクトリの選択</translation>
    </message>
    <message>
        <source>Select the folder that you would like Tunedex to scan for MP3 files, and click OK.</source>
        <translation>Tunedex で MP3 ファイルを検索するフォルダーを選択し、[OK] をクリックしてください。</translation>
    </message>
    <message>
        <source>Select the Output File</source>
        <translation>出力ファイルの選択</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>The specified settings file<byte value="xd"/>
does not exist!</source>
        <translation>指定された設定ファイルは
存在しません。</translation>
    </message>
    <message>
        <source>Save Settings As</source>
        <translation>名前を付けて設定を保存</translation>
    </message>
    <message>
        <source>Saved to %1.</source>
        <translation>%1 に保存しました。</translation>
    </message>
    <message>
        <source>Do you really want<byte value="xd"/>
to quit Tunedex?</source>
        <translation>Tunedex を
終了しますか?</translation>
    </message>
    <message>
        <source>Quit?</source>
        <translation>終了の確認</translation>
    </message>
    <message>
        <source>Current date</source>
        <translation>現在の日付</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>現在の時刻</translation>
    </message>
    <message>
        <source>Number of files</source>
        <translation>ファイルの数</translation>
    </message>
    <message>
        <source>Number of non-tagged files</source>
        <translation>タグのないファイルの数</translation>
    </message>
    <message>
        <source>Total size of all files</source>
        <translation>全ファイルの合計サイズ</translation>
    </message>
    <message>
        <source>Total play-time of all files</source>
        <translation>全ファイルの合計再生時間</translation>
    </message>
    <message>
        <source>Percent sign</source>
        <translation>パーセント記号</translation>
    </message>
    <message>
        <source>Line break</source>
        <translation>改行</translation>
    </message>
    <message>
        <source>The next list has the look of this theme: %1</source>
        <translation>次の一覧はこのテーマで表示されます: %1</translation>
    </message>
</context>
<context>
    <name>tunedex::frmOptions</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Search &amp;subfolders</source>
        <translation>サブフォルダーを検索(&amp;S)</translation>
    </message>
    <message>
        <source>Also search the folders below the input folder</source>
        <translation>入力フォルダーの下にあるフォルダーも検索します</translation>
    </message>
    <message>
        <source>Split HTML listings into &amp;pages</source>
        <translation>HTML 一覧を複数のページに分割(&amp;P)</translation>
    </message>
    <message>
        <source>Write several linked pages instead of one long page</source>
        <translation>1 つの長いページの代わりに、リンクされた複数のページを書き込みます</translation>
    </message>
    <message>
        <source>Files per page</source>
        <translation>1 ページのファイル数</translation>
    </message>
    <message>
        <source>Number of MP3 files on each page</source>
        <translation>各ページの MP3 ファイルの数</translation>
    </message>
    <message>
        <source>Searching and pages</source>
        <translation>検索とページ</translation>
    </message>
    <message>
        <source>&amp;Files per page:</source>
        <translation>1 ページのファイル数(&amp;F):</translation>
    </message>
    <message>
        <source>Show file sizes in</source>
        <translation>ファイルサイズの単位</translation>
    </message>
    <message>
        <source>&amp;Bytes</source>
        <translation>バイト(&amp;B)</translation>
    </message>
    <message>
        <source>1,234,567 b.</source>
        <translation>1,234,567 b.</translation>
    </message>
    <message>
        <source>&amp;Kilobytes</source>
        <translation>キロバイト(&amp;K)</translation>
    </message>
    <message>
        <source>1,205.63 kB</source>
        <translation>1,205.63 kB</translation>
    </message>
    <message>
        <source>&amp;Megabytes</source>
        <translation>メガバイト(&amp;M)</translation>
    </message>
    <message>
        <source>1.18 MB</source>
        <translation>1.18 MB</translation>
    </message>
    <message>
        <source>Sort by artist, album and title</source>
        <translation>アーティスト、アルバム、タイトルで並べ替え</translation>
    </message>
    <message>
        <source>&amp;No sorting</source>
        <translation>並べ替えない(&amp;N)</translation>
    </message>
    <message>
        <source>List files in the order they are found</source>
        <translation>見つかった順にファイルを出力します</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>昇順(&amp;A)</translation>
    </message>
    <message>
        <source>A to Z</source>
        <translation>A から Z</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>降順(&amp;D)</translation>
    </message>
    <message>
        <source>Z to A</source>
        <translation>Z から A</translation>
    </message>
    <message>
        <source>Show &amp;errors in message boxes</source>
        <translation>エラーをメッセージボックスに表示(&amp;E)</translation>
    </message>
    <message>
        <source>Show a message for each folder or file that cannot be read</source>
        <translation>読み取れないフォルダーやファイルごとにメッセージを表示します</translation>
    </message>
    <message>
        <source>&amp;Write errors to a log file</source>
        <translation>エラーをログファイルに書き込む(&amp;W)</translation>
    </message>
    <message>
        <source>Write the errors of the latest run to Tunedex.log in the program folder</source>
        <translation>直近の実行のエラーをプログラムフォルダーの Tunedex.log に書き込みます</translation>
    </message>
    <message>
        <source>Ask before &amp;quitting</source>
        <translation>終了前に確認する(&amp;Q)</translation>
    </message>
    <message>
        <source>Ask for confirmation before quitting</source>
        <translation>終了する前に確認を求めます</translation>
    </message>
    <message>
        <source>Errors and questions</source>
        <translation>エラーと確認</translation>
    </message>
    <message>
        <source>&amp;Link each entry to its file</source>
        <translation>各項目をファイルにリンク(&amp;L)</translation>
    </message>
    <message>
        <source>Add a column with links to the MP3 files</source>
        <translation>MP3 ファイルへのリンクの列を追加します</translation>
    </message>
    <message>
        <source>Link prefix</source>
        <translation>リンクの接頭辞</translation>
    </message>
    <message>
        <source>Text before every link, for example file:/// or a web address</source>
        <translation>各リンクの前に付ける文字列 (例: file:/// や Web アドレス)</translation>
    </message>
    <message>
        <source>Links in HTML listings</source>
        <translation>HTML 一覧のリンク</translation>
    </message>
    <message>
        <source>N&amp;ormal</source>
        <translation>標準(&amp;O)</translation>
    </message>
    <message>
        <source>The full path of the file</source>
        <translation>ファイルのフルパス</translation>
    </message>
    <message>
        <source>UN&amp;IX style</source>
        <translation>UNIX 形式(&amp;I)</translation>
    </message>
    <message>
        <source>A slash and the full path without colons</source>
        <translation>スラッシュと、コロンを除いたフルパス</translation>
    </message>
    <message>
        <source>&amp;Relative</source>
        <translation>相対(&amp;R)</translation>
    </message>
    <message>
        <source>The path relative to the input folder</source>
        <translation>入力フォルダーからの相対パス</translation>
    </message>
    <message>
        <source>Link prefi&amp;x:</source>
        <translation>リンクの接頭辞(&amp;X):</translation>
    </message>
    <message>
        <source>Reads tags in every encoding, skips what cannot be read, and sorts by album and track.</source>
        <translation>あらゆる文字コードのタグを読み取り、読み取れないものを飛ばし、アルバムとトラックで並べ替えます。</translation>
    </message>
    <message>
        <source>Modern &amp;tags and lists</source>
        <translation>新しいタグと一覧(&amp;T)</translation>
    </message>
    <message>
        <source>Code page of old tags</source>
        <translation>古いタグのコードページ</translation>
    </message>
    <message>
        <source>The code page of ID3v1 tags, and of ID3v2 texts that are not Unicode</source>
        <translation>ID3v1 タグと、Unicode でない ID3v2 テキストのコードページ</translation>
    </message>
    <message>
        <source>Tags and lists</source>
        <translation>タグと一覧</translation>
    </message>
    <message>
        <source>Code pa&amp;ge of old tags:</source>
        <translation>古いタグのコードページ(&amp;G):</translation>
    </message>
    <message>
        <source>Edit la&amp;yout...</source>
        <translation>レイアウトの編集(&amp;Y)...</translation>
    </message>
    <message>
        <source>Edit columns, fonts, colours, table, document type and themes of HTML listings</source>
        <translation>HTML 一覧の列、フォント、色、表、文書の種類、テーマを編集します</translation>
    </message>
    <message>
        <source>&amp;Use</source>
        <translation>使用(&amp;U)</translation>
    </message>
    <message>
        <source>Apply until you quit</source>
        <translation>終了するまで適用します</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>Apply, and save all settings as the default</source>
        <translation>適用し、すべての設定を既定として保存します</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Close without changing anything</source>
        <translation>何も変更せずに閉じます</translation>
    </message>
    <message>
        <source>Use: until you quit. Save: also for the next start and unattended runs.</source>
        <translation>使用: 終了するまで。保存: 次回の起動と無人実行にも適用。</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Sort by artist, album, disc and track</source>
        <translation>アーティスト、アルバム、ディスク、トラックで並べ替え</translation>
    </message>
    <message>
        <source>Files per page must be between -32768 and 32767.</source>
        <translation>1 ページのファイル数には -32768 から 32767 までの値を指定してください。</translation>
    </message>
    <message>
        <source>Files per page must be a numeric value.</source>
        <translation>1 ページのファイル数には数値を指定してください。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Help &amp;Topics</source>
        <translation>ヘルプトピック(&amp;T)</translation>
    </message>
</context>
<context>
    <name>tunedex::frmProgress</name>
    <message>
        <source>The run is over.</source>
        <translation>実行は終了しました。</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>中止(&amp;A)</translation>
    </message>
    <message>
        <source>Stop the run. Tracks already written stay in the list.</source>
        <translation>実行を中止します。書き込み済みのトラックは一覧に残ります。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Return to the main window</source>
        <translation>メインウィンドウに戻ります</translation>
    </message>
    <message>
        <source>Creating List</source>
        <translation>一覧の作成</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>実行の進行状況</translation>
    </message>
</context>
<context>
    <name>tunedex::frmTip</name>
    <message>
        <source>&amp;Show tips at start-up</source>
        <translation>起動時にヒントを表示(&amp;S)</translation>
    </message>
    <message>
        <source>Show a tip each time the program starts</source>
        <translation>プログラムの起動時に毎回ヒントを表示します</translation>
    </message>
    <message>
        <source>Tip of the Day</source>
        <translation>今日のヒント</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>次のヒント(&amp;N)</translation>
    </message>
    <message>
        <source>Show the next tip</source>
        <translation>次のヒントを表示します</translation>
    </message>
    <message>
        <source>Next tip</source>
        <translation>次のヒント</translation>
    </message>
    <message>
        <source>&amp;Random Tip</source>
        <translation>ランダムなヒント(&amp;R)</translation>
    </message>
    <message>
        <source>Show a random tip</source>
        <translation>ランダムにヒントを表示します</translation>
    </message>
    <message>
        <source>Random tip</source>
        <translation>ランダムなヒント</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>Save the choice and close the window</source>
        <translation>選択を保存してウィンドウを閉じます</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>ヒント</translation>
    </message>
</context>
</TS>
