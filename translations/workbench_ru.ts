<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Values of the query</source>
        <translation>Значения для запроса</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>Значения для «%1»</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>The password for %1</source>
        <translation>Пароль для %1</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Пароль:</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keychain</source>
        <translation>&amp;Запомнить его в связке ключей</translation>
    </message>
    <message>
        <source>This system has no keychain: it is forgotten when the program ends.</source>
        <translation>В этой системе нет связки ключей: пароль забывается при завершении программы.</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>Изменён кем-то другим</translation>
    </message>
    <message>
        <source>&amp;Mine</source>
        <translation>&amp;Моя версия</translation>
    </message>
    <message>
        <source>&amp;Theirs</source>
        <translation>&amp;Чужая версия</translation>
    </message>
    <message>
        <source>The query is no longer in the store.</source>
        <translation>Этого запроса больше нет в хранилище.</translation>
    </message>
    <message>
        <source>&amp;Save mine</source>
        <translation>&amp;Сохранить мою</translation>
    </message>
    <message>
        <source>What is stored now is replaced by your query</source>
        <translation>Сохранённый сейчас запрос заменяется вашим</translation>
    </message>
    <message>
        <source>Your query is stored again</source>
        <translation>Ваш запрос сохраняется заново</translation>
    </message>
    <message>
        <source>Take t&amp;heirs</source>
        <translation>&amp;Взять чужую</translation>
    </message>
    <message>
        <source>&amp;Delete mine, too</source>
        <translation>&amp;Удалить и мою</translation>
    </message>
    <message>
        <source>Your changes are lost</source>
        <translation>Ваши изменения будут потеряны</translation>
    </message>
    <message>
        <source>Your query is lost</source>
        <translation>Ваш запрос будет потерян</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Оставить обе</translation>
    </message>
    <message>
        <source>Yours is stored as another query</source>
        <translation>Ваша версия сохраняется как отдельный запрос</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (мой)</translation>
    </message>
    <message>
        <source>%1 (mine %2)</source>
        <translation>%1 (мой %2)</translation>
    </message>
</context>
<context>
    <name>tolvi::TAbout</name>
    <message>
        <source>About the workbench</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Ask databases in sentences: Tolvi writes the SQL. All that you see here is made of the panels and dialogs of the Tolvi library, which other programs can use, too.

Tolvi comes under the MIT licence. As this program shows SQL with QScintilla and charts with Qt Charts, it comes as a whole under the GNU General Public License, version 3. It also uses Qt %1, libxlsxwriter and QtKeychain.</source>
        <translation>Спрашивайте базы данных предложениями: SQL напишет Tolvi. Всё, что вы здесь видите, сделано из панелей и диалогов библиотеки Tolvi, которую могут использовать и другие программы.

Tolvi распространяется по лицензии MIT. Поскольку эта программа показывает SQL с помощью QScintilla, а диаграммы — с помощью Qt Charts, в целом она распространяется по Стандартной общественной лицензии GNU (GNU General Public License) версии 3. Также используются Qt %1, libxlsxwriter и QtKeychain.</translation>
    </message>
