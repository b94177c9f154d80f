<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>tolvi::TCatalogueTablesModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Схема</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>view</source>
        <translation>представление</translation>
    </message>
    <message>
        <source>table</source>
        <translation>таблица</translation>
    </message>
    <message>
        <source>%1, in the model</source>
        <translation>%1, в модели</translation>
    </message>
</context>
<context>
    <name>tolvi::TConditionsPage</name>
    <message>
        <source>Predefined conditions</source>
        <translation>Готовые условия</translation>
    </message>
    <message>
        <source>Display format</source>
        <translation>Формат отображения</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>New condition</source>
        <translation>Новое условие</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Display &amp;format:</source>
        <translation>&amp;Формат отображения:</translation>
    </message>
    <message>
        <source>@ is the place of a value.</source>
        <translation>@ обозначает место значения.</translation>
    </message>
    <message>
        <source>S&amp;QL:</source>
        <translation>S&amp;QL:</translation>
    </message>
    <message>
        <source>@1 and @2 stand for the values.</source>
        <translation>@1 и @2 обозначают значения.</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>Таблицы:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Пример:</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Значения</translation>
    </message>
    <message>
        <source>Text before it</source>
        <translation>Текст перед значением</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>Изменение типа значения</translation>
    </message>
    <message>
        <source>A single value</source>
        <translation>Одно значение</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>Список значений</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>Подзапрос</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>Изменение вида значения</translation>
    </message>
    <message>
        <source>Data t&amp;ype:</source>
        <translation>Тип д&amp;анных:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Вид:</translation>
    </message>
    <message>
        <source>Change SQL</source>
        <translation>Изменение SQL</translation>
    </message>
    <message>
        <source>Change display format</source>
        <translation>Изменение формата отображения</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>Добавление условия</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>Удаление условия</translation>
    </message>
</context>
<context>
    <name>tolvi::TDesignMinimap</name>
    <message>
        <source>The whole diagram; click to go there</source>
        <translation>Вся диаграмма; щёлкните, чтобы перейти к нужному месту</translation>
    </message>
    <message>
        <source>The whole diagram</source>
        <translation>Вся диаграмма</translation>
    </message>
