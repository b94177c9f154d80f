<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>tolvi::TCatalogueTablesModel</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>المخطط</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>view</source>
        <translation>طريقة عرض</translation>
    </message>
    <message>
        <source>table</source>
        <translation>جدول</translation>
    </message>
    <message>
        <source>%1, in the model</source>
        <translation>%1، في النموذج</translation>
    </message>
</context>
<context>
    <name>tolvi::TConditionsPage</name>
    <message>
        <source>Predefined conditions</source>
        <translation>الشروط الجاهزة</translation>
    </message>
    <message>
        <source>Display format</source>
        <translation>صيغة العرض</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>New condition</source>
        <translation>شرط جديد</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Display &amp;format:</source>
        <translation>صيغة العرض (&amp;F):</translation>
    </message>
    <message>
        <source>@ is the place of a value.</source>
        <translation>تدل @ على موضع القيمة.</translation>
    </message>
    <message>
        <source>S&amp;QL:</source>
        <translation>عبارة SQL (&amp;Q):</translation>
    </message>
    <message>
        <source>@1 and @2 stand for the values.</source>
        <translation>يدل @1 و @2 على القيم.</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>الجداول:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>مثال:</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>القيم</translation>
    </message>
    <message>
        <source>Text before it</source>
        <translation>النص الذي يسبقها</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>نوع البيانات</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>الصنف</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>تغيير نوع القيمة</translation>
    </message>
    <message>
        <source>A single value</source>
        <translation>قيمة واحدة</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>قائمة قيم</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>استعلام فرعي</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>تغيير صنف القيمة</translation>
    </message>
    <message>
        <source>Data t&amp;ype:</source>
        <translation>نوع البيانات (&amp;Y):</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>الصنف (&amp;K):</translation>
    </message>
    <message>
        <source>Change SQL</source>
        <translation>تغيير SQL</translation>
    </message>
    <message>
        <source>Change display format</source>
        <translation>تغيير صيغة العرض</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>إضافة شرط</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>حذف شرط</translation>
    </message>
</context>
<context>
    <name>tolvi::TDesignMinimap</name>
    <message>
        <source>The whole diagram; click to go there</source>
        <translation>الرسم التخطيطي كاملًا؛ انقر للانتقال إلى الموضع</translation>
    </message>
    <message>
        <source>The whole diagram</source>
        <translation>الرسم التخطيطي كاملًا</translation>
    </message>