</context>
<context>
    <name>tolvi::TChartData</name>
    <message>
        <source>The first %1 of %2 rows.</source>
        <translation>Первые %1 строк из %2.</translation>
    </message>
    <message>
        <source>%1 rows: each point is the average of %2 rows that follow each other.</source>
        <translation>Строк: %1; каждая точка — среднее по %2 строкам подряд.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows without a number are left out.</source>
        <translation>
            <numerusform>Пропущена %n строка без числа.</numerusform>
            <numerusform>Пропущены %n строки без числа.</numerusform>
            <numerusform>Пропущено %n строк без числа.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TChartPane</name>
    <message>
        <source>Chart</source>
        <translation>Диаграмма</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>Ви&amp;д:</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Столбики</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Линия</translation>
    </message>
    <message>
        <source>Ac&amp;ross:</source>
        <translation>По &amp;горизонтали:</translation>
    </message>
    <message>
        <source>&amp;Values:</source>
        <translation>З&amp;начения:</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>&amp;Копировать рисунок</translation>
    </message>
    <message>
        <source>&amp;Save picture...</source>
        <translation>Со&amp;хранить рисунок...</translation>
    </message>
    <message>
        <source>There are no rows to draw.</source>
        <translation>Нет строк для построения диаграммы.</translation>
    </message>
    <message>
        <source>There is no column of numbers to draw.</source>
        <translation>Нет числового столбца для построения диаграммы.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; holds no numbers.</source>
        <translation>В столбце «%1» нет чисел.</translation>
    </message>
    <message>
        <source>Bars: %1 by %2.</source>
        <translation>Столбики: %1 по %2.</translation>
    </message>
    <message>
        <source>Line: %1 by %2.</source>
        <translation>Линия: %1 по %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n values, the least %1 (%2), the greatest %3 (%4).</source>
        <translation>
            <numerusform>%n значение: наименьшее — %1 (%2), наибольшее — %3 (%4).</numerusform>
            <numerusform>%n значения: наименьшее — %1 (%2), наибольшее — %3 (%4).</numerusform>
            <numerusform>%n значений: наименьшее — %1 (%2), наибольшее — %3 (%4).</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png or .svg.</source>
        <translation>Имя файла «%1» должно заканчиваться на .png или .svg.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Не удалось записать файл «%1»: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Сохранение рисунка</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Рисунок (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Векторный рисунок (*.svg)</translation>
    </message>
    <message>
        <source>Read &amp;all rows</source>
        <translation>Про&amp;читать все строки</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln rows have been read.</source>
        <translation>
            <numerusform>Прочитаны только первые строки (%Ln).</numerusform>
            <numerusform>Прочитаны только первые строки (%Ln).</numerusform>
            <numerusform>Прочитаны только первые строки (%Ln).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionForm</name>
    <message>
        <source>SQLite file</source>
        <translation>Файл SQLite</translation>
    </message>
    <message>
        <source>PostgreSQL</source>
        <translation>PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL</source>
        <translation>MariaDB или MySQL</translation>
    </message>
    <message>
        <source>ODBC</source>
        <translation>ODBC</translation>
    </message>
    <message>
        <source>&amp;Kind of database:</source>
        <translation>&amp;Вид базы данных:</translation>
    </message>
    <message>
        <source>Data &amp;source:</source>
        <translation>&amp;Источник данных:</translation>
    </message>
    <message>
        <source>Name, or Driver={...};Server=...</source>
        <translation>Имя или Driver={...};Server=...</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Сервер:</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>этот компьютер</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>&amp;Порт:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;База данных:</translation>
    </message>
    <message>
        <source>S&amp;chema:</source>
        <translation>С&amp;хема:</translation>
    </message>
    <message>
        <source>the usual one</source>
        <translation>обычная</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>П&amp;ользователь:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Об&amp;зор...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Файл:</translation>
    </message>
    <message>
        <source>Browse for it, or drop it here</source>
        <translation>Выберите файл или перетащите его сюда</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Паро&amp;ль:</translation>
    </message>
    <message>
        <source>&amp;Remember the password in the keychain</source>
        <translation>Запо&amp;мнить пароль в связке ключей</translation>
    </message>
    <message>
        <source>Open a database</source>
        <translation>Открытие базы данных</translation>
    </message>
    <message>
        <source>SQLite databases (*.sqlite *.sqlite3 *.db *.db3);;All files (*)</source>
        <translation>Базы данных SQLite (*.sqlite *.sqlite3 *.db *.db3);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Выберите файл.</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Это не файл.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Такого файла нет.</translation>
    </message>
    <message>
        <source>Name the data source.</source>
        <translation>Укажите источник данных.</translation>
    </message>
    <message>
        <source>Name the database.</source>
        <translation>Укажите базу данных.</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>Порт — это число от 1 до 65535.</translation>
    </message>
    <message>
        <source>known</source>
        <translation>известен</translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionTest</name>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check host and port.</source>
        <translation>
            <numerusform>Нет ответа в течение %n секунды: проверьте сервер и порт.</numerusform>
            <numerusform>Нет ответа в течение %n секунд: проверьте сервер и порт.</numerusform>
            <numerusform>Нет ответа в течение %n секунд: проверьте сервер и порт.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The connection works; %n table(s) found.</source>
        <translation>
            <numerusform>Подключение работает; найдена %n таблица.</numerusform>
            <numerusform>Подключение работает; найдены %n таблицы.</numerusform>
            <numerusform>Подключение работает; найдено %n таблиц.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check that the file can be read and no program locks it.</source>
        <translation>
            <numerusform>Нет ответа в течение %n секунды: проверьте, что файл доступен для чтения и не заблокирован другой программой.</numerusform>
            <numerusform>Нет ответа в течение %n секунд: проверьте, что файл доступен для чтения и не заблокирован другой программой.</numerusform>
            <numerusform>Нет ответа в течение %n секунд: проверьте, что файл доступен для чтения и не заблокирован другой программой.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check the data source and its driver.</source>
        <translation>
            <numerusform>Нет ответа в течение %n секунды: проверьте источник данных и его драйвер.</numerusform>
            <numerusform>Нет ответа в течение %n секунд: проверьте источник данных и его драйвер.</numerusform>
            <numerusform>Нет ответа в течение %n секунд: проверьте источник данных и его драйвер.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TExportDialog</name>
    <message>
        <source>Export rows</source>
        <translation>Экспорт строк</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot;...</source>
        <translation>Запись «%1»...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
</context>
<context>
    <name>tolvi::TFaultPage</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>Что произошло</translation>
    </message>
</context>
<context>
    <name>tolvi::TMainWindow</name>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Диаграмма</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>Open a database to ask it something.</source>
        <translation>Откройте базу данных, чтобы задать ей вопрос.</translation>
    </message>
    <message>
        <source>The query “%1” has changes that are not saved.</source>
        <translation>В запросе «%1» есть несохранённые изменения.</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>&amp;Сохранить запрос</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>&amp;Не сохранять изменения</translation>
    </message>
    <message>
        <source>The data model has changes that are not saved.</source>
        <translation>В модели данных есть несохранённые изменения.</translation>
    </message>
    <message>
        <source>&amp;Save model</source>
        <translation>&amp;Сохранить модель</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” were saved. Here they are again.</source>
        <translation>Программа завершилась до сохранения изменений запроса «%1». Они восстановлены.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model were saved. Here they are again.</source>
        <translation>Программа завершилась до сохранения изменений модели данных. Они восстановлены.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Отбросить</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>&amp;База данных</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Открыть...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Открыть &amp;недавнюю</translation>
    </message>
    <message>
        <source>Open the &amp;sample</source>
        <translation>Открыть &amp;пример</translation>
    </message>
    <message>
        <source>Make the sample a&amp;new</source>
        <translation>&amp;Восстановить пример</translation>
    </message>
    <message>
        <source>&amp;Export rows...</source>
        <translation>&amp;Экспорт строк...</translation>
    </message>
    <message>
        <source>&amp;Print rows...</source>
        <translation>Пе&amp;чать строк...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Пока пусто</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Запрос</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Сохранить</translation>
    </message>
    <message>
        <source>Re&amp;vert to saved</source>
        <translation>Верну&amp;ться к сохранённому</translation>
    </message>
    <message>
        <source>&amp;Find a query</source>
        <translation>На&amp;йти запрос</translation>
    </message>
    <message>
        <source>Paste S&amp;QL...</source>
        <translation>Вставить S&amp;QL...</translation>
    </message>
    <message>
        <source>&amp;Where queries are kept</source>
        <translation>&amp;Где хранятся запросы</translation>
    </message>
    <message>
        <source>By the &amp;workbench</source>
        <translation>В самой &amp;программе</translation>
    </message>
    <message>
        <source>In a &amp;folder...</source>
        <translation>В п&amp;апке...</translation>
    </message>
    <message>
        <source>Folder of the queries</source>
        <translation>Папка запросов</translation>
    </message>
    <message>
        <source>In the &amp;database itself</source>
        <translation>В самой &amp;базе данных</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>Result &amp;columns...</source>
        <translation>Столб&amp;цы результата...</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Модель</translation>
    </message>
    <message>
        <source>&amp;Edit the model...</source>
        <translation>&amp;Изменить модель...</translation>
    </message>
    <message>
        <source>&amp;Diagram...</source>
        <translation>&amp;Диаграмма...</translation>
    </message>
    <message>
        <source>Read new tables from the data&amp;base</source>
        <translation>Прочитать новые &amp;таблицы из базы данных</translation>
    </message>
    <message>
        <source>&amp;Undo change of the model</source>
        <translation>&amp;Отменить изменение модели</translation>
    </message>
    <message>
        <source>&amp;Redo change of the model</source>
        <translation>&amp;Повторить изменение модели</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Загрузить...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Сохранить &amp;как...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Go to the &amp;queries</source>
        <translation>Перейти к &amp;запросам</translation>
    </message>
    <message>
        <source>Go to the &amp;conditions</source>
        <translation>Перейти к &amp;условиям</translation>
    </message>
    <message>
        <source>Go to the co&amp;lumns</source>
        <translation>Перейти к &amp;столбцам</translation>
    </message>
    <message>
        <source>Go to the &amp;rows</source>
        <translation>Перейти к с&amp;трокам</translation>
    </message>
    <message>
        <source>Go to the &amp;SQL</source>
        <translation>Перейти к S&amp;QL</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Цвета</translation>
    </message>
    <message>
        <source>Those of the s&amp;ystem</source>
        <translation>&amp;Системные</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>С&amp;ветлые</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Тёмные</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>&amp;Настройки...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>Сочетания &amp;клавиш</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>Data models (*.model *.xml);;All files (*)</source>
        <translation>Модели данных (*.model *.xml);;Все файлы (*)</translation>
    </message>
    <message>
        <source>XML documents</source>
        <translation>Документы XML</translation>
    </message>
    <message>
        <source>Changes of the model are in use now. Model &gt; Save keeps them.</source>
        <translation>Изменения модели вступили в силу. Чтобы сохранить их, выберите Модель &gt; Сохранить.</translation>
    </message>
    <message>
        <source>Diagram of the model</source>
        <translation>Диаграмма модели</translation>
    </message>
    <message>
        <source>The model is saved in %1.</source>
        <translation>Модель сохранена в %1.</translation>
    </message>
    <message>
        <source>Save the model</source>
        <translation>Сохранение модели</translation>
    </message>
    <message>
        <source>Load a model</source>
        <translation>Загрузка модели</translation>
    </message>
    <message>
        <source>The model has all tables and columns of the database.</source>
        <translation>В модели есть все таблицы и столбцы базы данных.</translation>
    </message>
    <message>
        <source>Add a column to the result to see rows.</source>
        <translation>Чтобы увидеть строки, добавьте столбец в результат.</translation>
    </message>
    <message>
        <source>The query asks for values: run it to give them.</source>
        <translation>Запросу нужны значения: выполните его, чтобы их задать.</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>Показать в запросе</translation>
    </message>
    <message>
        <source>The database refuses the condition “%1”:
%2</source>
        <translation>База данных не принимает условие «%1»:
%2</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>Запрос «%1» сохранён.</translation>
    </message>
    <message>
        <source>Go to the c&amp;hart</source>
        <translation>Перейти к диа&amp;грамме</translation>
    </message>
    <message>
        <source>Rows appear here when you run the query.</source>
        <translation>Строки появятся здесь после выполнения запроса.</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here. Run the query first to have all of them.</source>
        <translation>Здесь только первые строки (%L1). Чтобы получить все, сначала выполните запрос.</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Выполнить</translation>
    </message>
    <message>
        <source>&amp;These rows only</source>
        <translation>&amp;Только эти строки</translation>
    </message>
    <message>
        <source>The former queries are still in the database.</source>
        <translation>Прежние запросы остались в базе данных.</translation>
    </message>
    <message>
        <source>The former queries are still in %1.</source>
        <translation>Прежние запросы остались в %1.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Вернуться</translation>
    </message>
    <message>
        <source>Copy them here</source>
        <translation>Скопировать их сюда</translation>
    </message>
    <message numerus="yes">
        <source>%n query(ies) copied.</source>
        <translation>
            <numerusform>Скопирован %n запрос.</numerusform>
            <numerusform>Скопированы %n запроса.</numerusform>
            <numerusform>Скопировано %n запросов.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new table(s)</source>
        <translation>
            <numerusform>%n таблица</numerusform>
            <numerusform>%n таблицы</numerusform>
            <numerusform>%n таблиц</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new column(s)</source>
        <translation>
            <numerusform>%n столбец</numerusform>
            <numerusform>%n столбца</numerusform>
            <numerusform>%n столбцов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new link(s)</source>
        <translation>
            <numerusform>%n связь</numerusform>
            <numerusform>%n связи</numerusform>
            <numerusform>%n связей</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no new tables and columns.</source>
        <translation>В базе данных нет новых таблиц и столбцов.</translation>
    </message>
    <message>
        <source>New in the model: %1.</source>
        <translation>Новое в модели: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s), column(s) or link(s) of the model are not in the database.</source>
        <translation>
            <numerusform>В базе данных нет таблиц, столбцов или связей модели: %n.</numerusform>
            <numerusform>В базе данных нет таблиц, столбцов или связей модели: %n.</numerusform>
            <numerusform>В базе данных нет таблиц, столбцов или связей модели: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) have another type in the database than in the model.</source>
        <translation>
            <numerusform>У %n столбца тип в базе данных не такой, как в модели.</numerusform>
            <numerusform>У %n столбцов тип в базе данных не такой, как в модели.</numerusform>
            <numerusform>У %n столбцов тип в базе данных не такой, как в модели.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show...</source>
        <translation>Показать...</translation>
    </message>
    <message>
        <source>The database refuses the column “%1”:
