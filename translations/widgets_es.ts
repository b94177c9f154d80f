<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>tolvi::TCatalogueTablesModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vista</translation>
    </message>
    <message>
        <source>table</source>
        <translation>tabla</translation>
    </message>
    <message>
        <source>%1, in the model</source>
        <translation>%1, en el modelo</translation>
    </message>
</context>
<context>
    <name>tolvi::TConditionsPage</name>
    <message>
        <source>Predefined conditions</source>
        <translation>Condiciones predefinidas</translation>
    </message>
    <message>
        <source>Display format</source>
        <translation>Formato de presentación</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>New condition</source>
        <translation>Nueva condición</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Display &amp;format:</source>
        <translation>&amp;Formato de presentación:</translation>
    </message>
    <message>
        <source>@ is the place of a value.</source>
        <translation>@ indica el lugar de un valor.</translation>
    </message>
    <message>
        <source>S&amp;QL:</source>
        <translation>S&amp;QL:</translation>
    </message>
    <message>
        <source>@1 and @2 stand for the values.</source>
        <translation>@1 y @2 representan los valores.</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>Tablas:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Text before it</source>
        <translation>Texto que lo precede</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>Cambiar el tipo de valor</translation>
    </message>
    <message>
        <source>A single value</source>
        <translation>Un solo valor</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>Una lista de valores</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>Una subconsulta</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>Cambiar la clase de valor</translation>
    </message>
    <message>
        <source>Data t&amp;ype:</source>
        <translation>Ti&amp;po de datos:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>C&amp;lase:</translation>
    </message>
    <message>
        <source>Change SQL</source>
        <translation>Cambiar el SQL</translation>
    </message>
    <message>
        <source>Change display format</source>
        <translation>Cambiar el formato de presentación</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>Añadir condición</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>Eliminar condición</translation>
    </message>
</context>
<context>
    <name>tolvi::TDesignMinimap</name>
    <message>
        <source>The whole diagram; click to go there</source>
        <translation>Diagrama completo; haga clic para ir a un punto</translation>
    </message>
    <message>
        <source>The whole diagram</source>
        <translation>Diagrama completo</translation>
    </message>