</context>
<context>
    <name>tolvi::TDropDownDate</name>
    <message>
        <source>This is no time. Write it like %1.</source>
        <translation>Это не время. Образец записи: %1.</translation>
    </message>
    <message>
        <source>This is no date. Write it like %1.</source>
        <translation>Это не дата. Образец записи: %1.</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Сегодня</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Сейчас</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Календарь</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesModel</name>
    <message>
        <source>(no group)</source>
        <translation>(без группы)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Выражение</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Столбец</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Поле</translation>
    </message>
    <message>
        <source>Column or expression</source>
        <translation>Столбец или выражение</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesPage</name>
    <message>
        <source>Fields in groups</source>
        <translation>Поля по группам</translation>
    </message>
    <message>
        <source>Find fields or groups</source>
        <translation>Найти поля или группы</translation>
    </message>
    <message>
        <source>Add columns...</source>
        <translation>Добавить столбцы...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Выражение</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Операторы</translation>
    </message>
    <message>
        <source>Value Editor</source>
        <translation>Редактор значений</translation>
    </message>
    <message>
        <source>Add columns</source>
        <translation>Добавление столбцов</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Новое поле</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>Добавление выражения</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Новая группа</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Добавление группы</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Удаление группы</translation>
    </message>
    <message>
        <source>Delete field</source>
        <translation>Удаление поля</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>Перемещение поля</translation>
    </message>
    <message>
        <source>Move group</source>
        <translation>Перемещение группы</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntryTable</name>
    <message>
        <source>Text shown</source>
        <translation>Отображаемый текст</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>Значение в SQL</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>Список значений</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldForm</name>
    <message>
        <source>Offered in conditions</source>
        <translation>Доступно в условиях</translation>
    </message>
    <message>
        <source>Offer in conditions</source>
        <translation>Доступность в условиях</translation>
    </message>
    <message>
        <source>Offered as result column</source>
        <translation>Доступно как столбец результата</translation>
    </message>
    <message>
        <source>Offer as result column</source>
        <translation>Доступность как столбца результата</translation>
    </message>
    <message>
        <source>Aggregate</source>
        <translation>Агрегатное</translation>
    </message>
    <message>
        <source>Mark as aggregate</source>
        <translation>Пометка поля как агрегатного</translation>
    </message>
    <message>
        <source>The expression calls an aggregate function: conditions on it go to HAVING</source>
        <translation>Выражение вызывает агрегатную функцию: условия с ним попадают в HAVING</translation>
    </message>
    <message>
        <source>Quoted column name</source>
        <translation>Имя столбца в кавычках</translation>
    </message>
    <message>
        <source>Quote column name</source>
        <translation>Заключение имени столбца в кавычки</translation>
    </message>
    <message>
        <source>Group &amp;name:</source>
        <translation>И&amp;мя группы:</translation>
    </message>
    <message>
        <source>Change group name</source>
        <translation>Изменение имени группы</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>Отображаемое и&amp;мя:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Изменение отображаемого имени</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Вид:</translation>
    </message>
    <message>
        <source>Change kind</source>
        <translation>Изменение вида</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Столбец</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Выражение</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>Та&amp;блица:</translation>
    </message>
    <message>
        <source>Change table</source>
        <translation>Изменение таблицы</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>Вы&amp;ражение:</translation>
    </message>
    <message>
        <source>Change expression</source>
        <translation>Изменение выражения</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>Таблицы:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Группа:</translation>
    </message>
    <message>
        <source>Move fields to group</source>
        <translation>Перемещение полей в группу</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(неизвестно)</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>Ти&amp;п:</translation>
    </message>
    <message>
        <source>Change type</source>
        <translation>Изменение типа</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Change size</source>
        <translation>Изменение размера</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Ра&amp;змер:</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ИД:</translation>
    </message>
    <message>
        <source>(fields chosen: %1)</source>
        <translation>(выбрано полей: %1)</translation>
    </message>
    <message>
        <source>(no group)</source>
        <translation>(без группы)</translation>
    </message>
    <message>
        <source>Colu&amp;mn:</source>
        <translation>Сто&amp;лбец:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(нет)</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldOperators</name>
    <message>
        <source>Offered operators</source>
        <translation>Предлагаемые операторы</translation>
    </message>
    <message>
        <source>O&amp;ffered:</source>
        <translation>&amp;Предлагаются:</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Remove operator</source>
        <translation>Удаление оператора из предлагаемых</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Убрать все</translation>
    </message>
    <message>
        <source>Operators that are not offered</source>
        <translation>Операторы, которые не предлагаются</translation>
    </message>
    <message>
        <source>&amp;Not offered:</source>
        <translation>&amp;Не предлагаются:</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Предлагать</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>Добавление оператора в предлагаемые</translation>
    </message>
    <message>
        <source>All that apply</source>
        <translation>Все подходящие</translation>
    </message>
    <message>
        <source>Offer just the operators that are made for the type of the field</source>
        <translation>Предлагать только операторы, предназначенные для типа поля</translation>
    </message>
    <message>
        <source>- by some</source>
        <translation>- у некоторых</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>Перемещение оператора</translation>
    </message>
    <message>
        <source>Offer all operators that apply</source>
        <translation>Добавление всех подходящих операторов</translation>
    </message>
    <message>
        <source>Remove all operators</source>
        <translation>Удаление всех операторов из предлагаемых</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldTree</name>
    <message>
        <source>Find</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Find a field</source>
        <translation>Найти поле</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillChoicePage</name>
    <message>
        <source>Tables and fields that are added</source>
        <translation>Добавляемые таблицы и поля</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Всё</translation>
    </message>
    <message>
        <source>Check all that is listed</source>
        <translation>Отметить всё, что есть в списке</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>Н&amp;ичего</translation>
    </message>
    <message>
        <source>Uncheck all that is listed</source>
        <translation>Снять все отметки в списке</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>П&amp;ереименовать</translation>
    </message>
    <message>
        <source>Change the display name (F2)</source>
        <translation>Изменить отображаемое имя (F2)</translation>
    </message>
    <message>
        <source>&amp;Lists of Values</source>
        <translation>Спис&amp;ки значений</translation>
    </message>
    <message>
        <source>With or without lists of values (Ctrl+L)</source>
        <translation>Со списками значений или без них (Ctrl+L)</translation>
    </message>
    <message>
        <source>Links that are added</source>
        <translation>Добавляемые связи</translation>
    </message>
    <message>
        <source>Check all links that are listed</source>
        <translation>Отметить все связи в списке</translation>
    </message>
    <message>
        <source>Uncheck all links that are listed</source>
        <translation>Снять отметки со всех связей в списке</translation>
    </message>
    <message>
        <source>&amp;Rows...</source>
        <translation>&amp;Строки...</translation>
    </message>
    <message>
        <source>Choose which rows a link keeps (F2)</source>
        <translation>Выбрать, какие строки сохраняет связь (F2)</translation>
    </message>
    <message>
        <source>&amp;Tables and Fields (%1)</source>
        <translation>&amp;Таблицы и поля (%1)</translation>
    </message>
    <message>
        <source>Lin&amp;ks (%1)</source>
        <translation>Св&amp;язи (%1)</translation>
    </message>
    <message>
        <source>Nothing is added: the model has all that these tables have.</source>
        <translation>Добавлять нечего: в модели уже есть всё, что есть в этих таблицах.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillFieldItems</name>
    <message>
        <source>Further alias of %1</source>
        <translation>Ещё один псевдоним %1</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>В модели</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>Новая таблица</translation>
    </message>
    <message>
        <source>with a list</source>
        <translation>со списком</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(без имени)</translation>
    </message>
    <message>
        <source>Table, column</source>
        <translation>Таблица, столбец</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Отображаемое имя</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>Список значений</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillLinkItems</name>
    <message>
        <source>Only rows that match</source>
        <translation>Только совпадающие строки</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>Все строки %1</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>Все строки обеих таблиц</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Связь</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>Строки результата</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPage</name>
    <message>
        <source>&amp;Find:</source>
        <translation>На&amp;йти:</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPreviewPage</name>
    <message>
        <source>What the database no longer has stays in the model. Delete it there if nothing needs it.</source>
        <translation>То, чего в базе данных больше нет, остаётся в модели. Если оно никому не нужно, удалите его там.</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Что изменится</translation>
    </message>
    <message>
        <source>Added: %1 tables, %2 fields, %3 links.</source>
        <translation>Добавляется: таблиц — %1, полей — %2, связей — %3.</translation>
    </message>
    <message>
        <source>Changed: %1 types.</source>
        <translation>Меняется типов: %1.</translation>
    </message>
    <message>
        <source>Vanished: %1.</source>
        <translation>Исчезло: %1.</translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Заполнять нечего.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillReportItems</name>
    <message>
        <source>Types that change</source>
        <translation>Изменяемые типы</translation>
    </message>
    <message>
        <source>Types that differ in the database</source>
        <translation>Типы, отличающиеся в базе данных</translation>
    </message>
    <message>
        <source>New tables</source>
        <translation>Новые таблицы</translation>
    </message>
    <message>
        <source>New groups</source>
        <translation>Новые группы</translation>
    </message>
    <message>
        <source>New fields</source>
        <translation>Новые поля</translation>
    </message>
    <message>
        <source>New lists of values</source>
        <translation>Новые списки значений</translation>
    </message>
    <message>
        <source>New links</source>
        <translation>Новые связи</translation>
    </message>
    <message>
        <source>Vanished tables</source>
        <translation>Исчезнувшие таблицы</translation>
    </message>
    <message>
        <source>Vanished fields</source>
        <translation>Исчезнувшие поля</translation>
    </message>
    <message>
        <source>Vanished links</source>
        <translation>Исчезнувшие связи</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Примечания</translation>
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
        <translation>Представление</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>В модели</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новая</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTablesPage</name>
    <message>
        <source>Tables of the database</source>
        <translation>Таблицы базы данных</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;База данных:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Все</translation>
    </message>
    <message>
        <source>Check all tables that are listed</source>
        <translation>Отметить все таблицы в списке</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>Н&amp;и одной</translation>
    </message>
    <message>
        <source>Uncheck all tables that are listed</source>
        <translation>Снять отметки со всех таблиц в списке</translation>
    </message>
    <message>
        <source>Only Ne&amp;w</source>
        <translation>Только н&amp;овые</translation>
    </message>
    <message>
        <source>Check those that the model does not have, uncheck the others</source>
        <translation>Отметить таблицы, которых нет в модели, и снять отметки с остальных</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>Пара&amp;метры</translation>
    </message>
    <message>
        <source>Links from foreign keys</source>
        <translation>Связи по внешним ключам</translation>
    </message>
    <message>
        <source>Links from names of columns</source>
        <translation>Связи по именам столбцов</translation>
    </message>
    <message>
        <source>Further aliases of tables that are linked twice</source>
        <translation>Дополнительные псевдонимы для таблиц, связанных дважды</translation>
    </message>
    <message>
        <source>New columns of tables that the model has</source>
        <translation>Новые столбцы таблиц, которые есть в модели</translation>
    </message>
    <message>
        <source>Take over types that have changed</source>
        <translation>Принимать изменившиеся типы</translation>
    </message>
    <message>
        <source>Quote names in mixed case</source>
        <translation>Заключать в кавычки имена в смешанном регистре</translation>
    </message>
    <message>
        <source>Lists of values for foreign keys, up to</source>
        <translation>Списки значений для внешних ключей, не более</translation>
    </message>
    <message>
        <source> rows</source>
        <translation> строк</translation>
    </message>
    <message>
        <source>Most rows of a list of values</source>
        <translation>Наибольшее число строк в списке значений</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>Только совпадающие строки</translation>
    </message>
    <message>
        <source>All rows of the table that refers</source>
        <translation>Все строки ссылающейся таблицы</translation>
    </message>
    <message>
        <source>All rows of the table referred to</source>
        <translation>Все строки таблицы, на которую ссылаются</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>Все строки обеих таблиц</translation>
    </message>
    <message>
        <source>Rows of &amp;links:</source>
        <translation>Строки свя&amp;зей:</translation>
    </message>
    <message>
        <source>(that of the connection)</source>
        <translation>(указанная в подключении)</translation>
    </message>
    <message>
        <source>%1 of %2 tables are checked</source>
        <translation>Отмечено таблиц: %1 из %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TItemList</name>
    <message>
        <source>Type to search</source>
        <translation>Введите текст для поиска</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Элементы</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>Nothing to choose from</source>
        <translation>Выбирать не из чего</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Ничего не найдено</translation>
    </message>
