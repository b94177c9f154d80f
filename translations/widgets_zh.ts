<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>tolvi::TCatalogueTablesModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>架构</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>view</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>table</source>
        <translation>表</translation>
    </message>
    <message>
        <source>%1, in the model</source>
        <translation>%1，已在模型中</translation>
    </message>
</context>
<context>
    <name>tolvi::TConditionsPage</name>
    <message>
        <source>Predefined conditions</source>
        <translation>预定义条件</translation>
    </message>
    <message>
        <source>Display format</source>
        <translation>显示格式</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>New condition</source>
        <translation>新建条件</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Display &amp;format:</source>
        <translation>显示格式(&amp;F):</translation>
    </message>
    <message>
        <source>@ is the place of a value.</source>
        <translation>@ 是值所在的位置。</translation>
    </message>
    <message>
        <source>S&amp;QL:</source>
        <translation>SQL(&amp;Q):</translation>
    </message>
    <message>
        <source>@1 and @2 stand for the values.</source>
        <translation>@1 和 @2 代表各个值。</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>表:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>示例:</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Text before it</source>
        <translation>值前文本</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>数据类型</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>更改值的数据类型</translation>
    </message>
    <message>
        <source>A single value</source>
        <translation>单个值</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>值列表</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>子查询</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>更改值的种类</translation>
    </message>
    <message>
        <source>Data t&amp;ype:</source>
        <translation>数据类型(&amp;Y):</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>种类(&amp;K):</translation>
    </message>
    <message>
        <source>Change SQL</source>
        <translation>更改 SQL</translation>
    </message>
    <message>
        <source>Change display format</source>
        <translation>更改显示格式</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>添加条件</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>删除条件</translation>
    </message>
</context>
<context>
    <name>tolvi::TDesignMinimap</name>
    <message>
        <source>The whole diagram; click to go there</source>
        <translation>整个关系图；单击可转到该处</translation>
    </message>
    <message>
        <source>The whole diagram</source>
        <translation>整个关系图</translation>
    </message>
