<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Values of the query</source>
        <translation>قيم الاستعلام</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>قيم «%1»</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>The password for %1</source>
        <translation>كلمة مرور %1</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>كلمة المرور (&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keychain</source>
        <translation>حفظها في سلسلة المفاتيح (&amp;R)</translation>
    </message>
    <message>
        <source>This system has no keychain: it is forgotten when the program ends.</source>
        <translation>لا توجد سلسلة مفاتيح في هذا النظام: تُنسى كلمة المرور عند انتهاء البرنامج.</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>تغيير من شخص آخر</translation>
    </message>
    <message>
        <source>&amp;Mine</source>
        <translation>نسختي (&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Theirs</source>
        <translation>النسخة الأخرى (&amp;T)</translation>
    </message>
    <message>
        <source>The query is no longer in the store.</source>
        <translation>لم يعد الاستعلام موجودًا في المخزن.</translation>
    </message>
    <message>
        <source>&amp;Save mine</source>
        <translation>حفظ نسختي (&amp;S)</translation>
    </message>
    <message>
        <source>What is stored now is replaced by your query</source>
        <translation>يحل استعلامك محل المخزَّن الآن</translation>
    </message>
    <message>
        <source>Your query is stored again</source>
        <translation>يُخزَّن استعلامك من جديد</translation>
    </message>
    <message>
        <source>Take t&amp;heirs</source>
        <translation>اعتماد النسخة الأخرى (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Delete mine, too</source>
        <translation>حذف نسختي أيضًا (&amp;D)</translation>
    </message>
    <message>
        <source>Your changes are lost</source>
        <translation>تُفقد تغييراتك</translation>
    </message>
    <message>
        <source>Your query is lost</source>
        <translation>يُفقد استعلامك</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>الاحتفاظ بالنسختين (&amp;K)</translation>
    </message>
    <message>
        <source>Yours is stored as another query</source>
        <translation>تُخزَّن نسختك كاستعلام آخر</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (نسختي)</translation>
    </message>
    <message>
        <source>%1 (mine %2)</source>
        <translation>%1 (نسختي %2)</translation>
    </message>
</context>
<context>
    <name>tolvi::TAbout</name>
    <message>
        <source>About the workbench</source>
        <translation>حول منضدة العمل</translation>
    </message>
    <message>
        <source>Ask databases in sentences: Tolvi writes the SQL. All that you see here is made of the panels and dialogs of the Tolvi library, which other programs can use, too.

Tolvi comes under the MIT licence. As this program shows SQL with QScintilla and charts with Qt Charts, it comes as a whole under the GNU General Public License, version 3. It also uses Qt %1, libxlsxwriter and QtKeychain.</source>
        <translation>اسأل قواعد البيانات بجمل مفهومة: يكتب Tolvi عبارات SQL. كل ما تراه هنا مكوَّن من لوحات مكتبة Tolvi ومربعات حوارها، ويمكن لبرامج أخرى استخدامها أيضًا.

يخضع Tolvi لرخصة MIT. ولأن هذا البرنامج يعرض SQL باستخدام QScintilla والرسوم البيانية باستخدام Qt Charts، فإنه يخضع في مجمله لرخصة GNU العمومية العامة، الإصدار 3. ويستخدم أيضًا Qt %1 و libxlsxwriter و QtKeychain.</translation>
    </message>
</context>
<context>
    <name>tolvi::TChartData</name>
    <message>
        <source>The first %1 of %2 rows.</source>
        <translation>أول %1 من %2 من الصفوف.</translation>
    </message>
    <message>
        <source>%1 rows: each point is the average of %2 rows that follow each other.</source>
        <translation>عدد الصفوف %1: كل نقطة هي متوسط %2 من الصفوف المتتالية.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows without a number are left out.</source>
        <translation>
            <numerusform>لم يُستبعد أي صف.</numerusform>
            <numerusform>استُبعد صف واحد بلا رقم.</numerusform>
            <numerusform>استُبعد صفان بلا أرقام.</numerusform>
            <numerusform>استُبعدت %n صفوف بلا أرقام.</numerusform>
            <numerusform>استُبعد %n صفًا بلا أرقام.</numerusform>
            <numerusform>استُبعد %n صف بلا أرقام.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TChartPane</name>
    <message>
        <source>Chart</source>
        <translation>الرسم البياني</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>النوع (&amp;K):</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>أعمدة</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>خط</translation>
    </message>
    <message>
        <source>Ac&amp;ross:</source>
        <translation>المحور الأفقي (&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Values:</source>
        <translation>القيم (&amp;V):</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>نسخ الصورة (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save picture...</source>
        <translation>حفظ الصورة (&amp;S)...</translation>
    </message>
    <message>
        <source>There are no rows to draw.</source>
        <translation>لا توجد صفوف لرسمها.</translation>
    </message>
    <message>
        <source>There is no column of numbers to draw.</source>
        <translation>لا يوجد عمود أرقام لرسمه.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; holds no numbers.</source>
        <translation>لا يحتوي العمود «%1» على أرقام.</translation>
    </message>
    <message>
        <source>Bars: %1 by %2.</source>
        <translation>أعمدة: %1 حسب %2.</translation>
    </message>
    <message>
        <source>Line: %1 by %2.</source>
        <translation>خط: %1 حسب %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n values, the least %1 (%2), the greatest %3 (%4).</source>
        <translation>
            <numerusform>لا قيم، الأصغر %1 (%2)، الأكبر %3 (%4).</numerusform>
            <numerusform>قيمة واحدة، الأصغر %1 (%2)، الأكبر %3 (%4).</numerusform>
            <numerusform>قيمتان، الأصغر %1 (%2)، الأكبر %3 (%4).</numerusform>
            <numerusform>%n قيم، الأصغر %1 (%2)، الأكبر %3 (%4).</numerusform>
            <numerusform>%n قيمة، الأصغر %1 (%2)، الأكبر %3 (%4).</numerusform>
            <numerusform>%n قيمة، الأصغر %1 (%2)، الأكبر %3 (%4).</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png or .svg.</source>
        <translation>يجب أن ينتهي اسم الملف «%1» باللاحقة .png أو .svg.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>تتعذر الكتابة إلى الملف «%1»: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>حفظ الصورة</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>صورة (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>رسم متجهي (*.svg)</translation>
    </message>
    <message>
        <source>Read &amp;all rows</source>
        <translation>قراءة كل الصفوف (&amp;A)</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln rows have been read.</source>
        <translation>
            <numerusform>لم يُقرأ أي صف.</numerusform>
            <numerusform>قُرئ الصف الأول فقط.</numerusform>
            <numerusform>قُرئ أول صفين فقط.</numerusform>
            <numerusform>قُرئت أول %Ln صفوف فقط.</numerusform>
            <numerusform>قُرئ أول %Ln صفًا فقط.</numerusform>
            <numerusform>قُرئ أول %Ln صف فقط.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionForm</name>
    <message>
        <source>SQLite file</source>
        <translation>ملف SQLite</translation>
    </message>
    <message>
        <source>PostgreSQL</source>
        <translation>PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL</source>
        <translation>MariaDB أو MySQL</translation>
    </message>
    <message>
        <source>ODBC</source>
        <translation>ODBC</translation>
    </message>
    <message>
        <source>&amp;Kind of database:</source>
        <translation>نوع قاعدة البيانات (&amp;K):</translation>
    </message>
    <message>
        <source>Data &amp;source:</source>
        <translation>مصدر البيانات (&amp;S):</translation>
    </message>
    <message>
        <source>Name, or Driver={...};Server=...</source>
        <translation>الاسم، أو Driver={...};Server=...</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>المضيف (&amp;H):</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>هذا الحاسوب</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>المنفذ (&amp;O):</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>قاعدة البيانات (&amp;D):</translation>
    </message>
    <message>
        <source>S&amp;chema:</source>
        <translation>المخطط (&amp;C):</translation>
    </message>
    <message>
        <source>the usual one</source>
        <translation>المخطط المعتاد</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>المستخدم (&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>استعراض (&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>الملف (&amp;F):</translation>
    </message>
    <message>
        <source>Browse for it, or drop it here</source>
        <translation>استعرض لاختيار الملف أو أفلته هنا</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>كلمة المرور (&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Remember the password in the keychain</source>
        <translation>حفظ كلمة المرور في سلسلة المفاتيح (&amp;R)</translation>
    </message>
    <message>
        <source>Open a database</source>
        <translation>فتح قاعدة بيانات</translation>
    </message>
    <message>
        <source>SQLite databases (*.sqlite *.sqlite3 *.db *.db3);;All files (*)</source>
        <translation>قواعد بيانات SQLite (*.sqlite *.sqlite3 *.db *.db3);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>اختر ملفًا.</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>لا يوجد ملف كهذا.</translation>
    </message>
    <message>
        <source>Name the data source.</source>
        <translation>أدخل اسم مصدر البيانات.</translation>
    </message>
    <message>
        <source>Name the database.</source>
        <translation>أدخل اسم قاعدة البيانات.</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>المنفذ رقم من 1 إلى 65535.</translation>
    </message>
    <message>
        <source>known</source>
        <translation>معروفة</translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionTest</name>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check host and port.</source>
        <translation>
            <numerusform>لم يرد أي جواب: تحقق من المضيف والمنفذ.</numerusform>
            <numerusform>لم يرد أي جواب خلال ثانية واحدة: تحقق من المضيف والمنفذ.</numerusform>
            <numerusform>لم يرد أي جواب خلال ثانيتين: تحقق من المضيف والمنفذ.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثوانٍ: تحقق من المضيف والمنفذ.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثانية: تحقق من المضيف والمنفذ.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثانية: تحقق من المضيف والمنفذ.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The connection works; %n table(s) found.</source>
        <translation>
            <numerusform>الاتصال يعمل؛ لم يُعثر على أي جدول.</numerusform>
            <numerusform>الاتصال يعمل؛ عُثر على جدول واحد.</numerusform>
            <numerusform>الاتصال يعمل؛ عُثر على جدولين.</numerusform>
            <numerusform>الاتصال يعمل؛ عُثر على %n جداول.</numerusform>
            <numerusform>الاتصال يعمل؛ عُثر على %n جدولًا.</numerusform>
            <numerusform>الاتصال يعمل؛ عُثر على %n جدول.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check that the file can be read and no program locks it.</source>
        <translation>
            <numerusform>لم يرد أي جواب: تحقق من إمكانية قراءة الملف ومن أن لا برنامج يقفله.</numerusform>
            <numerusform>لم يرد أي جواب خلال ثانية واحدة: تحقق من إمكانية قراءة الملف ومن أن لا برنامج يقفله.</numerusform>
            <numerusform>لم يرد أي جواب خلال ثانيتين: تحقق من إمكانية قراءة الملف ومن أن لا برنامج يقفله.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثوانٍ: تحقق من إمكانية قراءة الملف ومن أن لا برنامج يقفله.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثانية: تحقق من إمكانية قراءة الملف ومن أن لا برنامج يقفله.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثانية: تحقق من إمكانية قراءة الملف ومن أن لا برنامج يقفله.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check the data source and its driver.</source>
        <translation>
            <numerusform>لم يرد أي جواب: تحقق من مصدر البيانات ومشغّله.</numerusform>
            <numerusform>لم يرد أي جواب خلال ثانية واحدة: تحقق من مصدر البيانات ومشغّله.</numerusform>
            <numerusform>لم يرد أي جواب خلال ثانيتين: تحقق من مصدر البيانات ومشغّله.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثوانٍ: تحقق من مصدر البيانات ومشغّله.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثانية: تحقق من مصدر البيانات ومشغّله.</numerusform>
            <numerusform>لم يرد أي جواب خلال %n ثانية: تحقق من مصدر البيانات ومشغّله.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TExportDialog</name>
    <message>
        <source>Export rows</source>
        <translation>تصدير الصفوف</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot;...</source>
        <translation>جارٍ كتابة «%1»...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
</context>
<context>
    <name>tolvi::TFaultPage</name>
    <message>
        <source>&amp;Copy</source>
        <translation>نسخ (&amp;C)</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>تفاصيل الخطأ</translation>
    </message>
</context>
<context>
    <name>tolvi::TMainWindow</name>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>الرسم البياني</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>Open a database to ask it something.</source>
        <translation>افتح قاعدة بيانات لطرح سؤال عليها.</translation>
    </message>
    <message>
        <source>The query “%1” has changes that are not saved.</source>
        <translation>في الاستعلام «%1» تغييرات غير محفوظة.</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>حفظ الاستعلام (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>تجاهل التغييرات (&amp;D)</translation>
    </message>
    <message>
        <source>The data model has changes that are not saved.</source>
        <translation>في نموذج البيانات تغييرات غير محفوظة.</translation>
    </message>
    <message>
        <source>&amp;Save model</source>
        <translation>حفظ النموذج (&amp;S)</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” were saved. Here they are again.</source>
        <translation>انتهى البرنامج قبل حفظ تغييرات «%1». وقد استُعيدت هنا.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model were saved. Here they are again.</source>
        <translation>انتهى البرنامج قبل حفظ تغييرات نموذج البيانات. وقد استُعيدت هنا.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>قاعدة البيانات (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>فتح (&amp;O)...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>فتح الأحدث (&amp;R)</translation>
    </message>
    <message>
        <source>Open the &amp;sample</source>
        <translation>فتح القاعدة التجريبية (&amp;S)</translation>
    </message>
    <message>
        <source>Make the sample a&amp;new</source>
        <translation>إنشاء القاعدة التجريبية من جديد (&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Export rows...</source>
        <translation>تصدير الصفوف (&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Print rows...</source>
        <translation>طباعة الصفوف (&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إنهاء (&amp;Q)</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>لا شيء بعد</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>الاستعلام (&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>حفظ (&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;vert to saved</source>
        <translation>الرجوع إلى المحفوظ (&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Find a query</source>
        <translation>البحث عن استعلام (&amp;F)</translation>
    </message>
    <message>
        <source>Paste S&amp;QL...</source>
        <translation>لصق SQL (&amp;Q)...</translation>
    </message>
    <message>
        <source>&amp;Where queries are kept</source>
        <translation>مكان حفظ الاستعلامات (&amp;W)</translation>
    </message>
    <message>
        <source>By the &amp;workbench</source>
        <translation>لدى منضدة العمل (&amp;W)</translation>
    </message>
    <message>
        <source>In a &amp;folder...</source>
        <translation>في مجلد (&amp;F)...</translation>
    </message>
    <message>
        <source>Folder of the queries</source>
        <translation>مجلد الاستعلامات</translation>
    </message>
    <message>
        <source>In the &amp;database itself</source>
        <translation>في قاعدة البيانات نفسها (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>تحرير (&amp;E)</translation>
    </message>
    <message>
        <source>Result &amp;columns...</source>
        <translation>أعمدة النتيجة (&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>النموذج (&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Edit the model...</source>
        <translation>تحرير النموذج (&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Diagram...</source>
        <translation>الرسم التخطيطي (&amp;D)...</translation>
    </message>
    <message>
        <source>Read new tables from the data&amp;base</source>
        <translation>قراءة الجداول الجديدة من قاعدة البيانات (&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Undo change of the model</source>
        <translation>التراجع عن تغيير النموذج (&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo change of the model</source>
        <translation>إعادة تغيير النموذج (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>تحميل (&amp;L)...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>حفظ باسم (&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>عرض (&amp;V)</translation>
    </message>
    <message>
        <source>Go to the &amp;queries</source>
        <translation>الانتقال إلى الاستعلامات (&amp;Q)</translation>
    </message>
    <message>
        <source>Go to the &amp;conditions</source>
        <translation>الانتقال إلى الشروط (&amp;C)</translation>
    </message>
    <message>
        <source>Go to the co&amp;lumns</source>
        <translation>الانتقال إلى الأعمدة (&amp;L)</translation>
    </message>
    <message>
        <source>Go to the &amp;rows</source>
        <translation>الانتقال إلى الصفوف (&amp;R)</translation>
    </message>
    <message>
        <source>Go to the &amp;SQL</source>
        <translation>الانتقال إلى SQL (&amp;S)</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>اللغة (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>الألوان (&amp;O)</translation>
    </message>
    <message>
        <source>Those of the s&amp;ystem</source>
        <translation>ألوان النظام (&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>فاتحة (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>داكنة (&amp;D)</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>الإعدادات (&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>مساعدة (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح (&amp;K)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>حول (&amp;A)</translation>
    </message>
    <message>
        <source>Data models (*.model *.xml);;All files (*)</source>
        <translation>نماذج البيانات (*.model *.xml);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>XML documents</source>
        <translation>مستندات XML</translation>
    </message>
    <message>
        <source>Changes of the model are in use now. Model &gt; Save keeps them.</source>
        <translation>تغييرات النموذج سارية الآن. للاحتفاظ بها اختر النموذج &gt; حفظ.</translation>
    </message>
    <message>
        <source>Diagram of the model</source>
        <translation>الرسم التخطيطي للنموذج</translation>
    </message>
    <message>
        <source>The model is saved in %1.</source>
        <translation>حُفظ النموذج في %1.</translation>
    </message>
    <message>
        <source>Save the model</source>
        <translation>حفظ النموذج</translation>
    </message>
    <message>
        <source>Load a model</source>
        <translation>تحميل نموذج</translation>
    </message>
    <message>
        <source>The model has all tables and columns of the database.</source>
        <translation>يحتوي النموذج على كل جداول قاعدة البيانات وأعمدتها.</translation>
    </message>
    <message>
        <source>Add a column to the result to see rows.</source>
        <translation>أضف عمودًا إلى النتيجة لعرض الصفوف.</translation>
    </message>
    <message>
        <source>The query asks for values: run it to give them.</source>
        <translation>يطلب الاستعلام قيمًا: شغّله لإدخالها.</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>إظهار في الاستعلام</translation>
    </message>
    <message>
        <source>The database refuses the condition “%1”:
%2</source>
        <translation>ترفض قاعدة البيانات الشرط «%1»:
%2</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>حُفظ «%1».</translation>
    </message>
    <message>
        <source>Go to the c&amp;hart</source>
        <translation>الانتقال إلى الرسم البياني (&amp;H)</translation>
    </message>
    <message>
        <source>Rows appear here when you run the query.</source>
        <translation>تظهر الصفوف هنا عند تشغيل الاستعلام.</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here. Run the query first to have all of them.</source>
        <translation>هنا أول %L1 من الصفوف فقط. شغّل الاستعلام أولًا للحصول عليها كلها.</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>تشغيل (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;These rows only</source>
        <translation>هذه الصفوف فقط (&amp;T)</translation>
    </message>
    <message>
        <source>The former queries are still in the database.</source>
        <translation>ما زالت الاستعلامات السابقة في قاعدة البيانات.</translation>
    </message>
    <message>
        <source>The former queries are still in %1.</source>
        <translation>ما زالت الاستعلامات السابقة في %1.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Copy them here</source>
        <translation>نسخها إلى هنا</translation>
    </message>
    <message numerus="yes">
        <source>%n query(ies) copied.</source>
        <translation>
            <numerusform>لم يُنسخ أي استعلام.</numerusform>
            <numerusform>نُسخ استعلام واحد.</numerusform>
            <numerusform>نُسخ استعلامان.</numerusform>
            <numerusform>نُسخت %n استعلامات.</numerusform>
            <numerusform>نُسخ %n استعلامًا.</numerusform>
            <numerusform>نُسخ %n استعلام.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new table(s)</source>
        <translation>
            <numerusform>لا جداول</numerusform>
            <numerusform>جدول واحد</numerusform>
            <numerusform>جدولان</numerusform>
            <numerusform>%n جداول</numerusform>
            <numerusform>%n جدولًا</numerusform>
            <numerusform>%n جدول</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new column(s)</source>
        <translation>
            <numerusform>لا أعمدة</numerusform>
            <numerusform>عمود واحد</numerusform>
            <numerusform>عمودان</numerusform>
            <numerusform>%n أعمدة</numerusform>
            <numerusform>%n عمودًا</numerusform>
            <numerusform>%n عمود</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new link(s)</source>
        <translation>
            <numerusform>لا روابط</numerusform>
            <numerusform>رابط واحد</numerusform>
            <numerusform>رابطان</numerusform>
            <numerusform>%n روابط</numerusform>
            <numerusform>%n رابطًا</numerusform>
            <numerusform>%n رابط</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no new tables and columns.</source>
        <translation>لا توجد في قاعدة البيانات جداول أو أعمدة جديدة.</translation>
    </message>
    <message>
        <source>New in the model: %1.</source>
        <translation>الجديد في النموذج: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s), column(s) or link(s) of the model are not in the database.</source>
        <translation>
            <numerusform>كل جداول النموذج وأعمدته وروابطه موجودة في قاعدة البيانات.</numerusform>
            <numerusform>جدول أو عمود أو رابط واحد من النموذج غير موجود في قاعدة البيانات.</numerusform>
            <numerusform>عدد جداول النموذج وأعمدته وروابطه غير الموجودة في قاعدة البيانات: %n.</numerusform>
            <numerusform>عدد جداول النموذج وأعمدته وروابطه غير الموجودة في قاعدة البيانات: %n.</numerusform>
            <numerusform>عدد جداول النموذج وأعمدته وروابطه غير الموجودة في قاعدة البيانات: %n.</numerusform>
            <numerusform>عدد جداول النموذج وأعمدته وروابطه غير الموجودة في قاعدة البيانات: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) have another type in the database than in the model.</source>
        <translation>
            <numerusform>لا يختلف نوع أي عمود في قاعدة البيانات عن نوعه في النموذج.</numerusform>
            <numerusform>يختلف نوع عمود واحد في قاعدة البيانات عن نوعه في النموذج.</numerusform>
            <numerusform>يختلف نوع عمودين في قاعدة البيانات عن نوعهما في النموذج.</numerusform>
            <numerusform>يختلف نوع %n أعمدة في قاعدة البيانات عن نوعها في النموذج.</numerusform>
            <numerusform>يختلف نوع %n عمودًا في قاعدة البيانات عن نوعها في النموذج.</numerusform>
            <numerusform>يختلف نوع %n عمود في قاعدة البيانات عن نوعها في النموذج.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show...</source>
        <translation>إظهار...</translation>
    </message>
    <message>
        <source>The database refuses the column “%1”:
%2</source>
        <translation>ترفض قاعدة البيانات العمود «%1»:
%2</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here: the settings let a run read no more.</source>
        <translation>هنا أول %L1 من الصفوف فقط: لا تسمح الإعدادات بقراءة المزيد في التشغيل الواحد.</translation>
    </message>
    <message>
        <source>1 row is in %1.</source>
        <translation>حُفظ صف واحد في %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows are in %1.</source>
        <translation>
            <numerusform>لم يُحفظ أي صف في %1.</numerusform>
            <numerusform>حُفظ صف واحد في %1.</numerusform>
            <numerusform>حُفظ صفان في %1.</numerusform>
            <numerusform>حُفظت %Ln صفوف في %1.</numerusform>
            <numerusform>حُفظ %Ln صفًا في %1.</numerusform>
            <numerusform>حُفظ %Ln صف في %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the &amp;note</source>
        <translation>الانتقال إلى الملاحظة (&amp;N)</translation>
    </message>
</context>
<context>
    <name>tolvi::TNameEditor</name>
    <message>
        <source>Name of the query</source>
        <translation>اسم الاستعلام</translation>
    </message>
</context>
<context>
    <name>tolvi::TNoteBar</name>
    <message>
        <source>Close this note</source>
        <translation>إغلاق هذه الملاحظة</translation>
    </message>
</context>
<context>
    <name>tolvi::TOpeningDialog</name>
    <message>
        <source>Open a database</source>
        <translation>فتح قاعدة بيانات</translation>
    </message>
    <message>
        <source>Reading the tables of %1...</source>
        <translation>جارٍ قراءة جداول %1...</translation>
    </message>
    <message>
        <source>Waiting for %1...</source>
        <translation>جارٍ انتظار %1...</translation>
    </message>
</context>
<context>
    <name>tolvi::TParamEdit</name>
    <message>
        <source>One a line</source>
        <translation>واحدة في كل سطر</translation>
    </message>
    <message>
        <source>Calendar (Alt+Down)</source>
        <translation>التقويم (Alt+Down)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>التقويم</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>اختر</translation>
    </message>
    <message>
        <source>Choose or type</source>
        <translation>اختر أو اكتب</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>يجب إدخال قيمة.</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>على سبيل المثال %1</translation>
    </message>
</context>
<context>
    <name>tolvi::TPrintRows</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>الصفحة %1 من %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 (only the first %Ln rows)</source>
        <translation>
            <numerusform>%1 (دون صفوف)</numerusform>
            <numerusform>%1 (الصف الأول فقط)</numerusform>
            <numerusform>%1 (أول صفين فقط)</numerusform>
            <numerusform>%1 (أول %Ln صفوف فقط)</numerusform>
            <numerusform>%1 (أول %Ln صفًا فقط)</numerusform>
            <numerusform>%1 (أول %Ln صف فقط)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are %1 rows. Print them all, or the first %2?</source>
        <translation>عدد الصفوف %1. هل تريد طباعتها كلها أم أول %2 منها؟</translation>
    </message>
    <message>
        <source>&amp;First %1 rows</source>
        <translation>أول %1 من الصفوف (&amp;F)</translation>
    </message>
    <message>
        <source>&amp;All rows</source>
        <translation>كل الصفوف (&amp;A)</translation>
    </message>
</context>
<context>
    <name>tolvi::TProgram</name>
    <message>
        <source>The sample is as good as new. The former one is in %1.</source>
        <translation>عادت القاعدة التجريبية كما كانت في البداية. النسخة السابقة في %1.</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept for the case that the program ends: %1</source>
        <translation>يتعذر الاحتفاظ بالعمل غير المحفوظ تحسبًا لانتهاء البرنامج: %1</translation>
    </message>
    <message>
        <source>%1 is not open.</source>
        <translation>القاعدة %1 غير مفتوحة.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Open another one...</source>
        <translation>فتح قاعدة أخرى...</translation>
    </message>
    <message>
        <source>Open the sample</source>
        <translation>فتح القاعدة التجريبية</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” in %2 were saved. They are kept until you take them or discard them.</source>
        <translation>انتهى البرنامج قبل حفظ تغييرات «%1» (%2). ويُحتفظ بها حتى تستعيدها أو تتجاهلها.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model of %1 were saved. They are kept until you take them or discard them.</source>
        <translation>انتهى البرنامج قبل حفظ تغييرات نموذج البيانات لقاعدة %1. ويُحتفظ بها حتى تستعيدها أو تتجاهلها.</translation>
    </message>
    <message>
        <source>Open %1 with them</source>
        <translation>فتح %1 مع التغييرات</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
</context>
<context>
    <name>tolvi::TQueryArea</name>
    <message>
        <source>C&amp;onditions</source>
        <translation>الشروط (&amp;O)</translation>
    </message>
    <message>
        <source>Co&amp;lumns of the result</source>
        <translation>أعمدة النتيجة (&amp;L)</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultGrid</name>
    <message>
        <source>Rows of the result</source>
        <translation>صفوف النتيجة</translation>
    </message>
    <message>
        <source>Sort &amp;ascending</source>
        <translation>فرز تصاعدي (&amp;A)</translation>
    </message>
    <message>
        <source>Sort &amp;descending</source>
        <translation>فرز تنازلي (&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Order of the database</source>
        <translation>ترتيب قاعدة البيانات (&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Hide column</source>
        <translation>إخفاء العمود (&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Show columns</source>
        <translation>إظهار الأعمدة (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Fit width</source>
        <translation>ملاءمة العرض (&amp;F)</translation>
    </message>
    <message>
        <source>Fit &amp;all widths</source>
        <translation>ملاءمة كل الأعمدة (&amp;W)</translation>
    </message>
    <message>
        <source>Copy column &amp;name</source>
        <translation>نسخ اسم العمود (&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>نسخ (&amp;C)</translation>
    </message>
    <message>
        <source>Copy with &amp;headers</source>
        <translation>نسخ مع العناوين (&amp;H)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>تحديد الكل (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Show value</source>
        <translation>إظهار القيمة (&amp;S)</translation>
    </message>
    <message>
        <source>Co&amp;lumn</source>
        <translation>العمود (&amp;L)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>%1 cells are too many for the clipboard.</source>
        <translation>عدد الخلايا %1 أكبر مما تتسع له الحافظة.</translation>
    </message>
    <message>
        <source>Copy %1 cells to the clipboard?</source>
        <translation>هل تريد نسخ الخلايا وعددها %1 إلى الحافظة؟</translation>
    </message>
    <message>
        <source>Select fewer of them, or export the rows to a file.</source>
        <translation>حدد عددًا أقل منها، أو صدّر الصفوف إلى ملف.</translation>
    </message>
    <message>
        <source>A file may be the better place for so many: export the rows instead.</source>
        <translation>قد يكون الملف أنسب لهذا العدد: صدّر الصفوف بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>Copying: %1 % (Esc stops it)</source>
        <translation>جارٍ النسخ: %1 % (اضغط Esc للإيقاف)</translation>
    </message>
    <message>
        <source>Copied 1 row</source>
        <translation>نُسخ صف واحد</translation>
    </message>
    <message numerus="yes">
        <source>Copied %Ln rows</source>
        <translation>
            <numerusform>لم يُنسخ أي صف</numerusform>
            <numerusform>نُسخ صف واحد</numerusform>
            <numerusform>نُسخ صفان</numerusform>
            <numerusform>نُسخت %Ln صفوف</numerusform>
            <numerusform>نُسخ %Ln صفًا</numerusform>
            <numerusform>نُسخ %Ln صف</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying was stopped; the clipboard holds what it held</source>
        <translation>أُوقف النسخ؛ بقي محتوى الحافظة كما كان</translation>
    </message>
    <message>
        <source>Stop copying</source>
        <translation>إيقاف النسخ</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultPane</name>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>توقف بعد %1</translation>
    </message>
    <message>
        <source>Stopped after 1 row · %1</source>
        <translation>توقف بعد صف واحد · %1</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %Ln rows · %1</source>
        <translation>
            <numerusform>توقف دون صفوف · %1</numerusform>
            <numerusform>توقف بعد صف واحد · %1</numerusform>
            <numerusform>توقف بعد صفين · %1</numerusform>
            <numerusform>توقف بعد %Ln صفوف · %1</numerusform>
            <numerusform>توقف بعد %Ln صفًا · %1</numerusform>
            <numerusform>توقف بعد %Ln صف · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>First row · %1</source>
        <translation>الصف الأول · %1</translation>
    </message>
    <message numerus="yes">
        <source>First %Ln rows · %1</source>
        <translation>
            <numerusform>لا صفوف · %1</numerusform>
            <numerusform>الصف الأول · %1</numerusform>
            <numerusform>أول صفين · %1</numerusform>
            <numerusform>أول %Ln صفوف · %1</numerusform>
            <numerusform>أول %Ln صفًا · %1</numerusform>
            <numerusform>أول %Ln صف · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No rows · %1</source>
        <translation>لا صفوف · %1</translation>
    </message>
    <message>
        <source>1 row · %1</source>
        <translation>صف واحد · %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows · %1</source>
        <translation>
            <numerusform>لا صفوف · %1</numerusform>
            <numerusform>صف واحد · %1</numerusform>
            <numerusform>صفان · %1</numerusform>
            <numerusform>%Ln صفوف · %1</numerusform>
            <numerusform>%Ln صفًا · %1</numerusform>
            <numerusform>%Ln صف · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>تشغيل (&amp;U)</translation>
    </message>
    <message>
        <source>Fetch all rows (F5)</source>
        <translation>جلب كل الصفوف (F5)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>إيقاف (&amp;T)</translation>
    </message>
    <message>
        <source>Stop the query that runs (Esc)</source>
        <translation>إيقاف الاستعلام الجاري (Esc)</translation>
    </message>
    <message>
        <source>Live &amp;preview</source>
        <translation>معاينة مباشرة (&amp;P)</translation>
    </message>
    <message>
        <source>Show the first rows whenever the query changes</source>
        <translation>عرض الصفوف الأولى كلما تغيّر الاستعلام</translation>
    </message>
    <message>
        <source>Rows appear here when you run a query.</source>
        <translation>تظهر الصفوف هنا عند تشغيل استعلام.</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>جارٍ التشغيل…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>جارٍ الفرز…</translation>
    </message>
    <message>
        <source>1 row so far…</source>
        <translation>صف واحد حتى الآن…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows so far…</source>
        <translation>
            <numerusform>لا صفوف حتى الآن…</numerusform>
            <numerusform>صف واحد حتى الآن…</numerusform>
            <numerusform>صفان حتى الآن…</numerusform>
            <numerusform>%Ln صفوف حتى الآن…</numerusform>
            <numerusform>%Ln صفًا حتى الآن…</numerusform>
            <numerusform>%Ln صف حتى الآن…</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no connection to the database</source>
        <translation>لا يوجد اتصال بقاعدة البيانات</translation>
    </message>
    <message>
        <source>The database could not run the query</source>
        <translation>لم تتمكن قاعدة البيانات من تشغيل الاستعلام</translation>
    </message>
    <message>
        <source>The query cannot be run</source>
        <translation>يتعذر تشغيل الاستعلام</translation>
    </message>
</context>
<context>
    <name>tolvi::TRowFiles</name>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>تتعذر الكتابة إلى الملف «%1»: %2</translation>
    </message>
    <message>
        <source>CSV, separated by commas</source>
        <translation>ملف CSV مفصول بفواصل</translation>
    </message>
    <message>
        <source>CSV, separated by semicolons</source>
        <translation>ملف CSV مفصول بفواصل منقوطة</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>نص مفصول بعلامات جدولة</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>جدول بيانات</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Table in Markdown</source>
        <translation>جدول Markdown</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ليس ملفًا</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>ألوان النظام</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتحة</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكنة</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>حجم النظام</translation>
    </message>
    <message>
        <source>Show the &amp;first rows while a query is edited</source>
        <translation>عرض الصفوف الأولى أثناء تحرير الاستعلام (&amp;F)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>&amp;Queries may hold conditions written in SQL</source>
        <translation>السماح بشروط مكتوبة بلغة SQL في الاستعلامات (&amp;Q)</translation>
    </message>
    <message>
        <source>Such a condition reaches the database as it is. Allow it only for queries that come from people whom you trust.</source>
        <translation>يصل مثل هذا الشرط إلى قاعدة البيانات كما هو. اسمح به فقط للاستعلامات الواردة من أشخاص تثق بهم.</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>الألوان (&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Size of letters:</source>
        <translation>حجم الخط (&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Rows of the preview:</source>
        <translation>صفوف المعاينة (&amp;R):</translation>
    </message>
    <message>
        <source>Rows of a run at &amp;most:</source>
        <translation>أقصى عدد لصفوف التشغيل (&amp;M):</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsFile</name>
    <message>
        <source>The settings could not be read (%1): they are the default ones now. The file is kept as %2.</source>
        <translation>تعذرت قراءة الإعدادات (%1): تُستخدم الآن الإعدادات الافتراضية. حُفظ الملف باسم %2.</translation>
    </message>
</context>
<context>
    <name>tolvi::TShortcuts</name>
    <message>
        <source>Among the conditions</source>
        <translation>ضمن الشروط</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>الأمر</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>المفاتيح</translation>
    </message>
    <message>
        <source>In the list of queries</source>
        <translation>ضمن قائمة الاستعلامات</translation>
    </message>
    <message>
        <source>Among the rows</source>
        <translation>ضمن الصفوف</translation>
    </message>
    <message>
        <source>In the SQL</source>
        <translation>ضمن SQL</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlEdit</name>
    <message>
        <source>Copy what is selected</source>
        <translation>نسخ المحدد</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>تكبير الخط</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>تصغير الخط</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlPane</name>
    <message>
        <source>Statement</source>
        <translation>العبارة</translation>
    </message>
    <message>
        <source>S&amp;yntax:</source>
        <translation>الصياغة (&amp;Y):</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>صياغة SQL التي تُكتب بها العبارة</translation>
    </message>
    <message>
        <source>&amp;Paste SQL...</source>
        <translation>لصق SQL (&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>نسخ (&amp;C)</translation>
    </message>
    <message>
        <source>Copy the whole statement</source>
        <translation>نسخ العبارة كاملة</translation>
    </message>
    <message>
        <source>Copy with &amp;values</source>
        <translation>نسخ مع القيم (&amp;V)</translation>
    </message>
    <message>
        <source>Copy with &amp;parameters as ?</source>
        <translation>نسخ مع كتابة المعلمات بالشكل ? (&amp;P)</translation>
    </message>
    <message>
        <source>Copy with parameters as :&amp;Name</source>
        <translation>نسخ مع كتابة المعلمات بالشكل :اسم (&amp;N)</translation>
    </message>
    <message>
        <source>Copy with parameters as $&amp;1</source>
        <translation>نسخ مع كتابة المعلمات بالشكل $1 (&amp;1)</translation>
    </message>
    <message>
        <source>Make a query of a SELECT statement</source>
        <translation>إنشاء استعلام من عبارة SELECT</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>إظهار في الاستعلام</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>لا تحذيرات أخرى</numerusform>
            <numerusform>تحذير واحد آخر</numerusform>
            <numerusform>تحذيران آخران</numerusform>
            <numerusform>%n تحذيرات أخرى</numerusform>
            <numerusform>%n تحذيرًا آخر</numerusform>
            <numerusform>%n تحذير آخر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreModel</name>
    <message>
        <source>Deleted by somebody else</source>
        <translation>حذفه شخص آخر</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>غيّره شخص آخر</translation>
    </message>
    <message>
        <source>Changed by somebody else, %1</source>
        <translation>غيّره شخص آخر، %1</translation>
    </message>
    <message>
        <source>Changed by %1, %2</source>
        <translation>غيّره %1، %2</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>معروض</translation>
    </message>
    <message>
        <source>changes not saved</source>
        <translation>تغييرات غير محفوظة</translation>
    </message>
    <message>
        <source>Has changes that are not saved</source>
        <translation>فيه تغييرات غير محفوظة</translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreNote</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>tolvi::TStorePane</name>
    <message>
        <source>Search queries</source>
        <translation>البحث في الاستعلامات</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>الاستعلامات</translation>
    </message>
    <message>
        <source>Clear the search to put queries in another order.</source>
        <translation>امسح نص البحث لتغيير ترتيب الاستعلامات.</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>استعلام جديد (&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>إعادة تسمية (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>تكرار (&amp;D)</translation>
    </message>
    <message>
        <source>D&amp;escription...</source>
        <translation>الوصف (&amp;E)...</translation>
    </message>
    <message>
        <source>De&amp;lete...</source>
        <translation>حذف (&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Copy query text</source>
        <translation>نسخ نص الاستعلام (&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste query text</source>
        <translation>لصق نص الاستعلام (&amp;P)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>نقل لأعلى (&amp;U)</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>نقل لأسفل (&amp;W)</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>تحديث (&amp;F)</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>لا يوجد مخزن مفتوح.</translation>
    </message>
    <message>
        <source>There are no queries yet. Press %1 to make one.</source>
        <translation>لا توجد استعلامات بعد. اضغط %1 لإنشاء استعلام.</translation>
    </message>
    <message>
        <source>No query holds this text.</source>
        <translation>لا يحتوي أي استعلام على هذا النص.</translation>
    </message>
    <message>
        <source>Description of “%1”</source>
        <translation>وصف «%1»</translation>
    </message>
    <message>
        <source>&amp;What the query answers, for those who look for it:</source>
        <translation>ما يجيب عنه الاستعلام، لمن يبحث عنه (&amp;W):</translation>
    </message>
    <message>
        <source>Delete it all the same?</source>
        <translation>هل تريد حذفه رغم ذلك؟</translation>
    </message>
    <message>
        <source>New query %1</source>
        <translation>استعلام جديد %1</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>استعلام جديد</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (نسخة %2)</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (نسخة)</translation>
    </message>
    <message>
        <source>Delete the query “%1”?</source>
        <translation>هل تريد حذف الاستعلام «%1»؟</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>حُذف «%1».</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>تراجع (&amp;U)</translation>
    </message>
    <message>
        <source>What was copied is no query text. Statements in SQL are pasted into the SQL.</source>
        <translation>ما نُسخ ليس نص استعلام. تُلصق عبارات SQL في لوحة SQL.</translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. You can take that back until the note about it is closed.</source>
        <translation>سيُحذف لدى كل من يستخدم هذا المخزن. ويمكنك التراجع عن ذلك حتى إغلاق الملاحظة المتعلقة به.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was deleted, and %n before it.</source>
        <translation>
            <numerusform>حُذف «%1».</numerusform>
            <numerusform>حُذف «%1»، وقبله استعلام واحد.</numerusform>
            <numerusform>حُذف «%1»، وقبله استعلامان.</numerusform>
            <numerusform>حُذف «%1»، وقبله %n استعلامات.</numerusform>
            <numerusform>حُذف «%1»، وقبله %n استعلامًا.</numerusform>
            <numerusform>حُذف «%1»، وقبله %n استعلام.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. It cannot be read: you cannot take that back.</source>
        <translation>سيُحذف لدى كل من يستخدم هذا المخزن. ولا يمكن قراءته، لذا لا يمكنك التراجع عن ذلك.</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueDlg</name>
    <message>
        <source>Value of %1</source>
        <translation>قيمة %1</translation>
    </message>
    <message>
        <source>NULL: there is no value</source>
        <translation>NULL: لا توجد قيمة</translation>
    </message>
    <message>
        <source>An empty text</source>
        <translation>نص فارغ</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>نسخ (&amp;C)</translation>
    </message>
</context>
<context>
    <name>tolvi::TWorkspace</name>
    <message>
        <source>The sample cannot be put into %1: the folder cannot be made. The option --home names another place.</source>
        <translation>يتعذر وضع القاعدة التجريبية في %1: يتعذر إنشاء المجلد. يمكن تحديد مكان آخر بالخيار ‎--home.</translation>
    </message>
    <message>
        <source>The sample stays as it is: %1 cannot be renamed.</source>
        <translation>تبقى القاعدة التجريبية كما هي: تتعذر إعادة تسمية %1.</translation>
    </message>
    <message>
        <source>The data model cannot be kept: %1. Model &gt; Save as... keeps it in another place.</source>
        <translation>يتعذر الاحتفاظ بنموذج البيانات: %1. اختر النموذج &gt; حفظ باسم... للاحتفاظ به في مكان آخر.</translation>
    </message>
    <message numerus="yes">
        <source>The driver tells nothing of links between tables. %n link(s) were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</source>
        <translation>
            <numerusform>لا يعطي برنامج التشغيل معلومات عن الروابط بين الجداول. لم يُعثر على أي رابط حسب أسماء الأعمدة؛ يتيح النموذج &gt; الرسم التخطيطي... رسم روابط.</numerusform>
            <numerusform>لا يعطي برنامج التشغيل معلومات عن الروابط بين الجداول. عُثر على رابط واحد حسب أسماء الأعمدة؛ يعرضه النموذج &gt; الرسم التخطيطي... ويتيح رسم غيره.</numerusform>
            <numerusform>لا يعطي برنامج التشغيل معلومات عن الروابط بين الجداول. عُثر على رابطين حسب أسماء الأعمدة؛ يعرضهما النموذج &gt; الرسم التخطيطي... ويتيح رسم غيرهما.</numerusform>
            <numerusform>لا يعطي برنامج التشغيل معلومات عن الروابط بين الجداول. عُثر على %n روابط حسب أسماء الأعمدة؛ يعرضها النموذج &gt; الرسم التخطيطي... ويتيح رسم غيرها.</numerusform>
            <numerusform>لا يعطي برنامج التشغيل معلومات عن الروابط بين الجداول. عُثر على %n رابطًا حسب أسماء الأعمدة؛ يعرضها النموذج &gt; الرسم التخطيطي... ويتيح رسم غيرها.</numerusform>
            <numerusform>لا يعطي برنامج التشغيل معلومات عن الروابط بين الجداول. عُثر على %n رابط حسب أسماء الأعمدة؛ يعرضها النموذج &gt; الرسم التخطيطي... ويتيح رسم غيرها.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no tables that can be read. Once it has some, Model &gt; Read new tables from the database finds them.</source>
        <translation>لا توجد في قاعدة البيانات جداول يمكن قراءتها. عند توفرها اختر النموذج &gt; قراءة الجداول الجديدة من قاعدة البيانات.</translation>
    </message>
    <message>
        <source>%1 is no data model, or a damaged one: %2. Choose another file; where there is none, a model is made from the tables of the database.</source>
        <translation>الملف %1 ليس نموذج بيانات أو أنه تالف: %2. اختر ملفًا آخر؛ وإن لم يوجد ملف فسيُنشأ نموذج من جداول قاعدة البيانات.</translation>
    </message>
    <message>
        <source>Queries cannot be kept in this database: %1</source>
        <translation>يتعذر حفظ الاستعلامات في قاعدة البيانات هذه: %1</translation>
    </message>
    <message>
        <source>Queries cannot be kept: %1. Query &gt; Where queries are kept has other places.</source>
        <translation>يتعذر حفظ الاستعلامات: %1. لاختيار مكان آخر استخدم الاستعلام &gt; مكان حفظ الاستعلامات.</translation>
    </message>
</context>
<context>
    <name>tolvi::TXlsxFile</name>
    <message>
        <source>the folder for temporary files, &quot;%1&quot;, is full</source>
        <translation>مجلد الملفات المؤقتة، «%1»، ممتلئ</translation>
    </message>
    <message>
        <source>the text in row %1, column %2 has %3 letters, and a cell holds %4</source>
        <translation>عدد أحرف النص في الصف %1 والعمود %2 هو %3، وتتسع الخلية لعدد %4</translation>
    </message>
    <message>
        <source>there are %1 rows, and a sheet holds %2</source>
        <translation>عدد الصفوف %1، وتتسع الورقة لعدد %2</translation>
    </message>
    <message>
        <source>there are %1 columns, and a sheet holds %2</source>
        <translation>عدد الأعمدة %1، وتتسع الورقة لعدد %2</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgConnection</name>
    <message>
        <source>Connect to a database</source>
        <translation>الاتصال بقاعدة بيانات</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>الاتصالات الأخيرة</translation>
    </message>
    <message>
        <source>UR&amp;L:</source>
        <translation>عنوان URL (&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>اختبار (&amp;T)</translation>
    </message>
    <message>
        <source>This system has no keychain: passwords are forgotten when the program ends.</source>
        <translation>لا توجد سلسلة مفاتيح في هذا النظام: تُنسى كلمات المرور عند انتهاء البرنامج.</translation>
    </message>
    <message>
        <source>Looking for the keychain of this system...</source>
        <translation>جارٍ البحث عن سلسلة مفاتيح هذا النظام...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>إيقاف (&amp;T)</translation>
    </message>
    <message>
        <source>The keychain did not take the password: %1. It is known until the program ends.</source>
        <translation>لم تقبل سلسلة المفاتيح كلمة المرور: %1. تبقى معروفة حتى انتهاء البرنامج.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgImportSql</name>
    <message>
        <source>Paste SQL</source>
        <translation>لصق SQL</translation>
    </message>
    <message>
        <source>&amp;Make query</source>
        <translation>إنشاء استعلام (&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Statement:</source>
        <translation>العبارة (&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Only if it can be read exactly</source>
        <translation>فقط إن أمكنت قراءتها بدقة (&amp;O)</translation>
    </message>
    <message>
        <source>Otherwise what a query cannot say is left out or replaced, with a warning</source>
        <translation>وإلا فما لا يستطيع الاستعلام التعبير عنه يُحذف أو يُستبدل، مع تحذير</translation>
    </message>
    <message>
        <source>&amp;Keep as rows of SQL what no operator says</source>
        <translation>الاحتفاظ بما لا يعبّر عنه أي عامل كصفوف SQL (&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Warnings (F8 for the next one):</source>
        <translation>التحذيرات (اضغط F8 للتالي) (&amp;W):</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>الاستعلام (&amp;Q):</translation>
    </message>
    <message>
        <source>The statement is too long: statements of up to %1 KB can be read.</source>
        <translation>العبارة طويلة جدًا: يمكن قراءة عبارات حتى %1 كيلوبايت.</translation>
    </message>
    <message>
        <source>Paste or type a SELECT statement.</source>
        <translation>الصق عبارة SELECT أو اكتبها.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>لا تحذيرات أخرى</numerusform>
            <numerusform>تحذير واحد آخر</numerusform>
            <numerusform>تحذيران آخران</numerusform>
            <numerusform>%n تحذيرات أخرى</numerusform>
            <numerusform>%n تحذيرًا آخر</numerusform>
            <numerusform>%n تحذير آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>The query says what the statement says.</source>
        <translation>يقول الاستعلام ما تقوله العبارة.</translation>
    </message>
    <message numerus="yes">
        <source>The statement can be read with %n warnings.</source>
        <translation>
            <numerusform>يمكن قراءة العبارة دون تحذيرات.</numerusform>
            <numerusform>يمكن قراءة العبارة مع تحذير واحد.</numerusform>
            <numerusform>يمكن قراءة العبارة مع تحذيرين.</numerusform>
            <numerusform>يمكن قراءة العبارة مع %n تحذيرات.</numerusform>
            <numerusform>يمكن قراءة العبارة مع %n تحذيرًا.</numerusform>
            <numerusform>يمكن قراءة العبارة مع %n تحذير.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement cannot be read exactly.</source>
        <translation>تتعذر قراءة العبارة بدقة.</translation>
    </message>
    <message>
        <source>The statement cannot be read.</source>
        <translation>تتعذر قراءة العبارة.</translation>
    </message>
</context>
<context>
    <name>tolvi::main</name>
    <message>
        <source>Ask databases in sentences.</source>
        <translation>اسأل قواعد البيانات بجمل مفهومة.</translation>
    </message>
    <message>
        <source>An SQLite file, or a URL as docs/databases.md tells; without it, what was open the last time, at first the sample.</source>
        <translation>ملف SQLite أو عنوان URL كما يبين docs/databases.md؛ بدونه يُفتح ما كان مفتوحًا آخر مرة، وفي البداية القاعدة التجريبية.</translation>
    </message>
    <message>
        <source>The data model: a model text or XML.</source>
        <translation>نموذج البيانات: نص نموذج أو XML.</translation>
    </message>
    <message>
        <source>The folder of the queries.</source>
        <translation>مجلد الاستعلامات.</translation>
    </message>
    <message>
        <source>The queries are in the database.</source>
        <translation>الاستعلامات موجودة في قاعدة البيانات.</translation>
    </message>
    <message>
        <source>Keep settings, unsaved work and the sample there.</source>
        <translation>حفظ الإعدادات والعمل غير المحفوظ والقاعدة التجريبية هناك.</translation>
    </message>
    <message>
        <source>Play the script with keys and clicks, then quit; see docs/workbench.md.</source>
        <translation>تنفيذ سكربت المفاتيح والنقرات ثم الإنهاء؛ انظر docs/workbench.md.</translation>
    </message>
    <message>
        <source>Write a picture of the window, at the end of the script, then quit.</source>
        <translation>كتابة صورة للنافذة عند نهاية السكربت ثم الإنهاء.</translation>
    </message>
    <message>
        <source>Open the sample.</source>
        <translation>فتح القاعدة التجريبية.</translation>
    </message>
</context>
</TS>
