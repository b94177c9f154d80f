<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>tolvi::TCatalogueTablesModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>スキーマ</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>view</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>table</source>
        <translation>テーブル</translation>
    </message>
    <message>
        <source>%1, in the model</source>
        <translation>%1 (モデルにあり)</translation>
    </message>
</context>
<context>
    <name>tolvi::TConditionsPage</name>
    <message>
        <source>Predefined conditions</source>
        <translation>定義済みの条件</translation>
    </message>
    <message>
        <source>Display format</source>
        <translation>表示形式</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>New condition</source>
        <translation>新しい条件</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Display &amp;format:</source>
        <translation>表示形式(&amp;F):</translation>
    </message>
    <message>
        <source>@ is the place of a value.</source>
        <translation>@ は値が入る位置です。</translation>
    </message>
    <message>
        <source>S&amp;QL:</source>
        <translation>SQL(&amp;Q):</translation>
    </message>
    <message>
        <source>@1 and @2 stand for the values.</source>
        <translation>@1 と @2 は値を表します。</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>テーブル:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>例:</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Text before it</source>
        <translation>前のテキスト</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>データ型</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>値の型の変更</translation>
    </message>
    <message>
        <source>A single value</source>
        <translation>単一の値</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>値の一覧</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>サブクエリ</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>値の種類の変更</translation>
    </message>
    <message>
        <source>Data t&amp;ype:</source>
        <translation>データ型(&amp;Y):</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>種類(&amp;K):</translation>
    </message>
    <message>
        <source>Change SQL</source>
        <translation>SQL の変更</translation>
    </message>
    <message>
        <source>Change display format</source>
        <translation>表示形式の変更</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>条件の追加</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>条件の削除</translation>
    </message>
</context>
<context>
    <name>tolvi::TDesignMinimap</name>
    <message>
        <source>The whole diagram; click to go there</source>
        <translation>ダイアグラム全体 (クリックするとその位置に移動します)</translation>
    </message>
    <message>
        <source>The whole diagram</source>
        <translation>ダイアグラム全体</translation>
    </message>