</context>
<context>
    <name>tolvi::TDropDownDate</name>
    <message>
        <source>This is no time. Write it like %1.</source>
        <translation>Esto no es una hora. Escríbala como %1.</translation>
    </message>
    <message>
        <source>This is no date. Write it like %1.</source>
        <translation>Esto no es una fecha. Escríbala como %1.</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Hoy</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Ahora</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesModel</name>
    <message>
        <source>(no group)</source>
        <translation>(sin grupo)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Column or expression</source>
        <translation>Columna o expresión</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesPage</name>
    <message>
        <source>Fields in groups</source>
        <translation>Campos por grupos</translation>
    </message>
    <message>
        <source>Find fields or groups</source>
        <translation>Buscar campos o grupos</translation>
    </message>
    <message>
        <source>Add columns...</source>
        <translation>Añadir columnas...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Operadores</translation>
    </message>
    <message>
        <source>Value Editor</source>
        <translation>Editor de valores</translation>
    </message>
    <message>
        <source>Add columns</source>
        <translation>Añadir columnas</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nuevo campo</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>Añadir expresión</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Nuevo grupo</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Añadir grupo</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Eliminar grupo</translation>
    </message>
    <message>
        <source>Delete field</source>
        <translation>Eliminar campo</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>Mover campo</translation>
    </message>
    <message>
        <source>Move group</source>
        <translation>Mover grupo</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntryTable</name>
    <message>
        <source>Text shown</source>
        <translation>Texto mostrado</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>Valor en SQL</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>Lista de valores</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldForm</name>
    <message>
        <source>Offered in conditions</source>
        <translation>Disponible en las condiciones</translation>
    </message>
    <message>
        <source>Offer in conditions</source>
        <translation>Ofrecer en las condiciones</translation>
    </message>
    <message>
        <source>Offered as result column</source>
        <translation>Disponible como columna del resultado</translation>
    </message>
    <message>
        <source>Offer as result column</source>
        <translation>Ofrecer como columna del resultado</translation>
    </message>
    <message>
        <source>Aggregate</source>
        <translation>Agregado</translation>
    </message>
    <message>
        <source>Mark as aggregate</source>
        <translation>Marcar como agregado</translation>
    </message>
    <message>
        <source>The expression calls an aggregate function: conditions on it go to HAVING</source>
        <translation>La expresión llama a una función de agregado: sus condiciones van en HAVING</translation>
    </message>
    <message>
        <source>Quoted column name</source>
        <translation>Nombre de columna entre comillas</translation>
    </message>
    <message>
        <source>Quote column name</source>
        <translation>Poner entre comillas el nombre de columna</translation>
    </message>
    <message>
        <source>Group &amp;name:</source>
        <translation>&amp;Nombre del grupo:</translation>
    </message>
    <message>
        <source>Change group name</source>
        <translation>Cambiar el nombre del grupo</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>&amp;Nombre visible:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Cambiar el nombre visible</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>C&amp;lase:</translation>
    </message>
    <message>
        <source>Change kind</source>
        <translation>Cambiar la clase</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>Ta&amp;bla:</translation>
    </message>
    <message>
        <source>Change table</source>
        <translation>Cambiar la tabla</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>E&amp;xpresión:</translation>
    </message>
    <message>
        <source>Change expression</source>
        <translation>Cambiar la expresión</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>Tablas:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupo:</translation>
    </message>
    <message>
        <source>Move fields to group</source>
        <translation>Mover campos a un grupo</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(desconocido)</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>Ti&amp;po:</translation>
    </message>
    <message>
        <source>Change type</source>
        <translation>Cambiar el tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Change size</source>
        <translation>Cambiar el tamaño</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>T&amp;amaño:</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>(fields chosen: %1)</source>
        <translation>(campos elegidos: %1)</translation>
    </message>
    <message>
        <source>(no group)</source>
        <translation>(sin grupo)</translation>
    </message>
    <message>
        <source>Colu&amp;mn:</source>
        <translation>Colu&amp;mna:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldOperators</name>
    <message>
        <source>Offered operators</source>
        <translation>Operadores ofrecidos</translation>
    </message>
    <message>
        <source>O&amp;ffered:</source>
        <translation>O&amp;frecidos:</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove operator</source>
        <translation>Quitar operador</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Quitar todos</translation>
    </message>
    <message>
        <source>Operators that are not offered</source>
        <translation>Operadores que no se ofrecen</translation>
    </message>
    <message>
        <source>&amp;Not offered:</source>
        <translation>&amp;No ofrecidos:</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Ofrecer</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>Ofrecer operador</translation>
    </message>
    <message>
        <source>All that apply</source>
        <translation>Todos los aplicables</translation>
    </message>
    <message>
        <source>Offer just the operators that are made for the type of the field</source>
        <translation>Ofrecer solo los operadores pensados para el tipo del campo</translation>
    </message>
    <message>
        <source>- by some</source>
        <translation>- en algunos</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>Mover operador</translation>
    </message>
    <message>
        <source>Offer all operators that apply</source>
        <translation>Ofrecer todos los operadores aplicables</translation>
    </message>
    <message>
        <source>Remove all operators</source>
        <translation>Quitar todos los operadores</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldTree</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find a field</source>
        <translation>Buscar un campo</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillChoicePage</name>
    <message>
        <source>Tables and fields that are added</source>
        <translation>Tablas y campos que se añaden</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todo</translation>
    </message>
    <message>
        <source>Check all that is listed</source>
        <translation>Marcar todo lo que aparece en la lista</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Nada</translation>
    </message>
    <message>
        <source>Uncheck all that is listed</source>
        <translation>Desmarcar todo lo que aparece en la lista</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Cambiar nombre</translation>
    </message>
    <message>
        <source>Change the display name (F2)</source>
        <translation>Cambiar el nombre visible (F2)</translation>
    </message>
    <message>
        <source>&amp;Lists of Values</source>
        <translation>&amp;Listas de valores</translation>
    </message>
    <message>
        <source>With or without lists of values (Ctrl+L)</source>
        <translation>Con o sin listas de valores (Ctrl+L)</translation>
    </message>
    <message>
        <source>Links that are added</source>
        <translation>Vínculos que se añaden</translation>
    </message>
    <message>
        <source>Check all links that are listed</source>
        <translation>Marcar todos los vínculos de la lista</translation>
    </message>
    <message>
        <source>Uncheck all links that are listed</source>
        <translation>Desmarcar todos los vínculos de la lista</translation>
    </message>
    <message>
        <source>&amp;Rows...</source>
        <translation>F&amp;ilas...</translation>
    </message>
    <message>
        <source>Choose which rows a link keeps (F2)</source>
        <translation>Elegir qué filas conserva un vínculo (F2)</translation>
    </message>
    <message>
        <source>&amp;Tables and Fields (%1)</source>
        <translation>Tablas &amp;y campos (%1)</translation>
    </message>
    <message>
        <source>Lin&amp;ks (%1)</source>
        <translation>&amp;Vínculos (%1)</translation>
    </message>
    <message>
        <source>Nothing is added: the model has all that these tables have.</source>
        <translation>No se añade nada: el modelo ya contiene todo lo que hay en estas tablas.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillFieldItems</name>
    <message>
        <source>Further alias of %1</source>
        <translation>Otro alias de %1</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>En el modelo</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>Tabla nueva</translation>
    </message>
    <message>
        <source>with a list</source>
        <translation>con lista</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>Table, column</source>
        <translation>Tabla, columna</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nombre visible</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>Lista de valores</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillLinkItems</name>
    <message>
        <source>Only rows that match</source>
        <translation>Solo las filas que coinciden</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>Todas las filas de %1</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>Todas las filas de ambas</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Vínculo</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>Filas del resultado</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPage</name>
    <message>
        <source>&amp;Find:</source>
        <translation>B&amp;uscar:</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPreviewPage</name>
    <message>
        <source>What the database no longer has stays in the model. Delete it there if nothing needs it.</source>
        <translation>Lo que ya no existe en la base de datos se conserva en el modelo. Elimínelo allí si nada lo necesita.</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Qué cambia</translation>
    </message>
    <message>
        <source>Added: %1 tables, %2 fields, %3 links.</source>
        <translation>Se añaden: %1 tablas, %2 campos, %3 vínculos.</translation>
    </message>
    <message>
        <source>Changed: %1 types.</source>
        <translation>Cambian: %1 tipos.</translation>
    </message>
    <message>
        <source>Vanished: %1.</source>
        <translation>Han desaparecido: %1.</translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>No hay nada que rellenar.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillReportItems</name>
    <message>
        <source>Types that change</source>
        <translation>Tipos que cambian</translation>
    </message>
    <message>
        <source>Types that differ in the database</source>
        <translation>Tipos distintos en la base de datos</translation>
    </message>
    <message>
        <source>New tables</source>
        <translation>Tablas nuevas</translation>
    </message>
    <message>
        <source>New groups</source>
        <translation>Grupos nuevos</translation>
    </message>
    <message>
        <source>New fields</source>
        <translation>Campos nuevos</translation>
    </message>
    <message>
        <source>New lists of values</source>
        <translation>Listas de valores nuevas</translation>
    </message>
    <message>
        <source>New links</source>
        <translation>Vínculos nuevos</translation>
    </message>
    <message>
        <source>Vanished tables</source>
        <translation>Tablas desaparecidas</translation>
    </message>
    <message>
        <source>Vanished fields</source>
        <translation>Campos desaparecidos</translation>
    </message>
    <message>
        <source>Vanished links</source>
        <translation>Vínculos desaparecidos</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
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
        <translation>Vista</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>En el modelo</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTablesPage</name>
    <message>
        <source>Tables of the database</source>
        <translation>Tablas de la base de datos</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Base de datos:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>Check all tables that are listed</source>
        <translation>Marcar todas las tablas de la lista</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Ninguna</translation>
    </message>
    <message>
        <source>Uncheck all tables that are listed</source>
        <translation>Desmarcar todas las tablas de la lista</translation>
    </message>
    <message>
        <source>Only Ne&amp;w</source>
        <translation>Solo las nue&amp;vas</translation>
    </message>
    <message>
        <source>Check those that the model does not have, uncheck the others</source>
        <translation>Marcar las que faltan en el modelo y desmarcar las demás</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>O&amp;pciones</translation>
    </message>
    <message>
        <source>Links from foreign keys</source>
        <translation>Vínculos según las claves externas</translation>
    </message>
    <message>
        <source>Links from names of columns</source>
        <translation>Vínculos según los nombres de columnas</translation>
    </message>
    <message>
        <source>Further aliases of tables that are linked twice</source>
        <translation>Otros alias para las tablas vinculadas dos veces</translation>
    </message>
    <message>
        <source>New columns of tables that the model has</source>
        <translation>Columnas nuevas de las tablas que ya están en el modelo</translation>
    </message>
    <message>
        <source>Take over types that have changed</source>
        <translation>Adoptar los tipos que han cambiado</translation>
    </message>
    <message>
        <source>Quote names in mixed case</source>
        <translation>Poner entre comillas los nombres con mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>Lists of values for foreign keys, up to</source>
        <translation>Listas de valores para claves externas, hasta</translation>
    </message>
    <message>
        <source> rows</source>
        <translation> filas</translation>
    </message>
    <message>
        <source>Most rows of a list of values</source>
        <translation>Máximo de filas de una lista de valores</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>Solo las filas que coinciden</translation>
    </message>
    <message>
        <source>All rows of the table that refers</source>
        <translation>Todas las filas de la tabla que hace referencia</translation>
    </message>
    <message>
        <source>All rows of the table referred to</source>
        <translation>Todas las filas de la tabla a la que se hace referencia</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>Todas las filas de ambas</translation>
    </message>
    <message>
        <source>Rows of &amp;links:</source>
        <translation>Filas de los víncu&amp;los:</translation>
    </message>
    <message>
        <source>(that of the connection)</source>
        <translation>(la de la conexión)</translation>
    </message>
    <message>
        <source>%1 of %2 tables are checked</source>
        <translation>Tablas marcadas: %1 de %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TItemList</name>
    <message>
        <source>Type to search</source>
        <translation>Escriba para buscar</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Nothing to choose from</source>
        <translation>No hay nada que elegir</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Sin coincidencias</translation>
    </message>
