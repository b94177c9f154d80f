<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Values of the query</source>
        <translation>クエリの値</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>「%1」の値</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The password for %1</source>
        <translation>%1 のパスワード</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keychain</source>
        <translation>キーチェーンに保存する(&amp;R)</translation>
    </message>
    <message>
        <source>This system has no keychain: it is forgotten when the program ends.</source>
        <translation>このシステムにはキーチェーンがありません。パスワードはプログラムの終了時に破棄されます。</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>ほかのユーザーによる変更</translation>
    </message>
    <message>
        <source>&amp;Mine</source>
        <translation>自分の版(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Theirs</source>
        <translation>相手の版(&amp;T)</translation>
    </message>
    <message>
        <source>The query is no longer in the store.</source>
        <translation>クエリは保存先に存在しません。</translation>
    </message>
    <message>
        <source>&amp;Save mine</source>
        <translation>自分の版を保存(&amp;S)</translation>
    </message>
    <message>
        <source>What is stored now is replaced by your query</source>
        <translation>保存されている内容を自分のクエリで置き換えます</translation>
    </message>
    <message>
        <source>Your query is stored again</source>
        <translation>自分のクエリを保存し直します</translation>
    </message>
    <message>
        <source>Take t&amp;heirs</source>
        <translation>相手の版を採用(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Delete mine, too</source>
        <translation>自分の版も削除(&amp;D)</translation>
    </message>
    <message>
        <source>Your changes are lost</source>
        <translation>自分の変更は失われます</translation>
    </message>
    <message>
        <source>Your query is lost</source>
        <translation>自分のクエリは失われます</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>両方を残す(&amp;K)</translation>
    </message>
    <message>
        <source>Yours is stored as another query</source>
        <translation>自分の版を別のクエリとして保存します</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (自分の版)</translation>
    </message>
    <message>
        <source>%1 (mine %2)</source>
        <translation>%1 (自分の版 %2)</translation>
    </message>
</context>
<context>
    <name>tolvi::TAbout</name>
    <message>
        <source>About the workbench</source>
        <translation>ワークベンチについて</translation>
    </message>
    <message>
        <source>Ask databases in sentences: Tolvi writes the SQL. All that you see here is made of the panels and dialogs of the Tolvi library, which other programs can use, too.

Tolvi comes under the MIT licence. As this program shows SQL with QScintilla and charts with Qt Charts, it comes as a whole under the GNU General Public License, version 3. It also uses Qt %1, libxlsxwriter and QtKeychain.</source>
        <translation>データベースに文章で質問すると、Tolvi が SQL を書きます。ここに表示されているものはすべて Tolvi ライブラリのパネルとダイアログでできており、ほかのプログラムでも使用できます。

Tolvi は MIT ライセンスで提供されます。このプログラムは SQL の表示に QScintilla、グラフの表示に Qt Charts を使用しているため、全体としては GNU 一般公衆ライセンス バージョン 3 で提供されます。ほかに Qt %1、libxlsxwriter、QtKeychain を使用しています。</translation>
    </message>
</context>
<context>
    <name>tolvi::TChartData</name>
    <message>
        <source>The first %1 of %2 rows.</source>
        <translation>%2 行のうち最初の %1 行。</translation>
    </message>
    <message>
        <source>%1 rows: each point is the average of %2 rows that follow each other.</source>
        <translation>%1 行: 各点は連続する %2 行の平均です。</translation>
    </message>
    <message numerus="yes">
        <source>%n rows without a number are left out.</source>
        <translation>
            <numerusform>数値のない %n 行は除外されています。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TChartPane</name>
    <message>
        <source>Chart</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>種類(&amp;K):</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>棒グラフ</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>折れ線グラフ</translation>
    </message>
    <message>
        <source>Ac&amp;ross:</source>
        <translation>横軸(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Values:</source>
        <translation>値(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>画像をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save picture...</source>
        <translation>画像を保存(&amp;S)...</translation>
    </message>
    <message>
        <source>There are no rows to draw.</source>
        <translation>描画する行がありません。</translation>
    </message>
    <message>
        <source>There is no column of numbers to draw.</source>
        <translation>描画する数値の列がありません。</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; holds no numbers.</source>
        <translation>列「%1」に数値がありません。</translation>
    </message>
    <message>
        <source>Bars: %1 by %2.</source>
        <translation>棒グラフ: %1 (%2 別)。</translation>
    </message>
    <message>
        <source>Line: %1 by %2.</source>
        <translation>折れ線グラフ: %1 (%2 別)。</translation>
    </message>
    <message numerus="yes">
        <source>%n values, the least %1 (%2), the greatest %3 (%4).</source>
        <translation>
            <numerusform>値 %n 個、最小 %1 (%2)、最大 %3 (%4)。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png or .svg.</source>
        <translation>ファイル「%1」の拡張子は .png または .svg にしてください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>ファイル「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>画像の保存</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>画像 (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>図形 (*.svg)</translation>
    </message>
    <message>
        <source>Read &amp;all rows</source>
        <translation>すべての行を読み込む(&amp;A)</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln rows have been read.</source>
        <translation>
            <numerusform>最初の %Ln 行だけを読み込みました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionForm</name>
    <message>
        <source>SQLite file</source>
        <translation>SQLite ファイル</translation>
    </message>
    <message>
        <source>PostgreSQL</source>
        <translation>PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL</source>
        <translation>MariaDB または MySQL</translation>
    </message>
    <message>
        <source>ODBC</source>
        <translation>ODBC</translation>
    </message>
    <message>
        <source>&amp;Kind of database:</source>
        <translation>データベースの種類(&amp;K):</translation>
    </message>
    <message>
        <source>Data &amp;source:</source>
        <translation>データソース(&amp;S):</translation>
    </message>
    <message>
        <source>Name, or Driver={...};Server=...</source>
        <translation>名前、または Driver={...};Server=...</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>ホスト(&amp;H):</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>このコンピューター</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>ポート(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>データベース(&amp;D):</translation>
    </message>
    <message>
        <source>S&amp;chema:</source>
        <translation>スキーマ(&amp;C):</translation>
    </message>
    <message>
        <source>the usual one</source>
        <translation>既定のスキーマ</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>ユーザー(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>ファイル(&amp;F):</translation>
    </message>
    <message>
        <source>Browse for it, or drop it here</source>
        <translation>参照するか、ここにドロップしてください</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>パスワード(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Remember the password in the keychain</source>
        <translation>パスワードをキーチェーンに保存する(&amp;R)</translation>
    </message>
    <message>
        <source>Open a database</source>
        <translation>データベースを開く</translation>
    </message>
    <message>
        <source>SQLite databases (*.sqlite *.sqlite3 *.db *.db3);;All files (*)</source>
        <translation>SQLite データベース (*.sqlite *.sqlite3 *.db *.db3);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>ファイルを選択してください。</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>これはファイルではありません。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>ファイルがありません。</translation>
    </message>
    <message>
        <source>Name the data source.</source>
        <translation>データソースの名前を入力してください。</translation>
    </message>
    <message>
        <source>Name the database.</source>
        <translation>データベースの名前を入力してください。</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>ポートは 1 から 65535 までの数値です。</translation>
    </message>
    <message>
        <source>known</source>
        <translation>保存済み</translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionTest</name>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check host and port.</source>
        <translation>
            <numerusform>%n 秒以内に応答がありませんでした。ホストとポートを確認してください。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The connection works; %n table(s) found.</source>
        <translation>
            <numerusform>接続できました。%n 個のテーブルが見つかりました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check that the file can be read and no program locks it.</source>
        <translation>
            <numerusform>%n 秒以内に応答がありませんでした。ファイルが読み取り可能で、ほかのプログラムにロックされていないことを確認してください。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check the data source and its driver.</source>
        <translation>
            <numerusform>%n 秒以内に応答がありませんでした。データソースとそのドライバーを確認してください。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TExportDialog</name>
    <message>
        <source>Export rows</source>
        <translation>行のエクスポート</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot;...</source>
        <translation>「%1」に書き込み中...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>tolvi::TFaultPage</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>エラーの内容</translation>
    </message>
</context>
<context>
    <name>tolvi::TMainWindow</name>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>Open a database to ask it something.</source>
        <translation>質問するには、データベースを開いてください。</translation>
    </message>
    <message>
        <source>The query “%1” has changes that are not saved.</source>
        <translation>クエリ「%1」に保存されていない変更があります。</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>クエリを保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>変更を破棄(&amp;D)</translation>
    </message>
    <message>
        <source>The data model has changes that are not saved.</source>
        <translation>データモデルに保存されていない変更があります。</translation>
    </message>
    <message>
        <source>&amp;Save model</source>
        <translation>モデルを保存(&amp;S)</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” were saved. Here they are again.</source>
        <translation>「%1」の変更が保存される前にプログラムが終了しました。変更を復元しました。</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model were saved. Here they are again.</source>
        <translation>データモデルの変更が保存される前にプログラムが終了しました。変更を復元しました。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>データベース(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近使用したデータベースを開く(&amp;R)</translation>
    </message>
    <message>
        <source>Open the &amp;sample</source>
        <translation>サンプルを開く(&amp;S)</translation>
    </message>
    <message>
        <source>Make the sample a&amp;new</source>
        <translation>サンプルを作り直す(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Export rows...</source>
        <translation>行をエクスポート(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Print rows...</source>
        <translation>行を印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>クエリ(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;vert to saved</source>
        <translation>保存時の状態に戻す(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Find a query</source>
        <translation>クエリを検索(&amp;F)</translation>
    </message>
    <message>
        <source>Paste S&amp;QL...</source>
        <translation>SQL を貼り付け(&amp;Q)...</translation>
    </message>
    <message>
        <source>&amp;Where queries are kept</source>
        <translation>クエリの保存先(&amp;W)</translation>
    </message>
    <message>
        <source>By the &amp;workbench</source>
        <translation>ワークベンチ(&amp;W)</translation>
    </message>
    <message>
        <source>In a &amp;folder...</source>
        <translation>フォルダー(&amp;F)...</translation>
    </message>
    <message>
        <source>Folder of the queries</source>
        <translation>クエリのフォルダー</translation>
    </message>
    <message>
        <source>In the &amp;database itself</source>
        <translation>データベース内(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Result &amp;columns...</source>
        <translation>結果の列(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>モデル(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Edit the model...</source>
        <translation>モデルを編集(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Diagram...</source>
        <translation>ダイアグラム(&amp;D)...</translation>
    </message>
    <message>
        <source>Read new tables from the data&amp;base</source>
        <translation>データベースから新しいテーブルを読み込む(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Undo change of the model</source>
        <translation>モデルの変更を元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo change of the model</source>
        <translation>モデルの変更をやり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>読み込み(&amp;L)...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>名前を付けて保存(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Go to the &amp;queries</source>
        <translation>クエリに移動(&amp;Q)</translation>
    </message>
    <message>
        <source>Go to the &amp;conditions</source>
        <translation>条件に移動(&amp;C)</translation>
    </message>
    <message>
        <source>Go to the co&amp;lumns</source>
        <translation>列に移動(&amp;L)</translation>
    </message>
    <message>
        <source>Go to the &amp;rows</source>
        <translation>行に移動(&amp;R)</translation>
    </message>
    <message>
        <source>Go to the &amp;SQL</source>
        <translation>SQL に移動(&amp;S)</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>言語(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>配色(&amp;O)</translation>
    </message>
    <message>
        <source>Those of the s&amp;ystem</source>
        <translation>システムの設定(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>ダーク(&amp;D)</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>設定(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>キーボードショートカット(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>Data models (*.model *.xml);;All files (*)</source>
        <translation>データモデル (*.model *.xml);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>XML documents</source>
        <translation>XML ドキュメント</translation>
    </message>
    <message>
        <source>Changes of the model are in use now. Model &gt; Save keeps them.</source>
        <translation>モデルの変更が反映されました。残すには [モデル] &gt; [保存] を選択してください。</translation>
    </message>
    <message>
        <source>Diagram of the model</source>
        <translation>モデルのダイアグラム</translation>
    </message>
    <message>
        <source>The model is saved in %1.</source>
        <translation>モデルを %1 に保存しました。</translation>
    </message>
    <message>
        <source>Save the model</source>
        <translation>モデルの保存</translation>
    </message>
    <message>
        <source>Load a model</source>
        <translation>モデルの読み込み</translation>
    </message>
    <message>
        <source>The model has all tables and columns of the database.</source>
        <translation>モデルにはデータベースのすべてのテーブルと列があります。</translation>
    </message>
    <message>
        <source>Add a column to the result to see rows.</source>
        <translation>行を表示するには、結果に列を追加してください。</translation>
    </message>
    <message>
        <source>The query asks for values: run it to give them.</source>
        <translation>このクエリには値が必要です。実行して値を入力してください。</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>クエリで表示</translation>
    </message>
    <message>
        <source>The database refuses the condition “%1”:
%2</source>
        <translation>データベースが条件「%1」を受け付けませんでした:
%2</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>「%1」を保存しました。</translation>
    </message>
    <message>
        <source>Go to the c&amp;hart</source>
        <translation>グラフに移動(&amp;H)</translation>
    </message>
    <message>
        <source>Rows appear here when you run the query.</source>
        <translation>クエリを実行すると、ここに行が表示されます。</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here. Run the query first to have all of them.</source>
        <translation>ここにあるのは最初の %L1 行だけです。すべての行が必要なら、先にクエリを実行してください。</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>実行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;These rows only</source>
        <translation>これらの行のみ(&amp;T)</translation>
    </message>
    <message>
        <source>The former queries are still in the database.</source>
        <translation>以前のクエリはデータベース内に残っています。</translation>
    </message>
    <message>
        <source>The former queries are still in %1.</source>
        <translation>以前のクエリは %1 に残っています。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Copy them here</source>
        <translation>ここにコピー</translation>
    </message>
    <message numerus="yes">
        <source>%n query(ies) copied.</source>
        <translation>
            <numerusform>%n 個のクエリをコピーしました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new table(s)</source>
        <translation>
            <numerusform>テーブル %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new column(s)</source>
        <translation>
            <numerusform>列 %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new link(s)</source>
        <translation>
            <numerusform>リンク %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no new tables and columns.</source>
        <translation>データベースに新しいテーブルや列はありません。</translation>
    </message>
    <message>
        <source>New in the model: %1.</source>
        <translation>モデルに追加: %1。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message numerus="yes">
        <source>%n table(s), column(s) or link(s) of the model are not in the database.</source>
        <translation>
            <numerusform>モデルのテーブル、列、リンクのうち %n 個がデータベースにありません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) have another type in the database than in the model.</source>
        <translation>
            <numerusform>%n 個の列の型がデータベースとモデルで異なります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Show...</source>
        <translation>表示...</translation>
    </message>
    <message>
        <source>The database refuses the column “%1”:
%2</source>
        <translation>データベースが列「%1」を受け付けませんでした:
%2</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here: the settings let a run read no more.</source>
        <translation>ここにあるのは最初の %L1 行だけです。設定により、1 回の実行ではこれより多く読み込めません。</translation>
    </message>
    <message>
        <source>1 row is in %1.</source>
        <translation>1 行を %1 に書き込みました。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows are in %1.</source>
        <translation>
            <numerusform>%Ln 行を %1 に書き込みました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the &amp;note</source>
        <translation>メッセージに移動(&amp;N)</translation>
    </message>
</context>
<context>
    <name>tolvi::TNameEditor</name>
    <message>
        <source>Name of the query</source>
        <translation>クエリの名前</translation>
    </message>
</context>
<context>
    <name>tolvi::TNoteBar</name>
    <message>
        <source>Close this note</source>
        <translation>このメッセージを閉じる</translation>
    </message>
</context>
<context>
    <name>tolvi::TOpeningDialog</name>
    <message>
        <source>Open a database</source>
        <translation>データベースを開く</translation>
    </message>
    <message>
        <source>Reading the tables of %1...</source>
        <translation>%1 のテーブルを読み込み中...</translation>
    </message>
    <message>
        <source>Waiting for %1...</source>
        <translation>%1 の応答を待っています...</translation>
    </message>
</context>
<context>
    <name>tolvi::TParamEdit</name>
    <message>
        <source>One a line</source>
        <translation>1 行に 1 つ</translation>
    </message>
    <message>
        <source>Calendar (Alt+Down)</source>
        <translation>カレンダー (Alt+↓)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Choose or type</source>
        <translation>選択または入力</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>値を入力してください。</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>例: %1</translation>
    </message>
</context>
<context>
    <name>tolvi::TPrintRows</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1/%2 ページ</translation>
    </message>
    <message numerus="yes">
        <source>%1 (only the first %Ln rows)</source>
        <translation>
            <numerusform>%1 (最初の %Ln 行のみ)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are %1 rows. Print them all, or the first %2?</source>
        <translation>%1 行あります。すべて印刷しますか、それとも最初の %2 行だけ印刷しますか？</translation>
    </message>
    <message>
        <source>&amp;First %1 rows</source>
        <translation>最初の %1 行(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;All rows</source>
        <translation>すべての行(&amp;A)</translation>
    </message>
</context>
<context>
    <name>tolvi::TProgram</name>
    <message>
        <source>The sample is as good as new. The former one is in %1.</source>
        <translation>サンプルを作り直しました。以前のサンプルは %1 にあります。</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept for the case that the program ends: %1</source>
        <translation>プログラムの終了に備えた未保存の作業の保管ができません: %1</translation>
    </message>
    <message>
        <source>%1 is not open.</source>
        <translation>%1 は開かれていません。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Open another one...</source>
        <translation>別のデータベースを開く...</translation>
    </message>
    <message>
        <source>Open the sample</source>
        <translation>サンプルを開く</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” in %2 were saved. They are kept until you take them or discard them.</source>
        <translation>「%1」(%2) の変更が保存される前にプログラムが終了しました。変更は、復元するか破棄するまで保管されます。</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model of %1 were saved. They are kept until you take them or discard them.</source>
        <translation>%1 のデータモデルの変更が保存される前にプログラムが終了しました。変更は、復元するか破棄するまで保管されます。</translation>
    </message>
    <message>
        <source>Open %1 with them</source>
        <translation>変更を復元して %1 を開く</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
</context>
<context>
    <name>tolvi::TQueryArea</name>
    <message>
        <source>C&amp;onditions</source>
        <translation>条件(&amp;O)</translation>
    </message>
    <message>
        <source>Co&amp;lumns of the result</source>
        <translation>結果の列(&amp;L)</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultGrid</name>
    <message>
        <source>Rows of the result</source>
        <translation>結果の行</translation>
    </message>
    <message>
        <source>Sort &amp;ascending</source>
        <translation>昇順で並べ替え(&amp;A)</translation>
    </message>
    <message>
        <source>Sort &amp;descending</source>
        <translation>降順で並べ替え(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Order of the database</source>
        <translation>データベースの順序(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Hide column</source>
        <translation>列を隠す(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Show columns</source>
        <translation>列を表示(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Fit width</source>
        <translation>幅を調整(&amp;F)</translation>
    </message>
    <message>
        <source>Fit &amp;all widths</source>
        <translation>すべての幅を調整(&amp;W)</translation>
    </message>
    <message>
        <source>Copy column &amp;name</source>
        <translation>列名をコピー(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy with &amp;headers</source>
        <translation>見出し付きでコピー(&amp;H)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Show value</source>
        <translation>値を表示(&amp;S)</translation>
    </message>
    <message>
        <source>Co&amp;lumn</source>
        <translation>列(&amp;L)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>%1 cells are too many for the clipboard.</source>
        <translation>%1 個のセルは、クリップボードには多すぎます。</translation>
    </message>
    <message>
        <source>Copy %1 cells to the clipboard?</source>
        <translation>%1 個のセルをクリップボードにコピーしますか？</translation>
    </message>
    <message>
        <source>Select fewer of them, or export the rows to a file.</source>
        <translation>選択するセルを減らすか、行をファイルにエクスポートしてください。</translation>
    </message>
    <message>
        <source>A file may be the better place for so many: export the rows instead.</source>
        <translation>これだけ多い場合は、行をファイルにエクスポートする方が適しています。</translation>
    </message>
    <message>
        <source>Copying: %1 % (Esc stops it)</source>
        <translation>コピー中: %1 % (Esc で停止)</translation>
    </message>
    <message>
        <source>Copied 1 row</source>
        <translation>1 行をコピーしました</translation>
    </message>
    <message numerus="yes">
        <source>Copied %Ln rows</source>
        <translation>
            <numerusform>%Ln 行をコピーしました</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying was stopped; the clipboard holds what it held</source>
        <translation>コピーを停止しました。クリップボードの内容は変わっていません</translation>
    </message>
    <message>
        <source>Stop copying</source>
        <translation>コピーを停止</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultPane</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>%1 で停止</translation>
    </message>
    <message>
        <source>Stopped after 1 row · %1</source>
        <translation>1 行で停止 · %1</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %Ln rows · %1</source>
        <translation>
            <numerusform>%Ln 行で停止 · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>First row · %1</source>
        <translation>最初の 1 行 · %1</translation>
    </message>
    <message numerus="yes">
        <source>First %Ln rows · %1</source>
        <translation>
            <numerusform>最初の %Ln 行 · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No rows · %1</source>
        <translation>行なし · %1</translation>
    </message>
    <message>
        <source>1 row · %1</source>
        <translation>1 行 · %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows · %1</source>
        <translation>
            <numerusform>%Ln 行 · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>実行(&amp;U)</translation>
    </message>
    <message>
        <source>Fetch all rows (F5)</source>
        <translation>すべての行を取得します (F5)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Stop the query that runs (Esc)</source>
        <translation>実行中のクエリを停止します (Esc)</translation>
    </message>
    <message>
        <source>Live &amp;preview</source>
        <translation>ライブプレビュー(&amp;P)</translation>
    </message>
    <message>
        <source>Show the first rows whenever the query changes</source>
        <translation>クエリが変わるたびに最初の行を表示します</translation>
    </message>
    <message>
        <source>Rows appear here when you run a query.</source>
        <translation>クエリを実行すると、ここに行が表示されます。</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>実行中…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>並べ替え中…</translation>
    </message>
    <message>
        <source>1 row so far…</source>
        <translation>現在 1 行…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows so far…</source>
        <translation>
            <numerusform>現在 %Ln 行…</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no connection to the database</source>
        <translation>データベースに接続されていません</translation>
    </message>
    <message>
        <source>The database could not run the query</source>
        <translation>データベースがクエリを実行できませんでした</translation>
    </message>
    <message>
        <source>The query cannot be run</source>
        <translation>クエリを実行できません</translation>
    </message>
</context>
<context>
    <name>tolvi::TRowFiles</name>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>ファイル「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>CSV, separated by commas</source>
        <translation>CSV (コンマ区切り)</translation>
    </message>
    <message>
        <source>CSV, separated by semicolons</source>
        <translation>CSV (セミコロン区切り)</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>テキスト (タブ区切り)</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>スプレッドシート</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Table in Markdown</source>
        <translation>Markdown の表</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ファイルではありません</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>システムの設定</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>システムの設定</translation>
    </message>
    <message>
        <source>Show the &amp;first rows while a query is edited</source>
        <translation>クエリの編集中に最初の行を表示する(&amp;F)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>&amp;Queries may hold conditions written in SQL</source>
        <translation>SQL で書かれた条件をクエリに含めることを許可する(&amp;Q)</translation>
    </message>
    <message>
        <source>Such a condition reaches the database as it is. Allow it only for queries that come from people whom you trust.</source>
        <translation>このような条件は、そのままデータベースに渡されます。信頼できる人が作成したクエリに対してのみ許可してください。</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>配色(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Size of letters:</source>
        <translation>文字のサイズ(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Rows of the preview:</source>
        <translation>プレビューの行数(&amp;R):</translation>
    </message>
    <message>
        <source>Rows of a run at &amp;most:</source>
        <translation>実行時の最大行数(&amp;M):</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsFile</name>
    <message>
        <source>The settings could not be read (%1): they are the default ones now. The file is kept as %2.</source>
        <translation>設定を読み込めなかったため (%1)、既定の設定を使用しています。元のファイルは %2 として残してあります。</translation>
    </message>
</context>
<context>
    <name>tolvi::TShortcuts</name>
    <message>
        <source>Among the conditions</source>
        <translation>条件で</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>In the list of queries</source>
        <translation>クエリの一覧で</translation>
    </message>
    <message>
        <source>Among the rows</source>
        <translation>結果の行で</translation>
    </message>
    <message>
        <source>In the SQL</source>
        <translation>SQL で</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlEdit</name>
    <message>
        <source>Copy what is selected</source>
        <translation>選択した部分をコピー</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>文字を大きくする</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>文字を小さくする</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlPane</name>
    <message>
        <source>Statement</source>
        <translation>SQL 文</translation>
    </message>
    <message>
        <source>S&amp;yntax:</source>
        <translation>構文(&amp;Y):</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>SQL 文の記述に使う構文</translation>
    </message>
    <message>
        <source>&amp;Paste SQL...</source>
        <translation>SQL を貼り付け(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the whole statement</source>
        <translation>SQL 文全体をコピーします</translation>
    </message>
    <message>
        <source>Copy with &amp;values</source>
        <translation>値を含めてコピー(&amp;V)</translation>
    </message>
    <message>
        <source>Copy with &amp;parameters as ?</source>
        <translation>パラメーターを ? にしてコピー(&amp;P)</translation>
    </message>
    <message>
        <source>Copy with parameters as :&amp;Name</source>
        <translation>パラメーターを :名前 にしてコピー(&amp;N)</translation>
    </message>
    <message>
        <source>Copy with parameters as $&amp;1</source>
        <translation>パラメーターを $1 にしてコピー(&amp;1)</translation>
    </message>
    <message>
        <source>Make a query of a SELECT statement</source>
        <translation>SELECT 文からクエリを作成します</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>クエリで表示</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>ほか %n 件の警告</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreModel</name>
    <message>
        <source>Deleted by somebody else</source>
        <translation>ほかのユーザーが削除しました</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>ほかのユーザーが変更しました</translation>
    </message>
    <message>
        <source>Changed by somebody else, %1</source>
        <translation>ほかのユーザーが変更しました (%1)</translation>
    </message>
    <message>
        <source>Changed by %1, %2</source>
        <translation>%1 が変更しました (%2)</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>表示中</translation>
    </message>
    <message>
        <source>changes not saved</source>
        <translation>未保存の変更あり</translation>
    </message>
    <message>
        <source>Has changes that are not saved</source>
        <translation>保存されていない変更があります</translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreNote</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>tolvi::TStorePane</name>
    <message>
        <source>Search queries</source>
        <translation>クエリを検索</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>クエリ</translation>
    </message>
    <message>
        <source>Clear the search to put queries in another order.</source>
        <translation>クエリを並べ替えるには、検索をクリアしてください。</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>新しいクエリ(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前の変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>複製(&amp;D)</translation>
    </message>
    <message>
        <source>D&amp;escription...</source>
        <translation>説明(&amp;E)...</translation>
    </message>
    <message>
        <source>De&amp;lete...</source>
        <translation>削除(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Copy query text</source>
        <translation>クエリテキストをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste query text</source>
        <translation>クエリテキストを貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>下へ移動(&amp;W)</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>更新(&amp;F)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>クエリの保存先が開かれていません。</translation>
    </message>
    <message>
        <source>There are no queries yet. Press %1 to make one.</source>
        <translation>クエリはまだありません。%1 を押すと作成できます。</translation>
    </message>
    <message>
        <source>No query holds this text.</source>
        <translation>このテキストを含むクエリはありません。</translation>
    </message>
    <message>
        <source>Description of “%1”</source>
        <translation>「%1」の説明</translation>
    </message>
    <message>
        <source>&amp;What the query answers, for those who look for it:</source>
        <translation>探す人のための、クエリで分かることの説明(&amp;W):</translation>
    </message>
    <message>
        <source>Delete it all the same?</source>
        <translation>それでも削除しますか？</translation>
    </message>
    <message>
        <source>New query %1</source>
        <translation>新しいクエリ %1</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>新しいクエリ</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (コピー %2)</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (コピー)</translation>
    </message>
    <message>
        <source>Delete the query “%1”?</source>
        <translation>クエリ「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>「%1」を削除しました。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>What was copied is no query text. Statements in SQL are pasted into the SQL.</source>
        <translation>コピーした内容はクエリテキストではありません。SQL 文は SQL に貼り付けてください。</translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. You can take that back until the note about it is closed.</source>
        <translation>この保存先を使うすべてのユーザーから削除されます。削除を知らせるメッセージを閉じるまでは元に戻せます。</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was deleted, and %n before it.</source>
        <translation>
            <numerusform>「%1」を削除しました (その前に削除したもの: %n 個)。</numerusform>
        </translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. It cannot be read: you cannot take that back.</source>
        <translation>この保存先を使うすべてのユーザーから削除されます。読み取れないため、元に戻すことはできません。</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueDlg</name>
    <message>
        <source>Value of %1</source>
        <translation>%1 の値</translation>
    </message>
    <message>
        <source>NULL: there is no value</source>
        <translation>NULL: 値がありません</translation>
    </message>
    <message>
        <source>An empty text</source>
        <translation>空のテキスト</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
</context>
<context>
    <name>tolvi::TWorkspace</name>
    <message>
        <source>The sample cannot be put into %1: the folder cannot be made. The option --home names another place.</source>
        <translation>サンプルを %1 に置けません。フォルダーを作成できません。オプション --home で別の場所を指定できます。</translation>
    </message>
    <message>
        <source>The sample stays as it is: %1 cannot be renamed.</source>
        <translation>サンプルはそのままです。%1 の名前を変更できません。</translation>
    </message>
    <message>
        <source>The data model cannot be kept: %1. Model &gt; Save as... keeps it in another place.</source>
        <translation>データモデルを保管できません: %1。別の場所に残すには [モデル] &gt; [名前を付けて保存...] を選択してください。</translation>
    </message>
    <message numerus="yes">
        <source>The driver tells nothing of links between tables. %n link(s) were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</source>
        <translation>
            <numerusform>ドライバーからはテーブル間のリンクの情報を得られません。列名から %n 個のリンクが見つかりました。[モデル] &gt; [ダイアグラム...] で表示でき、ほかのリンクも描けます。</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no tables that can be read. Once it has some, Model &gt; Read new tables from the database finds them.</source>
        <translation>データベースに読み取れるテーブルがありません。テーブルができたら、[モデル] &gt; [データベースから新しいテーブルを読み込む] を選択してください。</translation>
    </message>
    <message>
        <source>%1 is no data model, or a damaged one: %2. Choose another file; where there is none, a model is made from the tables of the database.</source>
        <translation>%1 はデータモデルではないか、破損しています: %2。別のファイルを選択してください。ファイルがない場合は、データベースのテーブルからモデルが作成されます。</translation>
    </message>
    <message>
        <source>Queries cannot be kept in this database: %1</source>
        <translation>このデータベースにはクエリを保存できません: %1</translation>
    </message>
    <message>
        <source>Queries cannot be kept: %1. Query &gt; Where queries are kept has other places.</source>
        <translation>クエリを保存できません: %1。[クエリ] &gt; [クエリの保存先] で別の場所を選択できます。</translation>
    </message>
</context>
<context>
    <name>tolvi::TXlsxFile</name>
    <message>
        <source>the folder for temporary files, &quot;%1&quot;, is full</source>
        <translation>一時ファイル用のフォルダー「%1」がいっぱいです</translation>
    </message>
    <message>
        <source>the text in row %1, column %2 has %3 letters, and a cell holds %4</source>
        <translation>行 %1、列 %2 のテキストは %3 文字ですが、セルに入るのは %4 文字までです</translation>
    </message>
    <message>
        <source>there are %1 rows, and a sheet holds %2</source>
        <translation>行が %1 行ありますが、シートに入るのは %2 行までです</translation>
    </message>
    <message>
        <source>there are %1 columns, and a sheet holds %2</source>
        <translation>列が %1 列ありますが、シートに入るのは %2 列までです</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgConnection</name>
    <message>
        <source>Connect to a database</source>
        <translation>データベースに接続</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>最近の接続</translation>
    </message>
    <message>
        <source>UR&amp;L:</source>
        <translation>URL(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>テスト(&amp;T)</translation>
    </message>
    <message>
        <source>This system has no keychain: passwords are forgotten when the program ends.</source>
        <translation>このシステムにはキーチェーンがありません。パスワードはプログラムの終了時に破棄されます。</translation>
    </message>
    <message>
        <source>Looking for the keychain of this system...</source>
        <translation>このシステムのキーチェーンを探しています...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>The keychain did not take the password: %1. It is known until the program ends.</source>
        <translation>キーチェーンにパスワードを保存できませんでした: %1。パスワードはプログラムの終了まで保持されます。</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgImportSql</name>
    <message>
        <source>Paste SQL</source>
        <translation>SQL の貼り付け</translation>
    </message>
    <message>
        <source>&amp;Make query</source>
        <translation>クエリを作成(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Statement:</source>
        <translation>SQL 文(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Only if it can be read exactly</source>
        <translation>正確に読み取れる場合のみ(&amp;O)</translation>
    </message>
    <message>
        <source>Otherwise what a query cannot say is left out or replaced, with a warning</source>
        <translation>オフの場合、クエリで表せない部分は警告を出して省略するか置き換えます</translation>
    </message>
    <message>
        <source>&amp;Keep as rows of SQL what no operator says</source>
        <translation>演算子で表せない部分を SQL の行として残す(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Warnings (F8 for the next one):</source>
        <translation>警告 (F8 で次へ)(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>クエリ(&amp;Q):</translation>
    </message>
    <message>
        <source>The statement is too long: statements of up to %1 KB can be read.</source>
        <translation>SQL 文が長すぎます。読み取れるのは %1 KB までです。</translation>
    </message>
    <message>
        <source>Paste or type a SELECT statement.</source>
        <translation>SELECT 文を貼り付けるか入力してください。</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>ほか %n 件の警告</numerusform>
        </translation>
    </message>
    <message>
        <source>The query says what the statement says.</source>
        <translation>クエリは SQL 文と同じ内容です。</translation>
    </message>
    <message numerus="yes">
        <source>The statement can be read with %n warnings.</source>
        <translation>
            <numerusform>SQL 文を読み取れますが、%n 件の警告があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement cannot be read exactly.</source>
        <translation>SQL 文を正確に読み取れません。</translation>
    </message>
    <message>
        <source>The statement cannot be read.</source>
        <translation>SQL 文を読み取れません。</translation>
    </message>
</context>
<context>
    <name>tolvi::main</name>
    <message>
        <source>Ask databases in sentences.</source>
        <translation>データベースに文章で質問します。</translation>
    </message>
    <message>
        <source>An SQLite file, or a URL as docs/databases.md tells; without it, what was open the last time, at first the sample.</source>
        <translation>SQLite ファイル、または docs/databases.md に示す URL。省略すると前回開いたもの、初回はサンプルを開きます。</translation>
    </message>
    <message>
        <source>The data model: a model text or XML.</source>
        <translation>データモデル: モデルテキストまたは XML。</translation>
    </message>
    <message>
        <source>The folder of the queries.</source>
        <translation>クエリのフォルダー。</translation>
    </message>
    <message>
        <source>The queries are in the database.</source>
        <translation>クエリはデータベース内にあります。</translation>
    </message>
    <message>
        <source>Keep settings, unsaved work and the sample there.</source>
        <translation>設定、未保存の作業、サンプルをこのフォルダーに保管します。</translation>
    </message>
    <message>
        <source>Play the script with keys and clicks, then quit; see docs/workbench.md.</source>
        <translation>キーとクリックのスクリプトを再生して終了します。docs/workbench.md を参照。</translation>
    </message>
    <message>
        <source>Write a picture of the window, at the end of the script, then quit.</source>
        <translation>スクリプトの最後にウィンドウの画像を書き出して終了します。</translation>
    </message>
    <message>
        <source>Open the sample.</source>
        <translation>サンプルを開きます。</translation>
    </message>
</context>
</TS>