</context>
<context>
    <name>tolvi::TDropDownDate</name>
    <message>
        <source>This is no time. Write it like %1.</source>
        <translation>时间无效，请按 %1 的格式填写。</translation>
    </message>
    <message>
        <source>This is no date. Write it like %1.</source>
        <translation>日期无效，请按 %1 的格式填写。</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>今天(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>现在(&amp;N)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>日历</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesModel</name>
    <message>
        <source>(no group)</source>
        <translation>（无分组）</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Column or expression</source>
        <translation>列或表达式</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesPage</name>
    <message>
        <source>Fields in groups</source>
        <translation>分组中的字段</translation>
    </message>
    <message>
        <source>Find fields or groups</source>
        <translation>查找字段或分组</translation>
    </message>
    <message>
        <source>Add columns...</source>
        <translation>添加列...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>运算符</translation>
    </message>
    <message>
        <source>Value Editor</source>
        <translation>值编辑器</translation>
    </message>
    <message>
        <source>Add columns</source>
        <translation>添加列</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>新字段</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>添加表达式</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>新分组</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>添加分组</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>删除分组</translation>
    </message>
    <message>
        <source>Delete field</source>
        <translation>删除字段</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>移动字段</translation>
    </message>
    <message>
        <source>Move group</source>
        <translation>移动分组</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntryTable</name>
    <message>
        <source>Text shown</source>
        <translation>显示的文本</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>SQL 中的值</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>值列表</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldForm</name>
    <message>
        <source>Offered in conditions</source>
        <translation>可用于条件</translation>
    </message>
    <message>
        <source>Offer in conditions</source>
        <translation>设置可用于条件</translation>
    </message>
    <message>
        <source>Offered as result column</source>
        <translation>可用作结果列</translation>
    </message>
    <message>
        <source>Offer as result column</source>
        <translation>设置可用作结果列</translation>
    </message>
    <message>
        <source>Aggregate</source>
        <translation>聚合</translation>
    </message>
    <message>
        <source>Mark as aggregate</source>
        <translation>标记为聚合</translation>
    </message>
    <message>
        <source>The expression calls an aggregate function: conditions on it go to HAVING</source>
        <translation>表达式调用了聚合函数：相关条件将写入 HAVING</translation>
    </message>
    <message>
        <source>Quoted column name</source>
        <translation>列名加引号</translation>
    </message>
    <message>
        <source>Quote column name</source>
        <translation>为列名加引号</translation>
    </message>
    <message>
        <source>Group &amp;name:</source>
        <translation>分组名称(&amp;N):</translation>
    </message>
    <message>
        <source>Change group name</source>
        <translation>更改分组名称</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>显示名称(&amp;N):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>更改显示名称</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>种类(&amp;K):</translation>
    </message>
    <message>
        <source>Change kind</source>
        <translation>更改种类</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>表(&amp;B):</translation>
    </message>
    <message>
        <source>Change table</source>
        <translation>更改表</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>表达式(&amp;X):</translation>
    </message>
    <message>
        <source>Change expression</source>
        <translation>更改表达式</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>表:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>分组(&amp;G):</translation>
    </message>
    <message>
        <source>Move fields to group</source>
        <translation>将字段移到分组</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>（未知）</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>类型(&amp;Y):</translation>
    </message>
    <message>
        <source>Change type</source>
        <translation>更改类型</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Change size</source>
        <translation>更改大小</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>大小(&amp;S):</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>(fields chosen: %1)</source>
        <translation>（已选字段: %1）</translation>
    </message>
    <message>
        <source>(no group)</source>
        <translation>（无分组）</translation>
    </message>
    <message>
        <source>Colu&amp;mn:</source>
        <translation>列(&amp;M):</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（无）</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldOperators</name>
    <message>
        <source>Offered operators</source>
        <translation>提供的运算符</translation>
    </message>
    <message>
        <source>O&amp;ffered:</source>
        <translation>提供(&amp;F):</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove operator</source>
        <translation>移除运算符</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>全部移除</translation>
    </message>
    <message>
        <source>Operators that are not offered</source>
        <translation>未提供的运算符</translation>
    </message>
    <message>
        <source>&amp;Not offered:</source>
        <translation>未提供(&amp;N):</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>提供</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>提供运算符</translation>
    </message>
    <message>
        <source>All that apply</source>
        <translation>所有适用项</translation>
    </message>
    <message>
        <source>Offer just the operators that are made for the type of the field</source>
        <translation>仅提供适用于该字段类型的运算符</translation>
    </message>
    <message>
        <source>- by some</source>
        <translation>- 仅部分字段</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>移动运算符</translation>
    </message>
    <message>
        <source>Offer all operators that apply</source>
        <translation>提供所有适用的运算符</translation>
    </message>
    <message>
        <source>Remove all operators</source>
        <translation>移除所有运算符</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldTree</name>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Find a field</source>
        <translation>查找字段</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillChoicePage</name>
    <message>
        <source>Tables and fields that are added</source>
        <translation>要添加的表和字段</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Check all that is listed</source>
        <translation>选中列出的所有项</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>全不选(&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all that is listed</source>
        <translation>取消选中列出的所有项</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>Change the display name (F2)</source>
        <translation>更改显示名称 (F2)</translation>
    </message>
    <message>
        <source>&amp;Lists of Values</source>
        <translation>值列表(&amp;L)</translation>
    </message>
    <message>
        <source>With or without lists of values (Ctrl+L)</source>
        <translation>是否带值列表 (Ctrl+L)</translation>
    </message>
    <message>
        <source>Links that are added</source>
        <translation>要添加的关联</translation>
    </message>
    <message>
        <source>Check all links that are listed</source>
        <translation>选中列出的所有关联</translation>
    </message>
    <message>
        <source>Uncheck all links that are listed</source>
        <translation>取消选中列出的所有关联</translation>
    </message>
    <message>
        <source>&amp;Rows...</source>
        <translation>行(&amp;R)...</translation>
    </message>
    <message>
        <source>Choose which rows a link keeps (F2)</source>
        <translation>选择关联保留哪些行 (F2)</translation>
    </message>
    <message>
        <source>&amp;Tables and Fields (%1)</source>
        <translation>表和字段 (%1)(&amp;T)</translation>
    </message>
    <message>
        <source>Lin&amp;ks (%1)</source>
        <translation>关联 (%1)(&amp;K)</translation>
    </message>
    <message>
        <source>Nothing is added: the model has all that these tables have.</source>
        <translation>没有可添加的内容：模型已包含这些表的全部内容。</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillFieldItems</name>
    <message>
        <source>Further alias of %1</source>
        <translation>%1 的另一个别名</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>已在模型中</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>新表</translation>
    </message>
    <message>
        <source>with a list</source>
        <translation>带列表</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>（无名称）</translation>
    </message>
    <message>
        <source>Table, column</source>
        <translation>表、列</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>显示名称</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>值列表</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillLinkItems</name>
    <message>
        <source>Only rows that match</source>
        <translation>仅匹配的行</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>%1 的所有行</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>两个表的所有行</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>关联</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>结果中的行</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPage</name>
    <message>
        <source>&amp;Find:</source>
        <translation>查找(&amp;F):</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPreviewPage</name>
    <message>
        <source>What the database no longer has stays in the model. Delete it there if nothing needs it.</source>
        <translation>数据库中已不存在的内容仍保留在模型中。如果不再需要，请在模型中删除。</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>更改内容</translation>
    </message>
    <message>
        <source>Added: %1 tables, %2 fields, %3 links.</source>
        <translation>新增: %1 个表、%2 个字段、%3 个关联。</translation>
    </message>
    <message>
        <source>Changed: %1 types.</source>
        <translation>更改: %1 个类型。</translation>
    </message>
    <message>
        <source>Vanished: %1.</source>
        <translation>已消失: %1 项。</translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>没有可填充的内容。</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillReportItems</name>
    <message>
        <source>Types that change</source>
        <translation>将更改的类型</translation>
    </message>
    <message>
        <source>Types that differ in the database</source>
        <translation>与数据库不同的类型</translation>
    </message>
    <message>
        <source>New tables</source>
        <translation>新表</translation>
    </message>
    <message>
        <source>New groups</source>
        <translation>新分组</translation>
    </message>
    <message>
        <source>New fields</source>
        <translation>新字段</translation>
    </message>
    <message>
        <source>New lists of values</source>
        <translation>新值列表</translation>
    </message>
    <message>
        <source>New links</source>
        <translation>新关联</translation>
    </message>
    <message>
        <source>Vanished tables</source>
        <translation>已消失的表</translation>
    </message>
    <message>
        <source>Vanished fields</source>
        <translation>已消失的字段</translation>
    </message>
    <message>
        <source>Vanished links</source>
        <translation>已消失的关联</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
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
        <translation>视图</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>已在模型中</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>模型</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTablesPage</name>
    <message>
        <source>Tables of the database</source>
        <translation>数据库中的表</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>数据库(&amp;D):</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Check all tables that are listed</source>
        <translation>选中列出的所有表</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>全不选(&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all tables that are listed</source>
        <translation>取消选中列出的所有表</translation>
    </message>
    <message>
        <source>Only Ne&amp;w</source>
        <translation>仅新表(&amp;W)</translation>
    </message>
    <message>
        <source>Check those that the model does not have, uncheck the others</source>
        <translation>选中模型中没有的表，取消选中其他表</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>选项(&amp;P)</translation>
    </message>
    <message>
        <source>Links from foreign keys</source>
        <translation>根据外键建立关联</translation>
    </message>
    <message>
        <source>Links from names of columns</source>
        <translation>根据列名建立关联</translation>
    </message>
    <message>
        <source>Further aliases of tables that are linked twice</source>
        <translation>为关联两次的表另设别名</translation>
    </message>
    <message>
        <source>New columns of tables that the model has</source>
        <translation>模型已有的表中的新列</translation>
    </message>
    <message>
        <source>Take over types that have changed</source>
        <translation>采用已更改的类型</translation>
    </message>
    <message>
        <source>Quote names in mixed case</source>
        <translation>为大小写混用的名称加引号</translation>
    </message>
    <message>
        <source>Lists of values for foreign keys, up to</source>
        <translation>外键的值列表，最多</translation>
    </message>
    <message>
        <source> rows</source>
        <translation> 行</translation>
    </message>
    <message>
        <source>Most rows of a list of values</source>
        <translation>值列表的最大行数</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>仅匹配的行</translation>
    </message>
    <message>
        <source>All rows of the table that refers</source>
        <translation>引用表的所有行</translation>
    </message>
    <message>
        <source>All rows of the table referred to</source>
        <translation>被引用表的所有行</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>两个表的所有行</translation>
    </message>
    <message>
        <source>Rows of &amp;links:</source>
        <translation>关联保留的行(&amp;L):</translation>
    </message>
    <message>
        <source>(that of the connection)</source>
        <translation>（连接的数据库）</translation>
    </message>
    <message>
        <source>%1 of %2 tables are checked</source>
        <translation>已选中 %1 个表，共 %2 个</translation>
    </message>
</context>
<context>
    <name>tolvi::TItemList</name>
    <message>
        <source>Type to search</source>
        <translation>键入以搜索</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>正在加载</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>Nothing to choose from</source>
        <translation>没有可选项</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>无匹配项</translation>
    </message>
</context>
<context>
    <name>tolvi::TJResultFieldsPanel</name>
    <message>
        <source>Sorting</source>
        <translation>排序方式</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
</context>
<context>
    <name>tolvi::TJStructDesignPanel</name>
    <message>
        <source>Move tables</source>
        <translation>移动表</translation>
    </message>
    <message>
        <source>Resize table</source>
        <translation>调整表的大小</translation>
    </message>
    <message>
        <source>Diagram of tables and links</source>
        <translation>表与关联的关系图</translation>
    </message>
    <message>
        <source>Arrange tables in rows</source>
        <translation>按行排列表</translation>
    </message>
    <message>
        <source>Arrange tables by links</source>
        <translation>按关联排列表</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>适合高度</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入文件“%1”: %2</translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1 x %2 pixels.</source>
        <translation>内存不足，无法生成 %1 x %2 像素的图片。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png, .svg or .pdf.</source>
        <translation>文件“%1”的扩展名必须是 .png、.svg 或 .pdf。</translation>
    </message>
    <message>
        <source>Export Diagram</source>
        <translation>导出关系图</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;Documents (*.pdf)</source>
        <translation>图片 (*.png *.svg);;文档 (*.pdf)</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>添加表</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>删除表</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>删除关联</translation>
    </message>
    <message>
        <source>Delete tables</source>
        <translation>删除多个表</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>编辑关联</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>添加关联</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>字段 %1</translation>
    </message>
    <message>
        <source>link %1</source>
        <translation>关联 %1</translation>
    </message>
    <message>
        <source>Add &amp;Tables...</source>
        <translation>添加表(&amp;T)...</translation>
    </message>
    <message>
        <source>Add &amp;Link</source>
        <translation>添加关联(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Cancel Adding</source>
        <translation>取消添加(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit Link...</source>
        <translation>编辑关联(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤消(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Fit &amp;Height to Fields</source>
        <translation>使高度适合字段(&amp;H)</translation>
    </message>
    <message>
        <source>Arrange in Ro&amp;ws</source>
        <translation>按行排列(&amp;G)</translation>
    </message>
    <message>
        <source>Arrange &amp;by Links</source>
        <translation>按关联排列(&amp;B)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Show &amp;Whole Diagram</source>
        <translation>显示整个关系图(&amp;W)</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>原始大小(&amp;S)</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture</source>
        <translation>复制图片(&amp;Y)</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>导出(&amp;X)...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)...</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairs</name>
    <message>
        <source>Column pairs</source>
        <translation>列对</translation>
    </message>
    <message>
        <source>New pair</source>
        <translation>新建列对</translation>
    </message>
    <message>
        <source>Delete pairs</source>
        <translation>删除列对</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairsModel</name>
    <message>
        <source>A constant...</source>
        <translation>常量...</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Constant: %1</source>
        <translation>常量: %1</translation>
    </message>
    <message>
        <source>(choose a column)</source>
        <translation>（选择列）</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelCheckPane</name>
    <message>
        <source>What is wrong with the model</source>
        <translation>模型中的问题</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Nothing is wrong with the model.</source>
        <translation>模型没有问题。</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>错误: %1，警告: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelPage</name>
    <message>
        <source>The model stays as it was.</source>
        <translation>模型保持原样。</translation>
    </message>
</context>
<context>
    <name>tolvi::TOperatorsPage</name>
    <message>
        <source>In &amp;list</source>
        <translation>在列表中(&amp;L)</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>介于(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>开头为(&amp;S)</translation>
    </message>
    <message>
        <source>Conta&amp;ins</source>
        <translation>包含(&amp;I)</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>文本(&amp;X)</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>数字(&amp;U)</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>日期(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N):</translation>
    </message>
    <message>
        <source>Change name</source>
        <translation>更改名称</translation>
    </message>
    <message>
        <source>Dis&amp;play name:</source>
        <translation>显示名称(&amp;P):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>更改显示名称</translation>
    </message>
    <message>
        <source>S&amp;QL template:</source>
        <translation>SQL 模板(&amp;Q):</translation>
    </message>
    <message>
        <source>Change SQL template</source>
        <translation>更改 SQL 模板</translation>
    </message>
    <message>
        <source>&amp;Between values:</source>
        <translation>值之间(&amp;B):</translation>
    </message>
    <message>
        <source>Change value format</source>
        <translation>更改值的格式</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>运算符</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>显示名称</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>SQL template</source>
        <translation>SQL 模板</translation>
    </message>
    <message>
        <source>New operator</source>
        <translation>新建运算符</translation>
    </message>
    <message>
        <source>Add defaults</source>
        <translation>添加默认项</translation>
    </message>
    <message>
        <source>Adds the default operators that the model lacks</source>
        <translation>添加模型中缺少的默认运算符</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>全部删除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Default operators that the model has</source>
        <translation>模型中的默认运算符</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>关闭一组时会删除其运算符</translation>
    </message>
    <message>
        <source>Change default operators</source>
        <translation>更改默认运算符</translation>
    </message>
    <message>
        <source>@f stands for the field, @1 and @2 for the values.</source>
        <translation>@f 代表字段，@1 和 @2 代表各个值。</translation>
    </message>
    <message>
        <source>What users read between the two values, as &quot;and&quot;</source>
        <translation>用户在两个值之间看到的文字，例如“和”</translation>
    </message>
    <message>
        <source>Single values</source>
        <translation>单个值</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>值列表</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>子查询</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>更改值的种类</translation>
    </message>
    <message>
        <source>The type of the field</source>
        <translation>字段的类型</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>更改值的类型</translation>
    </message>
    <message>
        <source>Texts are compared without re&amp;gard to case</source>
        <translation>比较文本时不区分大小写(&amp;G)</translation>
    </message>
    <message>
        <source>Change letter case</source>
        <translation>更改大小写</translation>
    </message>
    <message>
        <source>&amp;Kind of values:</source>
        <translation>值的种类(&amp;K):</translation>
    </message>
    <message>
        <source>T&amp;ype of values:</source>
        <translation>值的类型(&amp;Y):</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>示例</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>示例:</translation>
    </message>
    <message>
        <source>Types of fields to which it applies</source>
        <translation>适用的字段类型</translation>
    </message>
    <message>
        <source>Types of fields</source>
        <translation>字段类型</translation>
    </message>
    <message>
        <source>Offe&amp;r for all of them</source>
        <translation>为所有这些字段提供(&amp;R)</translation>
    </message>
    <message>
        <source>All fields of these types offer the operator then</source>
        <translation>此后这些类型的所有字段都提供该运算符</translation>
    </message>
    <message>
        <source>Fields of these types: %1. Fields that offer it: %2.</source>
        <translation>这些类型的字段: %1。提供该运算符的字段: %2。</translation>
    </message>
    <message>
        <source>Change types</source>
        <translation>更改类型</translation>
    </message>
    <message>
        <source>Add operator</source>
        <translation>添加运算符</translation>
    </message>
    <message>
        <source>Add default operators</source>
        <translation>添加默认运算符</translation>
    </message>
    <message>
        <source>Copy operator</source>
        <translation>复制运算符</translation>
    </message>
    <message>
        <source>Delete operator</source>
        <translation>删除运算符</translation>
    </message>
    <message>
        <source>Delete all operators</source>
        <translation>删除所有运算符</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>移动运算符</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>提供运算符</translation>
    </message>
</context>
<context>
    <name>tolvi::TPartList</name>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPParamLabel</name>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Prompt:</source>
        <translation>提示文字(&amp;P):</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPRow</name>
    <message>
        <source>Link word</source>
        <translation>连接词</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>运算符</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>值 %1</translation>
    </message>
    <message>
        <source>The row is locked: it cannot be changed here</source>
        <translation>该行已锁定，无法在此更改</translation>
    </message>
    <message>
        <source>The bracket holds a locked row: it cannot be changed here</source>
        <translation>条件组内有已锁定的行，无法在此更改</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFColumnsPage</name>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>The name of the column in SQL. It follows the name above.</source>
        <translation>SQL 中的列名，随上方的名称变化。</translation>
    </message>
    <message>
        <source>Type an expression; { offers the fields</source>
        <translation>输入表达式；输入 { 可选择字段</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>别名</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>不显示</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Select a field first.</source>
        <translation>请先选择一个字段。</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFSortingPage</name>
    <message>
        <source>The result shows all columns; the result fields only sort it.</source>
        <translation>结果显示所有列；结果字段仅用于排序。</translation>
    </message>
    <message>
        <source>Drag a row, or press Alt+Up or Alt+Down, to move it</source>
        <translation>拖动行，或按 Alt+向上键、Alt+向下键移动行</translation>
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
        <translation>读取此 SQL(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>The text is not read yet</source>
        <translation>尚未读取该文本</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesModel</name>
    <message>
        <source>The default main table</source>
        <translation>默认主表</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>别名</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>显示名称</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesPage</name>
    <message>
        <source>Inner</source>
        <translation>内连接</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左连接</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右连接</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>全连接</translation>
    </message>
    <message>
        <source>&amp;Alias:</source>
        <translation>别名(&amp;A):</translation>
    </message>
    <message>
        <source>Change alias</source>
        <translation>更改别名</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>显示名称(&amp;N):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>更改显示名称</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>表(&amp;B):</translation>
    </message>
    <message>
        <source>Change table name</source>
        <translation>更改表名</translation>
    </message>
    <message>
        <source>Databa&amp;se:</source>
        <translation>数据库(&amp;S):</translation>
    </message>
    <message>
        <source>Change database name</source>
        <translation>更改数据库名</translation>
    </message>
    <message>
        <source>&amp;Hints:</source>
        <translation>提示(&amp;H):</translation>
    </message>
    <message>
        <source>Change hints</source>
        <translation>更改提示</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>表</translation>
    </message>
    <message>
        <source>Find tables</source>
        <translation>查找表</translation>
    </message>
    <message>
        <source>There are no tables yet: add some from the database, or by hand.</source>
        <translation>还没有表：请从数据库添加，或手动添加。</translation>
    </message>
    <message>
        <source>Add from database...</source>
        <translation>从数据库添加...</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>新建表</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>&amp;Quoted name</source>
        <translation>名称加引号(&amp;Q)</translation>
    </message>
    <message>
        <source>Default &amp;main table</source>
        <translation>默认主表(&amp;M)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>查询从此表开始</translation>
    </message>
    <message>
        <source>Linked with</source>
        <translation>关联到</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>条件</translation>
    </message>
    <message>
        <source>Links of the table</source>
        <translation>此表的关联</translation>
    </message>
    <message>
        <source>&amp;Links:</source>
        <translation>关联(&amp;L):</translation>
    </message>
    <message>
        <source>Add link...</source>
        <translation>添加关联...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>编辑...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>删除关联</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>添加表</translation>
    </message>
    <message>
        <source>NewTable</source>
        <translation>NewTable</translation>
    </message>
    <message>
        <source>Add table</source>
        <translation>添加表</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>删除表</translation>
    </message>
    <message>
        <source>Move table</source>
        <translation>移动表</translation>
    </message>
    <message>
        <source>The SQL of fields (%1) and conditions (%2) names the table &quot;%3&quot;. Change it, too?</source>
        <translation>%1 个字段和 %2 个条件的 SQL 引用了表“%3”。是否一并更改？</translation>
    </message>
    <message>
        <source>Unchanged, it no longer finds the table.</source>
        <translation>如不更改，将无法再找到该表。</translation>
    </message>
    <message>
        <source>Quote table name</source>
        <translation>为表名加引号</translation>
    </message>
    <message>
        <source>Set default main table</source>
        <translation>设置默认主表</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>添加关联</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>编辑关联</translation>
    </message>
</context>
<context>
    <name>tolvi::TTitlesModel</name>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Default text</source>
        <translation>默认文本</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
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
        <translation>SQL 语法</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>书写语句所用的 SQL 语法</translation>
    </message>
    <message>
        <source>SQL with JOIN</source>
        <translation>使用 JOIN 的 SQL</translation>
    </message>
    <message>
        <source>SQL with joins in WHERE</source>
        <translation>在 WHERE 中连接的 SQL</translation>
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
        <translation>语句(&amp;A):</translation>
    </message>
    <message>
        <source>Choose columns to see a statement.</source>
        <translation>选择列后即可看到语句。</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>第 %1 行: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueEditorBox</name>
    <message>
        <source>Automatic (by the data type)</source>
        <translation>自动（按数据类型）</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Fixed list</source>
        <translation>固定列表</translation>
    </message>
    <message>
        <source>The host&apos;s own editor</source>
        <translation>宿主程序自带的编辑器</translation>
    </message>
    <message>
        <source>List from a query</source>
        <translation>查询得出的列表</translation>
    </message>
    <message>
        <source>Sub-query</source>
        <translation>子查询</translation>
    </message>
    <message>
        <source>Value editor</source>
        <translation>值编辑器</translation>
    </message>
    <message>
        <source>A line of text, a date or a check box, as the data type wants it.</source>
        <translation>根据数据类型显示为文本行、日期或复选框。</translation>
    </message>
    <message>
        <source>Data for the &amp;host:</source>
        <translation>供宿主程序使用的数据(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Stored query:</source>
        <translation>存储的查询(&amp;S):</translation>
    </message>
    <message>
        <source>A query text, as query panels save it.</source>
        <translation>查询文本，格式与查询面板保存的相同。</translation>
    </message>
    <message>
        <source>Values are entered &amp;by:</source>
        <translation>值的输入方式(&amp;B):</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>纯文本</translation>
    </message>
    <message>
        <source>By the mask</source>
        <translation>按掩码</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>按输入</translation>
    </message>
    <message>
        <source>Upper case</source>
        <translation>大写</translation>
    </message>
    <message>
        <source>Lower case</source>
        <translation>小写</translation>
    </message>
    <message>
        <source>That of the field</source>
        <translation>与字段相同</translation>
    </message>
    <message>
        <source>&amp;With the mask&apos;s fixed characters</source>
        <translation>包含掩码中的固定字符(&amp;W)</translation>
    </message>
    <message>
        <source>De&amp;fault value:</source>
        <translation>默认值(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Kind of text:</source>
        <translation>文本种类(&amp;K):</translation>
    </message>
    <message>
        <source>&amp;Mask:</source>
        <translation>掩码(&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>大小写(&amp;L):</translation>
    </message>
    <message>
        <source>Type of the &amp;value:</source>
        <translation>值的类型(&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Insert rows from the clipboard (%1)</source>
        <translation>从剪贴板插入行 (%1)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Remove the selected rows (%1)</source>
        <translation>移除选定的行 (%1)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move the row up (%1)</source>
        <translation>上移该行 (%1)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message>
        <source>Move the row down (%1)</source>
        <translation>下移该行 (%1)</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>SELECT value, text FROM ...</source>
        <translation>SELECT value, text FROM ...</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>name=value, one in a line; :name in the query stands for it</source>
        <translation>名称=值，每行一个；在查询中用 :名称 表示</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>查询(&amp;Q):</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>参数(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>运行(&amp;R)</translation>
    </message>
    <message>
        <source>Shows what the query gives</source>
        <translation>显示查询的结果</translation>
    </message>
    <message>
        <source>Text shown</source>
        <translation>显示的文本</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>SQL 中的值</translation>
    </message>
    <message>
        <source>Values that the query gives</source>
        <translation>查询得出的值</translation>
    </message>
    <message>
        <source>What is changed here is changed for all %1 selected fields.</source>
        <translation>此处的更改将应用于全部 %1 个选定字段。</translation>
    </message>
    <message>
        <source>The model is not connected to a database</source>
        <translation>模型未连接到数据库</translation>
    </message>
    <message>
        <source>Change value editor</source>
        <translation>更改值编辑器</translation>
    </message>
    <message>
        <source>Rows: %1; the first %2 are shown</source>
        <translation>行数: %1；显示前 %2 行</translation>
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
        <translation>添加其字段(&amp;F)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>查找(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>架构(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Links to be made:</source>
        <translation>要建立的关联(&amp;L):</translation>
    </message>
    <message>
        <source>(all)</source>
        <translation>（全部）</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（无）</translation>
    </message>
    <message>
        <source> - by a further alias of the table, &quot;%1&quot;</source>
        <translation> - 使用该表的另一个别名“%1”</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>无匹配项</translation>
    </message>
    <message>
        <source>Tables chosen: %1</source>
        <translation>已选择的表: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>以及另外 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>添加表</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgColumns</name>
    <message>
        <source>Add Fields</source>
        <translation>添加字段</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>表(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>列(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Other column:</source>
        <translation>其他列(&amp;O):</translation>
    </message>
    <message>
        <source>No other columns of this table are known.</source>
        <translation>没有此表的其他已知列。</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgFill</name>
    <message>
        <source>Fill from Database</source>
        <translation>从数据库填充</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>上一步(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>F&amp;inish</source>
        <translation>完成(&amp;I)</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>上一步 (Alt+向左键)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The database gave no answer.</source>
        <translation>数据库没有响应。</translation>
    </message>
    <message>
        <source>Fill from database</source>
        <translation>从数据库填充</translation>
    </message>
    <message>
        <source>Step 1 of 3: Choose the tables</source>
        <translation>第 1 步（共 3 步）: 选择表</translation>
    </message>
    <message>
        <source>Step 2 of 3: Choose and name what is added</source>
        <translation>第 2 步（共 3 步）: 选择要添加的内容并命名</translation>
    </message>
    <message>
        <source>Step 3 of 3: Look at what changes</source>
        <translation>第 3 步（共 3 步）: 查看更改</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgLinkEdit</name>
    <message>
        <source>&amp;Quote the names of columns</source>
        <translation>为列名加引号(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Condition:</source>
        <translation>条件(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;First table:</source>
        <translation>第一个表(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Second table:</source>
        <translation>第二个表(&amp;S):</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>交换(&amp;W)</translation>
    </message>
    <message>
        <source>The tables and their columns change places; the rows found stay the same</source>
        <translation>交换两个表及其列的位置；找到的行保持不变</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>结果中的行</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>仅匹配的行</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>%1 的所有行</translation>
    </message>
    <message>
        <source>All rows of both tables</source>
        <translation>两个表的所有行</translation>
    </message>
    <message>
        <source>Pair %1: %2</source>
        <translation>第 %1 对: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>以及另外 %n 项</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelEdit</name>
    <message>
        <source>&amp;Tables</source>
        <translation>表(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>实体(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>运算符(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Conditions</source>
        <translation>条件(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>关系图(&amp;D)</translation>
    </message>
    <message>
        <source>Edit Data Model</source>
        <translation>编辑数据模型</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>打开...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Fill from database...</source>
        <translation>从数据库填充...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>设置...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>试用</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Data models (*.model)</source>
        <translation>数据模型 (*.model)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened. The model stays as it was.</source>
        <translation>无法打开文件 %1。模型保持原样。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>The model cannot be saved in the file %1.</source>
        <translation>无法将模型保存到文件 %1。</translation>
    </message>
    <message>
        <source>Open Model</source>
        <translation>打开模型</translation>
    </message>
    <message>
        <source>Save Model</source>
        <translation>保存模型</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>是否替换 %1？</translation>
    </message>
    <message>
        <source>The database cannot be connected.</source>
        <translation>无法连接数据库。</translation>
    </message>
    <message>
        <source>There is no help.</source>
        <translation>没有帮助。</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>无法显示帮助。</translation>
    </message>
    <message>
        <source>Clear model</source>
        <translation>清空模型</translation>
    </message>
    <message>
        <source>The model has been changed.</source>
        <translation>模型已更改。</translation>
    </message>
    <message>
        <source>Do you want to keep the changes?</source>
        <translation>是否保留更改？</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelSettings</name>
    <message>
        <source>&amp;In list</source>
        <translation>在列表中(&amp;I)</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>介于(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>开头为(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Contains</source>
        <translation>包含(&amp;C)</translation>
    </message>
    <message>
        <source>Opening &amp;quote of names:</source>
        <translation>名称的左引号(&amp;O):</translation>
    </message>
    <message>
        <source>C&amp;losing quote of names:</source>
        <translation>名称的右引号(&amp;L):</translation>
    </message>
    <message>
        <source>F&amp;ull table name:</source>
        <translation>完整表名(&amp;N):</translation>
    </message>
    <message>
        <source>DB, OWNER and TABLE stand for the names</source>
        <translation>DB、OWNER 和 TABLE 代表各个名称</translation>
    </message>
    <message>
        <source>&amp;True:</source>
        <translation>真(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;False:</source>
        <translation>假(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>日期(&amp;D):</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd&apos;</source>
        <translation>留空: &apos;yyyy-mm-dd&apos;</translation>
    </message>
    <message>
        <source>Ti&amp;me:</source>
        <translation>时间(&amp;I):</translation>
    </message>
    <message>
        <source>Empty: &apos;hh:nn:ss&apos;</source>
        <translation>留空: &apos;hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>D&amp;ate and time:</source>
        <translation>日期和时间(&amp;A):</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd hh:nn:ss&apos;</source>
        <translation>留空: &apos;yyyy-mm-dd hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>&amp;Wildcard of LIKE:</source>
        <translation>LIKE 通配符(&amp;W):</translation>
    </message>
    <message>
        <source>F&amp;unction for lower case:</source>
        <translation>转换为小写的函数(&amp;U):</translation>
    </message>
    <message>
        <source>Function for li&amp;sts:</source>
        <translation>生成列表的函数(&amp;S):</translation>
    </message>
    <message>
        <source>@1 stands for what is listed</source>
        <translation>@1 代表列出的内容</translation>
    </message>
    <message>
        <source>Default &amp;database:</source>
        <translation>默认数据库(&amp;B):</translation>
    </message>
    <message>
        <source>Its tables are written without it</source>
        <translation>书写其中的表时省略数据库名</translation>
    </message>
    <message>
        <source>Default o&amp;wner:</source>
        <translation>默认所有者(&amp;Y):</translation>
    </message>
    <message>
        <source>Outer joins are written with OUTE&amp;R</source>
        <translation>外连接带 OUTER 关键字(&amp;R)</translation>
    </message>
    <message>
        <source>AS stands before the alias of a ta&amp;ble</source>
        <translation>表别名前加 AS(&amp;K)</translation>
    </message>
    <message>
        <source>Tables of &amp;several databases</source>
        <translation>表来自多个数据库(&amp;V)</translation>
    </message>
    <message>
        <source>The connection is stored with the &amp;model</source>
        <translation>连接信息随模型存储(&amp;C)</translation>
    </message>
    <message>
        <source>Settings of the Model</source>
        <translation>模型设置</translation>
    </message>
    <message>
        <source>S&amp;QL</source>
        <translation>SQL(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>模型(&amp;M)</translation>
    </message>
    <message>
        <source>D&amp;efault operators</source>
        <translation>默认运算符(&amp;E)</translation>
    </message>
    <message>
        <source>Example of a statement</source>
        <translation>语句示例</translation>
    </message>
    <message>
        <source>A statement is written so:</source>
        <translation>语句的写法如下:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>(own settings)</source>
        <translation>（自定义设置）</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>预设(&amp;P):</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（无）</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>查询从此表开始</translation>
    </message>
    <message>
        <source>Menus list the &amp;fields outside groups first</source>
        <translation>菜单中先列出分组之外的字段(&amp;F)</translation>
    </message>
    <message>
        <source>Default m&amp;ain table:</source>
        <translation>默认主表(&amp;A):</translation>
    </message>
    <message>
        <source>Types whose values are written in quotes</source>
        <translation>值需加引号的类型</translation>
    </message>
    <message>
        <source>&amp;Booleans</source>
        <translation>布尔值(&amp;H)</translation>
    </message>
    <message>
        <source>Dates and &amp;times</source>
        <translation>日期和时间(&amp;X)</translation>
    </message>
    <message>
        <source>Groups that the model has</source>
        <translation>模型中的运算符组</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>关闭一组时会删除其运算符</translation>
    </message>
    <message>
        <source>Display names of the default operators</source>
        <translation>默认运算符的显示名称</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>运算符</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>显示名称</translation>
    </message>
    <message>
        <source>Change settings</source>
        <translation>更改设置</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgRFieldEdit</name>
    <message>
        <source>Undo</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>是否放弃更改？</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgTitlesEdit</name>
    <message>
        <source>Edit Texts</source>
        <translation>编辑文本</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>查找(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>全部重置(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>加载(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Load Texts</source>
        <translation>加载文本</translation>
    </message>
    <message>
        <source>Texts (*.titles);;All files (*)</source>
        <translation>文本 (*.titles);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Save Texts</source>
        <translation>保存文本</translation>
    </message>
    <message>
        <source>%1 is not a UTF-8 text.</source>
        <translation>%1 不是 UTF-8 文本。</translation>
    </message>
    <message>
        <source>%1 has none of these texts.</source>
        <translation>%1 不含其中任何文本。</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>无匹配项</translation>
    </message>
    <message>
        <source>Texts to be looked at: %1 (see the notes)</source>
        <translation>需要检查的文本: %1（见备注）</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgValueList</name>
    <message>
        <source>&amp;Values, one in a line:</source>
        <translation>值，每行一个(&amp;V):</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>值: %1</translation>
    </message>
</context>
</TS>