%2</source>
        <translation>База данных не принимает столбец «%1»:
%2</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here: the settings let a run read no more.</source>
        <translation>Здесь только первые строки (%L1): настройки не позволяют прочитать больше за одно выполнение.</translation>
    </message>
    <message>
        <source>1 row is in %1.</source>
        <translation>1 строка записана в %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows are in %1.</source>
        <translation>
            <numerusform>%Ln строка записана в %1.</numerusform>
            <numerusform>%Ln строки записаны в %1.</numerusform>
            <numerusform>%Ln строк записано в %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the &amp;note</source>
        <translation>Перейти к соо&amp;бщению</translation>
    </message>
</context>
<context>
    <name>tolvi::TNameEditor</name>
    <message>
        <source>Name of the query</source>
        <translation>Имя запроса</translation>
    </message>
</context>
<context>
    <name>tolvi::TNoteBar</name>
    <message>
        <source>Close this note</source>
        <translation>Закрыть это сообщение</translation>
    </message>
</context>
<context>
    <name>tolvi::TOpeningDialog</name>
    <message>
        <source>Open a database</source>
        <translation>Открытие базы данных</translation>
    </message>
    <message>
        <source>Reading the tables of %1...</source>
        <translation>Чтение таблиц %1...</translation>
    </message>
    <message>
        <source>Waiting for %1...</source>
        <translation>Ожидание ответа от %1...</translation>
    </message>