</context>
<context>
    <name>tolvi::TJResultFieldsPanel</name>
    <message>
        <source>Sorting</source>
        <translation>Сортировка</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Поле</translation>
    </message>
</context>
<context>
    <name>tolvi::TJStructDesignPanel</name>
    <message>
        <source>Move tables</source>
        <translation>Перемещение таблиц</translation>
    </message>
    <message>
        <source>Resize table</source>
        <translation>Изменение размера таблицы</translation>
    </message>
    <message>
        <source>Diagram of tables and links</source>
        <translation>Диаграмма таблиц и связей</translation>
    </message>
    <message>
        <source>Arrange tables in rows</source>
        <translation>Расположение таблиц рядами</translation>
    </message>
    <message>
        <source>Arrange tables by links</source>
        <translation>Расположение таблиц по связям</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>Подгонка высоты</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Не удалось записать файл «%1»: %2</translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1 x %2 pixels.</source>
        <translation>Недостаточно памяти для рисунка размером %1 x %2 пикселей.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png, .svg or .pdf.</source>
        <translation>Имя файла «%1» должно заканчиваться на .png, .svg или .pdf.</translation>
    </message>
    <message>
        <source>Export Diagram</source>
        <translation>Экспорт диаграммы</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;Documents (*.pdf)</source>
        <translation>Рисунки (*.png *.svg);;Документы (*.pdf)</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Добавление таблиц</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Удаление таблицы</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Удаление связи</translation>
    </message>
    <message>
        <source>Delete tables</source>
        <translation>Удаление таблиц</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>Изменение связи</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Добавление связи</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>Таблица %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>поле %1</translation>
    </message>
    <message>
        <source>link %1</source>
        <translation>связь %1</translation>
    </message>
    <message>
        <source>Add &amp;Tables...</source>
        <translation>Добавить &amp;таблицы...</translation>
    </message>
    <message>
        <source>Add &amp;Link</source>
        <translation>Добавить &amp;связь</translation>
    </message>
    <message>
        <source>&amp;Cancel Adding</source>
        <translation>&amp;Отменить добавление</translation>
    </message>
    <message>
        <source>&amp;Edit Link...</source>
        <translation>&amp;Изменить связь...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Отм&amp;енить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Вы&amp;делить всё</translation>
    </message>
    <message>
        <source>Fit &amp;Height to Fields</source>
        <translation>Подогнать &amp;высоту под поля</translation>
    </message>
    <message>
        <source>Arrange in Ro&amp;ws</source>
        <translation>Расположить р&amp;ядами</translation>
    </message>
    <message>
        <source>Arrange &amp;by Links</source>
        <translation>Расположить по свя&amp;зям</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Уве&amp;личить</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>У&amp;меньшить</translation>
    </message>
    <message>
        <source>Show &amp;Whole Diagram</source>
        <translation>Показать вс&amp;ю диаграмму</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>Исходный &amp;размер</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture</source>
        <translation>&amp;Копировать рисунок</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>&amp;Экспорт...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Пе&amp;чать...</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairs</name>
    <message>
        <source>Column pairs</source>
        <translation>Пары столбцов</translation>
    </message>
    <message>
        <source>New pair</source>
        <translation>Новая пара</translation>
    </message>
    <message>
        <source>Delete pairs</source>
        <translation>Удалить пары</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Вниз</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairsModel</name>
    <message>
        <source>A constant...</source>
        <translation>Константа...</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Сравнение</translation>
    </message>
    <message>
        <source>Constant: %1</source>
        <translation>Константа: %1</translation>
    </message>
    <message>
        <source>(choose a column)</source>
        <translation>(выберите столбец)</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelCheckPane</name>
    <message>
        <source>What is wrong with the model</source>
        <translation>Ошибки модели</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Nothing is wrong with the model.</source>
        <translation>Ошибок в модели нет.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Ошибок: %1, предупреждений: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelPage</name>
    <message>
        <source>The model stays as it was.</source>
        <translation>Модель осталась прежней.</translation>
    </message>