</context>
<context>
    <name>tolvi::TJResultFieldsPanel</name>
    <message>
        <source>Sorting</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
</context>
<context>
    <name>tolvi::TJStructDesignPanel</name>
    <message>
        <source>Move tables</source>
        <translation>Mover tablas</translation>
    </message>
    <message>
        <source>Resize table</source>
        <translation>Cambiar el tamaño de la tabla</translation>
    </message>
    <message>
        <source>Diagram of tables and links</source>
        <translation>Diagrama de tablas y vínculos</translation>
    </message>
    <message>
        <source>Arrange tables in rows</source>
        <translation>Organizar las tablas en filas</translation>
    </message>
    <message>
        <source>Arrange tables by links</source>
        <translation>Organizar las tablas por vínculos</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>Ajustar la altura</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>No se puede escribir el archivo «%1»: %2</translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1 x %2 pixels.</source>
        <translation>No hay memoria para una imagen de %1 x %2 píxeles.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png, .svg or .pdf.</source>
        <translation>El nombre del archivo «%1» debe terminar en .png, .svg o .pdf.</translation>
    </message>
    <message>
        <source>Export Diagram</source>
        <translation>Exportar diagrama</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;Documents (*.pdf)</source>
        <translation>Imágenes (*.png *.svg);;Documentos (*.pdf)</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Añadir tablas</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Eliminar tabla</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Eliminar vínculo</translation>
    </message>
    <message>
        <source>Delete tables</source>
        <translation>Eliminar tablas</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>Editar vínculo</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Añadir vínculo</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>Tabla %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>campo %1</translation>
    </message>
    <message>
        <source>link %1</source>
        <translation>vínculo %1</translation>
    </message>
    <message>
        <source>Add &amp;Tables...</source>
        <translation>Añadir &amp;tablas...</translation>
    </message>
    <message>
        <source>Add &amp;Link</source>
        <translation>Añadir &amp;vínculo</translation>
    </message>
    <message>
        <source>&amp;Cancel Adding</source>
        <translation>&amp;Cancelar la adición</translation>
    </message>
    <message>
        <source>&amp;Edit Link...</source>
        <translation>&amp;Editar vínculo...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>Fit &amp;Height to Fields</source>
        <translation>Ajustar la &amp;altura a los campos</translation>
    </message>
    <message>
        <source>Arrange in Ro&amp;ws</source>
        <translation>Organizar en &amp;filas</translation>
    </message>
    <message>
        <source>Arrange &amp;by Links</source>
        <translation>Organi&amp;zar por vínculos</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Red&amp;ucir</translation>
    </message>
    <message>
        <source>Show &amp;Whole Diagram</source>
        <translation>M&amp;ostrar todo el diagrama</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>Tamaño ori&amp;ginal</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture</source>
        <translation>Cop&amp;iar imagen</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportar...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Im&amp;primir...</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairs</name>
    <message>
        <source>Column pairs</source>
        <translation>Pares de columnas</translation>
    </message>
    <message>
        <source>New pair</source>
        <translation>Nuevo par</translation>
    </message>
    <message>
        <source>Delete pairs</source>
        <translation>Eliminar pares</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairsModel</name>
    <message>
        <source>A constant...</source>
        <translation>Una constante...</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparación</translation>
    </message>
    <message>
        <source>Constant: %1</source>
        <translation>Constante: %1</translation>
    </message>
    <message>
        <source>(choose a column)</source>
        <translation>(elija una columna)</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelCheckPane</name>
    <message>
        <source>What is wrong with the model</source>
        <translation>Problemas del modelo</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Nothing is wrong with the model.</source>
        <translation>El modelo no tiene problemas.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Errores: %1, advertencias: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelPage</name>
    <message>
        <source>The model stays as it was.</source>
        <translation>El modelo queda como estaba.</translation>
    </message>