</context>
<context>
    <name>tolvi::TParamEdit</name>
    <message>
        <source>One a line</source>
        <translation>По одному в строке</translation>
    </message>
    <message>
        <source>Calendar (Alt+Down)</source>
        <translation>Календарь (Alt+Вниз)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Выберите</translation>
    </message>
    <message>
        <source>Choose or type</source>
        <translation>Выберите или введите</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>Нужно указать значение.</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>Например, %1</translation>
    </message>
</context>
<context>
    <name>tolvi::TPrintRows</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Страница %1 из %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 (only the first %Ln rows)</source>
        <translation>
            <numerusform>%1 (только первые строки: %Ln)</numerusform>
            <numerusform>%1 (только первые строки: %Ln)</numerusform>
            <numerusform>%1 (только первые строки: %Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are %1 rows. Print them all, or the first %2?</source>
        <translation>Число строк: %1. Напечатать все или только первые %2?</translation>
    </message>
    <message>
        <source>&amp;First %1 rows</source>
        <translation>&amp;Первые %1 строк</translation>
    </message>
    <message>
        <source>&amp;All rows</source>
        <translation>&amp;Все строки</translation>
    </message>
</context>
<context>
    <name>tolvi::TProgram</name>
    <message>
        <source>The sample is as good as new. The former one is in %1.</source>
        <translation>Пример восстановлен. Прежний находится в %1.</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept for the case that the program ends: %1</source>
        <translation>Несохранённую работу не удаётся сберечь на случай завершения программы: %1</translation>
    </message>
    <message>
        <source>%1 is not open.</source>
        <translation>База данных %1 не открыта.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить попытку</translation>
    </message>
    <message>
        <source>Open another one...</source>
        <translation>Открыть другую...</translation>
    </message>
    <message>
        <source>Open the sample</source>
        <translation>Открыть пример</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” in %2 were saved. They are kept until you take them or discard them.</source>
        <translation>Программа завершилась до сохранения изменений запроса «%1» (%2). Они хранятся, пока вы не вернёте или не отбросите их.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model of %1 were saved. They are kept until you take them or discard them.</source>
        <translation>Программа завершилась до сохранения изменений модели данных %1. Они хранятся, пока вы не вернёте или не отбросите их.</translation>
    </message>
    <message>
        <source>Open %1 with them</source>
        <translation>Открыть %1 с изменениями</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Отбросить</translation>
    </message>
</context>
<context>
    <name>tolvi::TQueryArea</name>
    <message>
        <source>C&amp;onditions</source>
        <translation>&amp;Условия</translation>
    </message>
    <message>
        <source>Co&amp;lumns of the result</source>
        <translation>Столбцы &amp;результата</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultGrid</name>
    <message>
        <source>Rows of the result</source>
        <translation>Строки результата</translation>
    </message>
    <message>
        <source>Sort &amp;ascending</source>
        <translation>Сортировать по &amp;возрастанию</translation>
    </message>
    <message>
        <source>Sort &amp;descending</source>
        <translation>Сортировать по &amp;убыванию</translation>
    </message>
    <message>
        <source>&amp;Order of the database</source>
        <translation>&amp;Порядок базы данных</translation>
    </message>
    <message>
        <source>&amp;Hide column</source>
        <translation>&amp;Скрыть столбец</translation>
    </message>
    <message>
        <source>&amp;Show columns</source>
        <translation>По&amp;казать столбцы</translation>
    </message>
    <message>
        <source>&amp;Fit width</source>
        <translation>Подогнать &amp;ширину</translation>
    </message>
    <message>
        <source>Fit &amp;all widths</source>
        <translation>Подогнать ширину вс&amp;ех</translation>
    </message>
    <message>
        <source>Copy column &amp;name</source>
        <translation>Копировать &amp;имя столбца</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Copy with &amp;headers</source>
        <translation>Копировать с &amp;заголовками</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Выделить всё</translation>
    </message>
    <message>
        <source>&amp;Show value</source>
        <translation>&amp;Показать значение</translation>
    </message>
    <message>
        <source>Co&amp;lumn</source>
        <translation>&amp;Столбец</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копирование</translation>
    </message>
    <message>
        <source>%1 cells are too many for the clipboard.</source>
        <translation>%1 — слишком много ячеек для буфера обмена.</translation>
    </message>
    <message>
        <source>Copy %1 cells to the clipboard?</source>
        <translation>Копировать ячейки (%1) в буфер обмена?</translation>
    </message>
    <message>
        <source>Select fewer of them, or export the rows to a file.</source>
        <translation>Выделите меньше ячеек или экспортируйте строки в файл.</translation>
    </message>
    <message>
        <source>A file may be the better place for so many: export the rows instead.</source>
        <translation>Для такого количества лучше подойдёт файл: экспортируйте строки.</translation>
    </message>
    <message>
        <source>Copying: %1 % (Esc stops it)</source>
        <translation>Копирование: %1 % (Esc — остановить)</translation>
    </message>
    <message>
        <source>Copied 1 row</source>
        <translation>Скопирована 1 строка</translation>
    </message>
    <message numerus="yes">
        <source>Copied %Ln rows</source>
        <translation>
            <numerusform>Скопирована %Ln строка</numerusform>
            <numerusform>Скопированы %Ln строки</numerusform>
            <numerusform>Скопировано %Ln строк</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying was stopped; the clipboard holds what it held</source>
        <translation>Копирование остановлено; в буфере обмена осталось прежнее содержимое</translation>
    </message>
    <message>
        <source>Stop copying</source>
        <translation>Остановить копирование</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultPane</name>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>Остановлено через %1</translation>
    </message>
    <message>
        <source>Stopped after 1 row · %1</source>
        <translation>Остановлено после 1 строки · %1</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %Ln rows · %1</source>
        <translation>
            <numerusform>Остановлено после %Ln строки · %1</numerusform>
            <numerusform>Остановлено после %Ln строк · %1</numerusform>
            <numerusform>Остановлено после %Ln строк · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>First row · %1</source>
        <translation>Первая строка · %1</translation>
    </message>
    <message numerus="yes">
        <source>First %Ln rows · %1</source>
        <translation>
            <numerusform>Первые строки: %Ln · %1</numerusform>
            <numerusform>Первые строки: %Ln · %1</numerusform>
            <numerusform>Первые строки: %Ln · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No rows · %1</source>
        <translation>Нет строк · %1</translation>
    </message>
    <message>
        <source>1 row · %1</source>
        <translation>1 строка · %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows · %1</source>
        <translation>
            <numerusform>%Ln строка · %1</numerusform>
            <numerusform>%Ln строки · %1</numerusform>
            <numerusform>%Ln строк · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>В&amp;ыполнить</translation>
    </message>
    <message>
        <source>Fetch all rows (F5)</source>
        <translation>Получить все строки (F5)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Остановить</translation>
    </message>
    <message>
        <source>Stop the query that runs (Esc)</source>
        <translation>Остановить выполняемый запрос (Esc)</translation>
    </message>
    <message>
        <source>Live &amp;preview</source>
        <translation>&amp;Автопросмотр</translation>
    </message>
    <message>
        <source>Show the first rows whenever the query changes</source>
        <translation>Показывать первые строки при каждом изменении запроса</translation>
    </message>
    <message>
        <source>Rows appear here when you run a query.</source>
        <translation>Здесь появятся строки, когда вы выполните запрос.</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Выполнение…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>Сортировка…</translation>
    </message>
    <message>
        <source>1 row so far…</source>
        <translation>Пока 1 строка…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows so far…</source>
        <translation>
            <numerusform>Пока %Ln строка…</numerusform>
            <numerusform>Пока %Ln строки…</numerusform>
            <numerusform>Пока %Ln строк…</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no connection to the database</source>
        <translation>Нет подключения к базе данных</translation>
    </message>
    <message>
        <source>The database could not run the query</source>
        <translation>База данных не смогла выполнить запрос</translation>
    </message>
    <message>
        <source>The query cannot be run</source>
        <translation>Запрос нельзя выполнить</translation>
    </message>
</context>
<context>
    <name>tolvi::TRowFiles</name>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Не удалось записать файл «%1»: %2</translation>
    </message>
    <message>
        <source>CSV, separated by commas</source>
        <translation>CSV, разделитель — запятая</translation>
    </message>
    <message>
        <source>CSV, separated by semicolons</source>
        <translation>CSV, разделитель — точка с запятой</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>Текст, разделитель — табуляция</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Электронная таблица</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Table in Markdown</source>
        <translation>Таблица Markdown</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>это не файл</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>Системные</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлые</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмные</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>Системный</translation>
    </message>
    <message>
        <source>Show the &amp;first rows while a query is edited</source>
        <translation>Показывать &amp;первые строки при изменении запроса</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>&amp;Queries may hold conditions written in SQL</source>
        <translation>&amp;Запросы могут содержать условия на SQL</translation>
    </message>
    <message>
        <source>Such a condition reaches the database as it is. Allow it only for queries that come from people whom you trust.</source>
        <translation>Такое условие передаётся базе данных без изменений. Разрешайте это только для запросов от людей, которым доверяете.</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Цвета:</translation>
    </message>
    <message>
        <source>&amp;Size of letters:</source>
        <translation>&amp;Размер шрифта:</translation>
    </message>
    <message>
        <source>&amp;Rows of the preview:</source>
        <translation>&amp;Строк в автопросмотре:</translation>
    </message>
    <message>
        <source>Rows of a run at &amp;most:</source>
        <translation>&amp;Не более строк за выполнение:</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsFile</name>
    <message>
        <source>The settings could not be read (%1): they are the default ones now. The file is kept as %2.</source>
        <translation>Не удалось прочитать настройки (%1): теперь действуют настройки по умолчанию. Файл сохранён как %2.</translation>
    </message>
</context>
<context>
    <name>tolvi::TShortcuts</name>
    <message>
        <source>Among the conditions</source>
        <translation>В условиях</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Команда</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>In the list of queries</source>
        <translation>В списке запросов</translation>
    </message>
    <message>
        <source>Among the rows</source>
        <translation>В строках</translation>
    </message>
    <message>
        <source>In the SQL</source>
        <translation>В SQL</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlEdit</name>
    <message>
        <source>Copy what is selected</source>
        <translation>Копировать выделенное</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Увеличить шрифт</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Уменьшить шрифт</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlPane</name>
    <message>
        <source>Statement</source>
        <translation>Инструкция</translation>
    </message>
    <message>
        <source>S&amp;yntax:</source>
        <translation>С&amp;интаксис:</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>Синтаксис SQL, в котором записана инструкция</translation>
    </message>
    <message>
        <source>&amp;Paste SQL...</source>
        <translation>Вс&amp;тавить SQL...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>Copy the whole statement</source>
        <translation>Копировать инструкцию целиком</translation>
    </message>
    <message>
        <source>Copy with &amp;values</source>
        <translation>Копировать со &amp;значениями</translation>
    </message>
    <message>
        <source>Copy with &amp;parameters as ?</source>
        <translation>Копировать с &amp;параметрами как ?</translation>
    </message>
    <message>
        <source>Copy with parameters as :&amp;Name</source>
        <translation>Копировать с параметрами как :&amp;имя</translation>
    </message>
    <message>
        <source>Copy with parameters as $&amp;1</source>
        <translation>Копировать с параметрами как $&amp;1</translation>
    </message>
    <message>
        <source>Make a query of a SELECT statement</source>
        <translation>Создать запрос из инструкции SELECT</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>Показать в запросе</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>Ещё %n предупреждение</numerusform>
            <numerusform>Ещё %n предупреждения</numerusform>
            <numerusform>Ещё %n предупреждений</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreModel</name>
    <message>
        <source>Deleted by somebody else</source>
        <translation>Удалён кем-то другим</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>Изменён кем-то другим</translation>
    </message>
    <message>
        <source>Changed by somebody else, %1</source>
        <translation>Изменён кем-то другим, %1</translation>
    </message>
    <message>
        <source>Changed by %1, %2</source>
        <translation>Изменён: %1, %2</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>показан</translation>
    </message>
    <message>
        <source>changes not saved</source>
        <translation>изменения не сохранены</translation>
    </message>
    <message>
        <source>Has changes that are not saved</source>
        <translation>Есть несохранённые изменения</translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreNote</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>tolvi::TStorePane</name>
    <message>
        <source>Search queries</source>
        <translation>Поиск запросов</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>Запросы</translation>
    </message>
    <message>
        <source>Clear the search to put queries in another order.</source>
        <translation>Чтобы изменить порядок запросов, очистите строку поиска.</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>&amp;Новый запрос</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Пере&amp;именовать</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Дублировать</translation>
    </message>
    <message>
        <source>D&amp;escription...</source>
        <translation>Описани&amp;е...</translation>
    </message>
    <message>
        <source>De&amp;lete...</source>
        <translation>&amp;Удалить...</translation>
    </message>
    <message>
        <source>&amp;Copy query text</source>
        <translation>&amp;Копировать текст запроса</translation>
    </message>
    <message>
        <source>&amp;Paste query text</source>
        <translation>&amp;Вставить текст запроса</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Переместить ввер&amp;х</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>Переместить вни&amp;з</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>О&amp;бновить</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>Хранилище не открыто.</translation>
    </message>
    <message>
        <source>There are no queries yet. Press %1 to make one.</source>
        <translation>Запросов пока нет. Нажмите %1, чтобы создать запрос.</translation>
    </message>
    <message>
        <source>No query holds this text.</source>
        <translation>Ни один запрос не содержит этот текст.</translation>
    </message>
    <message>
        <source>Description of “%1”</source>
        <translation>Описание запроса «%1»</translation>
    </message>
    <message>
        <source>&amp;What the query answers, for those who look for it:</source>
        <translation>&amp;На какой вопрос отвечает запрос — для тех, кто его ищет:</translation>
    </message>
    <message>
        <source>Delete it all the same?</source>
        <translation>Всё равно удалить?</translation>
    </message>
    <message>
        <source>New query %1</source>
        <translation>Новый запрос %1</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>Новый запрос</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (копия %2)</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (копия)</translation>
    </message>
    <message>
        <source>Delete the query “%1”?</source>
        <translation>Удалить запрос «%1»?</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>Запрос «%1» удалён.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Отм&amp;енить</translation>
    </message>
    <message>
        <source>What was copied is no query text. Statements in SQL are pasted into the SQL.</source>
        <translation>Скопированное — не текст запроса. Инструкции SQL вставляются на панели SQL.</translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. You can take that back until the note about it is closed.</source>
        <translation>Он будет удалён для всех, кто использует это хранилище. Удаление можно отменить, пока не закрыто сообщение о нём.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was deleted, and %n before it.</source>
        <translation>
            <numerusform>Запрос «%1» удалён, до него — ещё %n.</numerusform>
            <numerusform>Запрос «%1» удалён, до него — ещё %n.</numerusform>
            <numerusform>Запрос «%1» удалён, до него — ещё %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. It cannot be read: you cannot take that back.</source>
        <translation>Он будет удалён для всех, кто использует это хранилище. Его нельзя прочитать, поэтому удаление нельзя отменить.</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueDlg</name>
    <message>
        <source>Value of %1</source>
        <translation>Значение %1</translation>
    </message>
    <message>
        <source>NULL: there is no value</source>
        <translation>NULL: значения нет</translation>
    </message>
    <message>
        <source>An empty text</source>
        <translation>Пустой текст</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
</context>
<context>
    <name>tolvi::TWorkspace</name>
    <message>
        <source>The sample cannot be put into %1: the folder cannot be made. The option --home names another place.</source>
        <translation>Не удалось поместить пример в %1: папку нельзя создать. Другое место задаётся параметром --home.</translation>
    </message>
    <message>
        <source>The sample stays as it is: %1 cannot be renamed.</source>
        <translation>Пример остаётся прежним: не удалось переименовать %1.</translation>
    </message>
    <message>
        <source>The data model cannot be kept: %1. Model &gt; Save as... keeps it in another place.</source>
        <translation>Не удалось сохранить модель данных: %1. Чтобы сохранить её в другом месте, используйте команду Модель &gt; Сохранить как... из меню.</translation>
    </message>
    <message numerus="yes">
        <source>The driver tells nothing of links between tables. %n link(s) were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</source>
        <translation>
            <numerusform>Драйвер не сообщает о связях между таблицами. По именам столбцов найдена %n связь; Модель &gt; Диаграмма... показывает её и позволяет нарисовать другие.</numerusform>
            <numerusform>Драйвер не сообщает о связях между таблицами. По именам столбцов найдены %n связи; Модель &gt; Диаграмма... показывает их и позволяет нарисовать другие.</numerusform>
            <numerusform>Драйвер не сообщает о связях между таблицами. По именам столбцов найдено %n связей; Модель &gt; Диаграмма... показывает их и позволяет нарисовать другие.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no tables that can be read. Once it has some, Model &gt; Read new tables from the database finds them.</source>
        <translation>В базе данных нет таблиц, доступных для чтения. Когда они появятся, выберите Модель &gt; Прочитать новые таблицы из базы данных.</translation>
    </message>
    <message>
        <source>%1 is no data model, or a damaged one: %2. Choose another file; where there is none, a model is made from the tables of the database.</source>
        <translation>%1 — не модель данных или повреждённая модель: %2. Выберите другой файл; если файла нет, модель создаётся по таблицам базы данных.</translation>
    </message>
    <message>
        <source>Queries cannot be kept in this database: %1</source>
        <translation>Запросы нельзя хранить в этой базе данных: %1</translation>
    </message>
    <message>
        <source>Queries cannot be kept: %1. Query &gt; Where queries are kept has other places.</source>
        <translation>Не удаётся сохранить запросы: %1. Другое место можно выбрать в меню Запрос &gt; Где хранятся запросы.</translation>
    </message>
</context>
<context>
    <name>tolvi::TXlsxFile</name>
    <message>
        <source>the folder for temporary files, &quot;%1&quot;, is full</source>
        <translation>папка временных файлов «%1» переполнена</translation>
    </message>
    <message>
        <source>the text in row %1, column %2 has %3 letters, and a cell holds %4</source>
        <translation>в тексте (строка %1, столбец %2) знаков: %3, а в ячейку помещается %4</translation>
    </message>
    <message>
        <source>there are %1 rows, and a sheet holds %2</source>
        <translation>строк: %1, а на лист помещается %2</translation>
    </message>
    <message>
        <source>there are %1 columns, and a sheet holds %2</source>
        <translation>столбцов: %1, а на лист помещается %2</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgConnection</name>
    <message>
        <source>Connect to a database</source>
        <translation>Подключение к базе данных</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>Недавние подключения</translation>
    </message>
    <message>
        <source>UR&amp;L:</source>
        <translation>UR&amp;L:</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>Пров&amp;ерить</translation>
    </message>
    <message>
        <source>This system has no keychain: passwords are forgotten when the program ends.</source>
        <translation>В этой системе нет связки ключей: пароли забываются при завершении программы.</translation>
    </message>
    <message>
        <source>Looking for the keychain of this system...</source>
        <translation>Поиск связки ключей этой системы...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Ос&amp;тановить</translation>
    </message>
    <message>
        <source>The keychain did not take the password: %1. It is known until the program ends.</source>
        <translation>Связка ключей не приняла пароль: %1. Он известен до завершения программы.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgImportSql</name>
    <message>
        <source>Paste SQL</source>
        <translation>Вставка SQL</translation>
    </message>
    <message>
        <source>&amp;Make query</source>
        <translation>&amp;Создать запрос</translation>
    </message>
    <message>
        <source>&amp;Statement:</source>
        <translation>&amp;Инструкция:</translation>
    </message>
    <message>
        <source>&amp;Only if it can be read exactly</source>
        <translation>&amp;Только если её можно прочитать точно</translation>
    </message>
    <message>
        <source>Otherwise what a query cannot say is left out or replaced, with a warning</source>
        <translation>Иначе то, чего запрос не может выразить, пропускается или заменяется с предупреждением</translation>
    </message>
    <message>
        <source>&amp;Keep as rows of SQL what no operator says</source>
        <translation>С&amp;охранять как строки SQL то, что не выражает ни один оператор</translation>
    </message>
    <message>
        <source>&amp;Warnings (F8 for the next one):</source>
        <translation>&amp;Предупреждения (F8 — следующее):</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>&amp;Запрос:</translation>
    </message>
    <message>
        <source>The statement is too long: statements of up to %1 KB can be read.</source>
        <translation>Инструкция слишком длинная: можно прочитать инструкции размером до %1 КБ.</translation>
    </message>
    <message>
        <source>Paste or type a SELECT statement.</source>
        <translation>Вставьте или введите инструкцию SELECT.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>Ещё %n предупреждение</numerusform>
            <numerusform>Ещё %n предупреждения</numerusform>
            <numerusform>Ещё %n предупреждений</numerusform>
        </translation>
    </message>
    <message>
        <source>The query says what the statement says.</source>
        <translation>Запрос означает то же, что и инструкция.</translation>
    </message>
    <message numerus="yes">
        <source>The statement can be read with %n warnings.</source>
        <translation>
            <numerusform>Инструкцию можно прочитать с %n предупреждением.</numerusform>
            <numerusform>Инструкцию можно прочитать с %n предупреждениями.</numerusform>
            <numerusform>Инструкцию можно прочитать с %n предупреждениями.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement cannot be read exactly.</source>
        <translation>Инструкцию нельзя прочитать точно.</translation>
    </message>
    <message>
        <source>The statement cannot be read.</source>
        <translation>Инструкцию нельзя прочитать.</translation>
    </message>
</context>
<context>
    <name>tolvi::main</name>
    <message>
        <source>Ask databases in sentences.</source>
        <translation>Спрашивайте базы данных предложениями.</translation>
    </message>
    <message>
        <source>An SQLite file, or a URL as docs/databases.md tells; without it, what was open the last time, at first the sample.</source>
        <translation>Файл SQLite или URL, как описано в docs/databases.md; если не указано — то, что было открыто в прошлый раз, а в первый раз — пример.</translation>
    </message>
    <message>
        <source>The data model: a model text or XML.</source>
        <translation>Модель данных: текст модели или XML.</translation>
    </message>
    <message>
        <source>The folder of the queries.</source>
        <translation>Папка запросов.</translation>
    </message>
    <message>
        <source>The queries are in the database.</source>
        <translation>Запросы хранятся в базе данных.</translation>
    </message>
    <message>
        <source>Keep settings, unsaved work and the sample there.</source>
        <translation>Хранить там настройки, несохранённую работу и пример.</translation>
    </message>
    <message>
        <source>Play the script with keys and clicks, then quit; see docs/workbench.md.</source>
        <translation>Воспроизвести сценарий с нажатиями клавиш и щелчками мыши и выйти; см. docs/workbench.md.</translation>
    </message>
    <message>
        <source>Write a picture of the window, at the end of the script, then quit.</source>
        <translation>Записать изображение окна в конце сценария и выйти.</translation>
    </message>
    <message>
        <source>Open the sample.</source>
        <translation>Открыть пример.</translation>
    </message>
</context>
</TS>