</context>
<context>
    <name>tolvi::TOperatorsPage</name>
    <message>
        <source>In &amp;list</source>
        <translation>В спис&amp;ке</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>Ме&amp;жду</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>&amp;Начинается с</translation>
    </message>
    <message>
        <source>Conta&amp;ins</source>
        <translation>Соде&amp;ржит</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Т&amp;екст</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>&amp;Число</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>Д&amp;ата</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>И&amp;мя:</translation>
    </message>
    <message>
        <source>Change name</source>
        <translation>Изменение имени</translation>
    </message>
    <message>
        <source>Dis&amp;play name:</source>
        <translation>Ото&amp;бражаемое имя:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Изменение отображаемого имени</translation>
    </message>
    <message>
        <source>S&amp;QL template:</source>
        <translation>Шаблон S&amp;QL:</translation>
    </message>
    <message>
        <source>Change SQL template</source>
        <translation>Изменение шаблона SQL</translation>
    </message>
    <message>
        <source>&amp;Between values:</source>
        <translation>Между &amp;значениями:</translation>
    </message>
    <message>
        <source>Change value format</source>
        <translation>Изменение формата значений</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Операторы</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Отображаемое имя</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>SQL template</source>
        <translation>Шаблон SQL</translation>
    </message>
    <message>
        <source>New operator</source>
        <translation>Новый оператор</translation>
    </message>
    <message>
        <source>Add defaults</source>
        <translation>Добавить стандартные</translation>
    </message>
    <message>
        <source>Adds the default operators that the model lacks</source>
        <translation>Добавляет операторы по умолчанию, которых нет в модели</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Удалить все</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>Default operators that the model has</source>
        <translation>Операторы по умолчанию, которые есть в модели</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>При отключении группы её операторы удаляются</translation>
    </message>
    <message>
        <source>Change default operators</source>
        <translation>Изменение операторов по умолчанию</translation>
    </message>
    <message>
        <source>@f stands for the field, @1 and @2 for the values.</source>
        <translation>@f обозначает поле, @1 и @2 — значения.</translation>
    </message>
    <message>
        <source>What users read between the two values, as &quot;and&quot;</source>
        <translation>Что пользователь читает между двумя значениями, например «и»</translation>
    </message>
    <message>
        <source>Single values</source>
        <translation>Одиночные значения</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>Список значений</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>Подзапрос</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>Изменение вида значения</translation>
    </message>
    <message>
        <source>The type of the field</source>
        <translation>Тип поля</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>Изменение типа значения</translation>
    </message>
    <message>
        <source>Texts are compared without re&amp;gard to case</source>
        <translation>Сравнивать тексты без учёта ре&amp;гистра</translation>
    </message>
    <message>
        <source>Change letter case</source>
        <translation>Изменение учёта регистра</translation>
    </message>
    <message>
        <source>&amp;Kind of values:</source>
        <translation>&amp;Вид значений:</translation>
    </message>
    <message>
        <source>T&amp;ype of values:</source>
        <translation>Ти&amp;п значений:</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Пример</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Пример:</translation>
    </message>
    <message>
        <source>Types of fields to which it applies</source>
        <translation>Типы полей, к которым он применим</translation>
    </message>
    <message>
        <source>Types of fields</source>
        <translation>Типы полей</translation>
    </message>
    <message>
        <source>Offe&amp;r for all of them</source>
        <translation>Пред&amp;лагать для всех</translation>
    </message>
    <message>
        <source>All fields of these types offer the operator then</source>
        <translation>Оператор будет предлагаться для всех полей этих типов</translation>
    </message>
    <message>
        <source>Fields of these types: %1. Fields that offer it: %2.</source>
        <translation>Полей этих типов: %1. Предлагается для полей: %2.</translation>
    </message>
    <message>
        <source>Change types</source>
        <translation>Изменение типов</translation>
    </message>
    <message>
        <source>Add operator</source>
        <translation>Добавление оператора</translation>
    </message>
    <message>
        <source>Add default operators</source>
        <translation>Добавление операторов по умолчанию</translation>
    </message>
    <message>
        <source>Copy operator</source>
        <translation>Копирование оператора</translation>
    </message>
    <message>
        <source>Delete operator</source>
        <translation>Удаление оператора</translation>
    </message>
    <message>
        <source>Delete all operators</source>
        <translation>Удаление всех операторов</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>Перемещение оператора</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>Добавление оператора полям</translation>
    </message>