</context>
<context>
    <name>tolvi::TOperatorsPage</name>
    <message>
        <source>In &amp;list</source>
        <translation>En &amp;lista</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>E&amp;ntre</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>Empie&amp;za por</translation>
    </message>
    <message>
        <source>Conta&amp;ins</source>
        <translation>Cont&amp;iene</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xto</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>Nú&amp;mero</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>Fec&amp;ha</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>Nom&amp;bre:</translation>
    </message>
    <message>
        <source>Change name</source>
        <translation>Cambiar el nombre</translation>
    </message>
    <message>
        <source>Dis&amp;play name:</source>
        <translation>Nombre &amp;visible:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Cambiar el nombre visible</translation>
    </message>
    <message>
        <source>S&amp;QL template:</source>
        <translation>Plantilla S&amp;QL:</translation>
    </message>
    <message>
        <source>Change SQL template</source>
        <translation>Cambiar la plantilla SQL</translation>
    </message>
    <message>
        <source>&amp;Between values:</source>
        <translation>Entre los v&amp;alores:</translation>
    </message>
    <message>
        <source>Change value format</source>
        <translation>Cambiar el formato de los valores</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Operadores</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nombre visible</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>SQL template</source>
        <translation>Plantilla SQL</translation>
    </message>
    <message>
        <source>New operator</source>
        <translation>Nuevo operador</translation>
    </message>
    <message>
        <source>Add defaults</source>
        <translation>Añadir predeterminados</translation>
    </message>
    <message>
        <source>Adds the default operators that the model lacks</source>
        <translation>Añade los operadores predeterminados que faltan en el modelo</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Eliminar todos</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Default operators that the model has</source>
        <translation>Operadores predeterminados presentes en el modelo</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>Al desactivar un grupo se eliminan sus operadores</translation>
    </message>
    <message>
        <source>Change default operators</source>
        <translation>Cambiar los operadores predeterminados</translation>
    </message>
    <message>
        <source>@f stands for the field, @1 and @2 for the values.</source>
        <translation>@f representa el campo; @1 y @2, los valores.</translation>
    </message>
    <message>
        <source>What users read between the two values, as &quot;and&quot;</source>
        <translation>Lo que lee el usuario entre los dos valores, por ejemplo «y»</translation>
    </message>
    <message>
        <source>Single values</source>
        <translation>Valores únicos</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>Una lista de valores</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>Una subconsulta</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>Cambiar la clase de valor</translation>
    </message>
    <message>
        <source>The type of the field</source>
        <translation>El tipo del campo</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>Cambiar el tipo de valor</translation>
    </message>
    <message>
        <source>Texts are compared without re&amp;gard to case</source>
        <translation>Comparar los textos sin distin&amp;guir mayúsculas de minúsculas</translation>
    </message>
    <message>
        <source>Change letter case</source>
        <translation>Cambiar la distinción de mayúsculas</translation>
    </message>
    <message>
        <source>&amp;Kind of values:</source>
        <translation>Cla&amp;se de valores:</translation>
    </message>
    <message>
        <source>T&amp;ype of values:</source>
        <translation>Ti&amp;po de valores:</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Ejemplo</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>Types of fields to which it applies</source>
        <translation>Tipos de campos a los que se aplica</translation>
    </message>
    <message>
        <source>Types of fields</source>
        <translation>Tipos de campos</translation>
    </message>
    <message>
        <source>Offe&amp;r for all of them</source>
        <translation>O&amp;frecer en todos</translation>
    </message>
    <message>
        <source>All fields of these types offer the operator then</source>
        <translation>Todos los campos de estos tipos ofrecerán el operador</translation>
    </message>
    <message>
        <source>Fields of these types: %1. Fields that offer it: %2.</source>
        <translation>Campos de estos tipos: %1. Campos que lo ofrecen: %2.</translation>
    </message>
    <message>
        <source>Change types</source>
        <translation>Cambiar los tipos</translation>
    </message>
    <message>
        <source>Add operator</source>
        <translation>Añadir operador</translation>
    </message>
    <message>
        <source>Add default operators</source>
        <translation>Añadir operadores predeterminados</translation>
    </message>
    <message>
        <source>Copy operator</source>
        <translation>Copiar operador</translation>
    </message>
    <message>
        <source>Delete operator</source>
        <translation>Eliminar operador</translation>
    </message>
    <message>
        <source>Delete all operators</source>
        <translation>Eliminar todos los operadores</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>Mover operador</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>Ofrecer operador</translation>
    </message>