</context>
<context>
    <name>tolvi::TDropDownDate</name>
    <message>
        <source>This is no time. Write it like %1.</source>
        <translation>時刻ではありません。%1 のように入力してください。</translation>
    </message>
    <message>
        <source>This is no date. Write it like %1.</source>
        <translation>日付ではありません。%1 のように入力してください。</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>今日(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>現在時刻(&amp;N)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>カレンダー</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesModel</name>
    <message>
        <source>(no group)</source>
        <translation>(グループなし)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>式</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>Column or expression</source>
        <translation>列または式</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesPage</name>
    <message>
        <source>Fields in groups</source>
        <translation>グループ内のフィールド</translation>
    </message>
    <message>
        <source>Find fields or groups</source>
        <translation>フィールドまたはグループを検索</translation>
    </message>
    <message>
        <source>Add columns...</source>
        <translation>列を追加...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>式</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>演算子</translation>
    </message>
    <message>
        <source>Value Editor</source>
        <translation>値エディター</translation>
    </message>
    <message>
        <source>Add columns</source>
        <translation>列の追加</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>新しいフィールド</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>式の追加</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>新しいグループ</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>グループの追加</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>グループの削除</translation>
    </message>
    <message>
        <source>Delete field</source>
        <translation>フィールドの削除</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>フィールドの移動</translation>
    </message>
    <message>
        <source>Move group</source>
        <translation>グループの移動</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntryTable</name>
    <message>
        <source>Text shown</source>
        <translation>表示されるテキスト</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>SQL での値</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>値の一覧</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldForm</name>
    <message>
        <source>Offered in conditions</source>
        <translation>条件で使用可能</translation>
    </message>
    <message>
        <source>Offer in conditions</source>
        <translation>条件での使用の設定</translation>
    </message>
    <message>
        <source>Offered as result column</source>
        <translation>結果列として使用可能</translation>
    </message>
    <message>
        <source>Offer as result column</source>
        <translation>結果列としての使用の設定</translation>
    </message>
    <message>
        <source>Aggregate</source>
        <translation>集計</translation>
    </message>
    <message>
        <source>Mark as aggregate</source>
        <translation>集計の設定</translation>
    </message>
    <message>
        <source>The expression calls an aggregate function: conditions on it go to HAVING</source>
        <translation>式が集計関数を呼び出しています。この式の条件は HAVING に入ります</translation>
    </message>
    <message>
        <source>Quoted column name</source>
        <translation>列名を引用符で囲む</translation>
    </message>
    <message>
        <source>Quote column name</source>
        <translation>列名の引用符の設定</translation>
    </message>
    <message>
        <source>Group &amp;name:</source>
        <translation>グループ名(&amp;N):</translation>
    </message>
    <message>
        <source>Change group name</source>
        <translation>グループ名の変更</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>表示名(&amp;N):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>表示名の変更</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>種類(&amp;K):</translation>
    </message>
    <message>
        <source>Change kind</source>
        <translation>種類の変更</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>式</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>テーブル(&amp;B):</translation>
    </message>
    <message>
        <source>Change table</source>
        <translation>テーブルの変更</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>式(&amp;X):</translation>
    </message>
    <message>
        <source>Change expression</source>
        <translation>式の変更</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>テーブル:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>グループ(&amp;G):</translation>
    </message>
    <message>
        <source>Move fields to group</source>
        <translation>フィールドを別のグループへ移動</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(不明)</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>型(&amp;Y):</translation>
    </message>
    <message>
        <source>Change type</source>
        <translation>型の変更</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Change size</source>
        <translation>サイズの変更</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>サイズ(&amp;S):</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>(fields chosen: %1)</source>
        <translation>(選択中のフィールド: %1)</translation>
    </message>
    <message>
        <source>(no group)</source>
        <translation>(グループなし)</translation>
    </message>
    <message>
        <source>Colu&amp;mn:</source>
        <translation>列(&amp;M):</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(なし)</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldOperators</name>
    <message>
        <source>Offered operators</source>
        <translation>使用できる演算子</translation>
    </message>
    <message>
        <source>O&amp;ffered:</source>
        <translation>使用できる演算子(&amp;F):</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Remove operator</source>
        <translation>演算子の除外</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>すべて除外</translation>
    </message>
    <message>
        <source>Operators that are not offered</source>
        <translation>使用できない演算子</translation>
    </message>
    <message>
        <source>&amp;Not offered:</source>
        <translation>使用できない演算子(&amp;N):</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>演算子の追加</translation>
    </message>
    <message>
        <source>All that apply</source>
        <translation>適用可能なものすべて</translation>
    </message>
    <message>
        <source>Offer just the operators that are made for the type of the field</source>
        <translation>フィールドの型に合った演算子だけを使用できるようにします</translation>
    </message>
    <message>
        <source>- by some</source>
        <translation>- 一部のみ</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>演算子の移動</translation>
    </message>
    <message>
        <source>Offer all operators that apply</source>
        <translation>適用可能な演算子をすべて追加</translation>
    </message>
    <message>
        <source>Remove all operators</source>
        <translation>すべての演算子を除外</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldTree</name>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Find a field</source>
        <translation>フィールドを検索</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillChoicePage</name>
    <message>
        <source>Tables and fields that are added</source>
        <translation>追加されるテーブルとフィールド</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Check all that is listed</source>
        <translation>一覧のすべての項目にチェックを付けます</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>すべて解除(&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all that is listed</source>
        <translation>一覧のすべての項目のチェックを外します</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前の変更(&amp;R)</translation>
    </message>
    <message>
        <source>Change the display name (F2)</source>
        <translation>表示名を変更します (F2)</translation>
    </message>
    <message>
        <source>&amp;Lists of Values</source>
        <translation>値の一覧(&amp;L)</translation>
    </message>
    <message>
        <source>With or without lists of values (Ctrl+L)</source>
        <translation>値の一覧の有無を切り替えます (Ctrl+L)</translation>
    </message>
    <message>
        <source>Links that are added</source>
        <translation>追加されるリンク</translation>
    </message>
    <message>
        <source>Check all links that are listed</source>
        <translation>一覧のすべてのリンクにチェックを付けます</translation>
    </message>
    <message>
        <source>Uncheck all links that are listed</source>
        <translation>一覧のすべてのリンクのチェックを外します</translation>
    </message>
    <message>
        <source>&amp;Rows...</source>
        <translation>行(&amp;R)...</translation>
    </message>
    <message>
        <source>Choose which rows a link keeps (F2)</source>
        <translation>リンクで残す行を選択します (F2)</translation>
    </message>
    <message>
        <source>&amp;Tables and Fields (%1)</source>
        <translation>テーブルとフィールド (%1)(&amp;T)</translation>
    </message>
    <message>
        <source>Lin&amp;ks (%1)</source>
        <translation>リンク (%1)(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing is added: the model has all that these tables have.</source>
        <translation>追加するものはありません。これらのテーブルの内容はすべてモデルにあります。</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillFieldItems</name>
    <message>
        <source>Further alias of %1</source>
        <translation>%1 の別の別名</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>モデルにあり</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>新しいテーブル</translation>
    </message>
    <message>
        <source>with a list</source>
        <translation>一覧付き</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(名前なし)</translation>
    </message>
    <message>
        <source>Table, column</source>
        <translation>テーブル、列</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>表示名</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>値の一覧</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillLinkItems</name>
    <message>
        <source>Only rows that match</source>
        <translation>一致する行のみ</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>%1 のすべての行</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>両方のすべての行</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>結果の行</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPage</name>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPreviewPage</name>
    <message>
        <source>What the database no longer has stays in the model. Delete it there if nothing needs it.</source>
        <translation>データベースにないものもモデルには残ります。不要になったらモデルから削除してください。</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>変更内容</translation>
    </message>
    <message>
        <source>Added: %1 tables, %2 fields, %3 links.</source>
        <translation>追加: テーブル %1、フィールド %2、リンク %3。</translation>
    </message>
    <message>
        <source>Changed: %1 types.</source>
        <translation>変更: 型 %1。</translation>
    </message>
    <message>
        <source>Vanished: %1.</source>
        <translation>消失: %1。</translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>取り込むものはありません。</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillReportItems</name>
    <message>
        <source>Types that change</source>
        <translation>変更される型</translation>
    </message>
    <message>
        <source>Types that differ in the database</source>
        <translation>データベースと異なる型</translation>
    </message>
    <message>
        <source>New tables</source>
        <translation>新しいテーブル</translation>
    </message>
    <message>
        <source>New groups</source>
        <translation>新しいグループ</translation>
    </message>
    <message>
        <source>New fields</source>
        <translation>新しいフィールド</translation>
    </message>
    <message>
        <source>New lists of values</source>
        <translation>新しい値の一覧</translation>
    </message>
    <message>
        <source>New links</source>
        <translation>新しいリンク</translation>
    </message>
    <message>
        <source>Vanished tables</source>
        <translation>消失したテーブル</translation>
    </message>
    <message>
        <source>Vanished fields</source>
        <translation>消失したフィールド</translation>
    </message>
    <message>
        <source>Vanished links</source>
        <translation>消失したリンク</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>注記</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTableItems</name>
    <message>
        <source>View</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>テーブル</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>モデルにあり</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTablesPage</name>
    <message>
        <source>Tables of the database</source>
        <translation>データベースのテーブル</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>データベース(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Check all tables that are listed</source>
        <translation>一覧のすべてのテーブルにチェックを付けます</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>すべて解除(&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all tables that are listed</source>
        <translation>一覧のすべてのテーブルのチェックを外します</translation>
    </message>
    <message>
        <source>Only Ne&amp;w</source>
        <translation>新規のみ(&amp;W)</translation>
    </message>
    <message>
        <source>Check those that the model does not have, uncheck the others</source>
        <translation>モデルにないテーブルだけにチェックを付けます</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>オプション(&amp;P)</translation>
    </message>
    <message>
        <source>Links from foreign keys</source>
        <translation>外部キーからリンクを作成</translation>
    </message>
    <message>
        <source>Links from names of columns</source>
        <translation>列名からリンクを作成</translation>
    </message>
    <message>
        <source>Further aliases of tables that are linked twice</source>
        <translation>2 回リンクされるテーブルに別の別名を付ける</translation>
    </message>
    <message>
        <source>New columns of tables that the model has</source>
        <translation>モデルにあるテーブルの新しい列も追加</translation>
    </message>
    <message>
        <source>Take over types that have changed</source>
        <translation>変更された型を反映</translation>
    </message>
    <message>
        <source>Quote names in mixed case</source>
        <translation>大文字と小文字が混在する名前を引用符で囲む</translation>
    </message>
    <message>
        <source>Lists of values for foreign keys, up to</source>
        <translation>外部キーの値の一覧を作成 (上限)</translation>
    </message>
    <message>
        <source> rows</source>
        <translation> 行</translation>
    </message>
    <message>
        <source>Most rows of a list of values</source>
        <translation>値の一覧の最大行数</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>一致する行のみ</translation>
    </message>
    <message>
        <source>All rows of the table that refers</source>
        <translation>参照元のテーブルのすべての行</translation>
    </message>
    <message>
        <source>All rows of the table referred to</source>
        <translation>参照先のテーブルのすべての行</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>両方のすべての行</translation>
    </message>
    <message>
        <source>Rows of &amp;links:</source>
        <translation>リンクの行(&amp;L):</translation>
    </message>
    <message>
        <source>(that of the connection)</source>
        <translation>(接続のデータベース)</translation>
    </message>
    <message>
        <source>%1 of %2 tables are checked</source>
        <translation>%2 個のテーブルのうち %1 個を選択中</translation>
    </message>
</context>
<context>
    <name>tolvi::TItemList</name>
    <message>
        <source>Type to search</source>
        <translation>入力して検索</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>Nothing to choose from</source>
        <translation>選択できるものがありません</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>一致するものがありません</translation>
    </message>
</context>
<context>
    <name>tolvi::TJResultFieldsPanel</name>
    <message>
        <source>Sorting</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>フィールド</translation>
    </message>
</context>
<context>
    <name>tolvi::TJStructDesignPanel</name>
    <message>
        <source>Move tables</source>
        <translation>テーブルの移動</translation>
    </message>
    <message>
        <source>Resize table</source>
        <translation>テーブルのサイズ変更</translation>
    </message>
    <message>
        <source>Diagram of tables and links</source>
        <translation>テーブルとリンクのダイアグラム</translation>
    </message>
    <message>
        <source>Arrange tables in rows</source>
        <translation>テーブルを行に整列</translation>
    </message>
    <message>
        <source>Arrange tables by links</source>
        <translation>テーブルをリンクに沿って整列</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>高さの調整</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>ファイル「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1 x %2 pixels.</source>
        <translation>%1 x %2 ピクセルの画像を作成するためのメモリがありません。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png, .svg or .pdf.</source>
        <translation>ファイル「%1」の拡張子は .png、.svg、.pdf のいずれかにしてください。</translation>
    </message>
    <message>
        <source>Export Diagram</source>
        <translation>ダイアグラムのエクスポート</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;Documents (*.pdf)</source>
        <translation>画像 (*.png *.svg);;ドキュメント (*.pdf)</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>テーブルの追加</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>テーブルの削除</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>リンクの削除</translation>
    </message>
    <message>
        <source>Delete tables</source>
        <translation>複数のテーブルの削除</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>リンクの編集</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>リンクの追加</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>テーブル %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>フィールド %1</translation>
    </message>
    <message>
        <source>link %1</source>
        <translation>リンク %1</translation>
    </message>
    <message>
        <source>Add &amp;Tables...</source>
        <translation>テーブルを追加(&amp;T)...</translation>
    </message>
    <message>
        <source>Add &amp;Link</source>
        <translation>リンクを追加(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Cancel Adding</source>
        <translation>追加をキャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit Link...</source>
        <translation>リンクを編集(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Fit &amp;Height to Fields</source>
        <translation>高さをフィールドに合わせる(&amp;H)</translation>
    </message>
    <message>
        <source>Arrange in Ro&amp;ws</source>
        <translation>行に整列(&amp;G)</translation>
    </message>
    <message>
        <source>Arrange &amp;by Links</source>
        <translation>リンクに沿って整列(&amp;B)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Show &amp;Whole Diagram</source>
        <translation>ダイアグラム全体を表示(&amp;W)</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>元のサイズ(&amp;S)</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture</source>
        <translation>画像をコピー(&amp;Y)</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>エクスポート(&amp;X)...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>印刷(&amp;P)...</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairs</name>
    <message>
        <source>Column pairs</source>
        <translation>列の組</translation>
    </message>
    <message>
        <source>New pair</source>
        <translation>新しい組</translation>
    </message>
    <message>
        <source>Delete pairs</source>
        <translation>組を削除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairsModel</name>
    <message>
        <source>A constant...</source>
        <translation>定数...</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Constant: %1</source>
        <translation>定数: %1</translation>
    </message>
    <message>
        <source>(choose a column)</source>
        <translation>(列を選択)</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelCheckPane</name>
    <message>
        <source>What is wrong with the model</source>
        <translation>モデルの問題点</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Nothing is wrong with the model.</source>
        <translation>モデルに問題はありません。</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>エラー: %1、警告: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelPage</name>
    <message>
        <source>The model stays as it was.</source>
        <translation>モデルは元のままです。</translation>
    </message>
</context>
<context>
    <name>tolvi::TOperatorsPage</name>
    <message>
        <source>In &amp;list</source>
        <translation>一覧に含む(&amp;L)</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>範囲内(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>前方一致(&amp;S)</translation>
    </message>
    <message>
        <source>Conta&amp;ins</source>
        <translation>部分一致(&amp;I)</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>テキスト(&amp;X)</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>数値(&amp;U)</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>日付(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Change name</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>Dis&amp;play name:</source>
        <translation>表示名(&amp;P):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>表示名の変更</translation>
    </message>
    <message>
        <source>S&amp;QL template:</source>
        <translation>SQL テンプレート(&amp;Q):</translation>
    </message>
    <message>
        <source>Change SQL template</source>
        <translation>SQL テンプレートの変更</translation>
    </message>
    <message>
        <source>&amp;Between values:</source>
        <translation>値の間(&amp;B):</translation>
    </message>
    <message>
        <source>Change value format</source>
        <translation>値の形式の変更</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>演算子</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>表示名</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>SQL template</source>
        <translation>SQL テンプレート</translation>
    </message>
    <message>
        <source>New operator</source>
        <translation>新しい演算子</translation>
    </message>
    <message>
        <source>Add defaults</source>
        <translation>既定の演算子を追加</translation>
    </message>
    <message>
        <source>Adds the default operators that the model lacks</source>
        <translation>モデルにない既定の演算子を追加します</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Default operators that the model has</source>
        <translation>モデルで使用する既定の演算子</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>グループをオフにすると、その演算子は削除されます</translation>
    </message>
    <message>
        <source>Change default operators</source>
        <translation>既定の演算子の変更</translation>
    </message>
    <message>
        <source>@f stands for the field, @1 and @2 for the values.</source>
        <translation>@f はフィールド、@1 と @2 は値を表します。</translation>
    </message>
    <message>
        <source>What users read between the two values, as &quot;and&quot;</source>
        <translation>2 つの値の間に表示される語 (例: &quot;と&quot;)</translation>
    </message>
    <message>
        <source>Single values</source>
        <translation>単一の値</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>値の一覧</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>サブクエリ</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>値の種類の変更</translation>
    </message>
    <message>
        <source>The type of the field</source>
        <translation>フィールドの型</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>値の型の変更</translation>
    </message>
    <message>
        <source>Texts are compared without re&amp;gard to case</source>
        <translation>テキストの大文字と小文字を区別しない(&amp;G)</translation>
    </message>
    <message>
        <source>Change letter case</source>
        <translation>大文字/小文字の扱いの変更</translation>
    </message>
    <message>
        <source>&amp;Kind of values:</source>
        <translation>値の種類(&amp;K):</translation>
    </message>
    <message>
        <source>T&amp;ype of values:</source>
        <translation>値の型(&amp;Y):</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>例</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>例:</translation>
    </message>
    <message>
        <source>Types of fields to which it applies</source>
        <translation>適用されるフィールドの型</translation>
    </message>
    <message>
        <source>Types of fields</source>
        <translation>フィールドの型</translation>
    </message>
    <message>
        <source>Offe&amp;r for all of them</source>
        <translation>これらすべてで使用可能にする(&amp;R)</translation>
    </message>
    <message>
        <source>All fields of these types offer the operator then</source>
        <translation>これらの型のすべてのフィールドでこの演算子を使用できるようにします</translation>
    </message>
    <message>
        <source>Fields of these types: %1. Fields that offer it: %2.</source>
        <translation>これらの型のフィールド: %1。演算子を使用できるフィールド: %2。</translation>
    </message>
    <message>
        <source>Change types</source>
        <translation>型の変更</translation>
    </message>
    <message>
        <source>Add operator</source>
        <translation>演算子の追加</translation>
    </message>
    <message>
        <source>Add default operators</source>
        <translation>既定の演算子の追加</translation>
    </message>
    <message>
        <source>Copy operator</source>
        <translation>演算子のコピー</translation>
    </message>
    <message>
        <source>Delete operator</source>
        <translation>演算子の削除</translation>
    </message>
    <message>
        <source>Delete all operators</source>
        <translation>すべての演算子の削除</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>演算子の移動</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>演算子を使用可能にする</translation>
    </message>
</context>
<context>
    <name>tolvi::TPartList</name>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPParamLabel</name>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Prompt:</source>
        <translation>プロンプト(&amp;P):</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPRow</name>
    <message>
        <source>Link word</source>
        <translation>結合語</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>演算子</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>値 %1</translation>
    </message>
    <message>
        <source>The row is locked: it cannot be changed here</source>
        <translation>行がロックされているため、ここでは変更できません</translation>
    </message>
    <message>
        <source>The bracket holds a locked row: it cannot be changed here</source>
        <translation>グループにロックされた行があるため、ここでは変更できません</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFColumnsPage</name>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>The name of the column in SQL. It follows the name above.</source>
        <translation>SQL での列の名前です。上の名前に合わせて変わります。</translation>
    </message>
    <message>
        <source>Type an expression; { offers the fields</source>
        <translation>式を入力 ({ でフィールドの候補を表示)</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>別名</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Select a field first.</source>
        <translation>最初にフィールドを選択してください。</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFSortingPage</name>
    <message>
        <source>The result shows all columns; the result fields only sort it.</source>
        <translation>結果にはすべての列が表示され、結果フィールドは並べ替えにのみ使われます。</translation>
    </message>
    <message>
        <source>Drag a row, or press Alt+Up or Alt+Down, to move it</source>
        <translation>行を移動するには、ドラッグするか Alt+↑ または Alt+↓ を押します</translation>
    </message>
</context>
<context>
    <name>tolvi::TSubQueryDialog</name>
    <message>
        <source>&amp;SQL</source>
        <translation>SQL(&amp;S)</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>&amp;Read this SQL</source>
        <translation>この SQL を読み込む(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>破棄(&amp;D)</translation>
    </message>
    <message>
        <source>The text is not read yet</source>
        <translation>テキストはまだ読み込まれていません</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesModel</name>
    <message>
        <source>The default main table</source>
        <translation>既定のメインテーブル</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>別名</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>表示名</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>テーブル</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesPage</name>
    <message>
        <source>Inner</source>
        <translation>内部結合</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左外部結合</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右外部結合</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>完全外部結合</translation>
    </message>
    <message>
        <source>&amp;Alias:</source>
        <translation>別名(&amp;A):</translation>
    </message>
    <message>
        <source>Change alias</source>
        <translation>別名の変更</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>表示名(&amp;N):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>表示名の変更</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>テーブル(&amp;B):</translation>
    </message>
    <message>
        <source>Change table name</source>
        <translation>テーブル名の変更</translation>
    </message>
    <message>
        <source>Databa&amp;se:</source>
        <translation>データベース(&amp;S):</translation>
    </message>
    <message>
        <source>Change database name</source>
        <translation>データベース名の変更</translation>
    </message>
    <message>
        <source>&amp;Hints:</source>
        <translation>ヒント(&amp;H):</translation>
    </message>
    <message>
        <source>Change hints</source>
        <translation>ヒントの変更</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>テーブル</translation>
    </message>
    <message>
        <source>Find tables</source>
        <translation>テーブルを検索</translation>
    </message>
    <message>
        <source>There are no tables yet: add some from the database, or by hand.</source>
        <translation>テーブルはまだありません。データベースから、または手動で追加してください。</translation>
    </message>
    <message>
        <source>Add from database...</source>
        <translation>データベースから追加...</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>新しいテーブル</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>&amp;Quoted name</source>
        <translation>名前を引用符で囲む(&amp;Q)</translation>
    </message>
    <message>
        <source>Default &amp;main table</source>
        <translation>既定のメインテーブル(&amp;M)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>クエリはこのテーブルから始まります</translation>
    </message>
    <message>
        <source>Linked with</source>
        <translation>リンク先</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>Links of the table</source>
        <translation>テーブルのリンク</translation>
    </message>
    <message>
        <source>&amp;Links:</source>
        <translation>リンク(&amp;L):</translation>
    </message>
    <message>
        <source>Add link...</source>
        <translation>リンクを追加...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>リンクの削除</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>テーブルの追加</translation>
    </message>
    <message>
        <source>NewTable</source>
        <translation>NewTable</translation>
    </message>
    <message>
        <source>Add table</source>
        <translation>テーブルの追加</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>テーブルの削除</translation>
    </message>
    <message>
        <source>Move table</source>
        <translation>テーブルの移動</translation>
    </message>
    <message>
        <source>The SQL of fields (%1) and conditions (%2) names the table &quot;%3&quot;. Change it, too?</source>
        <translation>フィールド (%1) と条件 (%2) の SQL でテーブル「%3」が使われています。これらも変更しますか？</translation>
    </message>
    <message>
        <source>Unchanged, it no longer finds the table.</source>
        <translation>変更しないと、テーブルが見つからなくなります。</translation>
    </message>
    <message>
        <source>Quote table name</source>
        <translation>テーブル名の引用符の設定</translation>
    </message>
    <message>
        <source>Set default main table</source>
        <translation>既定のメインテーブルの設定</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>リンクの追加</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>リンクの編集</translation>
    </message>
</context>
<context>
    <name>tolvi::TTitlesModel</name>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Default text</source>
        <translation>既定のテキスト</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注記</translation>
    </message>
</context>
<context>
    <name>tolvi::TTryPane</name>
    <message>
        <source>Col&amp;umns:</source>
        <translation>列(&amp;U):</translation>
    </message>
    <message>
        <source>Cond&amp;itions:</source>
        <translation>条件(&amp;I):</translation>
    </message>
    <message>
        <source>SQL syntax</source>
        <translation>SQL 構文</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>SQL 文の記述に使う構文</translation>
    </message>
    <message>
        <source>SQL with JOIN</source>
        <translation>JOIN を使う SQL</translation>
    </message>
    <message>
        <source>SQL with joins in WHERE</source>
        <translation>WHERE で結合する SQL</translation>
    </message>
    <message>
        <source>Oracle</source>
        <translation>Oracle</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Access</translation>
    </message>
    <message>
        <source>NexusDB</source>
        <translation>NexusDB</translation>
    </message>
    <message>
        <source>St&amp;atement:</source>
        <translation>SQL 文(&amp;A):</translation>
    </message>
    <message>
        <source>Choose columns to see a statement.</source>
        <translation>列を選択すると SQL 文が表示されます。</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueEditorBox</name>
    <message>
        <source>Automatic (by the data type)</source>
        <translation>自動 (データ型による)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Fixed list</source>
        <translation>固定の一覧</translation>
    </message>
    <message>
        <source>The host&apos;s own editor</source>
        <translation>ホスト独自のエディター</translation>
    </message>
    <message>
        <source>List from a query</source>
        <translation>クエリによる一覧</translation>
    </message>
    <message>
        <source>Sub-query</source>
        <translation>サブクエリ</translation>
    </message>
    <message>
        <source>Value editor</source>
        <translation>値エディター</translation>
    </message>
    <message>
        <source>A line of text, a date or a check box, as the data type wants it.</source>
        <translation>データ型に応じて、テキスト行、日付、またはチェックボックスになります。</translation>
    </message>
    <message>
        <source>Data for the &amp;host:</source>
        <translation>ホスト用のデータ(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Stored query:</source>
        <translation>保存済みのクエリ(&amp;S):</translation>
    </message>
    <message>
        <source>A query text, as query panels save it.</source>
        <translation>クエリパネルが保存する形式のクエリテキスト。</translation>
    </message>
    <message>
        <source>Values are entered &amp;by:</source>
        <translation>値の入力方法(&amp;B):</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>プレーンテキスト</translation>
    </message>
    <message>
        <source>By the mask</source>
        <translation>マスクに従う</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>入力のまま</translation>
    </message>
    <message>
        <source>Upper case</source>
        <translation>大文字</translation>
    </message>
    <message>
        <source>Lower case</source>
        <translation>小文字</translation>
    </message>
    <message>
        <source>That of the field</source>
        <translation>フィールドの型</translation>
    </message>
    <message>
        <source>&amp;With the mask&apos;s fixed characters</source>
        <translation>マスクの固定文字を含める(&amp;W)</translation>
    </message>
    <message>
        <source>De&amp;fault value:</source>
        <translation>既定値(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Kind of text:</source>
        <translation>テキストの種類(&amp;K):</translation>
    </message>
    <message>
        <source>&amp;Mask:</source>
        <translation>マスク(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>大文字/小文字(&amp;L):</translation>
    </message>
    <message>
        <source>Type of the &amp;value:</source>
        <translation>値の型(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Insert rows from the clipboard (%1)</source>
        <translation>クリップボードから行を挿入します (%1)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>Remove the selected rows (%1)</source>
        <translation>選択した行を削除します (%1)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>Move the row up (%1)</source>
        <translation>行を上へ移動します (%1)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>下へ(&amp;W)</translation>
    </message>
    <message>
        <source>Move the row down (%1)</source>
        <translation>行を下へ移動します (%1)</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>クエリ</translation>
    </message>
    <message>
        <source>SELECT value, text FROM ...</source>
        <translation>SELECT value, text FROM ...</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>name=value, one in a line; :name in the query stands for it</source>
        <translation>名前=値 (1 行に 1 つ)。クエリでは :名前 と書きます</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>クエリ(&amp;Q):</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>パラメーター(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>実行(&amp;R)</translation>
    </message>
    <message>
        <source>Shows what the query gives</source>
        <translation>クエリの結果を表示します</translation>
    </message>
    <message>
        <source>Text shown</source>
        <translation>表示されるテキスト</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>SQL での値</translation>
    </message>
    <message>
        <source>Values that the query gives</source>
        <translation>クエリで得られる値</translation>
    </message>
    <message>
        <source>What is changed here is changed for all %1 selected fields.</source>
        <translation>ここでの変更は、選択した %1 個のフィールドすべてに適用されます。</translation>
    </message>
    <message>
        <source>The model is not connected to a database</source>
        <translation>モデルがデータベースに接続されていません</translation>
    </message>
    <message>
        <source>Change value editor</source>
        <translation>値エディターの変更</translation>
    </message>
    <message>
        <source>Rows: %1; the first %2 are shown</source>
        <translation>行数: %1 (最初の %2 行を表示)</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>行数: %1</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgAddTables</name>
    <message>
        <source>Add their &amp;fields</source>
        <translation>フィールドも追加(&amp;F)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>検索(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>スキーマ(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Links to be made:</source>
        <translation>作成するリンク(&amp;L):</translation>
    </message>
    <message>
        <source>(all)</source>
        <translation>(すべて)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source> - by a further alias of the table, &quot;%1&quot;</source>
        <translation> - テーブルの別の別名「%1」を使用</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>一致するものがありません</translation>
    </message>
    <message>
        <source>Tables chosen: %1</source>
        <translation>選択したテーブル: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>テーブルの追加</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgColumns</name>
    <message>
        <source>Add Fields</source>
        <translation>フィールドの追加</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>テーブル(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>列(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Other column:</source>
        <translation>その他の列(&amp;O):</translation>
    </message>
    <message>
        <source>No other columns of this table are known.</source>
        <translation>このテーブルのほかの列は見つかりません。</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgFill</name>
    <message>
        <source>Fill from Database</source>
        <translation>データベースからの取り込み</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>戻る(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>次へ(&amp;N)</translation>
    </message>
    <message>
        <source>F&amp;inish</source>
        <translation>完了(&amp;I)</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>戻る (Alt+←)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The database gave no answer.</source>
        <translation>データベースから応答がありません。</translation>
    </message>
    <message>
        <source>Fill from database</source>
        <translation>データベースからの取り込み</translation>
    </message>
    <message>
        <source>Step 1 of 3: Choose the tables</source>
        <translation>手順 1/3: テーブルを選択</translation>
    </message>
    <message>
        <source>Step 2 of 3: Choose and name what is added</source>
        <translation>手順 2/3: 追加するものを選択して名前を付ける</translation>
    </message>
    <message>
        <source>Step 3 of 3: Look at what changes</source>
        <translation>手順 3/3: 変更内容を確認</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgLinkEdit</name>
    <message>
        <source>&amp;Quote the names of columns</source>
        <translation>列名を引用符で囲む(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Condition:</source>
        <translation>条件(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;First table:</source>
        <translation>1 番目のテーブル(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Second table:</source>
        <translation>2 番目のテーブル(&amp;S):</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>入れ替え(&amp;W)</translation>
    </message>
    <message>
        <source>The tables and their columns change places; the rows found stay the same</source>
        <translation>テーブルとその列を入れ替えます。得られる行は変わりません</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>結果の行</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>一致する行のみ</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>%1 のすべての行</translation>
    </message>
    <message>
        <source>All rows of both tables</source>
        <translation>両方のテーブルのすべての行</translation>
    </message>
    <message>
        <source>Pair %1: %2</source>
        <translation>組 %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ほか %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelEdit</name>
    <message>
        <source>&amp;Tables</source>
        <translation>テーブル(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>エンティティ(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>演算子(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Conditions</source>
        <translation>条件(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>ダイアグラム(&amp;D)</translation>
    </message>
    <message>
        <source>Edit Data Model</source>
        <translation>データモデルの編集</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>開く...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Fill from database...</source>
        <translation>データベースから取り込み...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>検査</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>試す</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Data models (*.model)</source>
        <translation>データモデル (*.model)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened. The model stays as it was.</source>
        <translation>ファイル %1 を開けません。モデルは元のままです。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>The model cannot be saved in the file %1.</source>
        <translation>モデルをファイル %1 に保存できません。</translation>
    </message>
    <message>
        <source>Open Model</source>
        <translation>モデルを開く</translation>
    </message>
    <message>
        <source>Save Model</source>
        <translation>モデルの保存</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>%1 を置き換えますか？</translation>
    </message>
    <message>
        <source>The database cannot be connected.</source>
        <translation>データベースに接続できません。</translation>
    </message>
    <message>
        <source>There is no help.</source>
        <translation>ヘルプはありません。</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>ヘルプを表示できません。</translation>
    </message>
    <message>
        <source>Clear model</source>
        <translation>モデルのクリア</translation>
    </message>
    <message>
        <source>The model has been changed.</source>
        <translation>モデルが変更されています。</translation>
    </message>
    <message>
        <source>Do you want to keep the changes?</source>
        <translation>変更を保持しますか？</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelSettings</name>
    <message>
        <source>&amp;In list</source>
        <translation>一覧に含む(&amp;I)</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>範囲内(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>前方一致(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Contains</source>
        <translation>部分一致(&amp;C)</translation>
    </message>
    <message>
        <source>Opening &amp;quote of names:</source>
        <translation>名前の開始引用符(&amp;O):</translation>
    </message>
    <message>
        <source>C&amp;losing quote of names:</source>
        <translation>名前の終了引用符(&amp;L):</translation>
    </message>
    <message>
        <source>F&amp;ull table name:</source>
        <translation>完全なテーブル名(&amp;N):</translation>
    </message>
    <message>
        <source>DB, OWNER and TABLE stand for the names</source>
        <translation>DB、OWNER、TABLE はそれぞれの名前を表します</translation>
    </message>
    <message>
        <source>&amp;True:</source>
        <translation>真(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;False:</source>
        <translation>偽(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>日付(&amp;D):</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd&apos;</source>
        <translation>空欄の場合: &apos;yyyy-mm-dd&apos;</translation>
    </message>
    <message>
        <source>Ti&amp;me:</source>
        <translation>時刻(&amp;I):</translation>
    </message>
    <message>
        <source>Empty: &apos;hh:nn:ss&apos;</source>
        <translation>空欄の場合: &apos;hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>D&amp;ate and time:</source>
        <translation>日付と時刻(&amp;A):</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd hh:nn:ss&apos;</source>
        <translation>空欄の場合: &apos;yyyy-mm-dd hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>&amp;Wildcard of LIKE:</source>
        <translation>LIKE のワイルドカード(&amp;W):</translation>
    </message>
    <message>
        <source>F&amp;unction for lower case:</source>
        <translation>小文字に変換する関数(&amp;U):</translation>
    </message>
    <message>
        <source>Function for li&amp;sts:</source>
        <translation>一覧の関数(&amp;S):</translation>
    </message>
    <message>
        <source>@1 stands for what is listed</source>
        <translation>@1 は一覧にする内容を表します</translation>
    </message>
    <message>
        <source>Default &amp;database:</source>
        <translation>既定のデータベース(&amp;B):</translation>
    </message>
    <message>
        <source>Its tables are written without it</source>
        <translation>このデータベースのテーブルには名前を付けずに記述します</translation>
    </message>
    <message>
        <source>Default o&amp;wner:</source>
        <translation>既定の所有者(&amp;Y):</translation>
    </message>
    <message>
        <source>Outer joins are written with OUTE&amp;R</source>
        <translation>外部結合に OUTER を付ける(&amp;R)</translation>
    </message>
    <message>
        <source>AS stands before the alias of a ta&amp;ble</source>
        <translation>テーブルの別名の前に AS を付ける(&amp;K)</translation>
    </message>
    <message>
        <source>Tables of &amp;several databases</source>
        <translation>複数のデータベースのテーブル(&amp;V)</translation>
    </message>
    <message>
        <source>The connection is stored with the &amp;model</source>
        <translation>接続情報をモデルに保存(&amp;C)</translation>
    </message>
    <message>
        <source>Settings of the Model</source>
        <translation>モデルの設定</translation>
    </message>
    <message>
        <source>S&amp;QL</source>
        <translation>SQL(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>モデル(&amp;M)</translation>
    </message>
    <message>
        <source>D&amp;efault operators</source>
        <translation>既定の演算子(&amp;E)</translation>
    </message>
    <message>
        <source>Example of a statement</source>
        <translation>SQL 文の例</translation>
    </message>
    <message>
        <source>A statement is written so:</source>
        <translation>SQL 文は次のように記述されます:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>(own settings)</source>
        <translation>(独自の設定)</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>プリセット(&amp;P):</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(なし)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>クエリはこのテーブルから始まります</translation>
    </message>
    <message>
        <source>Menus list the &amp;fields outside groups first</source>
        <translation>メニューでグループ外のフィールドを先頭に表示(&amp;F)</translation>
    </message>
    <message>
        <source>Default m&amp;ain table:</source>
        <translation>既定のメインテーブル(&amp;A):</translation>
    </message>
    <message>
        <source>Types whose values are written in quotes</source>
        <translation>値を引用符で囲む型</translation>
    </message>
    <message>
        <source>&amp;Booleans</source>
        <translation>ブール値(&amp;H)</translation>
    </message>
    <message>
        <source>Dates and &amp;times</source>
        <translation>日付と時刻(&amp;X)</translation>
    </message>
    <message>
        <source>Groups that the model has</source>
        <translation>モデルで使用するグループ</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>グループをオフにすると、その演算子は削除されます</translation>
    </message>
    <message>
        <source>Display names of the default operators</source>
        <translation>既定の演算子の表示名</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>演算子</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>表示名</translation>
    </message>
    <message>
        <source>Change settings</source>
        <translation>設定の変更</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgRFieldEdit</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>変更を破棄しますか？</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgTitlesEdit</name>
    <message>
        <source>Edit Texts</source>
        <translation>テキストの編集</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>検索(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>すべてリセット(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>読み込み(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Load Texts</source>
        <translation>テキストの読み込み</translation>
    </message>
    <message>
        <source>Texts (*.titles);;All files (*)</source>
        <translation>テキスト (*.titles);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Save Texts</source>
        <translation>テキストの保存</translation>
    </message>
    <message>
        <source>%1 is not a UTF-8 text.</source>
        <translation>%1 は UTF-8 のテキストではありません。</translation>
    </message>
    <message>
        <source>%1 has none of these texts.</source>
        <translation>%1 には該当するテキストがありません。</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>一致するものがありません</translation>
    </message>
    <message>
        <source>Texts to be looked at: %1 (see the notes)</source>
        <translation>確認が必要なテキスト: %1 (注記を参照)</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgValueList</name>
    <message>
        <source>&amp;Values, one in a line:</source>
        <translation>値 (1 行に 1 つ)(&amp;V):</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>値の数: %1</translation>
    </message>
</context>
</TS>