</context>
<context>
    <name>tolvi::TPartList</name>
    <message>
        <source>Find</source>
        <translation>Найти</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPParamLabel</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Имя:</translation>
    </message>
    <message>
        <source>&amp;Prompt:</source>
        <translation>&amp;Вопрос:</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPRow</name>
    <message>
        <source>Link word</source>
        <translation>Связующее слово</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Поле</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Оператор</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Значение %1</translation>
    </message>
    <message>
        <source>The row is locked: it cannot be changed here</source>
        <translation>Строка заблокирована: здесь её нельзя изменить</translation>
    </message>
    <message>
        <source>The bracket holds a locked row: it cannot be changed here</source>
        <translation>В группе есть заблокированная строка: здесь её нельзя изменить</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFColumnsPage</name>
    <message>
        <source>Move up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>The name of the column in SQL. It follows the name above.</source>
        <translation>Имя столбца в SQL. Оно зависит от имени выше.</translation>
    </message>
    <message>
        <source>Type an expression; { offers the fields</source>
        <translation>Введите выражение; { открывает список полей</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Псевдоним</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>не отображается</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>отображается</translation>
    </message>
    <message>
        <source>Select a field first.</source>
        <translation>Сначала выберите поле.</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFSortingPage</name>
    <message>
        <source>The result shows all columns; the result fields only sort it.</source>
        <translation>Результат показывает все столбцы; поля результата только задают сортировку.</translation>
    </message>
    <message>
        <source>Drag a row, or press Alt+Up or Alt+Down, to move it</source>
        <translation>Чтобы переместить строку, перетащите её или нажмите Alt+Вверх либо Alt+Вниз</translation>
    </message>
</context>
<context>
    <name>tolvi::TSubQueryDialog</name>
    <message>
        <source>&amp;SQL</source>
        <translation>&amp;SQL</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>&amp;Read this SQL</source>
        <translation>&amp;Прочитать этот SQL</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Отбросить</translation>
    </message>
    <message>
        <source>The text is not read yet</source>
        <translation>Текст ещё не прочитан</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesModel</name>
    <message>
        <source>The default main table</source>
        <translation>Главная таблица по умолчанию</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Псевдоним</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Отображаемое имя</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Таблица</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesPage</name>
    <message>
        <source>Inner</source>
        <translation>Внутреннее</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Левое</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Правое</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Полное</translation>
    </message>
    <message>
        <source>&amp;Alias:</source>
        <translation>&amp;Псевдоним:</translation>
    </message>
    <message>
        <source>Change alias</source>
        <translation>Изменение псевдонима</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>Отображаемое и&amp;мя:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Изменение отображаемого имени</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>Та&amp;блица:</translation>
    </message>
    <message>
        <source>Change table name</source>
        <translation>Изменение имени таблицы</translation>
    </message>
    <message>
        <source>Databa&amp;se:</source>
        <translation>Ба&amp;за данных:</translation>
    </message>
    <message>
        <source>Change database name</source>
        <translation>Изменение имени базы данных</translation>
    </message>
    <message>
        <source>&amp;Hints:</source>
        <translation>Подс&amp;казки оптимизатору:</translation>
    </message>
    <message>
        <source>Change hints</source>
        <translation>Изменение подсказок</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Таблицы</translation>
    </message>
    <message>
        <source>Find tables</source>
        <translation>Найти таблицы</translation>
    </message>
    <message>
        <source>There are no tables yet: add some from the database, or by hand.</source>
        <translation>Таблиц пока нет: добавьте их из базы данных или вручную.</translation>
    </message>
    <message>
        <source>Add from database...</source>
        <translation>Добавить из базы данных...</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>Новая таблица</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Вниз</translation>
    </message>
    <message>
        <source>&amp;Quoted name</source>
        <translation>Имя в кав&amp;ычках</translation>
    </message>
    <message>
        <source>Default &amp;main table</source>
        <translation>&amp;Главная таблица по умолчанию</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>С этой таблицы начинаются запросы</translation>
    </message>
    <message>
        <source>Linked with</source>
        <translation>Связана с</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Соединение</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Условие</translation>
    </message>
    <message>
        <source>Links of the table</source>
        <translation>Связи таблицы</translation>
    </message>
    <message>
        <source>&amp;Links:</source>
        <translation>С&amp;вязи:</translation>
    </message>
    <message>
        <source>Add link...</source>
        <translation>Добавить связь...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Изменить...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Удалить связь</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Добавление таблиц</translation>
    </message>
    <message>
        <source>NewTable</source>
        <translation>NewTable</translation>
    </message>
    <message>
        <source>Add table</source>
        <translation>Добавление таблицы</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Удаление таблицы</translation>
    </message>
    <message>
        <source>Move table</source>
        <translation>Перемещение таблицы</translation>
    </message>
    <message>
        <source>The SQL of fields (%1) and conditions (%2) names the table &quot;%3&quot;. Change it, too?</source>
        <translation>SQL полей (%1) и условий (%2) упоминает таблицу «%3». Изменить и его?</translation>
    </message>
    <message>
        <source>Unchanged, it no longer finds the table.</source>
        <translation>Без изменения он больше не найдёт таблицу.</translation>
    </message>
    <message>
        <source>Quote table name</source>
        <translation>Заключение имени таблицы в кавычки</translation>
    </message>
    <message>
        <source>Set default main table</source>
        <translation>Выбор главной таблицы по умолчанию</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Добавление связи</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>Изменение связи</translation>
    </message>
</context>
<context>
    <name>tolvi::TTitlesModel</name>
    <message>
        <source>Key</source>
        <translation>Ключ</translation>
    </message>
    <message>
        <source>Default text</source>
        <translation>Текст по умолчанию</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
</context>
<context>
    <name>tolvi::TTryPane</name>
    <message>
        <source>Col&amp;umns:</source>
        <translation>Столб&amp;цы:</translation>
    </message>
    <message>
        <source>Cond&amp;itions:</source>
        <translation>Услови&amp;я:</translation>
    </message>
    <message>
        <source>SQL syntax</source>
        <translation>Синтаксис SQL</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>Синтаксис SQL, в котором записана инструкция</translation>
    </message>
    <message>
        <source>SQL with JOIN</source>
        <translation>SQL с JOIN</translation>
    </message>
    <message>
        <source>SQL with joins in WHERE</source>
        <translation>SQL с соединениями в WHERE</translation>
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
        <translation>&amp;Инструкция:</translation>
    </message>
    <message>
        <source>Choose columns to see a statement.</source>
        <translation>Чтобы увидеть инструкцию, выберите столбцы.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueEditorBox</name>
    <message>
        <source>Automatic (by the data type)</source>
        <translation>Автоматически (по типу данных)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Fixed list</source>
        <translation>Постоянный список</translation>
    </message>
    <message>
        <source>The host&apos;s own editor</source>
        <translation>Собственный редактор приложения</translation>
    </message>
    <message>
        <source>List from a query</source>
        <translation>Список из запроса</translation>
    </message>
    <message>
        <source>Sub-query</source>
        <translation>Подзапрос</translation>
    </message>
    <message>
        <source>Value editor</source>
        <translation>Редактор значений</translation>
    </message>
    <message>
        <source>A line of text, a date or a check box, as the data type wants it.</source>
        <translation>Строка текста, дата или флажок — в зависимости от типа данных.</translation>
    </message>
    <message>
        <source>Data for the &amp;host:</source>
        <translation>Данные для &amp;приложения:</translation>
    </message>
    <message>
        <source>&amp;Stored query:</source>
        <translation>Сохранённый з&amp;апрос:</translation>
    </message>
    <message>
        <source>A query text, as query panels save it.</source>
        <translation>Текст запроса в том виде, в каком его сохраняют панели запросов.</translation>
    </message>
    <message>
        <source>Values are entered &amp;by:</source>
        <translation>Ввод &amp;значений:</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Простой текст</translation>
    </message>
    <message>
        <source>By the mask</source>
        <translation>По маске</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Как введено</translation>
    </message>
    <message>
        <source>Upper case</source>
        <translation>Верхний регистр</translation>
    </message>
    <message>
        <source>Lower case</source>
        <translation>Нижний регистр</translation>
    </message>
    <message>
        <source>That of the field</source>
        <translation>Как у поля</translation>
    </message>
    <message>
        <source>&amp;With the mask&apos;s fixed characters</source>
        <translation>С постоянными символами мас&amp;ки</translation>
    </message>
    <message>
        <source>De&amp;fault value:</source>
        <translation>Значение по умол&amp;чанию:</translation>
    </message>
    <message>
        <source>&amp;Kind of text:</source>
        <translation>&amp;Вид текста:</translation>
    </message>
    <message>
        <source>&amp;Mask:</source>
        <translation>&amp;Маска:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>&amp;Регистр букв:</translation>
    </message>
    <message>
        <source>Type of the &amp;value:</source>
        <translation>Тип зн&amp;ачения:</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Вст&amp;авить</translation>
    </message>
    <message>
        <source>Insert rows from the clipboard (%1)</source>
        <translation>Вставить строки из буфера обмена (%1)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Уб&amp;рать</translation>
    </message>
    <message>
        <source>Remove the selected rows (%1)</source>
        <translation>Убрать выделенные строки (%1)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Вв&amp;ерх</translation>
    </message>
    <message>
        <source>Move the row up (%1)</source>
        <translation>Переместить строку вверх (%1)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>В&amp;низ</translation>
    </message>
    <message>
        <source>Move the row down (%1)</source>
        <translation>Переместить строку вниз (%1)</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Запрос</translation>
    </message>
    <message>
        <source>SELECT value, text FROM ...</source>
        <translation>SELECT значение, текст FROM ...</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>name=value, one in a line; :name in the query stands for it</source>
        <translation>имя=значение, по одному в строке; в запросе пишется :имя</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>Зап&amp;рос:</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>&amp;Параметры:</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Выполнить</translation>
    </message>
    <message>
        <source>Shows what the query gives</source>
        <translation>Показывает, что возвращает запрос</translation>
    </message>
    <message>
        <source>Text shown</source>
        <translation>Отображаемый текст</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>Значение в SQL</translation>
    </message>
    <message>
        <source>Values that the query gives</source>
        <translation>Значения, которые возвращает запрос</translation>
    </message>
    <message>
        <source>What is changed here is changed for all %1 selected fields.</source>
        <translation>Изменения здесь относятся ко всем выбранным полям (%1).</translation>
    </message>
    <message>
        <source>The model is not connected to a database</source>
        <translation>Модель не подключена к базе данных</translation>
    </message>
    <message>
        <source>Change value editor</source>
        <translation>Изменение редактора значений</translation>
    </message>
    <message>
        <source>Rows: %1; the first %2 are shown</source>
        <translation>Строк: %1; показаны первые %2</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Строк: %1</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgAddTables</name>
    <message>
        <source>Add their &amp;fields</source>
        <translation>Добавить их &amp;поля</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Найти:</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>&amp;Схема:</translation>
    </message>
    <message>
        <source>&amp;Links to be made:</source>
        <translation>Соз&amp;даваемые связи:</translation>
    </message>
    <message>
        <source>(all)</source>
        <translation>(все)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(нет)</translation>
    </message>
    <message>
        <source> - by a further alias of the table, &quot;%1&quot;</source>
        <translation> - через ещё один псевдоним таблицы, «%1»</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Tables chosen: %1</source>
        <translation>Выбрано таблиц: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Добавление таблиц</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgColumns</name>
    <message>
        <source>Add Fields</source>
        <translation>Добавление полей</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>&amp;Таблица:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Столбцы:</translation>
    </message>
    <message>
        <source>&amp;Other column:</source>
        <translation>&amp;Другой столбец:</translation>
    </message>
    <message>
        <source>No other columns of this table are known.</source>
        <translation>Другие столбцы этой таблицы неизвестны.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgFill</name>
    <message>
        <source>Fill from Database</source>
        <translation>Заполнение из базы данных</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Повторить попытку</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <source>F&amp;inish</source>
        <translation>&amp;Готово</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>Назад (Alt+Влево)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>The database gave no answer.</source>
        <translation>База данных не ответила.</translation>
    </message>
    <message>
        <source>Fill from database</source>
        <translation>Заполнение из базы данных</translation>
    </message>
    <message>
        <source>Step 1 of 3: Choose the tables</source>
        <translation>Шаг 1 из 3: выберите таблицы</translation>
    </message>
    <message>
        <source>Step 2 of 3: Choose and name what is added</source>
        <translation>Шаг 2 из 3: выберите, что добавить, и задайте имена</translation>
    </message>
    <message>
        <source>Step 3 of 3: Look at what changes</source>
        <translation>Шаг 3 из 3: просмотрите изменения</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgLinkEdit</name>
    <message>
        <source>&amp;Quote the names of columns</source>
        <translation>Имена столбцов в &amp;кавычках</translation>
    </message>
    <message>
        <source>&amp;Condition:</source>
        <translation>&amp;Условие:</translation>
    </message>
    <message>
        <source>&amp;First table:</source>
        <translation>&amp;Первая таблица:</translation>
    </message>
    <message>
        <source>&amp;Second table:</source>
        <translation>&amp;Вторая таблица:</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>По&amp;менять местами</translation>
    </message>
    <message>
        <source>The tables and their columns change places; the rows found stay the same</source>
        <translation>Таблицы и их столбцы меняются местами; найденные строки остаются теми же</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>Строки результата</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>Только совпадающие строки</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>Все строки %1</translation>
    </message>
    <message>
        <source>All rows of both tables</source>
        <translation>Все строки обеих таблиц</translation>
    </message>
    <message>
        <source>Pair %1: %2</source>
        <translation>Пара %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelEdit</name>
    <message>
        <source>&amp;Tables</source>
        <translation>&amp;Таблицы</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Сущности</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>&amp;Операторы</translation>
    </message>
    <message>
        <source>&amp;Conditions</source>
        <translation>&amp;Условия</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>&amp;Диаграмма</translation>
    </message>
    <message>
        <source>Edit Data Model</source>
        <translation>Изменение модели данных</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Открыть...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Сохранить...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <source>Fill from database...</source>
        <translation>Заполнить из базы данных...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Настройки...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Опробовать</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Data models (*.model)</source>
        <translation>Модели данных (*.model)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened. The model stays as it was.</source>
        <translation>Не удалось открыть файл %1. Модель осталась прежней.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открытие</translation>
    </message>
    <message>
        <source>The model cannot be saved in the file %1.</source>
        <translation>Не удалось сохранить модель в файл %1.</translation>
    </message>
    <message>
        <source>Open Model</source>
        <translation>Открытие модели</translation>
    </message>
    <message>
        <source>Save Model</source>
        <translation>Сохранение модели</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>Заменить %1?</translation>
    </message>
    <message>
        <source>The database cannot be connected.</source>
        <translation>Не удалось подключиться к базе данных.</translation>
    </message>
    <message>
        <source>There is no help.</source>
        <translation>Справки нет.</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>Не удалось показать справку.</translation>
    </message>
    <message>
        <source>Clear model</source>
        <translation>Очистка модели</translation>
    </message>
    <message>
        <source>The model has been changed.</source>
        <translation>Модель изменена.</translation>
    </message>
    <message>
        <source>Do you want to keep the changes?</source>
        <translation>Сохранить изменения?</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelSettings</name>
    <message>
        <source>&amp;In list</source>
        <translation>В спис&amp;ке</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>М&amp;ежду</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>&amp;Начинается с</translation>
    </message>
    <message>
        <source>&amp;Contains</source>
        <translation>&amp;Содержит</translation>
    </message>
    <message>
        <source>Opening &amp;quote of names:</source>
        <translation>Отк&amp;рывающая кавычка имён:</translation>
    </message>
    <message>
        <source>C&amp;losing quote of names:</source>
        <translation>&amp;Закрывающая кавычка имён:</translation>
    </message>
    <message>
        <source>F&amp;ull table name:</source>
        <translation>&amp;Полное имя таблицы:</translation>
    </message>
    <message>
        <source>DB, OWNER and TABLE stand for the names</source>
        <translation>DB, OWNER и TABLE обозначают имена</translation>
    </message>
    <message>
        <source>&amp;True:</source>
        <translation>&amp;Истина:</translation>
    </message>
    <message>
        <source>&amp;False:</source>
        <translation>&amp;Ложь:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Дата:</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd&apos;</source>
        <translation>Если пусто: &apos;yyyy-mm-dd&apos;</translation>
    </message>
    <message>
        <source>Ti&amp;me:</source>
        <translation>&amp;Время:</translation>
    </message>
    <message>
        <source>Empty: &apos;hh:nn:ss&apos;</source>
        <translation>Если пусто: &apos;hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>D&amp;ate and time:</source>
        <translation>Дата и врем&amp;я:</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd hh:nn:ss&apos;</source>
        <translation>Если пусто: &apos;yyyy-mm-dd hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>&amp;Wildcard of LIKE:</source>
        <translation>Подстановочный зна&amp;к для LIKE:</translation>
    </message>
    <message>
        <source>F&amp;unction for lower case:</source>
        <translation>&amp;Функция нижнего регистра:</translation>
    </message>
    <message>
        <source>Function for li&amp;sts:</source>
        <translation>Функция &amp;списков:</translation>
    </message>
    <message>
        <source>@1 stands for what is listed</source>
        <translation>@1 обозначает перечисляемое</translation>
    </message>
    <message>
        <source>Default &amp;database:</source>
        <translation>&amp;База данных по умолчанию:</translation>
    </message>
    <message>
        <source>Its tables are written without it</source>
        <translation>Её таблицы записываются без неё</translation>
    </message>
    <message>
        <source>Default o&amp;wner:</source>
        <translation>В&amp;ладелец по умолчанию:</translation>
    </message>
    <message>
        <source>Outer joins are written with OUTE&amp;R</source>
        <translation>Вн&amp;ешние соединения записываются с OUTER</translation>
    </message>
    <message>
        <source>AS stands before the alias of a ta&amp;ble</source>
        <translation>Перед псевдонимом та&amp;блицы ставится AS</translation>
    </message>
    <message>
        <source>Tables of &amp;several databases</source>
        <translation>&amp;Таблицы из нескольких баз данных</translation>
    </message>
    <message>
        <source>The connection is stored with the &amp;model</source>
        <translation>&amp;Хранить подключение вместе с моделью</translation>
    </message>
    <message>
        <source>Settings of the Model</source>
        <translation>Настройки модели</translation>
    </message>
    <message>
        <source>S&amp;QL</source>
        <translation>S&amp;QL</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Модель</translation>
    </message>
    <message>
        <source>D&amp;efault operators</source>
        <translation>&amp;Операторы по умолчанию</translation>
    </message>
    <message>
        <source>Example of a statement</source>
        <translation>Пример инструкции</translation>
    </message>
    <message>
        <source>A statement is written so:</source>
        <translation>Так записывается инструкция:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Готовый набор</translation>
    </message>
    <message>
        <source>(own settings)</source>
        <translation>(свои настройки)</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>&amp;Готовый набор:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(нет)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>С этой таблицы начинаются запросы</translation>
    </message>
    <message>
        <source>Menus list the &amp;fields outside groups first</source>
        <translation>В меню сначала &amp;поля вне групп</translation>
    </message>
    <message>
        <source>Default m&amp;ain table:</source>
        <translation>&amp;Главная таблица по умолчанию:</translation>
    </message>
    <message>
        <source>Types whose values are written in quotes</source>
        <translation>Типы, значения которых записываются в кавычках</translation>
    </message>
    <message>
        <source>&amp;Booleans</source>
        <translation>Логи&amp;ческие</translation>
    </message>
    <message>
        <source>Dates and &amp;times</source>
        <translation>&amp;Даты и время</translation>
    </message>
    <message>
        <source>Groups that the model has</source>
        <translation>Группы, которые есть в модели</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>При отключении группы её операторы удаляются</translation>
    </message>
    <message>
        <source>Display names of the default operators</source>
        <translation>Отображаемые имена операторов по умолчанию</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Оператор</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Отображаемое имя</translation>
    </message>
    <message>
        <source>Change settings</source>
        <translation>Изменение настроек</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgRFieldEdit</name>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Отказаться от изменений?</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgTitlesEdit</name>
    <message>
        <source>Edit Texts</source>
        <translation>Изменение текстов</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Тексты</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Найти:</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Сбросить</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>Сбросить вс&amp;е</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Загрузить...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>Со&amp;хранить...</translation>
    </message>
    <message>
        <source>Load Texts</source>
        <translation>Загрузка текстов</translation>
    </message>
    <message>
        <source>Texts (*.titles);;All files (*)</source>
        <translation>Тексты (*.titles);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Save Texts</source>
        <translation>Сохранение текстов</translation>
    </message>
    <message>
        <source>%1 is not a UTF-8 text.</source>
        <translation>Файл %1 — не текст в кодировке UTF-8.</translation>
    </message>
    <message>
        <source>%1 has none of these texts.</source>
        <translation>В файле %1 нет ни одного из этих текстов.</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Texts to be looked at: %1 (see the notes)</source>
        <translation>Текстов, требующих внимания: %1 (см. примечания)</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgValueList</name>
    <message>
        <source>&amp;Values, one in a line:</source>
        <translation>&amp;Значения, по одному в строке:</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Значений: %1</translation>
    </message>
</context>
</TS>