</context>
<context>
    <name>tolvi::TPartList</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPParamLabel</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Prompt:</source>
        <translation>&amp;Pregunta:</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPRow</name>
    <message>
        <source>Link word</source>
        <translation>Palabra de enlace</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Valor %1</translation>
    </message>
    <message>
        <source>The row is locked: it cannot be changed here</source>
        <translation>La fila está bloqueada: no se puede cambiar aquí</translation>
    </message>
    <message>
        <source>The bracket holds a locked row: it cannot be changed here</source>
        <translation>El grupo contiene una fila bloqueada: no se puede cambiar aquí</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFColumnsPage</name>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>The name of the column in SQL. It follows the name above.</source>
        <translation>Nombre de la columna en SQL. Depende del nombre de arriba.</translation>
    </message>
    <message>
        <source>Type an expression; { offers the fields</source>
        <translation>Escriba una expresión; { muestra los campos</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>no se muestra</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>se muestra</translation>
    </message>
    <message>
        <source>Select a field first.</source>
        <translation>Seleccione antes un campo.</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFSortingPage</name>
    <message>
        <source>The result shows all columns; the result fields only sort it.</source>
        <translation>El resultado muestra todas las columnas; los campos de resultado solo lo ordenan.</translation>
    </message>
    <message>
        <source>Drag a row, or press Alt+Up or Alt+Down, to move it</source>
        <translation>Para mover una fila, arrástrela o pulse Alt+Arriba o Alt+Abajo</translation>
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
        <translation>&amp;Leer este SQL</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>The text is not read yet</source>
        <translation>El texto aún no se ha leído</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesModel</name>
    <message>
        <source>The default main table</source>
        <translation>Tabla principal predeterminada</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nombre visible</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesPage</name>
    <message>
        <source>Inner</source>
        <translation>Interna</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Completa</translation>
    </message>
    <message>
        <source>&amp;Alias:</source>
        <translation>&amp;Alias:</translation>
    </message>
    <message>
        <source>Change alias</source>
        <translation>Cambiar el alias</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>&amp;Nombre visible:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Cambiar el nombre visible</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>Ta&amp;bla:</translation>
    </message>
    <message>
        <source>Change table name</source>
        <translation>Cambiar el nombre de la tabla</translation>
    </message>
    <message>
        <source>Databa&amp;se:</source>
        <translation>Ba&amp;se de datos:</translation>
    </message>
    <message>
        <source>Change database name</source>
        <translation>Cambiar el nombre de la base de datos</translation>
    </message>
    <message>
        <source>&amp;Hints:</source>
        <translation>Indicaciones (&amp;hints):</translation>
    </message>
    <message>
        <source>Change hints</source>
        <translation>Cambiar las indicaciones</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tablas</translation>
    </message>
    <message>
        <source>Find tables</source>
        <translation>Buscar tablas</translation>
    </message>
    <message>
        <source>There are no tables yet: add some from the database, or by hand.</source>
        <translation>Todavía no hay tablas: añádalas desde la base de datos o manualmente.</translation>
    </message>
    <message>
        <source>Add from database...</source>
        <translation>Añadir desde la base de datos...</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>Nueva tabla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>&amp;Quoted name</source>
        <translation>No&amp;mbre entre comillas</translation>
    </message>
    <message>
        <source>Default &amp;main table</source>
        <translation>Tabla &amp;principal predeterminada</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>Las consultas parten de esta tabla</translation>
    </message>
    <message>
        <source>Linked with</source>
        <translation>Vinculada con</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Combinación</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condición</translation>
    </message>
    <message>
        <source>Links of the table</source>
        <translation>Vínculos de la tabla</translation>
    </message>
    <message>
        <source>&amp;Links:</source>
        <translation>&amp;Vínculos:</translation>
    </message>
    <message>
        <source>Add link...</source>
        <translation>Añadir vínculo...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Eliminar vínculo</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Añadir tablas</translation>
    </message>
    <message>
        <source>NewTable</source>
        <translation>NuevaTabla</translation>
    </message>
    <message>
        <source>Add table</source>
        <translation>Añadir tabla</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Eliminar tabla</translation>
    </message>
    <message>
        <source>Move table</source>
        <translation>Mover tabla</translation>
    </message>
    <message>
        <source>The SQL of fields (%1) and conditions (%2) names the table &quot;%3&quot;. Change it, too?</source>
        <translation>El SQL de campos (%1) y condiciones (%2) menciona la tabla «%3». ¿Desea cambiarlo también?</translation>
    </message>
    <message>
        <source>Unchanged, it no longer finds the table.</source>
        <translation>Si no se cambia, dejará de encontrar la tabla.</translation>
    </message>
    <message>
        <source>Quote table name</source>
        <translation>Poner entre comillas el nombre de la tabla</translation>
    </message>
    <message>
        <source>Set default main table</source>
        <translation>Definir la tabla principal predeterminada</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Añadir vínculo</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>Editar vínculo</translation>
    </message>
</context>
<context>
    <name>tolvi::TTitlesModel</name>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>Default text</source>
        <translation>Texto predeterminado</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
</context>
<context>
    <name>tolvi::TTryPane</name>
    <message>
        <source>Col&amp;umns:</source>
        <translation>Col&amp;umnas:</translation>
    </message>
    <message>
        <source>Cond&amp;itions:</source>
        <translation>Condic&amp;iones:</translation>
    </message>
    <message>
        <source>SQL syntax</source>
        <translation>Sintaxis SQL</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>Sintaxis SQL en la que se escribe la instrucción</translation>
    </message>
    <message>
        <source>SQL with JOIN</source>
        <translation>SQL con JOIN</translation>
    </message>
    <message>
        <source>SQL with joins in WHERE</source>
        <translation>SQL con combinaciones en WHERE</translation>
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
        <translation>Inst&amp;rucción:</translation>
    </message>
    <message>
        <source>Choose columns to see a statement.</source>
        <translation>Elija columnas para ver una instrucción.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Fila %1: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueEditorBox</name>
    <message>
        <source>Automatic (by the data type)</source>
        <translation>Automático (según el tipo de datos)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Fixed list</source>
        <translation>Lista fija</translation>
    </message>
    <message>
        <source>The host&apos;s own editor</source>
        <translation>Editor propio de la aplicación</translation>
    </message>
    <message>
        <source>List from a query</source>
        <translation>Lista obtenida de una consulta</translation>
    </message>
    <message>
        <source>Sub-query</source>
        <translation>Subconsulta</translation>
    </message>
    <message>
        <source>Value editor</source>
        <translation>Editor de valores</translation>
    </message>
    <message>
        <source>A line of text, a date or a check box, as the data type wants it.</source>
        <translation>Una línea de texto, una fecha o una casilla, según el tipo de datos.</translation>
    </message>
    <message>
        <source>Data for the &amp;host:</source>
        <translation>Datos para la &amp;aplicación:</translation>
    </message>
    <message>
        <source>&amp;Stored query:</source>
        <translation>Consulta &amp;guardada:</translation>
    </message>
    <message>
        <source>A query text, as query panels save it.</source>
        <translation>Un texto de consulta, tal como lo guardan los paneles de consulta.</translation>
    </message>
    <message>
        <source>Values are entered &amp;by:</source>
        <translation>Introducir valores &amp;mediante:</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Texto libre</translation>
    </message>
    <message>
        <source>By the mask</source>
        <translation>Según la máscara</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Como se escriba</translation>
    </message>
    <message>
        <source>Upper case</source>
        <translation>Mayúsculas</translation>
    </message>
    <message>
        <source>Lower case</source>
        <translation>Minúsculas</translation>
    </message>
    <message>
        <source>That of the field</source>
        <translation>El del campo</translation>
    </message>
    <message>
        <source>&amp;With the mask&apos;s fixed characters</source>
        <translation>Con los caracteres &amp;fijos de la máscara</translation>
    </message>
    <message>
        <source>De&amp;fault value:</source>
        <translation>&amp;Valor predeterminado:</translation>
    </message>
    <message>
        <source>&amp;Kind of text:</source>
        <translation>Clase de te&amp;xto:</translation>
    </message>
    <message>
        <source>&amp;Mask:</source>
        <translation>Má&amp;scara:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>Ma&amp;yúsculas y minúsculas:</translation>
    </message>
    <message>
        <source>Type of the &amp;value:</source>
        <translation>Ti&amp;po del valor:</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Insert rows from the clipboard (%1)</source>
        <translation>Insertar filas del portapapeles (%1)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Remove the selected rows (%1)</source>
        <translation>Quitar las filas seleccionadas (%1)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move the row up (%1)</source>
        <translation>Subir la fila (%1)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Move the row down (%1)</source>
        <translation>Bajar la fila (%1)</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Consulta</translation>
    </message>
    <message>
        <source>SELECT value, text FROM ...</source>
        <translation>SELECT valor, texto FROM ...</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>name=value, one in a line; :name in the query stands for it</source>
        <translation>nombre=valor, uno por línea; en la consulta se escribe :nombre</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>Co&amp;nsulta:</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>&amp;Parámetros:</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;jecutar</translation>
    </message>
    <message>
        <source>Shows what the query gives</source>
        <translation>Muestra lo que devuelve la consulta</translation>
    </message>
    <message>
        <source>Text shown</source>
        <translation>Texto mostrado</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>Valor en SQL</translation>
    </message>
    <message>
        <source>Values that the query gives</source>
        <translation>Valores que devuelve la consulta</translation>
    </message>
    <message>
        <source>What is changed here is changed for all %1 selected fields.</source>
        <translation>Los cambios que haga aquí se aplican a los %1 campos seleccionados.</translation>
    </message>
    <message>
        <source>The model is not connected to a database</source>
        <translation>El modelo no está conectado a una base de datos</translation>
    </message>
    <message>
        <source>Change value editor</source>
        <translation>Cambiar el editor de valores</translation>
    </message>
    <message>
        <source>Rows: %1; the first %2 are shown</source>
        <translation>Filas: %1; se muestran las primeras %2</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Filas: %1</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgAddTables</name>
    <message>
        <source>Add their &amp;fields</source>
        <translation>Añadir sus &amp;campos</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>B&amp;uscar:</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>&amp;Esquema:</translation>
    </message>
    <message>
        <source>&amp;Links to be made:</source>
        <translation>&amp;Vínculos que se crearán:</translation>
    </message>
    <message>
        <source>(all)</source>
        <translation>(todos)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source> - by a further alias of the table, &quot;%1&quot;</source>
        <translation> - mediante otro alias de la tabla, «%1»</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Sin coincidencias</translation>
    </message>
    <message>
        <source>Tables chosen: %1</source>
        <translation>Tablas elegidas: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Añadir tablas</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgColumns</name>
    <message>
        <source>Add Fields</source>
        <translation>Añadir campos</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>&amp;Tabla:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Columnas:</translation>
    </message>
    <message>
        <source>&amp;Other column:</source>
        <translation>&amp;Otra columna:</translation>
    </message>
    <message>
        <source>No other columns of this table are known.</source>
        <translation>No se conocen otras columnas de esta tabla.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgFill</name>
    <message>
        <source>Fill from Database</source>
        <translation>Rellenar desde la base de datos</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>F&amp;inish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>Atrás (Alt+Izquierda)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The database gave no answer.</source>
        <translation>La base de datos no ha respondido.</translation>
    </message>
    <message>
        <source>Fill from database</source>
        <translation>Rellenar desde la base de datos</translation>
    </message>
    <message>
        <source>Step 1 of 3: Choose the tables</source>
        <translation>Paso 1 de 3: Elija las tablas</translation>
    </message>
    <message>
        <source>Step 2 of 3: Choose and name what is added</source>
        <translation>Paso 2 de 3: Elija lo que se añade y dele nombre</translation>
    </message>
    <message>
        <source>Step 3 of 3: Look at what changes</source>
        <translation>Paso 3 de 3: Revise los cambios</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgLinkEdit</name>
    <message>
        <source>&amp;Quote the names of columns</source>
        <translation>Nombres de columnas &amp;entre comillas</translation>
    </message>
    <message>
        <source>&amp;Condition:</source>
        <translation>&amp;Condición:</translation>
    </message>
    <message>
        <source>&amp;First table:</source>
        <translation>&amp;Primera tabla:</translation>
    </message>
    <message>
        <source>&amp;Second table:</source>
        <translation>&amp;Segunda tabla:</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>I&amp;ntercambiar</translation>
    </message>
    <message>
        <source>The tables and their columns change places; the rows found stay the same</source>
        <translation>Las tablas y sus columnas cambian de lugar; las filas encontradas son las mismas</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>Filas del resultado</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>Solo las filas que coinciden</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>Todas las filas de %1</translation>
    </message>
    <message>
        <source>All rows of both tables</source>
        <translation>Todas las filas de ambas tablas</translation>
    </message>
    <message>
        <source>Pair %1: %2</source>
        <translation>Par %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelEdit</name>
    <message>
        <source>&amp;Tables</source>
        <translation>&amp;Tablas</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entidades</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>&amp;Operadores</translation>
    </message>
    <message>
        <source>&amp;Conditions</source>
        <translation>&amp;Condiciones</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>&amp;Diagrama</translation>
    </message>
    <message>
        <source>Edit Data Model</source>
        <translation>Editar modelo de datos</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Abrir...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Guardar...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Fill from database...</source>
        <translation>Rellenar desde la base de datos...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configuración...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Data models (*.model)</source>
        <translation>Modelos de datos (*.model)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened. The model stays as it was.</source>
        <translation>No se puede abrir el archivo %1. El modelo queda como estaba.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>The model cannot be saved in the file %1.</source>
        <translation>No se puede guardar el modelo en el archivo %1.</translation>
    </message>
    <message>
        <source>Open Model</source>
        <translation>Abrir modelo</translation>
    </message>
    <message>
        <source>Save Model</source>
        <translation>Guardar modelo</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>¿Reemplazar %1?</translation>
    </message>
    <message>
        <source>The database cannot be connected.</source>
        <translation>No se puede conectar con la base de datos.</translation>
    </message>
    <message>
        <source>There is no help.</source>
        <translation>No hay ayuda disponible.</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>No se puede mostrar la ayuda.</translation>
    </message>
    <message>
        <source>Clear model</source>
        <translation>Vaciar el modelo</translation>
    </message>
    <message>
        <source>The model has been changed.</source>
        <translation>El modelo ha cambiado.</translation>
    </message>
    <message>
        <source>Do you want to keep the changes?</source>
        <translation>¿Desea conservar los cambios?</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelSettings</name>
    <message>
        <source>&amp;In list</source>
        <translation>En &amp;lista</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>E&amp;ntre</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>Empieza &amp;por</translation>
    </message>
    <message>
        <source>&amp;Contains</source>
        <translation>&amp;Contiene</translation>
    </message>
    <message>
        <source>Opening &amp;quote of names:</source>
        <translation>Comilla de &amp;apertura de nombres:</translation>
    </message>
    <message>
        <source>C&amp;losing quote of names:</source>
        <translation>Comilla de c&amp;ierre de nombres:</translation>
    </message>
    <message>
        <source>F&amp;ull table name:</source>
        <translation>Nombre completo de &amp;tabla:</translation>
    </message>
    <message>
        <source>DB, OWNER and TABLE stand for the names</source>
        <translation>DB, OWNER y TABLE representan los nombres</translation>
    </message>
    <message>
        <source>&amp;True:</source>
        <translation>&amp;Verdadero:</translation>
    </message>
    <message>
        <source>&amp;False:</source>
        <translation>&amp;Falso:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>Fe&amp;cha:</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd&apos;</source>
        <translation>Vacío: &apos;yyyy-mm-dd&apos;</translation>
    </message>
    <message>
        <source>Ti&amp;me:</source>
        <translation>&amp;Hora:</translation>
    </message>
    <message>
        <source>Empty: &apos;hh:nn:ss&apos;</source>
        <translation>Vacío: &apos;hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>D&amp;ate and time:</source>
        <translation>Fecha &amp;y hora:</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd hh:nn:ss&apos;</source>
        <translation>Vacío: &apos;yyyy-mm-dd hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>&amp;Wildcard of LIKE:</source>
        <translation>Como&amp;dín de LIKE:</translation>
    </message>
    <message>
        <source>F&amp;unction for lower case:</source>
        <translation>Función para minúsc&amp;ulas:</translation>
    </message>
    <message>
        <source>Function for li&amp;sts:</source>
        <translation>Función para &amp;listas:</translation>
    </message>
    <message>
        <source>@1 stands for what is listed</source>
        <translation>@1 representa los elementos de la lista</translation>
    </message>
    <message>
        <source>Default &amp;database:</source>
        <translation>Base de &amp;datos predeterminada:</translation>
    </message>
    <message>
        <source>Its tables are written without it</source>
        <translation>Sus tablas se escriben sin ella</translation>
    </message>
    <message>
        <source>Default o&amp;wner:</source>
        <translation>Pr&amp;opietario predeterminado:</translation>
    </message>
    <message>
        <source>Outer joins are written with OUTE&amp;R</source>
        <translation>Escribir las combinaciones externas con OUTE&amp;R</translation>
    </message>
    <message>
        <source>AS stands before the alias of a ta&amp;ble</source>
        <translation>Escribir AS antes del alias de una ta&amp;bla</translation>
    </message>
    <message>
        <source>Tables of &amp;several databases</source>
        <translation>Tablas de &amp;varias bases de datos</translation>
    </message>
    <message>
        <source>The connection is stored with the &amp;model</source>
        <translation>&amp;Guardar la conexión con el modelo</translation>
    </message>
    <message>
        <source>Settings of the Model</source>
        <translation>Configuración del modelo</translation>
    </message>
    <message>
        <source>S&amp;QL</source>
        <translation>S&amp;QL</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modelo</translation>
    </message>
    <message>
        <source>D&amp;efault operators</source>
        <translation>Operadores predet&amp;erminados</translation>
    </message>
    <message>
        <source>Example of a statement</source>
        <translation>Ejemplo de una instrucción</translation>
    </message>
    <message>
        <source>A statement is written so:</source>
        <translation>Así se escribe una instrucción:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>(own settings)</source>
        <translation>(configuración propia)</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>&amp;Preajuste:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguna)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>Las consultas parten de esta tabla</translation>
    </message>
    <message>
        <source>Menus list the &amp;fields outside groups first</source>
        <translation>Mostrar primero en los menús los &amp;campos sin grupo</translation>
    </message>
    <message>
        <source>Default m&amp;ain table:</source>
        <translation>Ta&amp;bla principal predeterminada:</translation>
    </message>
    <message>
        <source>Types whose values are written in quotes</source>
        <translation>Tipos cuyos valores se escriben entre comillas</translation>
    </message>
    <message>
        <source>&amp;Booleans</source>
        <translation>Boo&amp;leanos</translation>
    </message>
    <message>
        <source>Dates and &amp;times</source>
        <translation>&amp;Fechas y horas</translation>
    </message>
    <message>
        <source>Groups that the model has</source>
        <translation>Grupos presentes en el modelo</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>Al desactivar un grupo se eliminan sus operadores</translation>
    </message>
    <message>
        <source>Display names of the default operators</source>
        <translation>Nombres visibles de los operadores predeterminados</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nombre visible</translation>
    </message>
    <message>
        <source>Change settings</source>
        <translation>Cambiar la configuración</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgRFieldEdit</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>¿Descartar los cambios?</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgTitlesEdit</name>
    <message>
        <source>Edit Texts</source>
        <translation>Editar textos</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Restablecer</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>Restablecer &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Cargar...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Guardar...</translation>
    </message>
    <message>
        <source>Load Texts</source>
        <translation>Cargar textos</translation>
    </message>
    <message>
        <source>Texts (*.titles);;All files (*)</source>
        <translation>Textos (*.titles);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Texts</source>
        <translation>Guardar textos</translation>
    </message>
    <message>
        <source>%1 is not a UTF-8 text.</source>
        <translation>%1 no es un texto UTF-8.</translation>
    </message>
    <message>
        <source>%1 has none of these texts.</source>
        <translation>%1 no contiene ninguno de estos textos.</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Sin coincidencias</translation>
    </message>
    <message>
        <source>Texts to be looked at: %1 (see the notes)</source>
        <translation>Textos por revisar: %1 (consulte las notas)</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgValueList</name>
    <message>
        <source>&amp;Values, one in a line:</source>
        <translation>&amp;Valores, uno por línea:</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Valores: %1</translation>
    </message>
</context>
</TS>