</context>
<context>
    <name>tolvi::TDropDownDate</name>
    <message>
        <source>This is no time. Write it like %1.</source>
        <translation>هذا ليس وقتًا. اكتبه على هذا النحو: %1.</translation>
    </message>
    <message>
        <source>This is no date. Write it like %1.</source>
        <translation>هذا ليس تاريخًا. اكتبه على هذا النحو: %1.</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>اليوم (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>الآن (&amp;N)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>التقويم</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesModel</name>
    <message>
        <source>(no group)</source>
        <translation>(بلا مجموعة)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>مجموعة</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>تعبير</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>عمود</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>الحقل</translation>
    </message>
    <message>
        <source>Column or expression</source>
        <translation>العمود أو التعبير</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesPage</name>
    <message>
        <source>Fields in groups</source>
        <translation>الحقول في المجموعات</translation>
    </message>
    <message>
        <source>Find fields or groups</source>
        <translation>البحث عن حقول أو مجموعات</translation>
    </message>
    <message>
        <source>Add columns...</source>
        <translation>إضافة أعمدة...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>تعبير</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>مجموعة</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>العوامل</translation>
    </message>
    <message>
        <source>Value Editor</source>
        <translation>محرر القيم</translation>
    </message>
    <message>
        <source>Add columns</source>
        <translation>إضافة أعمدة</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>حقل جديد</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>إضافة تعبير</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>مجموعة جديدة</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>إضافة مجموعة</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>حذف مجموعة</translation>
    </message>
    <message>
        <source>Delete field</source>
        <translation>حذف حقل</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>نقل حقل</translation>
    </message>
    <message>
        <source>Move group</source>
        <translation>نقل مجموعة</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntryTable</name>
    <message>
        <source>Text shown</source>
        <translation>النص المعروض</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>القيمة في SQL</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>قائمة القيم</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldForm</name>
    <message>
        <source>Offered in conditions</source>
        <translation>متاح في الشروط</translation>
    </message>
    <message>
        <source>Offer in conditions</source>
        <translation>الإتاحة في الشروط</translation>
    </message>
    <message>
        <source>Offered as result column</source>
        <translation>متاح كعمود في النتيجة</translation>
    </message>
    <message>
        <source>Offer as result column</source>
        <translation>الإتاحة كعمود في النتيجة</translation>
    </message>
    <message>
        <source>Aggregate</source>
        <translation>تجميعي</translation>
    </message>
    <message>
        <source>Mark as aggregate</source>
        <translation>التمييز كحقل تجميعي</translation>
    </message>
    <message>
        <source>The expression calls an aggregate function: conditions on it go to HAVING</source>
        <translation>يستدعي التعبير دالة تجميعية: تُكتب شروطه في HAVING</translation>
    </message>
    <message>
        <source>Quoted column name</source>
        <translation>اسم العمود بين علامتي اقتباس</translation>
    </message>
    <message>
        <source>Quote column name</source>
        <translation>وضع اسم العمود بين علامتي اقتباس</translation>
    </message>
    <message>
        <source>Group &amp;name:</source>
        <translation>اسم المجموعة (&amp;N):</translation>
    </message>
    <message>
        <source>Change group name</source>
        <translation>تغيير اسم المجموعة</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>اسم العرض (&amp;N):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>تغيير اسم العرض</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>الصنف (&amp;K):</translation>
    </message>
    <message>
        <source>Change kind</source>
        <translation>تغيير الصنف</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>عمود</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>تعبير</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>الجدول (&amp;B):</translation>
    </message>
    <message>
        <source>Change table</source>
        <translation>تغيير الجدول</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>التعبير (&amp;X):</translation>
    </message>
    <message>
        <source>Change expression</source>
        <translation>تغيير التعبير</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>الجداول:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>المجموعة (&amp;G):</translation>
    </message>
    <message>
        <source>Move fields to group</source>
        <translation>نقل الحقول إلى مجموعة</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(غير معروف)</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>النوع (&amp;Y):</translation>
    </message>
    <message>
        <source>Change type</source>
        <translation>تغيير النوع</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Change size</source>
        <translation>تغيير الحجم</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>الحجم (&amp;S):</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>المعرّف:</translation>
    </message>
    <message>
        <source>(fields chosen: %1)</source>
        <translation>(الحقول المحددة: %1)</translation>
    </message>
    <message>
        <source>(no group)</source>
        <translation>(بلا مجموعة)</translation>
    </message>
    <message>
        <source>Colu&amp;mn:</source>
        <translation>العمود (&amp;M):</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(لا شيء)</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldOperators</name>
    <message>
        <source>Offered operators</source>
        <translation>العوامل المتاحة</translation>
    </message>
    <message>
        <source>O&amp;ffered:</source>
        <translation>المتاحة (&amp;F):</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Remove operator</source>
        <translation>إزالة عامل</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>إزالة الكل</translation>
    </message>
    <message>
        <source>Operators that are not offered</source>
        <translation>العوامل غير المتاحة</translation>
    </message>
    <message>
        <source>&amp;Not offered:</source>
        <translation>غير المتاحة (&amp;N):</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>إتاحة</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>إتاحة عامل</translation>
    </message>
    <message>
        <source>All that apply</source>
        <translation>كل ما ينطبق</translation>
    </message>
    <message>
        <source>Offer just the operators that are made for the type of the field</source>
        <translation>إتاحة العوامل المناسبة لنوع الحقل فقط</translation>
    </message>
    <message>
        <source>- by some</source>
        <translation>- لدى بعضها</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>نقل عامل</translation>
    </message>
    <message>
        <source>Offer all operators that apply</source>
        <translation>إتاحة كل العوامل المنطبقة</translation>
    </message>
    <message>
        <source>Remove all operators</source>
        <translation>إزالة كل العوامل</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldTree</name>
    <message>
        <source>Find</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Find a field</source>
        <translation>البحث عن حقل</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillChoicePage</name>
    <message>
        <source>Tables and fields that are added</source>
        <translation>الجداول والحقول التي ستُضاف</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>الكل (&amp;A)</translation>
    </message>
    <message>
        <source>Check all that is listed</source>
        <translation>تحديد كل العناصر المعروضة</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>لا شيء (&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all that is listed</source>
        <translation>إلغاء تحديد كل العناصر المعروضة</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>إعادة تسمية (&amp;R)</translation>
    </message>
    <message>
        <source>Change the display name (F2)</source>
        <translation>تغيير اسم العرض (F2)</translation>
    </message>
    <message>
        <source>&amp;Lists of Values</source>
        <translation>قوائم القيم (&amp;L)</translation>
    </message>
    <message>
        <source>With or without lists of values (Ctrl+L)</source>
        <translation>مع قوائم القيم أو بدونها (Ctrl+L)</translation>
    </message>
    <message>
        <source>Links that are added</source>
        <translation>الروابط التي ستُضاف</translation>
    </message>
    <message>
        <source>Check all links that are listed</source>
        <translation>تحديد كل الروابط المعروضة</translation>
    </message>
    <message>
        <source>Uncheck all links that are listed</source>
        <translation>إلغاء تحديد كل الروابط المعروضة</translation>
    </message>
    <message>
        <source>&amp;Rows...</source>
        <translation>الصفوف (&amp;R)...</translation>
    </message>
    <message>
        <source>Choose which rows a link keeps (F2)</source>
        <translation>اختيار الصفوف التي يُبقيها الرابط (F2)</translation>
    </message>
    <message>
        <source>&amp;Tables and Fields (%1)</source>
        <translation>الجداول والحقول (%1) (&amp;T)</translation>
    </message>
    <message>
        <source>Lin&amp;ks (%1)</source>
        <translation>الروابط (%1) (&amp;K)</translation>
    </message>
    <message>
        <source>Nothing is added: the model has all that these tables have.</source>
        <translation>لن يُضاف شيء: النموذج يحتوي على كل ما في هذه الجداول.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillFieldItems</name>
    <message>
        <source>Further alias of %1</source>
        <translation>اسم مستعار آخر للجدول %1</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>في النموذج</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>جدول جديد</translation>
    </message>
    <message>
        <source>with a list</source>
        <translation>مع قائمة</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(بلا اسم)</translation>
    </message>
    <message>
        <source>Table, column</source>
        <translation>الجدول، العمود</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>اسم العرض</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>المجموعة</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>قائمة القيم</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillLinkItems</name>
    <message>
        <source>Only rows that match</source>
        <translation>الصفوف المتطابقة فقط</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>كل صفوف %1</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>كل صفوف الجدولين</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>الرابط</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>صفوف النتيجة</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPage</name>
    <message>
        <source>&amp;Find:</source>
        <translation>بحث (&amp;F):</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPreviewPage</name>
    <message>
        <source>What the database no longer has stays in the model. Delete it there if nothing needs it.</source>
        <translation>ما لم يعد موجودًا في قاعدة البيانات يبقى في النموذج. احذفه من النموذج إن لم تعد هناك حاجة إليه.</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>التغييرات</translation>
    </message>
    <message>
        <source>Added: %1 tables, %2 fields, %3 links.</source>
        <translation>الإضافات: %1 من الجداول، %2 من الحقول، %3 من الروابط.</translation>
    </message>
    <message>
        <source>Changed: %1 types.</source>
        <translation>التغييرات: %1 من الأنواع.</translation>
    </message>
    <message>
        <source>Vanished: %1.</source>
        <translation>ما اختفى: %1.</translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>لا يوجد ما يُملأ.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillReportItems</name>
    <message>
        <source>Types that change</source>
        <translation>الأنواع التي ستتغير</translation>
    </message>
    <message>
        <source>Types that differ in the database</source>
        <translation>الأنواع المختلفة في قاعدة البيانات</translation>
    </message>
    <message>
        <source>New tables</source>
        <translation>جداول جديدة</translation>
    </message>
    <message>
        <source>New groups</source>
        <translation>مجموعات جديدة</translation>
    </message>
    <message>
        <source>New fields</source>
        <translation>حقول جديدة</translation>
    </message>
    <message>
        <source>New lists of values</source>
        <translation>قوائم قيم جديدة</translation>
    </message>
    <message>
        <source>New links</source>
        <translation>روابط جديدة</translation>
    </message>
    <message>
        <source>Vanished tables</source>
        <translation>جداول اختفت</translation>
    </message>
    <message>
        <source>Vanished fields</source>
        <translation>حقول اختفت</translation>
    </message>
    <message>
        <source>Vanished links</source>
        <translation>روابط اختفت</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>ملاحظات</translation>
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
        <translation>طريقة عرض</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>جدول</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>في النموذج</translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>النموذج</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTablesPage</name>
    <message>
        <source>Tables of the database</source>
        <translation>جداول قاعدة البيانات</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>قاعدة البيانات (&amp;D):</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>الكل (&amp;A)</translation>
    </message>
    <message>
        <source>Check all tables that are listed</source>
        <translation>تحديد كل الجداول المعروضة</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>لا شيء (&amp;O)</translation>
    </message>
    <message>
        <source>Uncheck all tables that are listed</source>
        <translation>إلغاء تحديد كل الجداول المعروضة</translation>
    </message>
    <message>
        <source>Only Ne&amp;w</source>
        <translation>الجديدة فقط (&amp;W)</translation>
    </message>
    <message>
        <source>Check those that the model does not have, uncheck the others</source>
        <translation>تحديد الجداول غير الموجودة في النموذج وإلغاء تحديد غيرها</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>خيارات (&amp;P)</translation>
    </message>
    <message>
        <source>Links from foreign keys</source>
        <translation>روابط من المفاتيح الخارجية</translation>
    </message>
    <message>
        <source>Links from names of columns</source>
        <translation>روابط من أسماء الأعمدة</translation>
    </message>
    <message>
        <source>Further aliases of tables that are linked twice</source>
        <translation>أسماء مستعارة إضافية للجداول المرتبطة مرتين</translation>
    </message>
    <message>
        <source>New columns of tables that the model has</source>
        <translation>الأعمدة الجديدة في جداول النموذج</translation>
    </message>
    <message>
        <source>Take over types that have changed</source>
        <translation>اعتماد الأنواع التي تغيرت</translation>
    </message>
    <message>
        <source>Quote names in mixed case</source>
        <translation>وضع الأسماء المختلطة الحالة بين علامتي اقتباس</translation>
    </message>
    <message>
        <source>Lists of values for foreign keys, up to</source>
        <translation>قوائم قيم للمفاتيح الخارجية، حتى</translation>
    </message>
    <message>
        <source> rows</source>
        <translation> صف</translation>
    </message>
    <message>
        <source>Most rows of a list of values</source>
        <translation>أقصى عدد لصفوف قائمة القيم</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>الصفوف المتطابقة فقط</translation>
    </message>
    <message>
        <source>All rows of the table that refers</source>
        <translation>كل صفوف الجدول الذي يشير</translation>
    </message>
    <message>
        <source>All rows of the table referred to</source>
        <translation>كل صفوف الجدول المشار إليه</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>كل صفوف الجدولين</translation>
    </message>
    <message>
        <source>Rows of &amp;links:</source>
        <translation>صفوف الروابط (&amp;L):</translation>
    </message>
    <message>
        <source>(that of the connection)</source>
        <translation>(قاعدة بيانات الاتصال)</translation>
    </message>
    <message>
        <source>%1 of %2 tables are checked</source>
        <translation>عدد الجداول المحددة: %1 من %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TItemList</name>
    <message>
        <source>Type to search</source>
        <translation>اكتب للبحث</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>العناصر</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>جارٍ التحميل</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>جارٍ التحميل...</translation>
    </message>
    <message>
        <source>Nothing to choose from</source>
        <translation>لا توجد خيارات</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>لا توجد نتائج مطابقة</translation>
    </message>
</context>
<context>
    <name>tolvi::TJResultFieldsPanel</name>
    <message>
        <source>Sorting</source>
        <translation>نوع الفرز</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>الحقل</translation>
    </message>
</context>
<context>
    <name>tolvi::TJStructDesignPanel</name>
    <message>
        <source>Move tables</source>
        <translation>نقل الجداول</translation>
    </message>
    <message>
        <source>Resize table</source>
        <translation>تغيير حجم الجدول</translation>
    </message>
    <message>
        <source>Diagram of tables and links</source>
        <translation>الرسم التخطيطي للجداول والروابط</translation>
    </message>
    <message>
        <source>Arrange tables in rows</source>
        <translation>ترتيب الجداول في صفوف</translation>
    </message>
    <message>
        <source>Arrange tables by links</source>
        <translation>ترتيب الجداول حسب الروابط</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>ملاءمة الارتفاع</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>تتعذر الكتابة إلى الملف «%1»: %2</translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1 x %2 pixels.</source>
        <translation>لا تكفي الذاكرة لصورة مقاسها %1 x %2 بكسل.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png, .svg or .pdf.</source>
        <translation>يجب أن ينتهي اسم الملف «%1» بإحدى اللواحق .png أو .svg أو .pdf.</translation>
    </message>
    <message>
        <source>Export Diagram</source>
        <translation>تصدير الرسم التخطيطي</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;Documents (*.pdf)</source>
        <translation>صور (*.png *.svg);;مستندات (*.pdf)</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>إضافة جداول</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>حذف جدول</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>حذف رابط</translation>
    </message>
    <message>
        <source>Delete tables</source>
        <translation>حذف جداول</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>تحرير رابط</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>إضافة رابط</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>الجدول %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>الحقل %1</translation>
    </message>
    <message>
        <source>link %1</source>
        <translation>الرابط %1</translation>
    </message>
    <message>
        <source>Add &amp;Tables...</source>
        <translation>إضافة جداول (&amp;T)...</translation>
    </message>
    <message>
        <source>Add &amp;Link</source>
        <translation>إضافة رابط (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Cancel Adding</source>
        <translation>إلغاء الإضافة (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit Link...</source>
        <translation>تحرير الرابط (&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>حذف (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>تراجع (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إعادة (&amp;R)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>تحديد الكل (&amp;A)</translation>
    </message>
    <message>
        <source>Fit &amp;Height to Fields</source>
        <translation>ملاءمة الارتفاع مع الحقول (&amp;H)</translation>
    </message>
    <message>
        <source>Arrange in Ro&amp;ws</source>
        <translation>ترتيب في صفوف (&amp;G)</translation>
    </message>
    <message>
        <source>Arrange &amp;by Links</source>
        <translation>ترتيب حسب الروابط (&amp;B)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>تكبير (&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>تصغير (&amp;O)</translation>
    </message>
    <message>
        <source>Show &amp;Whole Diagram</source>
        <translation>إظهار الرسم كاملًا (&amp;W)</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>الحجم الأصلي (&amp;S)</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture</source>
        <translation>نسخ الصورة (&amp;Y)</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>تصدير (&amp;X)...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>طباعة (&amp;P)...</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairs</name>
    <message>
        <source>Column pairs</source>
        <translation>أزواج الأعمدة</translation>
    </message>
    <message>
        <source>New pair</source>
        <translation>زوج جديد</translation>
    </message>
    <message>
        <source>Delete pairs</source>
        <translation>حذف الأزواج</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairsModel</name>
    <message>
        <source>A constant...</source>
        <translation>ثابت...</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>المقارنة</translation>
    </message>
    <message>
        <source>Constant: %1</source>
        <translation>ثابت: %1</translation>
    </message>
    <message>
        <source>(choose a column)</source>
        <translation>(اختر عمودًا)</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelCheckPane</name>
    <message>
        <source>What is wrong with the model</source>
        <translation>مشكلات النموذج</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Nothing is wrong with the model.</source>
        <translation>لا توجد مشكلات في النموذج.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>الأخطاء: %1، التحذيرات: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelPage</name>
    <message>
        <source>The model stays as it was.</source>
        <translation>بقي النموذج كما كان.</translation>
    </message>
</context>
<context>
    <name>tolvi::TOperatorsPage</name>
    <message>
        <source>In &amp;list</source>
        <translation>ضمن قائمة (&amp;L)</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>بين قيمتين (&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>يبدأ بـ (&amp;S)</translation>
    </message>
    <message>
        <source>Conta&amp;ins</source>
        <translation>يحتوي على (&amp;I)</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>نص (&amp;X)</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>رقم (&amp;U)</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>تاريخ (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الاسم (&amp;N):</translation>
    </message>
    <message>
        <source>Change name</source>
        <translation>تغيير الاسم</translation>
    </message>
    <message>
        <source>Dis&amp;play name:</source>
        <translation>اسم العرض (&amp;P):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>تغيير اسم العرض</translation>
    </message>
    <message>
        <source>S&amp;QL template:</source>
        <translation>قالب SQL (&amp;Q):</translation>
    </message>
    <message>
        <source>Change SQL template</source>
        <translation>تغيير قالب SQL</translation>
    </message>
    <message>
        <source>&amp;Between values:</source>
        <translation>بين القيم (&amp;B):</translation>
    </message>
    <message>
        <source>Change value format</source>
        <translation>تغيير صيغة القيم</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>العوامل</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>اسم العرض</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>SQL template</source>
        <translation>قالب SQL</translation>
    </message>
    <message>
        <source>New operator</source>
        <translation>عامل جديد</translation>
    </message>
    <message>
        <source>Add defaults</source>
        <translation>إضافة العوامل الافتراضية</translation>
    </message>
    <message>
        <source>Adds the default operators that the model lacks</source>
        <translation>إضافة العوامل الافتراضية الناقصة في النموذج</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>حذف الكل</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>Default operators that the model has</source>
        <translation>العوامل الافتراضية في النموذج</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>إيقاف مجموعة يحذف عواملها</translation>
    </message>
    <message>
        <source>Change default operators</source>
        <translation>تغيير العوامل الافتراضية</translation>
    </message>
    <message>
        <source>@f stands for the field, @1 and @2 for the values.</source>
        <translation>يدل @f على الحقل، و @1 و @2 على القيم.</translation>
    </message>
    <message>
        <source>What users read between the two values, as &quot;and&quot;</source>
        <translation>ما يقرؤه المستخدمون بين القيمتين، مثل «و»</translation>
    </message>
    <message>
        <source>Single values</source>
        <translation>قيم مفردة</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>قائمة قيم</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>استعلام فرعي</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>تغيير صنف القيم</translation>
    </message>
    <message>
        <source>The type of the field</source>
        <translation>نوع الحقل</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>تغيير نوع القيم</translation>
    </message>
    <message>
        <source>Texts are compared without re&amp;gard to case</source>
        <translation>مقارنة النصوص دون مراعاة حالة الأحرف (&amp;G)</translation>
    </message>
    <message>
        <source>Change letter case</source>
        <translation>تغيير حالة الأحرف</translation>
    </message>
    <message>
        <source>&amp;Kind of values:</source>
        <translation>صنف القيم (&amp;K):</translation>
    </message>
    <message>
        <source>T&amp;ype of values:</source>
        <translation>نوع القيم (&amp;Y):</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>مثال</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>مثال:</translation>
    </message>
    <message>
        <source>Types of fields to which it applies</source>
        <translation>أنواع الحقول التي ينطبق عليها</translation>
    </message>
    <message>
        <source>Types of fields</source>
        <translation>أنواع الحقول</translation>
    </message>
    <message>
        <source>Offe&amp;r for all of them</source>
        <translation>إتاحة لجميعها (&amp;R)</translation>
    </message>
    <message>
        <source>All fields of these types offer the operator then</source>
        <translation>يصبح العامل متاحًا لكل الحقول من هذه الأنواع</translation>
    </message>
    <message>
        <source>Fields of these types: %1. Fields that offer it: %2.</source>
        <translation>الحقول من هذه الأنواع: %1. الحقول التي تتيحه: %2.</translation>
    </message>
    <message>
        <source>Change types</source>
        <translation>تغيير الأنواع</translation>
    </message>
    <message>
        <source>Add operator</source>
        <translation>إضافة عامل</translation>
    </message>
    <message>
        <source>Add default operators</source>
        <translation>إضافة العوامل الافتراضية</translation>
    </message>
    <message>
        <source>Copy operator</source>
        <translation>نسخ عامل</translation>
    </message>
    <message>
        <source>Delete operator</source>
        <translation>حذف عامل</translation>
    </message>
    <message>
        <source>Delete all operators</source>
        <translation>حذف كل العوامل</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>نقل عامل</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>إتاحة عامل</translation>
    </message>
</context>
<context>
    <name>tolvi::TPartList</name>
    <message>
        <source>Find</source>
        <translation>بحث</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPParamLabel</name>
    <message>
        <source>&amp;Name:</source>
        <translation>الاسم (&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Prompt:</source>
        <translation>نص السؤال (&amp;P):</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPRow</name>
    <message>
        <source>Link word</source>
        <translation>كلمة الربط</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>الحقل</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>العامل</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>القيمة %1</translation>
    </message>
    <message>
        <source>The row is locked: it cannot be changed here</source>
        <translation>الصف مقفل: لا يمكن تغييره هنا</translation>
    </message>
    <message>
        <source>The bracket holds a locked row: it cannot be changed here</source>
        <translation>تحتوي المجموعة على صف مقفل: لا يمكن تغييرها هنا</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFColumnsPage</name>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>The name of the column in SQL. It follows the name above.</source>
        <translation>اسم العمود في SQL. وهو يتبع الاسم أعلاه.</translation>
    </message>
    <message>
        <source>Type an expression; { offers the fields</source>
        <translation>اكتب تعبيرًا؛ اكتب { لعرض الحقول</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>الاسم المستعار</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>مخفي</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>معروض</translation>
    </message>
    <message>
        <source>Select a field first.</source>
        <translation>حدد حقلًا أولًا.</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFSortingPage</name>
    <message>
        <source>The result shows all columns; the result fields only sort it.</source>
        <translation>تعرض النتيجة كل الأعمدة؛ حقول النتيجة للفرز فقط.</translation>
    </message>
    <message>
        <source>Drag a row, or press Alt+Up or Alt+Down, to move it</source>
        <translation>اسحب صفًا لنقله، أو اضغط Alt+Up أو Alt+Down</translation>
    </message>
</context>
<context>
    <name>tolvi::TSubQueryDialog</name>
    <message>
        <source>&amp;SQL</source>
        <translation>عبارة SQL (&amp;S)</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>&amp;Read this SQL</source>
        <translation>قراءة عبارة SQL هذه (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>تجاهل (&amp;D)</translation>
    </message>
    <message>
        <source>The text is not read yet</source>
        <translation>لم يُقرأ النص بعد</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesModel</name>
    <message>
        <source>The default main table</source>
        <translation>الجدول الرئيسي الافتراضي</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>الاسم المستعار</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>اسم العرض</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>الجدول</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesPage</name>
    <message>
        <source>Inner</source>
        <translation>داخلي</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>أيسر</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>أيمن</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>كامل</translation>
    </message>
    <message>
        <source>&amp;Alias:</source>
        <translation>الاسم المستعار (&amp;A):</translation>
    </message>
    <message>
        <source>Change alias</source>
        <translation>تغيير الاسم المستعار</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>اسم العرض (&amp;N):</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>تغيير اسم العرض</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>الجدول (&amp;B):</translation>
    </message>
    <message>
        <source>Change table name</source>
        <translation>تغيير اسم الجدول</translation>
    </message>
    <message>
        <source>Databa&amp;se:</source>
        <translation>قاعدة البيانات (&amp;S):</translation>
    </message>
    <message>
        <source>Change database name</source>
        <translation>تغيير اسم قاعدة البيانات</translation>
    </message>
    <message>
        <source>&amp;Hints:</source>
        <translation>تلميحات (&amp;H):</translation>
    </message>
    <message>
        <source>Change hints</source>
        <translation>تغيير التلميحات</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>الجداول</translation>
    </message>
    <message>
        <source>Find tables</source>
        <translation>البحث عن جداول</translation>
    </message>
    <message>
        <source>There are no tables yet: add some from the database, or by hand.</source>
        <translation>لا توجد جداول بعد: أضفها من قاعدة البيانات أو يدويًا.</translation>
    </message>
    <message>
        <source>Add from database...</source>
        <translation>إضافة من قاعدة البيانات...</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>جدول جديد</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>نقل لأعلى</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>نقل لأسفل</translation>
    </message>
    <message>
        <source>&amp;Quoted name</source>
        <translation>الاسم بين علامتي اقتباس (&amp;Q)</translation>
    </message>
    <message>
        <source>Default &amp;main table</source>
        <translation>الجدول الرئيسي الافتراضي (&amp;M)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>تبدأ الاستعلامات من هذا الجدول</translation>
    </message>
    <message>
        <source>Linked with</source>
        <translation>مرتبط بـ</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>الربط</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>الشرط</translation>
    </message>
    <message>
        <source>Links of the table</source>
        <translation>روابط الجدول</translation>
    </message>
    <message>
        <source>&amp;Links:</source>
        <translation>الروابط (&amp;L):</translation>
    </message>
    <message>
        <source>Add link...</source>
        <translation>إضافة رابط...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>تحرير...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>حذف رابط</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>إضافة جداول</translation>
    </message>
    <message>
        <source>NewTable</source>
        <translation>NewTable</translation>
    </message>
    <message>
        <source>Add table</source>
        <translation>إضافة جدول</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>حذف جدول</translation>
    </message>
    <message>
        <source>Move table</source>
        <translation>نقل جدول</translation>
    </message>
    <message>
        <source>The SQL of fields (%1) and conditions (%2) names the table &quot;%3&quot;. Change it, too?</source>
        <translation>يرد الجدول «%3» في SQL الحقول (%1) والشروط (%2). هل تريد تغييرها أيضًا؟</translation>
    </message>
    <message>
        <source>Unchanged, it no longer finds the table.</source>
        <translation>إن لم تتغير فلن تجد الجدول.</translation>
    </message>
    <message>
        <source>Quote table name</source>
        <translation>وضع اسم الجدول بين علامتي اقتباس</translation>
    </message>
    <message>
        <source>Set default main table</source>
        <translation>تعيين الجدول الرئيسي الافتراضي</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>إضافة رابط</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>تحرير رابط</translation>
    </message>
</context>
<context>
    <name>tolvi::TTitlesModel</name>
    <message>
        <source>Key</source>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>Default text</source>
        <translation>النص الافتراضي</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
</context>
<context>
    <name>tolvi::TTryPane</name>
    <message>
        <source>Col&amp;umns:</source>
        <translation>الأعمدة (&amp;U):</translation>
    </message>
    <message>
        <source>Cond&amp;itions:</source>
        <translation>الشروط (&amp;I):</translation>
    </message>
    <message>
        <source>SQL syntax</source>
        <translation>صياغة SQL</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>صياغة SQL التي تُكتب بها العبارة</translation>
    </message>
    <message>
        <source>SQL with JOIN</source>
        <translation>عبارة SQL باستخدام JOIN</translation>
    </message>
    <message>
        <source>SQL with joins in WHERE</source>
        <translation>عبارة SQL بالربط في WHERE</translation>
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
        <translation>العبارة (&amp;A):</translation>
    </message>
    <message>
        <source>Choose columns to see a statement.</source>
        <translation>اختر أعمدة لعرض العبارة.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>الصف %1: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueEditorBox</name>
    <message>
        <source>Automatic (by the data type)</source>
        <translation>تلقائي (حسب نوع البيانات)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Fixed list</source>
        <translation>قائمة ثابتة</translation>
    </message>
    <message>
        <source>The host&apos;s own editor</source>
        <translation>محرر خاص بالبرنامج المضيف</translation>
    </message>
    <message>
        <source>List from a query</source>
        <translation>قائمة من استعلام</translation>
    </message>
    <message>
        <source>Sub-query</source>
        <translation>استعلام فرعي</translation>
    </message>
    <message>
        <source>Value editor</source>
        <translation>محرر القيم</translation>
    </message>
    <message>
        <source>A line of text, a date or a check box, as the data type wants it.</source>
        <translation>سطر نص أو تاريخ أو خانة اختيار، حسب نوع البيانات.</translation>
    </message>
    <message>
        <source>Data for the &amp;host:</source>
        <translation>بيانات للبرنامج المضيف (&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Stored query:</source>
        <translation>الاستعلام المحفوظ (&amp;S):</translation>
    </message>
    <message>
        <source>A query text, as query panels save it.</source>
        <translation>نص استعلام كما تحفظه لوحات الاستعلام.</translation>
    </message>
    <message>
        <source>Values are entered &amp;by:</source>
        <translation>إدخال القيم عن طريق (&amp;B):</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>نص عادي</translation>
    </message>
    <message>
        <source>By the mask</source>
        <translation>حسب القناع</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>تاريخ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>وقت</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>كما كُتب</translation>
    </message>
    <message>
        <source>Upper case</source>
        <translation>أحرف كبيرة</translation>
    </message>
    <message>
        <source>Lower case</source>
        <translation>أحرف صغيرة</translation>
    </message>
    <message>
        <source>That of the field</source>
        <translation>نوع الحقل نفسه</translation>
    </message>
    <message>
        <source>&amp;With the mask&apos;s fixed characters</source>
        <translation>مع الأحرف الثابتة في القناع (&amp;W)</translation>
    </message>
    <message>
        <source>De&amp;fault value:</source>
        <translation>القيمة الافتراضية (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Kind of text:</source>
        <translation>صنف النص (&amp;K):</translation>
    </message>
    <message>
        <source>&amp;Mask:</source>
        <translation>القناع (&amp;M):</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>حالة الأحرف (&amp;L):</translation>
    </message>
    <message>
        <source>Type of the &amp;value:</source>
        <translation>نوع القيمة (&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>لصق (&amp;P)</translation>
    </message>
    <message>
        <source>Insert rows from the clipboard (%1)</source>
        <translation>إدراج صفوف من الحافظة (%1)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>إزالة (&amp;R)</translation>
    </message>
    <message>
        <source>Remove the selected rows (%1)</source>
        <translation>إزالة الصفوف المحددة (%1)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>لأعلى (&amp;U)</translation>
    </message>
    <message>
        <source>Move the row up (%1)</source>
        <translation>نقل الصف لأعلى (%1)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>لأسفل (&amp;W)</translation>
    </message>
    <message>
        <source>Move the row down (%1)</source>
        <translation>نقل الصف لأسفل (%1)</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>الاستعلام</translation>
    </message>
    <message>
        <source>SELECT value, text FROM ...</source>
        <translation>SELECT value, text FROM ...</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المعلمات</translation>
    </message>
    <message>
        <source>name=value, one in a line; :name in the query stands for it</source>
        <translation>اسم=قيمة، واحدة في كل سطر؛ ويدل عليها :اسم في الاستعلام</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>الاستعلام (&amp;Q):</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>المعلمات (&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>تشغيل (&amp;R)</translation>
    </message>
    <message>
        <source>Shows what the query gives</source>
        <translation>عرض ما يعطيه الاستعلام</translation>
    </message>
    <message>
        <source>Text shown</source>
        <translation>النص المعروض</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>القيمة في SQL</translation>
    </message>
    <message>
        <source>Values that the query gives</source>
        <translation>القيم التي يعطيها الاستعلام</translation>
    </message>
    <message>
        <source>What is changed here is changed for all %1 selected fields.</source>
        <translation>يسري ما يتغير هنا على جميع الحقول المحددة (%1).</translation>
    </message>
    <message>
        <source>The model is not connected to a database</source>
        <translation>النموذج غير متصل بقاعدة بيانات</translation>
    </message>
    <message>
        <source>Change value editor</source>
        <translation>تغيير محرر القيم</translation>
    </message>
    <message>
        <source>Rows: %1; the first %2 are shown</source>
        <translation>عدد الصفوف: %1؛ تُعرض أول %2 منها</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>عدد الصفوف: %1</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgAddTables</name>
    <message>
        <source>Add their &amp;fields</source>
        <translation>إضافة حقولها (&amp;F)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>بحث (&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>المخطط (&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Links to be made:</source>
        <translation>الروابط التي ستُنشأ (&amp;L):</translation>
    </message>
    <message>
        <source>(all)</source>
        <translation>(الكل)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(لا شيء)</translation>
    </message>
    <message>
        <source> - by a further alias of the table, &quot;%1&quot;</source>
        <translation> - باسم مستعار آخر للجدول، «%1»</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>لا توجد نتائج مطابقة</translation>
    </message>
    <message>
        <source>Tables chosen: %1</source>
        <translation>عدد الجداول المحددة: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا شيء غير ذلك</numerusform>
            <numerusform>وواحد آخر</numerusform>
            <numerusform>واثنان آخران</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n غيرها</numerusform>
            <numerusform>و%n غيرها</numerusform>
        </translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>إضافة جداول</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgColumns</name>
    <message>
        <source>Add Fields</source>
        <translation>إضافة حقول</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>الجدول (&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>الأعمدة (&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Other column:</source>
        <translation>عمود آخر (&amp;O):</translation>
    </message>
    <message>
        <source>No other columns of this table are known.</source>
        <translation>لا تُعرف أعمدة أخرى لهذا الجدول.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgFill</name>
    <message>
        <source>Fill from Database</source>
        <translation>التعبئة من قاعدة البيانات</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>إعادة المحاولة (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>السابق (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>التالي (&amp;N)</translation>
    </message>
    <message>
        <source>F&amp;inish</source>
        <translation>إنهاء (&amp;I)</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>السابق (Alt+Left)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>The database gave no answer.</source>
        <translation>لم تستجب قاعدة البيانات.</translation>
    </message>
    <message>
        <source>Fill from database</source>
        <translation>التعبئة من قاعدة البيانات</translation>
    </message>
    <message>
        <source>Step 1 of 3: Choose the tables</source>
        <translation>الخطوة 1 من 3: اختيار الجداول</translation>
    </message>
    <message>
        <source>Step 2 of 3: Choose and name what is added</source>
        <translation>الخطوة 2 من 3: اختيار ما سيُضاف وتسميته</translation>
    </message>
    <message>
        <source>Step 3 of 3: Look at what changes</source>
        <translation>الخطوة 3 من 3: معاينة التغييرات</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgLinkEdit</name>
    <message>
        <source>&amp;Quote the names of columns</source>
        <translation>وضع أسماء الأعمدة بين علامتي اقتباس (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Condition:</source>
        <translation>الشرط (&amp;C):</translation>
    </message>
    <message>
        <source>&amp;First table:</source>
        <translation>الجدول الأول (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Second table:</source>
        <translation>الجدول الثاني (&amp;S):</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>تبديل (&amp;W)</translation>
    </message>
    <message>
        <source>The tables and their columns change places; the rows found stay the same</source>
        <translation>يتبادل الجدولان وأعمدتهما الموضع، وتبقى الصفوف الناتجة كما هي</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>صفوف النتيجة</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>الصفوف المتطابقة فقط</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>كل صفوف %1</translation>
    </message>
    <message>
        <source>All rows of both tables</source>
        <translation>كل صفوف الجدولين</translation>
    </message>
    <message>
        <source>Pair %1: %2</source>
        <translation>الزوج %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ولا شيء غير ذلك</numerusform>
            <numerusform>وواحد آخر</numerusform>
            <numerusform>واثنان آخران</numerusform>
            <numerusform>و%n أخرى</numerusform>
            <numerusform>و%n غيرها</numerusform>
            <numerusform>و%n غيرها</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelEdit</name>
    <message>
        <source>&amp;Tables</source>
        <translation>الجداول (&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>الكيانات (&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>العوامل (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Conditions</source>
        <translation>الشروط (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>الرسم التخطيطي (&amp;D)</translation>
    </message>
    <message>
        <source>Edit Data Model</source>
        <translation>تحرير نموذج البيانات</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>فتح...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>حفظ...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Fill from database...</source>
        <translation>التعبئة من قاعدة البيانات...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>الإعدادات...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>فحص</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>تجربة</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Data models (*.model)</source>
        <translation>نماذج البيانات (*.model)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened. The model stays as it was.</source>
        <translation>يتعذر فتح الملف %1. بقي النموذج كما كان.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>The model cannot be saved in the file %1.</source>
        <translation>يتعذر حفظ النموذج في الملف %1.</translation>
    </message>
    <message>
        <source>Open Model</source>
        <translation>فتح نموذج</translation>
    </message>
    <message>
        <source>Save Model</source>
        <translation>حفظ النموذج</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>هل تريد استبدال %1؟</translation>
    </message>
    <message>
        <source>The database cannot be connected.</source>
        <translation>يتعذر الاتصال بقاعدة البيانات.</translation>
    </message>
    <message>
        <source>There is no help.</source>
        <translation>لا توجد مساعدة.</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>يتعذر عرض المساعدة.</translation>
    </message>
    <message>
        <source>Clear model</source>
        <translation>مسح النموذج</translation>
    </message>
    <message>
        <source>The model has been changed.</source>
        <translation>تم تغيير النموذج.</translation>
    </message>
    <message>
        <source>Do you want to keep the changes?</source>
        <translation>هل تريد الاحتفاظ بالتغييرات؟</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelSettings</name>
    <message>
        <source>&amp;In list</source>
        <translation>ضمن قائمة (&amp;I)</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>بين قيمتين (&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>يبدأ بـ (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Contains</source>
        <translation>يحتوي على (&amp;C)</translation>
    </message>
    <message>
        <source>Opening &amp;quote of names:</source>
        <translation>علامة اقتباس فتح الأسماء (&amp;O):</translation>
    </message>
    <message>
        <source>C&amp;losing quote of names:</source>
        <translation>علامة اقتباس إغلاق الأسماء (&amp;L):</translation>
    </message>
    <message>
        <source>F&amp;ull table name:</source>
        <translation>اسم الجدول الكامل (&amp;N):</translation>
    </message>
    <message>
        <source>DB, OWNER and TABLE stand for the names</source>
        <translation>تدل DB و OWNER و TABLE على الأسماء</translation>
    </message>
    <message>
        <source>&amp;True:</source>
        <translation>صواب (&amp;T):</translation>
    </message>
    <message>
        <source>&amp;False:</source>
        <translation>خطأ (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>التاريخ (&amp;D):</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd&apos;</source>
        <translation>إن تُرك فارغًا: &apos;yyyy-mm-dd&apos;</translation>
    </message>
    <message>
        <source>Ti&amp;me:</source>
        <translation>الوقت (&amp;I):</translation>
    </message>
    <message>
        <source>Empty: &apos;hh:nn:ss&apos;</source>
        <translation>إن تُرك فارغًا: &apos;hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>D&amp;ate and time:</source>
        <translation>التاريخ والوقت (&amp;A):</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd hh:nn:ss&apos;</source>
        <translation>إن تُرك فارغًا: &apos;yyyy-mm-dd hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>&amp;Wildcard of LIKE:</source>
        <translation>حرف البدل في LIKE (&amp;W):</translation>
    </message>
    <message>
        <source>F&amp;unction for lower case:</source>
        <translation>دالة الأحرف الصغيرة (&amp;U):</translation>
    </message>
    <message>
        <source>Function for li&amp;sts:</source>
        <translation>دالة القوائم (&amp;S):</translation>
    </message>
    <message>
        <source>@1 stands for what is listed</source>
        <translation>يدل @1 على ما يُسرد</translation>
    </message>
    <message>
        <source>Default &amp;database:</source>
        <translation>قاعدة البيانات الافتراضية (&amp;B):</translation>
    </message>
    <message>
        <source>Its tables are written without it</source>
        <translation>تُكتب جداولها بدون اسمها</translation>
    </message>
    <message>
        <source>Default o&amp;wner:</source>
        <translation>المالك الافتراضي (&amp;Y):</translation>
    </message>
    <message>
        <source>Outer joins are written with OUTE&amp;R</source>
        <translation>كتابة الربط الخارجي مع OUTER (&amp;R)</translation>
    </message>
    <message>
        <source>AS stands before the alias of a ta&amp;ble</source>
        <translation>كتابة AS قبل الاسم المستعار للجدول (&amp;K)</translation>
    </message>
    <message>
        <source>Tables of &amp;several databases</source>
        <translation>جداول من عدة قواعد بيانات (&amp;V)</translation>
    </message>
    <message>
        <source>The connection is stored with the &amp;model</source>
        <translation>تخزين الاتصال مع النموذج (&amp;C)</translation>
    </message>
    <message>
        <source>Settings of the Model</source>
        <translation>إعدادات النموذج</translation>
    </message>
    <message>
        <source>S&amp;QL</source>
        <translation>لغة SQL (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>النموذج (&amp;M)</translation>
    </message>
    <message>
        <source>D&amp;efault operators</source>
        <translation>العوامل الافتراضية (&amp;E)</translation>
    </message>
    <message>
        <source>Example of a statement</source>
        <translation>مثال لعبارة</translation>
    </message>
    <message>
        <source>A statement is written so:</source>
        <translation>تُكتب العبارة هكذا:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>الإعداد المسبق</translation>
    </message>
    <message>
        <source>(own settings)</source>
        <translation>(إعدادات خاصة)</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>الإعداد المسبق (&amp;P):</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(لا شيء)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>تبدأ الاستعلامات من هذا الجدول</translation>
    </message>
    <message>
        <source>Menus list the &amp;fields outside groups first</source>
        <translation>عرض الحقول خارج المجموعات أولًا في القوائم (&amp;F)</translation>
    </message>
    <message>
        <source>Default m&amp;ain table:</source>
        <translation>الجدول الرئيسي الافتراضي (&amp;A):</translation>
    </message>
    <message>
        <source>Types whose values are written in quotes</source>
        <translation>الأنواع التي تُكتب قيمها بين علامتي اقتباس</translation>
    </message>
    <message>
        <source>&amp;Booleans</source>
        <translation>القيم المنطقية (&amp;H)</translation>
    </message>
    <message>
        <source>Dates and &amp;times</source>
        <translation>التواريخ والأوقات (&amp;X)</translation>
    </message>
    <message>
        <source>Groups that the model has</source>
        <translation>المجموعات الموجودة في النموذج</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>إيقاف مجموعة يحذف عواملها</translation>
    </message>
    <message>
        <source>Display names of the default operators</source>
        <translation>أسماء عرض العوامل الافتراضية</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>العامل</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>اسم العرض</translation>
    </message>
    <message>
        <source>Change settings</source>
        <translation>تغيير الإعدادات</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgRFieldEdit</name>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>هل تريد تجاهل التغييرات؟</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgTitlesEdit</name>
    <message>
        <source>Edit Texts</source>
        <translation>تحرير النصوص</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>النصوص</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>بحث (&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>إعادة تعيين (&amp;R)</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>إعادة تعيين الكل (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>تحميل (&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>حفظ (&amp;S)...</translation>
    </message>
    <message>
        <source>Load Texts</source>
        <translation>تحميل النصوص</translation>
    </message>
    <message>
        <source>Texts (*.titles);;All files (*)</source>
        <translation>نصوص (*.titles);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>Save Texts</source>
        <translation>حفظ النصوص</translation>
    </message>
    <message>
        <source>%1 is not a UTF-8 text.</source>
        <translation>الملف %1 ليس نصًا بترميز UTF-8.</translation>
    </message>
    <message>
        <source>%1 has none of these texts.</source>
        <translation>لا يحتوي %1 على أي من هذه النصوص.</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>لا توجد نتائج مطابقة</translation>
    </message>
    <message>
        <source>Texts to be looked at: %1 (see the notes)</source>
        <translation>نصوص تحتاج إلى مراجعة: %1 (انظر الملاحظات)</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgValueList</name>
    <message>
        <source>&amp;Values, one in a line:</source>
        <translation>القيم، قيمة في كل سطر (&amp;V):</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>عدد القيم: %1</translation>
    </message>
</context>
</TS>
