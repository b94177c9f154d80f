<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Values of the query</source>
        <translation>查询的值</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>“%1”的值</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>The password for %1</source>
        <translation>%1 的密码</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keychain</source>
        <translation>在密钥链中记住密码(&amp;R)</translation>
    </message>
    <message>
        <source>This system has no keychain: it is forgotten when the program ends.</source>
        <translation>此系统没有密钥链：程序结束后密码即被忘记。</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>已被他人更改</translation>
    </message>
    <message>
        <source>&amp;Mine</source>
        <translation>我的版本(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Theirs</source>
        <translation>他人的版本(&amp;T)</translation>
    </message>
    <message>
        <source>The query is no longer in the store.</source>
        <translation>该查询已不在查询库中。</translation>
    </message>
    <message>
        <source>&amp;Save mine</source>
        <translation>保存我的版本(&amp;S)</translation>
    </message>
    <message>
        <source>What is stored now is replaced by your query</source>
        <translation>用您的查询替换现在存储的内容</translation>
    </message>
    <message>
        <source>Your query is stored again</source>
        <translation>重新存储您的查询</translation>
    </message>
    <message>
        <source>Take t&amp;heirs</source>
        <translation>采用他人的版本(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Delete mine, too</source>
        <translation>也删除我的版本(&amp;D)</translation>
    </message>
    <message>
        <source>Your changes are lost</source>
        <translation>您的更改将丢失</translation>
    </message>
    <message>
        <source>Your query is lost</source>
        <translation>您的查询将丢失</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>两者都保留(&amp;K)</translation>
    </message>
    <message>
        <source>Yours is stored as another query</source>
        <translation>您的版本将存储为另一个查询</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1（我的版本）</translation>
    </message>
    <message>
        <source>%1 (mine %2)</source>
        <translation>%1（我的版本 %2）</translation>
    </message>
</context>
<context>
    <name>tolvi::TAbout</name>
    <message>
        <source>About the workbench</source>
        <translation>关于工作台</translation>
    </message>
    <message>
        <source>Ask databases in sentences: Tolvi writes the SQL. All that you see here is made of the panels and dialogs of the Tolvi library, which other programs can use, too.

Tolvi comes under the MIT licence. As this program shows SQL with QScintilla and charts with Qt Charts, it comes as a whole under the GNU General Public License, version 3. It also uses Qt %1, libxlsxwriter and QtKeychain.</source>
        <translation>用句子查询数据库：由 Tolvi 写出 SQL。您在这里看到的一切都由 Tolvi 库的面板和对话框组成，其他程序也可以使用它们。

Tolvi 以 MIT 许可证发布。由于本程序使用 QScintilla 显示 SQL、使用 Qt Charts 绘制图表，程序整体以 GNU 通用公共许可证第 3 版发布。本程序还使用了 Qt %1、libxlsxwriter 和 QtKeychain。</translation>
    </message>
</context>
<context>
    <name>tolvi::TChartData</name>
    <message>
        <source>The first %1 of %2 rows.</source>
        <translation>共 %2 行中的前 %1 行。</translation>
    </message>
    <message>
        <source>%1 rows: each point is the average of %2 rows that follow each other.</source>
        <translation>共 %1 行：每个点是连续 %2 行的平均值。</translation>
    </message>
    <message numerus="yes">
        <source>%n rows without a number are left out.</source>
        <translation>
            <numerusform>已略去 %n 行没有数值的记录。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TChartPane</name>
    <message>
        <source>Chart</source>
        <translation>图表</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>类型(&amp;K):</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>柱形图</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>折线图</translation>
    </message>
    <message>
        <source>Ac&amp;ross:</source>
        <translation>横轴(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Values:</source>
        <translation>数值(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>复制图片(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save picture...</source>
        <translation>保存图片(&amp;S)...</translation>
    </message>
    <message>
        <source>There are no rows to draw.</source>
        <translation>没有可绘制的行。</translation>
    </message>
    <message>
        <source>There is no column of numbers to draw.</source>
        <translation>没有可绘制的数字列。</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; holds no numbers.</source>
        <translation>列“%1”不包含数字。</translation>
    </message>
    <message>
        <source>Bars: %1 by %2.</source>
        <translation>柱形图: %1，按 %2。</translation>
    </message>
    <message>
        <source>Line: %1 by %2.</source>
        <translation>折线图: %1，按 %2。</translation>
    </message>
    <message numerus="yes">
        <source>%n values, the least %1 (%2), the greatest %3 (%4).</source>
        <translation>
            <numerusform>%n 个值，最小 %1 (%2)，最大 %3 (%4)。</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png or .svg.</source>
        <translation>文件“%1”的扩展名必须是 .png 或 .svg。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入文件“%1”: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>保存图片</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>图片 (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>矢量图 (*.svg)</translation>
    </message>
    <message>
        <source>Read &amp;all rows</source>
        <translation>读取所有行(&amp;A)</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln rows have been read.</source>
        <translation>
            <numerusform>仅读取了前 %Ln 行。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionForm</name>
    <message>
        <source>SQLite file</source>
        <translation>SQLite 文件</translation>
    </message>
    <message>
        <source>PostgreSQL</source>
        <translation>PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL</source>
        <translation>MariaDB 或 MySQL</translation>
    </message>
    <message>
        <source>ODBC</source>
        <translation>ODBC</translation>
    </message>
    <message>
        <source>&amp;Kind of database:</source>
        <translation>数据库类型(&amp;K):</translation>
    </message>
    <message>
        <source>Data &amp;source:</source>
        <translation>数据源(&amp;S):</translation>
    </message>
    <message>
        <source>Name, or Driver={...};Server=...</source>
        <translation>名称，或 Driver={...};Server=...</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>主机(&amp;H):</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>此计算机</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>端口(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>数据库(&amp;D):</translation>
    </message>
    <message>
        <source>S&amp;chema:</source>
        <translation>架构(&amp;C):</translation>
    </message>
    <message>
        <source>the usual one</source>
        <translation>默认架构</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>用户(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>文件(&amp;F):</translation>
    </message>
    <message>
        <source>Browse for it, or drop it here</source>
        <translation>浏览选择文件，或将其拖放到此处</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Remember the password in the keychain</source>
        <translation>在密钥链中记住密码(&amp;R)</translation>
    </message>
    <message>
        <source>Open a database</source>
        <translation>打开数据库</translation>
    </message>
    <message>
        <source>SQLite databases (*.sqlite *.sqlite3 *.db *.db3);;All files (*)</source>
        <translation>SQLite 数据库 (*.sqlite *.sqlite3 *.db *.db3);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>请选择文件。</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>没有此文件。</translation>
    </message>
    <message>
        <source>Name the data source.</source>
        <translation>请指定数据源名称。</translation>
    </message>
    <message>
        <source>Name the database.</source>
        <translation>请指定数据库名称。</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>端口必须是 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>known</source>
        <translation>已知</translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionTest</name>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check host and port.</source>
        <translation>
            <numerusform>%n 秒内没有响应：请检查主机和端口。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The connection works; %n table(s) found.</source>
        <translation>
            <numerusform>连接成功；找到 %n 个表。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check that the file can be read and no program locks it.</source>
        <translation>
            <numerusform>%n 秒内没有响应：请检查文件是否可读，以及是否被其他程序锁定。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check the data source and its driver.</source>
        <translation>
            <numerusform>%n 秒内没有响应：请检查数据源及其驱动程序。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TExportDialog</name>
    <message>
        <source>Export rows</source>
        <translation>导出行</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot;...</source>
        <translation>正在写入“%1”...</translation>
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
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>出错信息</translation>
    </message>
</context>
<context>
    <name>tolvi::TMainWindow</name>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>图表</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>Open a database to ask it something.</source>
        <translation>打开一个数据库即可开始查询。</translation>
    </message>
    <message>
        <source>The query “%1” has changes that are not saved.</source>
        <translation>查询“%1”有未保存的更改。</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>保存查询(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>放弃更改(&amp;D)</translation>
    </message>
    <message>
        <source>The data model has changes that are not saved.</source>
        <translation>数据模型有未保存的更改。</translation>
    </message>
    <message>
        <source>&amp;Save model</source>
        <translation>保存模型(&amp;S)</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” were saved. Here they are again.</source>
        <translation>程序在保存“%1”的更改之前已结束。这些更改已恢复。</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model were saved. Here they are again.</source>
        <translation>程序在保存数据模型的更改之前已结束。这些更改已恢复。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>数据库(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>打开最近使用的数据库(&amp;R)</translation>
    </message>
    <message>
        <source>Open the &amp;sample</source>
        <translation>打开示例(&amp;S)</translation>
    </message>
    <message>
        <source>Make the sample a&amp;new</source>
        <translation>重新创建示例(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Export rows...</source>
        <translation>导出行(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Print rows...</source>
        <translation>打印行(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>尚无</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>查询(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;vert to saved</source>
        <translation>还原为已保存的版本(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Find a query</source>
        <translation>查找查询(&amp;F)</translation>
    </message>
    <message>
        <source>Paste S&amp;QL...</source>
        <translation>粘贴 SQL(&amp;Q)...</translation>
    </message>
    <message>
        <source>&amp;Where queries are kept</source>
        <translation>查询的保存位置(&amp;W)</translation>
    </message>
    <message>
        <source>By the &amp;workbench</source>
        <translation>工作台(&amp;W)</translation>
    </message>
    <message>
        <source>In a &amp;folder...</source>
        <translation>文件夹(&amp;F)...</translation>
    </message>
    <message>
        <source>Folder of the queries</source>
        <translation>查询文件夹</translation>
    </message>
    <message>
        <source>In the &amp;database itself</source>
        <translation>数据库本身(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Result &amp;columns...</source>
        <translation>结果列(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>模型(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Edit the model...</source>
        <translation>编辑模型(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Diagram...</source>
        <translation>关系图(&amp;D)...</translation>
    </message>
    <message>
        <source>Read new tables from the data&amp;base</source>
        <translation>从数据库读取新表(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Undo change of the model</source>
        <translation>撤消模型更改(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo change of the model</source>
        <translation>恢复模型更改(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>加载(&amp;L)...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>另存为(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Go to the &amp;queries</source>
        <translation>转到查询(&amp;Q)</translation>
    </message>
    <message>
        <source>Go to the &amp;conditions</source>
        <translation>转到条件(&amp;C)</translation>
    </message>
    <message>
        <source>Go to the co&amp;lumns</source>
        <translation>转到列(&amp;L)</translation>
    </message>
    <message>
        <source>Go to the &amp;rows</source>
        <translation>转到行(&amp;R)</translation>
    </message>
    <message>
        <source>Go to the &amp;SQL</source>
        <translation>转到 SQL(&amp;S)</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>语言(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>颜色(&amp;O)</translation>
    </message>
    <message>
        <source>Those of the s&amp;ystem</source>
        <translation>跟随系统(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>设置(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>键盘快捷键(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Data models (*.model *.xml);;All files (*)</source>
        <translation>数据模型 (*.model *.xml);;所有文件 (*)</translation>
    </message>
    <message>
        <source>XML documents</source>
        <translation>XML 文档</translation>
    </message>
    <message>
        <source>Changes of the model are in use now. Model &gt; Save keeps them.</source>
        <translation>模型的更改已生效。使用“模型 &gt; 保存”可保留这些更改。</translation>
    </message>
    <message>
        <source>Diagram of the model</source>
        <translation>模型关系图</translation>
    </message>
    <message>
        <source>The model is saved in %1.</source>
        <translation>模型已保存到 %1。</translation>
    </message>
    <message>
        <source>Save the model</source>
        <translation>保存模型</translation>
    </message>
    <message>
        <source>Load a model</source>
        <translation>加载模型</translation>
    </message>
    <message>
        <source>The model has all tables and columns of the database.</source>
        <translation>模型已包含数据库的所有表和列。</translation>
    </message>
    <message>
        <source>Add a column to the result to see rows.</source>
        <translation>向结果添加一列即可看到行。</translation>
    </message>
    <message>
        <source>The query asks for values: run it to give them.</source>
        <translation>此查询需要输入值：请运行它以输入。</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>在查询中显示</translation>
    </message>
    <message>
        <source>The database refuses the condition “%1”:
%2</source>
        <translation>数据库拒绝了条件“%1”:
%2</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>“%1”已保存。</translation>
    </message>
    <message>
        <source>Go to the c&amp;hart</source>
        <translation>转到图表(&amp;H)</translation>
    </message>
    <message>
        <source>Rows appear here when you run the query.</source>
        <translation>运行查询后，行将显示在这里。</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here. Run the query first to have all of them.</source>
        <translation>这里只有前 %L1 行。要得到全部行，请先运行查询。</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;These rows only</source>
        <translation>仅这些行(&amp;T)</translation>
    </message>
    <message>
        <source>The former queries are still in the database.</source>
        <translation>原来的查询仍在数据库中。</translation>
    </message>
    <message>
        <source>The former queries are still in %1.</source>
        <translation>原来的查询仍在 %1 中。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Copy them here</source>
        <translation>复制到此处</translation>
    </message>
    <message numerus="yes">
        <source>%n query(ies) copied.</source>
        <translation>
            <numerusform>已复制 %n 个查询。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new table(s)</source>
        <translation>
            <numerusform>%n 个表</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new column(s)</source>
        <translation>
            <numerusform>%n 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new link(s)</source>
        <translation>
            <numerusform>%n 个关联</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no new tables and columns.</source>
        <translation>数据库中没有新的表和列。</translation>
    </message>
    <message>
        <source>New in the model: %1.</source>
        <translation>模型中新增: %1。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message numerus="yes">
        <source>%n table(s), column(s) or link(s) of the model are not in the database.</source>
        <translation>
            <numerusform>模型中有 %n 个表、列或关联不在数据库中。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) have another type in the database than in the model.</source>
        <translation>
            <numerusform>有 %n 列在数据库中的类型与模型中的不同。</numerusform>
        </translation>
    </message>
    <message>
        <source>Show...</source>
        <translation>显示...</translation>
    </message>
    <message>
        <source>The database refuses the column “%1”:
%2</source>
        <translation>数据库拒绝了列“%1”:
%2</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here: the settings let a run read no more.</source>
        <translation>这里只有前 %L1 行：设置不允许一次运行读取更多行。</translation>
    </message>
    <message>
        <source>1 row is in %1.</source>
        <translation>已将 1 行写入 %1。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows are in %1.</source>
        <translation>
            <numerusform>已将 %Ln 行写入 %1。</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the &amp;note</source>
        <translation>转到提示(&amp;N)</translation>
    </message>
</context>
<context>
    <name>tolvi::TNameEditor</name>
    <message>
        <source>Name of the query</source>
        <translation>查询名称</translation>
    </message>
</context>
<context>
    <name>tolvi::TNoteBar</name>
    <message>
        <source>Close this note</source>
        <translation>关闭此提示</translation>
    </message>
</context>
<context>
    <name>tolvi::TOpeningDialog</name>
    <message>
        <source>Open a database</source>
        <translation>打开数据库</translation>
    </message>
    <message>
        <source>Reading the tables of %1...</source>
        <translation>正在读取 %1 的表...</translation>
    </message>
    <message>
        <source>Waiting for %1...</source>
        <translation>正在等待 %1 响应...</translation>
    </message>
</context>
<context>
    <name>tolvi::TParamEdit</name>
    <message>
        <source>One a line</source>
        <translation>每行一个</translation>
    </message>
    <message>
        <source>Calendar (Alt+Down)</source>
        <translation>日历 (Alt+向下键)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Choose or type</source>
        <translation>选择或键入</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>需要填写值。</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>例如 %1</translation>
    </message>
</context>
<context>
    <name>tolvi::TPrintRows</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message numerus="yes">
        <source>%1 (only the first %Ln rows)</source>
        <translation>
            <numerusform>%1（仅前 %Ln 行）</numerusform>
        </translation>
    </message>
    <message>
        <source>There are %1 rows. Print them all, or the first %2?</source>
        <translation>共有 %1 行。要全部打印，还是仅打印前 %2 行？</translation>
    </message>
    <message>
        <source>&amp;First %1 rows</source>
        <translation>前 %1 行(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;All rows</source>
        <translation>所有行(&amp;A)</translation>
    </message>
</context>
<context>
    <name>tolvi::TProgram</name>
    <message>
        <source>The sample is as good as new. The former one is in %1.</source>
        <translation>示例已恢复原样。原来的示例保存在 %1。</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept for the case that the program ends: %1</source>
        <translation>无法保存未完成的工作以防程序意外结束: %1</translation>
    </message>
    <message>
        <source>%1 is not open.</source>
        <translation>%1 未打开。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Open another one...</source>
        <translation>打开其他数据库...</translation>
    </message>
    <message>
        <source>Open the sample</source>
        <translation>打开示例</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” in %2 were saved. They are kept until you take them or discard them.</source>
        <translation>程序在保存“%1”(%2) 的更改之前已结束。这些更改会一直保留，直到您恢复或放弃它们。</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model of %1 were saved. They are kept until you take them or discard them.</source>
        <translation>程序在保存 %1 的数据模型的更改之前已结束。这些更改会一直保留，直到您恢复或放弃它们。</translation>
    </message>
    <message>
        <source>Open %1 with them</source>
        <translation>打开 %1 并恢复更改</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
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
        <translation>结果列(&amp;L)</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultGrid</name>
    <message>
        <source>Rows of the result</source>
        <translation>结果中的行</translation>
    </message>
    <message>
        <source>Sort &amp;ascending</source>
        <translation>升序排序(&amp;A)</translation>
    </message>
    <message>
        <source>Sort &amp;descending</source>
        <translation>降序排序(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Order of the database</source>
        <translation>按数据库顺序(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Hide column</source>
        <translation>隐藏列(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Show columns</source>
        <translation>显示列(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Fit width</source>
        <translation>适合宽度(&amp;F)</translation>
    </message>
    <message>
        <source>Fit &amp;all widths</source>
        <translation>全部适合宽度(&amp;W)</translation>
    </message>
    <message>
        <source>Copy column &amp;name</source>
        <translation>复制列名(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy with &amp;headers</source>
        <translation>连同标题复制(&amp;H)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Show value</source>
        <translation>显示值(&amp;S)</translation>
    </message>
    <message>
        <source>Co&amp;lumn</source>
        <translation>列(&amp;L)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>%1 cells are too many for the clipboard.</source>
        <translation>%1 个单元格过多，无法放入剪贴板。</translation>
    </message>
    <message>
        <source>Copy %1 cells to the clipboard?</source>
        <translation>是否将 %1 个单元格复制到剪贴板？</translation>
    </message>
    <message>
        <source>Select fewer of them, or export the rows to a file.</source>
        <translation>请少选一些单元格，或将行导出到文件。</translation>
    </message>
    <message>
        <source>A file may be the better place for so many: export the rows instead.</source>
        <translation>数量这么多，更适合保存到文件：建议改为导出行。</translation>
    </message>
    <message>
        <source>Copying: %1 % (Esc stops it)</source>
        <translation>正在复制: %1 %（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Copied 1 row</source>
        <translation>已复制 1 行</translation>
    </message>
    <message numerus="yes">
        <source>Copied %Ln rows</source>
        <translation>
            <numerusform>已复制 %Ln 行</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying was stopped; the clipboard holds what it held</source>
        <translation>已停止复制；剪贴板内容保持不变</translation>
    </message>
    <message>
        <source>Stop copying</source>
        <translation>停止复制</translation>
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
        <translation>已停止，用时 %1</translation>
    </message>
    <message>
        <source>Stopped after 1 row · %1</source>
        <translation>在 1 行后停止 · %1</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %Ln rows · %1</source>
        <translation>
            <numerusform>在 %Ln 行后停止 · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>First row · %1</source>
        <translation>前 1 行 · %1</translation>
    </message>
    <message numerus="yes">
        <source>First %Ln rows · %1</source>
        <translation>
            <numerusform>前 %Ln 行 · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No rows · %1</source>
        <translation>没有行 · %1</translation>
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
        <translation>结果</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;U)</translation>
    </message>
    <message>
        <source>Fetch all rows (F5)</source>
        <translation>获取所有行 (F5)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Stop the query that runs (Esc)</source>
        <translation>停止正在运行的查询 (Esc)</translation>
    </message>
    <message>
        <source>Live &amp;preview</source>
        <translation>实时预览(&amp;P)</translation>
    </message>
    <message>
        <source>Show the first rows whenever the query changes</source>
        <translation>查询更改时显示前几行</translation>
    </message>
    <message>
        <source>Rows appear here when you run a query.</source>
        <translation>运行查询后，行将显示在此处。</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>正在运行…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>正在排序…</translation>
    </message>
    <message>
        <source>1 row so far…</source>
        <translation>目前 1 行…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows so far…</source>
        <translation>
            <numerusform>目前 %Ln 行…</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no connection to the database</source>
        <translation>没有数据库连接</translation>
    </message>
    <message>
        <source>The database could not run the query</source>
        <translation>数据库无法运行该查询</translation>
    </message>
    <message>
        <source>The query cannot be run</source>
        <translation>无法运行该查询</translation>
    </message>
</context>
<context>
    <name>tolvi::TRowFiles</name>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入文件“%1”: %2</translation>
    </message>
    <message>
        <source>CSV, separated by commas</source>
        <translation>CSV，以逗号分隔</translation>
    </message>
    <message>
        <source>CSV, separated by semicolons</source>
        <translation>CSV，以分号分隔</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>文本，以制表符分隔</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>电子表格</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Table in Markdown</source>
        <translation>Markdown 表格</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>不是文件</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Show the &amp;first rows while a query is edited</source>
        <translation>编辑查询时显示前几行(&amp;F)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>&amp;Queries may hold conditions written in SQL</source>
        <translation>查询可以包含用 SQL 编写的条件(&amp;Q)</translation>
    </message>
    <message>
        <source>Such a condition reaches the database as it is. Allow it only for queries that come from people whom you trust.</source>
        <translation>这类条件会原样传给数据库。请仅在查询来自您信任的人时才允许。</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>颜色(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Size of letters:</source>
        <translation>字号(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Rows of the preview:</source>
        <translation>预览行数(&amp;R):</translation>
    </message>
    <message>
        <source>Rows of a run at &amp;most:</source>
        <translation>运行的最大行数(&amp;M):</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsFile</name>
    <message>
        <source>The settings could not be read (%1): they are the default ones now. The file is kept as %2.</source>
        <translation>无法读取设置 (%1)：现已使用默认设置。原文件保留为 %2。</translation>
    </message>
</context>
<context>
    <name>tolvi::TShortcuts</name>
    <message>
        <source>Among the conditions</source>
        <translation>在条件中</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>In the list of queries</source>
        <translation>在查询列表中</translation>
    </message>
    <message>
        <source>Among the rows</source>
        <translation>在行中</translation>
    </message>
    <message>
        <source>In the SQL</source>
        <translation>在 SQL 中</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlEdit</name>
    <message>
        <source>Copy what is selected</source>
        <translation>复制所选内容</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>增大字号</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>减小字号</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlPane</name>
    <message>
        <source>Statement</source>
        <translation>语句</translation>
    </message>
    <message>
        <source>S&amp;yntax:</source>
        <translation>语法(&amp;Y):</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>书写语句所用的 SQL 语法</translation>
    </message>
    <message>
        <source>&amp;Paste SQL...</source>
        <translation>粘贴 SQL(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the whole statement</source>
        <translation>复制整个语句</translation>
    </message>
    <message>
        <source>Copy with &amp;values</source>
        <translation>连同值复制(&amp;V)</translation>
    </message>
    <message>
        <source>Copy with &amp;parameters as ?</source>
        <translation>复制，参数写作 ?(&amp;P)</translation>
    </message>
    <message>
        <source>Copy with parameters as :&amp;Name</source>
        <translation>复制，参数写作 :名称(&amp;N)</translation>
    </message>
    <message>
        <source>Copy with parameters as $&amp;1</source>
        <translation>复制，参数写作 $1(&amp;1)</translation>
    </message>
    <message>
        <source>Make a query of a SELECT statement</source>
        <translation>由 SELECT 语句生成查询</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>在查询中显示</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>另有 %n 条警告</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreModel</name>
    <message>
        <source>Deleted by somebody else</source>
        <translation>已被他人删除</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>已被他人更改</translation>
    </message>
    <message>
        <source>Changed by somebody else, %1</source>
        <translation>已被他人更改，%1</translation>
    </message>
    <message>
        <source>Changed by %1, %2</source>
        <translation>已被 %1 更改，%2</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>正在显示</translation>
    </message>
    <message>
        <source>changes not saved</source>
        <translation>更改未保存</translation>
    </message>
    <message>
        <source>Has changes that are not saved</source>
        <translation>有未保存的更改</translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreNote</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>tolvi::TStorePane</name>
    <message>
        <source>Search queries</source>
        <translation>搜索查询</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>Clear the search to put queries in another order.</source>
        <translation>要调整查询的顺序，请先清除搜索内容。</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>新建查询(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>复制一份(&amp;D)</translation>
    </message>
    <message>
        <source>D&amp;escription...</source>
        <translation>说明(&amp;E)...</translation>
    </message>
    <message>
        <source>De&amp;lete...</source>
        <translation>删除(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Copy query text</source>
        <translation>复制查询文本(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste query text</source>
        <translation>粘贴查询文本(&amp;P)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>刷新(&amp;F)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>没有打开的查询库。</translation>
    </message>
    <message>
        <source>There are no queries yet. Press %1 to make one.</source>
        <translation>还没有查询。按 %1 新建一个。</translation>
    </message>
    <message>
        <source>No query holds this text.</source>
        <translation>没有包含此文本的查询。</translation>
    </message>
    <message>
        <source>Description of “%1”</source>
        <translation>“%1”的说明</translation>
    </message>
    <message>
        <source>&amp;What the query answers, for those who look for it:</source>
        <translation>该查询能回答什么，供他人查找时参考(&amp;W):</translation>
    </message>
    <message>
        <source>Delete it all the same?</source>
        <translation>仍要删除吗？</translation>
    </message>
    <message>
        <source>New query %1</source>
        <translation>新查询 %1</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>新查询</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1（副本 %2）</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1（副本）</translation>
    </message>
    <message>
        <source>Delete the query “%1”?</source>
        <translation>是否删除查询“%1”？</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>“%1”已删除。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤消(&amp;U)</translation>
    </message>
    <message>
        <source>What was copied is no query text. Statements in SQL are pasted into the SQL.</source>
        <translation>复制的内容不是查询文本。SQL 语句请粘贴到 SQL 中。</translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. You can take that back until the note about it is closed.</source>
        <translation>所有使用此查询库的人都将失去该查询。在关闭相应提示之前可以撤消。</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was deleted, and %n before it.</source>
        <translation>
            <numerusform>“%1”已删除，此前还删除了 %n 个。</numerusform>
        </translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. It cannot be read: you cannot take that back.</source>
        <translation>所有使用此查询库的人都将失去该查询。该查询无法读取，因此无法撤消。</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueDlg</name>
    <message>
        <source>Value of %1</source>
        <translation>%1 的值</translation>
    </message>
    <message>
        <source>NULL: there is no value</source>
        <translation>NULL：没有值</translation>
    </message>
    <message>
        <source>An empty text</source>
        <translation>空文本</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
</context>
<context>
    <name>tolvi::TWorkspace</name>
    <message>
        <source>The sample cannot be put into %1: the folder cannot be made. The option --home names another place.</source>
        <translation>无法将示例放入 %1：无法创建该文件夹。可用选项 --home 指定其他位置。</translation>
    </message>
    <message>
        <source>The sample stays as it is: %1 cannot be renamed.</source>
        <translation>示例保持不变：无法重命名 %1。</translation>
    </message>
    <message>
        <source>The data model cannot be kept: %1. Model &gt; Save as... keeps it in another place.</source>
        <translation>无法保存数据模型: %1。使用“模型 &gt; 另存为...”可将其保存到其他位置。</translation>
    </message>
    <message numerus="yes">
        <source>The driver tells nothing of links between tables. %n link(s) were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</source>
        <translation>
            <numerusform>驱动程序不提供表之间的关联信息。已根据列名找到 %n 个关联；“模型 &gt; 关系图...”会显示它们，也可以绘制其他关联。</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no tables that can be read. Once it has some, Model &gt; Read new tables from the database finds them.</source>
        <translation>数据库中没有可读取的表。有了表之后，使用“模型 &gt; 从数据库读取新表”即可找到它们。</translation>
    </message>
    <message>
        <source>%1 is no data model, or a damaged one: %2. Choose another file; where there is none, a model is made from the tables of the database.</source>
        <translation>%1 不是数据模型或已损坏: %2。请选择其他文件；如果没有文件，将根据数据库的表创建模型。</translation>
    </message>
    <message>
        <source>Queries cannot be kept in this database: %1</source>
        <translation>无法将查询保存在此数据库中: %1</translation>
    </message>
    <message>
        <source>Queries cannot be kept: %1. Query &gt; Where queries are kept has other places.</source>
        <translation>无法保存查询: %1。可在“查询 &gt; 查询的保存位置”中选择其他位置。</translation>
    </message>
</context>
<context>
    <name>tolvi::TXlsxFile</name>
    <message>
        <source>the folder for temporary files, &quot;%1&quot;, is full</source>
        <translation>临时文件夹“%1”已满</translation>
    </message>
    <message>
        <source>the text in row %1, column %2 has %3 letters, and a cell holds %4</source>
        <translation>第 %1 行第 %2 列的文本有 %3 个字符，而单元格最多容纳 %4 个</translation>
    </message>
    <message>
        <source>there are %1 rows, and a sheet holds %2</source>
        <translation>共有 %1 行，而工作表最多容纳 %2 行</translation>
    </message>
    <message>
        <source>there are %1 columns, and a sheet holds %2</source>
        <translation>共有 %1 列，而工作表最多容纳 %2 列</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgConnection</name>
    <message>
        <source>Connect to a database</source>
        <translation>连接数据库</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>最近的连接</translation>
    </message>
    <message>
        <source>UR&amp;L:</source>
        <translation>URL(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>测试(&amp;T)</translation>
    </message>
    <message>
        <source>This system has no keychain: passwords are forgotten when the program ends.</source>
        <translation>此系统没有密钥链：程序结束后密码即被忘记。</translation>
    </message>
    <message>
        <source>Looking for the keychain of this system...</source>
        <translation>正在查找此系统的密钥链...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>The keychain did not take the password: %1. It is known until the program ends.</source>
        <translation>密钥链未能保存密码: %1。该密码仅在程序结束前有效。</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgImportSql</name>
    <message>
        <source>Paste SQL</source>
        <translation>粘贴 SQL</translation>
    </message>
    <message>
        <source>&amp;Make query</source>
        <translation>生成查询(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Statement:</source>
        <translation>语句(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Only if it can be read exactly</source>
        <translation>仅在能够精确读取时(&amp;O)</translation>
    </message>
    <message>
        <source>Otherwise what a query cannot say is left out or replaced, with a warning</source>
        <translation>否则，查询无法表达的内容将被略去或替换，并给出警告</translation>
    </message>
    <message>
        <source>&amp;Keep as rows of SQL what no operator says</source>
        <translation>没有运算符可表达的内容保留为 SQL 行(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Warnings (F8 for the next one):</source>
        <translation>警告（按 F8 转到下一条）(&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>查询(&amp;Q):</translation>
    </message>
    <message>
        <source>The statement is too long: statements of up to %1 KB can be read.</source>
        <translation>语句过长：最多可读取 %1 KB 的语句。</translation>
    </message>
    <message>
        <source>Paste or type a SELECT statement.</source>
        <translation>请粘贴或键入 SELECT 语句。</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>另有 %n 条警告</numerusform>
        </translation>
    </message>
    <message>
        <source>The query says what the statement says.</source>
        <translation>该查询与语句的含义一致。</translation>
    </message>
    <message numerus="yes">
        <source>The statement can be read with %n warnings.</source>
        <translation>
            <numerusform>可以读取该语句，但有 %n 条警告。</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement cannot be read exactly.</source>
        <translation>无法精确读取该语句。</translation>
    </message>
    <message>
        <source>The statement cannot be read.</source>
        <translation>无法读取该语句。</translation>
    </message>
</context>
<context>
    <name>tolvi::main</name>
    <message>
        <source>Ask databases in sentences.</source>
        <translation>用句子查询数据库。</translation>
    </message>
    <message>
        <source>An SQLite file, or a URL as docs/databases.md tells; without it, what was open the last time, at first the sample.</source>
        <translation>SQLite 文件，或 docs/databases.md 中所述的 URL；不指定时打开上次使用的数据库，首次为示例。</translation>
    </message>
    <message>
        <source>The data model: a model text or XML.</source>
        <translation>数据模型：模型文本或 XML。</translation>
    </message>
    <message>
        <source>The folder of the queries.</source>
        <translation>查询的文件夹。</translation>
    </message>
    <message>
        <source>The queries are in the database.</source>
        <translation>查询保存在数据库中。</translation>
    </message>
    <message>
        <source>Keep settings, unsaved work and the sample there.</source>
        <translation>将设置、未保存的工作和示例保存在该处。</translation>
    </message>
    <message>
        <source>Play the script with keys and clicks, then quit; see docs/workbench.md.</source>
        <translation>播放含按键和单击的脚本，然后退出；见 docs/workbench.md。</translation>
    </message>
    <message>
        <source>Write a picture of the window, at the end of the script, then quit.</source>
        <translation>在脚本结束时写出窗口图片，然后退出。</translation>
    </message>
    <message>
        <source>Open the sample.</source>
        <translation>打开示例。</translation>
    </message>
</context>
</TS>
