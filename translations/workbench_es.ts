<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Values of the query</source>
        <translation>Valores de la consulta</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>Valores de «%1»</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>The password for %1</source>
        <translation>Contraseña para %1</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keychain</source>
        <translation>&amp;Recordarla en el llavero</translation>
    </message>
    <message>
        <source>This system has no keychain: it is forgotten when the program ends.</source>
        <translation>Este sistema no tiene llavero: la contraseña se olvida al cerrar el programa.</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>Cambiada por otra persona</translation>
    </message>
    <message>
        <source>&amp;Mine</source>
        <translation>&amp;Mi versión</translation>
    </message>
    <message>
        <source>&amp;Theirs</source>
        <translation>La &amp;otra versión</translation>
    </message>
    <message>
        <source>The query is no longer in the store.</source>
        <translation>La consulta ya no está en el almacén.</translation>
    </message>
    <message>
        <source>&amp;Save mine</source>
        <translation>&amp;Guardar la mía</translation>
    </message>
    <message>
        <source>What is stored now is replaced by your query</source>
        <translation>Su consulta reemplaza a la que está guardada ahora</translation>
    </message>
    <message>
        <source>Your query is stored again</source>
        <translation>Su consulta se guarda de nuevo</translation>
    </message>
    <message>
        <source>Take t&amp;heirs</source>
        <translation>&amp;Usar la otra</translation>
    </message>
    <message>
        <source>&amp;Delete mine, too</source>
        <translation>&amp;Eliminar también la mía</translation>
    </message>
    <message>
        <source>Your changes are lost</source>
        <translation>Sus cambios se pierden</translation>
    </message>
    <message>
        <source>Your query is lost</source>
        <translation>Su consulta se pierde</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Conservar ambas</translation>
    </message>
    <message>
        <source>Yours is stored as another query</source>
        <translation>La suya se guarda como otra consulta</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (mía)</translation>
    </message>
    <message>
        <source>%1 (mine %2)</source>
        <translation>%1 (mía %2)</translation>
    </message>
</context>
<context>
    <name>tolvi::TAbout</name>
    <message>
        <source>About the workbench</source>
        <translation>Acerca del programa</translation>
    </message>
    <message>
        <source>Ask databases in sentences: Tolvi writes the SQL. All that you see here is made of the panels and dialogs of the Tolvi library, which other programs can use, too.

Tolvi comes under the MIT licence. As this program shows SQL with QScintilla and charts with Qt Charts, it comes as a whole under the GNU General Public License, version 3. It also uses Qt %1, libxlsxwriter and QtKeychain.</source>
        <translation>Pregunte a las bases de datos con frases: Tolvi escribe el SQL. Todo lo que ve aquí está hecho con los paneles y diálogos de la biblioteca Tolvi, que también pueden usar otros programas.

Tolvi se distribuye con la licencia MIT. Como este programa muestra el SQL con QScintilla y los gráficos con Qt Charts, en su conjunto se distribuye con la Licencia Pública General de GNU (GNU General Public License), versión 3. También usa Qt %1, libxlsxwriter y QtKeychain.</translation>
    </message>
</context>
<context>
    <name>tolvi::TChartData</name>
    <message>
        <source>The first %1 of %2 rows.</source>
        <translation>Las primeras %1 filas de %2.</translation>
    </message>
    <message>
        <source>%1 rows: each point is the average of %2 rows that follow each other.</source>
        <translation>%1 filas: cada punto es el promedio de %2 filas consecutivas.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows without a number are left out.</source>
        <translation>
            <numerusform>Se omite %n fila sin número.</numerusform>
            <numerusform>Se omiten %n filas sin número.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TChartPane</name>
    <message>
        <source>Chart</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Tipo:</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barras</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Ac&amp;ross:</source>
        <translation>Eje &amp;horizontal:</translation>
    </message>
    <message>
        <source>&amp;Values:</source>
        <translation>V&amp;alores:</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Cop&amp;iar imagen</translation>
    </message>
    <message>
        <source>&amp;Save picture...</source>
        <translation>&amp;Guardar imagen...</translation>
    </message>
    <message>
        <source>There are no rows to draw.</source>
        <translation>No hay filas que dibujar.</translation>
    </message>
    <message>
        <source>There is no column of numbers to draw.</source>
        <translation>No hay ninguna columna de números que dibujar.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; holds no numbers.</source>
        <translation>La columna «%1» no contiene números.</translation>
    </message>
    <message>
        <source>Bars: %1 by %2.</source>
        <translation>Barras: %1 por %2.</translation>
    </message>
    <message>
        <source>Line: %1 by %2.</source>
        <translation>Línea: %1 por %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n values, the least %1 (%2), the greatest %3 (%4).</source>
        <translation>
            <numerusform>%n valor; el menor, %1 (%2); el mayor, %3 (%4).</numerusform>
            <numerusform>%n valores; el menor, %1 (%2); el mayor, %3 (%4).</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png or .svg.</source>
        <translation>El nombre del archivo «%1» debe terminar en .png o .svg.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>No se puede escribir el archivo «%1»: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Guardar imagen</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Imagen (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Dibujo (*.svg)</translation>
    </message>
    <message>
        <source>Read &amp;all rows</source>
        <translation>Leer todas las &amp;filas</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln rows have been read.</source>
        <translation>
            <numerusform>Solo se ha leído la primera fila.</numerusform>
            <numerusform>Solo se han leído las primeras %Ln filas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionForm</name>
    <message>
        <source>SQLite file</source>
        <translation>Archivo SQLite</translation>
    </message>
    <message>
        <source>PostgreSQL</source>
        <translation>PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL</source>
        <translation>MariaDB o MySQL</translation>
    </message>
    <message>
        <source>ODBC</source>
        <translation>ODBC</translation>
    </message>
    <message>
        <source>&amp;Kind of database:</source>
        <translation>&amp;Tipo de base de datos:</translation>
    </message>
    <message>
        <source>Data &amp;source:</source>
        <translation>Orig&amp;en de datos:</translation>
    </message>
    <message>
        <source>Name, or Driver={...};Server=...</source>
        <translation>Nombre, o bien Driver={...};Server=...</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Servidor:</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>este equipo</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>&amp;Puerto:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>Base de &amp;datos:</translation>
    </message>
    <message>
        <source>S&amp;chema:</source>
        <translation>Es&amp;quema:</translation>
    </message>
    <message>
        <source>the usual one</source>
        <translation>el habitual</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Archivo:</translation>
    </message>
    <message>
        <source>Browse for it, or drop it here</source>
        <translation>Examine o arrastre el archivo hasta aquí</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>C&amp;ontraseña:</translation>
    </message>
    <message>
        <source>&amp;Remember the password in the keychain</source>
        <translation>&amp;Recordar la contraseña en el llavero</translation>
    </message>
    <message>
        <source>Open a database</source>
        <translation>Abrir una base de datos</translation>
    </message>
    <message>
        <source>SQLite databases (*.sqlite *.sqlite3 *.db *.db3);;All files (*)</source>
        <translation>Bases de datos SQLite (*.sqlite *.sqlite3 *.db *.db3);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Elija un archivo.</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Esto no es un archivo.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>No existe ese archivo.</translation>
    </message>
    <message>
        <source>Name the data source.</source>
        <translation>Indique el origen de datos.</translation>
    </message>
    <message>
        <source>Name the database.</source>
        <translation>Indique la base de datos.</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>El puerto es un número del 1 al 65535.</translation>
    </message>
    <message>
        <source>known</source>
        <translation>conocida</translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionTest</name>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check host and port.</source>
        <translation>
            <numerusform>No hubo respuesta en %n segundo: compruebe el servidor y el puerto.</numerusform>
            <numerusform>No hubo respuesta en %n segundos: compruebe el servidor y el puerto.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The connection works; %n table(s) found.</source>
        <translation>
            <numerusform>La conexión funciona; se ha encontrado %n tabla.</numerusform>
            <numerusform>La conexión funciona; se han encontrado %n tablas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check that the file can be read and no program locks it.</source>
        <translation>
            <numerusform>No hubo respuesta en %n segundo: compruebe que el archivo se puede leer y que ningún programa lo bloquea.</numerusform>
            <numerusform>No hubo respuesta en %n segundos: compruebe que el archivo se puede leer y que ningún programa lo bloquea.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check the data source and its driver.</source>
        <translation>
            <numerusform>No hubo respuesta en %n segundo: compruebe el origen de datos y su controlador.</numerusform>
            <numerusform>No hubo respuesta en %n segundos: compruebe el origen de datos y su controlador.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TExportDialog</name>
    <message>
        <source>Export rows</source>
        <translation>Exportar filas</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot;...</source>
        <translation>Escribiendo «%1»...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
</context>
<context>
    <name>tolvi::TFaultPage</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>Qué ha fallado</translation>
    </message>
</context>
<context>
    <name>tolvi::TMainWindow</name>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>Open a database to ask it something.</source>
        <translation>Abra una base de datos para hacerle preguntas.</translation>
    </message>
    <message>
        <source>The query “%1” has changes that are not saved.</source>
        <translation>La consulta «%1» tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>&amp;Guardar consulta</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>&amp;Descartar cambios</translation>
    </message>
    <message>
        <source>The data model has changes that are not saved.</source>
        <translation>El modelo de datos tiene cambios sin guardar.</translation>
    </message>
    <message>
        <source>&amp;Save model</source>
        <translation>&amp;Guardar modelo</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” were saved. Here they are again.</source>
        <translation>El programa se cerró antes de que se guardaran los cambios de «%1». Aquí están de nuevo.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model were saved. Here they are again.</source>
        <translation>El programa se cerró antes de que se guardaran los cambios del modelo de datos. Aquí están de nuevo.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>&amp;Base de datos</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>Open the &amp;sample</source>
        <translation>Abrir el &amp;ejemplo</translation>
    </message>
    <message>
        <source>Make the sample a&amp;new</source>
        <translation>Restaurar el eje&amp;mplo</translation>
    </message>
    <message>
        <source>&amp;Export rows...</source>
        <translation>E&amp;xportar filas...</translation>
    </message>
    <message>
        <source>&amp;Print rows...</source>
        <translation>&amp;Imprimir filas...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Todavía ninguna</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Consulta</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Re&amp;vert to saved</source>
        <translation>&amp;Volver a la versión guardada</translation>
    </message>
    <message>
        <source>&amp;Find a query</source>
        <translation>B&amp;uscar una consulta</translation>
    </message>
    <message>
        <source>Paste S&amp;QL...</source>
        <translation>Pegar S&amp;QL...</translation>
    </message>
    <message>
        <source>&amp;Where queries are kept</source>
        <translation>U&amp;bicación de las consultas</translation>
    </message>
    <message>
        <source>By the &amp;workbench</source>
        <translation>En este &amp;programa</translation>
    </message>
    <message>
        <source>In a &amp;folder...</source>
        <translation>En una &amp;carpeta...</translation>
    </message>
    <message>
        <source>Folder of the queries</source>
        <translation>Carpeta de las consultas</translation>
    </message>
    <message>
        <source>In the &amp;database itself</source>
        <translation>En la propia &amp;base de datos</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>Result &amp;columns...</source>
        <translation>Co&amp;lumnas del resultado...</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modelo</translation>
    </message>
    <message>
        <source>&amp;Edit the model...</source>
        <translation>&amp;Editar el modelo...</translation>
    </message>
    <message>
        <source>&amp;Diagram...</source>
        <translation>&amp;Diagrama...</translation>
    </message>
    <message>
        <source>Read new tables from the data&amp;base</source>
        <translation>Leer &amp;tablas nuevas de la base de datos</translation>
    </message>
    <message>
        <source>&amp;Undo change of the model</source>
        <translation>Des&amp;hacer cambio del modelo</translation>
    </message>
    <message>
        <source>&amp;Redo change of the model</source>
        <translation>&amp;Rehacer cambio del modelo</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Cargar...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Guardar c&amp;omo...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Go to the &amp;queries</source>
        <translation>Ir a las &amp;consultas</translation>
    </message>
    <message>
        <source>Go to the &amp;conditions</source>
        <translation>Ir a las co&amp;ndiciones</translation>
    </message>
    <message>
        <source>Go to the co&amp;lumns</source>
        <translation>Ir a las co&amp;lumnas</translation>
    </message>
    <message>
        <source>Go to the &amp;rows</source>
        <translation>Ir a las &amp;filas</translation>
    </message>
    <message>
        <source>Go to the &amp;SQL</source>
        <translation>Ir al &amp;SQL</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>Colo&amp;res</translation>
    </message>
    <message>
        <source>Those of the s&amp;ystem</source>
        <translation>Los del &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claros</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuros</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>Configur&amp;ación...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Atajos de teclado</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>A&amp;cerca de</translation>
    </message>
    <message>
        <source>Data models (*.model *.xml);;All files (*)</source>
        <translation>Modelos de datos (*.model *.xml);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>XML documents</source>
        <translation>Documentos XML</translation>
    </message>
    <message>
        <source>Changes of the model are in use now. Model &gt; Save keeps them.</source>
        <translation>Los cambios del modelo ya se aplican. Para conservarlos, use Modelo &gt; Guardar.</translation>
    </message>
    <message>
        <source>Diagram of the model</source>
        <translation>Diagrama del modelo</translation>
    </message>
    <message>
        <source>The model is saved in %1.</source>
        <translation>El modelo se ha guardado en %1.</translation>
    </message>
    <message>
        <source>Save the model</source>
        <translation>Guardar el modelo</translation>
    </message>
    <message>
        <source>Load a model</source>
        <translation>Cargar un modelo</translation>
    </message>
    <message>
        <source>The model has all tables and columns of the database.</source>
        <translation>El modelo contiene todas las tablas y columnas de la base de datos.</translation>
    </message>
    <message>
        <source>Add a column to the result to see rows.</source>
        <translation>Añada una columna al resultado para ver filas.</translation>
    </message>
    <message>
        <source>The query asks for values: run it to give them.</source>
        <translation>La consulta pide valores: ejecútela para indicarlos.</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>Mostrar en la consulta</translation>
    </message>
    <message>
        <source>The database refuses the condition “%1”:
%2</source>
        <translation>La base de datos rechaza la condición «%1»:
%2</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>«%1» se ha guardado.</translation>
    </message>
    <message>
        <source>Go to the c&amp;hart</source>
        <translation>Ir al &amp;gráfico</translation>
    </message>
    <message>
        <source>Rows appear here when you run the query.</source>
        <translation>Las filas aparecen aquí al ejecutar la consulta.</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here. Run the query first to have all of them.</source>
        <translation>Aquí solo están las primeras %L1 filas. Ejecute antes la consulta para tenerlas todas.</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ejecutar</translation>
    </message>
    <message>
        <source>&amp;These rows only</source>
        <translation>&amp;Solo estas filas</translation>
    </message>
    <message>
        <source>The former queries are still in the database.</source>
        <translation>Las consultas anteriores siguen en la base de datos.</translation>
    </message>
    <message>
        <source>The former queries are still in %1.</source>
        <translation>Las consultas anteriores siguen en %1.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Copy them here</source>
        <translation>Copiarlas aquí</translation>
    </message>
    <message numerus="yes">
        <source>%n query(ies) copied.</source>
        <translation>
            <numerusform>%n consulta copiada.</numerusform>
            <numerusform>%n consultas copiadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new table(s)</source>
        <translation>
            <numerusform>%n tabla</numerusform>
            <numerusform>%n tablas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new column(s)</source>
        <translation>
            <numerusform>%n columna</numerusform>
            <numerusform>%n columnas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new link(s)</source>
        <translation>
            <numerusform>%n vínculo</numerusform>
            <numerusform>%n vínculos</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no new tables and columns.</source>
        <translation>La base de datos no tiene tablas ni columnas nuevas.</translation>
    </message>
    <message>
        <source>New in the model: %1.</source>
        <translation>Nuevo en el modelo: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s), column(s) or link(s) of the model are not in the database.</source>
        <translation>
            <numerusform>%n tabla, columna o vínculo del modelo no está en la base de datos.</numerusform>
            <numerusform>%n tablas, columnas o vínculos del modelo no están en la base de datos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) have another type in the database than in the model.</source>
        <translation>
            <numerusform>%n columna no tiene en la base de datos el mismo tipo que en el modelo.</numerusform>
            <numerusform>%n columnas no tienen en la base de datos el mismo tipo que en el modelo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show...</source>
        <translation>Mostrar...</translation>
    </message>
    <message>
        <source>The database refuses the column “%1”:
%2</source>
        <translation>La base de datos rechaza la columna «%1»:
%2</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here: the settings let a run read no more.</source>
        <translation>Aquí solo están las primeras %L1 filas: la configuración no permite leer más en una ejecución.</translation>
    </message>
    <message>
        <source>1 row is in %1.</source>
        <translation>1 fila guardada en %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows are in %1.</source>
        <translation>
            <numerusform>%Ln fila guardada en %1.</numerusform>
            <numerusform>%Ln filas guardadas en %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the &amp;note</source>
        <translation>Ir al a&amp;viso</translation>
    </message>
</context>
<context>
    <name>tolvi::TNameEditor</name>
    <message>
        <source>Name of the query</source>
        <translation>Nombre de la consulta</translation>
    </message>
</context>
<context>
    <name>tolvi::TNoteBar</name>
    <message>
        <source>Close this note</source>
        <translation>Cerrar este aviso</translation>
    </message>
</context>
<context>
    <name>tolvi::TOpeningDialog</name>
    <message>
        <source>Open a database</source>
        <translation>Abrir una base de datos</translation>
    </message>
    <message>
        <source>Reading the tables of %1...</source>
        <translation>Leyendo las tablas de %1...</translation>
    </message>
    <message>
        <source>Waiting for %1...</source>
        <translation>Esperando a %1...</translation>
    </message>
</context>
<context>
    <name>tolvi::TParamEdit</name>
    <message>
        <source>One a line</source>
        <translation>Uno por línea</translation>
    </message>
    <message>
        <source>Calendar (Alt+Down)</source>
        <translation>Calendario (Alt+Abajo)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elija</translation>
    </message>
    <message>
        <source>Choose or type</source>
        <translation>Elija o escriba</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>Se necesita un valor.</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>Por ejemplo, %1</translation>
    </message>
</context>
<context>
    <name>tolvi::TPrintRows</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 (only the first %Ln rows)</source>
        <translation>
            <numerusform>%1 (solo la primera fila)</numerusform>
            <numerusform>%1 (solo las primeras %Ln filas)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are %1 rows. Print them all, or the first %2?</source>
        <translation>Hay %1 filas. ¿Desea imprimirlas todas o solo las primeras %2?</translation>
    </message>
    <message>
        <source>&amp;First %1 rows</source>
        <translation>&amp;Primeras %1 filas</translation>
    </message>
    <message>
        <source>&amp;All rows</source>
        <translation>&amp;Todas las filas</translation>
    </message>
</context>
<context>
    <name>tolvi::TProgram</name>
    <message>
        <source>The sample is as good as new. The former one is in %1.</source>
        <translation>La base de datos de ejemplo está como nueva. La anterior está en %1.</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept for the case that the program ends: %1</source>
        <translation>El trabajo sin guardar no se puede conservar por si se cierra el programa: %1</translation>
    </message>
    <message>
        <source>%1 is not open.</source>
        <translation>%1 no está abierta.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Open another one...</source>
        <translation>Abrir otra...</translation>
    </message>
    <message>
        <source>Open the sample</source>
        <translation>Abrir el ejemplo</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” in %2 were saved. They are kept until you take them or discard them.</source>
        <translation>El programa se cerró antes de que se guardaran los cambios de «%1» (%2). Se conservan hasta que los recupere o los descarte.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model of %1 were saved. They are kept until you take them or discard them.</source>
        <translation>El programa se cerró antes de que se guardaran los cambios del modelo de datos de %1. Se conservan hasta que los recupere o los descarte.</translation>
    </message>
    <message>
        <source>Open %1 with them</source>
        <translation>Abrir %1 con los cambios</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>tolvi::TQueryArea</name>
    <message>
        <source>C&amp;onditions</source>
        <translation>C&amp;ondiciones</translation>
    </message>
    <message>
        <source>Co&amp;lumns of the result</source>
        <translation>Co&amp;lumnas del resultado</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultGrid</name>
    <message>
        <source>Rows of the result</source>
        <translation>Filas del resultado</translation>
    </message>
    <message>
        <source>Sort &amp;ascending</source>
        <translation>Orden &amp;ascendente</translation>
    </message>
    <message>
        <source>Sort &amp;descending</source>
        <translation>Orden &amp;descendente</translation>
    </message>
    <message>
        <source>&amp;Order of the database</source>
        <translation>Orden de la &amp;base de datos</translation>
    </message>
    <message>
        <source>&amp;Hide column</source>
        <translation>&amp;Ocultar columna</translation>
    </message>
    <message>
        <source>&amp;Show columns</source>
        <translation>&amp;Mostrar columnas</translation>
    </message>
    <message>
        <source>&amp;Fit width</source>
        <translation>Ajustar a&amp;ncho</translation>
    </message>
    <message>
        <source>Fit &amp;all widths</source>
        <translation>Ajustar &amp;todos los anchos</translation>
    </message>
    <message>
        <source>Copy column &amp;name</source>
        <translation>Copiar nombre de la &amp;columna</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy with &amp;headers</source>
        <translation>Copiar con &amp;encabezados</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Show value</source>
        <translation>&amp;Mostrar valor</translation>
    </message>
    <message>
        <source>Co&amp;lumn</source>
        <translation>Co&amp;lumna</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>%1 cells are too many for the clipboard.</source>
        <translation>%1 celdas son demasiadas para el portapapeles.</translation>
    </message>
    <message>
        <source>Copy %1 cells to the clipboard?</source>
        <translation>¿Copiar %1 celdas al portapapeles?</translation>
    </message>
    <message>
        <source>Select fewer of them, or export the rows to a file.</source>
        <translation>Seleccione menos celdas o exporte las filas a un archivo.</translation>
    </message>
    <message>
        <source>A file may be the better place for so many: export the rows instead.</source>
        <translation>Para tantas celdas puede ser mejor un archivo: exporte las filas.</translation>
    </message>
    <message>
        <source>Copying: %1 % (Esc stops it)</source>
        <translation>Copiando: %1 % (Esc para detener)</translation>
    </message>
    <message>
        <source>Copied 1 row</source>
        <translation>1 fila copiada</translation>
    </message>
    <message numerus="yes">
        <source>Copied %Ln rows</source>
        <translation>
            <numerusform>%Ln fila copiada</numerusform>
            <numerusform>%Ln filas copiadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying was stopped; the clipboard holds what it held</source>
        <translation>Se detuvo la copia; el portapapeles conserva su contenido</translation>
    </message>
    <message>
        <source>Stop copying</source>
        <translation>Detener la copia</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultPane</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>Detenido después de %1</translation>
    </message>
    <message>
        <source>Stopped after 1 row · %1</source>
        <translation>Detenido después de 1 fila · %1</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %Ln rows · %1</source>
        <translation>
            <numerusform>Detenido después de %Ln fila · %1</numerusform>
            <numerusform>Detenido después de %Ln filas · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>First row · %1</source>
        <translation>Primera fila · %1</translation>
    </message>
    <message numerus="yes">
        <source>First %Ln rows · %1</source>
        <translation>
            <numerusform>Primera %Ln fila · %1</numerusform>
            <numerusform>Primeras %Ln filas · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No rows · %1</source>
        <translation>Ninguna fila · %1</translation>
    </message>
    <message>
        <source>1 row · %1</source>
        <translation>1 fila · %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows · %1</source>
        <translation>
            <numerusform>%Ln fila · %1</numerusform>
            <numerusform>%Ln filas · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;jecutar</translation>
    </message>
    <message>
        <source>Fetch all rows (F5)</source>
        <translation>Obtener todas las filas (F5)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>De&amp;tener</translation>
    </message>
    <message>
        <source>Stop the query that runs (Esc)</source>
        <translation>Detener la consulta en curso (Esc)</translation>
    </message>
    <message>
        <source>Live &amp;preview</source>
        <translation>Vista &amp;previa</translation>
    </message>
    <message>
        <source>Show the first rows whenever the query changes</source>
        <translation>Mostrar las primeras filas cada vez que cambia la consulta</translation>
    </message>
    <message>
        <source>Rows appear here when you run a query.</source>
        <translation>Las filas aparecen aquí al ejecutar una consulta.</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Ejecutando…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>Ordenando…</translation>
    </message>
    <message>
        <source>1 row so far…</source>
        <translation>1 fila hasta ahora…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows so far…</source>
        <translation>
            <numerusform>%Ln fila hasta ahora…</numerusform>
            <numerusform>%Ln filas hasta ahora…</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no connection to the database</source>
        <translation>No hay conexión con la base de datos</translation>
    </message>
    <message>
        <source>The database could not run the query</source>
        <translation>La base de datos no pudo ejecutar la consulta</translation>
    </message>
    <message>
        <source>The query cannot be run</source>
        <translation>No se puede ejecutar la consulta</translation>
    </message>
</context>
<context>
    <name>tolvi::TRowFiles</name>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>No se puede escribir el archivo «%1»: %2</translation>
    </message>
    <message>
        <source>CSV, separated by commas</source>
        <translation>CSV, separado por comas</translation>
    </message>
    <message>
        <source>CSV, separated by semicolons</source>
        <translation>CSV, separado por punto y coma</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>Texto, separado por tabulaciones</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Hoja de cálculo</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Table in Markdown</source>
        <translation>Tabla en Markdown</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>Los del sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claros</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuros</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>El del sistema</translation>
    </message>
    <message>
        <source>Show the &amp;first rows while a query is edited</source>
        <translation>Mostrar las &amp;primeras filas mientras se edita una consulta</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>&amp;Queries may hold conditions written in SQL</source>
        <translation>Las &amp;consultas pueden contener condiciones escritas en SQL</translation>
    </message>
    <message>
        <source>Such a condition reaches the database as it is. Allow it only for queries that come from people whom you trust.</source>
        <translation>Una condición así llega a la base de datos tal cual. Permítala solo en consultas de personas en las que confíe.</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>C&amp;olores:</translation>
    </message>
    <message>
        <source>&amp;Size of letters:</source>
        <translation>&amp;Tamaño de letra:</translation>
    </message>
    <message>
        <source>&amp;Rows of the preview:</source>
        <translation>&amp;Filas de la vista previa:</translation>
    </message>
    <message>
        <source>Rows of a run at &amp;most:</source>
        <translation>&amp;Máximo de filas por ejecución:</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsFile</name>
    <message>
        <source>The settings could not be read (%1): they are the default ones now. The file is kept as %2.</source>
        <translation>No se pudo leer la configuración (%1): ahora se usa la predeterminada. El archivo se conserva como %2.</translation>
    </message>
</context>
<context>
    <name>tolvi::TShortcuts</name>
    <message>
        <source>Among the conditions</source>
        <translation>En las condiciones</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>In the list of queries</source>
        <translation>En la lista de consultas</translation>
    </message>
    <message>
        <source>Among the rows</source>
        <translation>En las filas</translation>
    </message>
    <message>
        <source>In the SQL</source>
        <translation>En el SQL</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlEdit</name>
    <message>
        <source>Copy what is selected</source>
        <translation>Copiar la selección</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Letra más grande</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Letra más pequeña</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlPane</name>
    <message>
        <source>Statement</source>
        <translation>Instrucción</translation>
    </message>
    <message>
        <source>S&amp;yntax:</source>
        <translation>Sinta&amp;xis:</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>Sintaxis SQL en la que se escribe la instrucción</translation>
    </message>
    <message>
        <source>&amp;Paste SQL...</source>
        <translation>Pe&amp;gar SQL...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Cop&amp;iar</translation>
    </message>
    <message>
        <source>Copy the whole statement</source>
        <translation>Copiar la instrucción completa</translation>
    </message>
    <message>
        <source>Copy with &amp;values</source>
        <translation>Copiar con &amp;valores</translation>
    </message>
    <message>
        <source>Copy with &amp;parameters as ?</source>
        <translation>Copiar con &amp;parámetros como ?</translation>
    </message>
    <message>
        <source>Copy with parameters as :&amp;Name</source>
        <translation>Copiar con parámetros como :&amp;nombre</translation>
    </message>
    <message>
        <source>Copy with parameters as $&amp;1</source>
        <translation>Copiar con parámetros como $&amp;1</translation>
    </message>
    <message>
        <source>Make a query of a SELECT statement</source>
        <translation>Crear una consulta a partir de una instrucción SELECT</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>Mostrar en la consulta</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n advertencia más</numerusform>
            <numerusform>%n advertencias más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreModel</name>
    <message>
        <source>Deleted by somebody else</source>
        <translation>Eliminada por otra persona</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>Cambiada por otra persona</translation>
    </message>
    <message>
        <source>Changed by somebody else, %1</source>
        <translation>Cambiada por otra persona, %1</translation>
    </message>
    <message>
        <source>Changed by %1, %2</source>
        <translation>Cambiada por %1, %2</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>a la vista</translation>
    </message>
    <message>
        <source>changes not saved</source>
        <translation>cambios sin guardar</translation>
    </message>
    <message>
        <source>Has changes that are not saved</source>
        <translation>Tiene cambios sin guardar</translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreNote</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>tolvi::TStorePane</name>
    <message>
        <source>Search queries</source>
        <translation>Buscar consultas</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>Consultas</translation>
    </message>
    <message>
        <source>Clear the search to put queries in another order.</source>
        <translation>Borre la búsqueda para cambiar el orden de las consultas.</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>&amp;Nueva consulta</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Ca&amp;mbiar nombre</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplicar</translation>
    </message>
    <message>
        <source>D&amp;escription...</source>
        <translation>De&amp;scripción...</translation>
    </message>
    <message>
        <source>De&amp;lete...</source>
        <translation>E&amp;liminar...</translation>
    </message>
    <message>
        <source>&amp;Copy query text</source>
        <translation>&amp;Copiar texto de la consulta</translation>
    </message>
    <message>
        <source>&amp;Paste query text</source>
        <translation>&amp;Pegar texto de la consulta</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Su&amp;bir</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>Ba&amp;jar</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>No hay ningún almacén abierto.</translation>
    </message>
    <message>
        <source>There are no queries yet. Press %1 to make one.</source>
        <translation>Todavía no hay consultas. Pulse %1 para crear una.</translation>
    </message>
    <message>
        <source>No query holds this text.</source>
        <translation>Ninguna consulta contiene este texto.</translation>
    </message>
    <message>
        <source>Description of “%1”</source>
        <translation>Descripción de «%1»</translation>
    </message>
    <message>
        <source>&amp;What the query answers, for those who look for it:</source>
        <translation>&amp;A qué responde la consulta, para quienes la busquen:</translation>
    </message>
    <message>
        <source>Delete it all the same?</source>
        <translation>¿Desea eliminarla de todos modos?</translation>
    </message>
    <message>
        <source>New query %1</source>
        <translation>Nueva consulta %1</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>Nueva consulta</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (copia %2)</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copia)</translation>
    </message>
    <message>
        <source>Delete the query “%1”?</source>
        <translation>¿Eliminar la consulta «%1»?</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>«%1» se ha eliminado.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>What was copied is no query text. Statements in SQL are pasted into the SQL.</source>
        <translation>Lo que se copió no es un texto de consulta. Las instrucciones SQL se pegan en el panel SQL.</translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. You can take that back until the note about it is closed.</source>
        <translation>Se elimina para todos los que usan este almacén. Puede deshacerlo mientras no se cierre el aviso correspondiente.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was deleted, and %n before it.</source>
        <translation>
            <numerusform>«%1» se ha eliminado, y antes %n más.</numerusform>
            <numerusform>«%1» se ha eliminado, y antes %n más.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. It cannot be read: you cannot take that back.</source>
        <translation>Se elimina para todos los que usan este almacén. No se puede leer: no podrá deshacerlo.</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueDlg</name>
    <message>
        <source>Value of %1</source>
        <translation>Valor de %1</translation>
    </message>
    <message>
        <source>NULL: there is no value</source>
        <translation>NULL: no hay valor</translation>
    </message>
    <message>
        <source>An empty text</source>
        <translation>Un texto vacío</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
</context>
<context>
    <name>tolvi::TWorkspace</name>
    <message>
        <source>The sample cannot be put into %1: the folder cannot be made. The option --home names another place.</source>
        <translation>No se puede colocar el ejemplo en %1: no se puede crear la carpeta. Con la opción --home se indica otro lugar.</translation>
    </message>
    <message>
        <source>The sample stays as it is: %1 cannot be renamed.</source>
        <translation>El ejemplo se queda como está: no se puede cambiar el nombre de %1.</translation>
    </message>
    <message>
        <source>The data model cannot be kept: %1. Model &gt; Save as... keeps it in another place.</source>
        <translation>No se puede conservar el modelo de datos: %1. Con Modelo &gt; Guardar como... se guarda en otro lugar.</translation>
    </message>
    <message numerus="yes">
        <source>The driver tells nothing of links between tables. %n link(s) were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</source>
        <translation>
            <numerusform>El controlador no informa de los vínculos entre tablas. Se ha encontrado %n vínculo por los nombres de las columnas; Modelo &gt; Diagrama... lo muestra y permite dibujar otros.</numerusform>
            <numerusform>El controlador no informa de los vínculos entre tablas. Se han encontrado %n vínculos por los nombres de las columnas; Modelo &gt; Diagrama... los muestra y permite dibujar otros.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no tables that can be read. Once it has some, Model &gt; Read new tables from the database finds them.</source>
        <translation>La base de datos no tiene tablas que se puedan leer. Cuando las tenga, Modelo &gt; Leer tablas nuevas de la base de datos las encontrará.</translation>
    </message>
    <message>
        <source>%1 is no data model, or a damaged one: %2. Choose another file; where there is none, a model is made from the tables of the database.</source>
        <translation>%1 no es un modelo de datos o está dañado: %2. Elija otro archivo; si no existe ninguno, se crea un modelo a partir de las tablas de la base de datos.</translation>
    </message>
    <message>
        <source>Queries cannot be kept in this database: %1</source>
        <translation>No se pueden guardar consultas en esta base de datos: %1</translation>
    </message>
    <message>
        <source>Queries cannot be kept: %1. Query &gt; Where queries are kept has other places.</source>
        <translation>No se pueden guardar las consultas: %1. Consulta &gt; Ubicación de las consultas ofrece otros lugares.</translation>
    </message>
</context>
<context>
    <name>tolvi::TXlsxFile</name>
    <message>
        <source>the folder for temporary files, &quot;%1&quot;, is full</source>
        <translation>la carpeta de archivos temporales, «%1», está llena</translation>
    </message>
    <message>
        <source>the text in row %1, column %2 has %3 letters, and a cell holds %4</source>
        <translation>el texto de la fila %1, columna %2, tiene %3 caracteres y una celda admite %4</translation>
    </message>
    <message>
        <source>there are %1 rows, and a sheet holds %2</source>
        <translation>hay %1 filas y una hoja admite %2</translation>
    </message>
    <message>
        <source>there are %1 columns, and a sheet holds %2</source>
        <translation>hay %1 columnas y una hoja admite %2</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgConnection</name>
    <message>
        <source>Connect to a database</source>
        <translation>Conectar con una base de datos</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>Conexiones recientes</translation>
    </message>
    <message>
        <source>UR&amp;L:</source>
        <translation>UR&amp;L:</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>Pro&amp;bar</translation>
    </message>
    <message>
        <source>This system has no keychain: passwords are forgotten when the program ends.</source>
        <translation>Este sistema no tiene llavero: las contraseñas se olvidan al cerrar el programa.</translation>
    </message>
    <message>
        <source>Looking for the keychain of this system...</source>
        <translation>Buscando el llavero de este sistema...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Dete&amp;ner</translation>
    </message>
    <message>
        <source>The keychain did not take the password: %1. It is known until the program ends.</source>
        <translation>El llavero no aceptó la contraseña: %1. Se recuerda hasta que se cierre el programa.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgImportSql</name>
    <message>
        <source>Paste SQL</source>
        <translation>Pegar SQL</translation>
    </message>
    <message>
        <source>&amp;Make query</source>
        <translation>&amp;Crear consulta</translation>
    </message>
    <message>
        <source>&amp;Statement:</source>
        <translation>&amp;Instrucción:</translation>
    </message>
    <message>
        <source>&amp;Only if it can be read exactly</source>
        <translation>&amp;Solo si se puede leer con exactitud</translation>
    </message>
    <message>
        <source>Otherwise what a query cannot say is left out or replaced, with a warning</source>
        <translation>De lo contrario, lo que una consulta no puede expresar se omite o se reemplaza, con una advertencia</translation>
    </message>
    <message>
        <source>&amp;Keep as rows of SQL what no operator says</source>
        <translation>Conser&amp;var como filas de SQL lo que ningún operador expresa</translation>
    </message>
    <message>
        <source>&amp;Warnings (F8 for the next one):</source>
        <translation>&amp;Advertencias (F8 para la siguiente):</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>Cons&amp;ulta:</translation>
    </message>
    <message>
        <source>The statement is too long: statements of up to %1 KB can be read.</source>
        <translation>La instrucción es demasiado larga: se pueden leer instrucciones de hasta %1 KB.</translation>
    </message>
    <message>
        <source>Paste or type a SELECT statement.</source>
        <translation>Pegue o escriba una instrucción SELECT.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n advertencia más</numerusform>
            <numerusform>%n advertencias más</numerusform>
        </translation>
    </message>
    <message>
        <source>The query says what the statement says.</source>
        <translation>La consulta dice lo mismo que la instrucción.</translation>
    </message>
    <message numerus="yes">
        <source>The statement can be read with %n warnings.</source>
        <translation>
            <numerusform>La instrucción se puede leer con %n advertencia.</numerusform>
            <numerusform>La instrucción se puede leer con %n advertencias.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement cannot be read exactly.</source>
        <translation>La instrucción no se puede leer con exactitud.</translation>
    </message>
    <message>
        <source>The statement cannot be read.</source>
        <translation>La instrucción no se puede leer.</translation>
    </message>
</context>
<context>
    <name>tolvi::main</name>
    <message>
        <source>Ask databases in sentences.</source>
        <translation>Pregunte a las bases de datos con frases.</translation>
    </message>
    <message>
        <source>An SQLite file, or a URL as docs/databases.md tells; without it, what was open the last time, at first the sample.</source>
        <translation>Un archivo SQLite o una URL como se describe en docs/databases.md; si se omite, lo último que estuvo abierto y, la primera vez, el ejemplo.</translation>
    </message>
    <message>
        <source>The data model: a model text or XML.</source>
        <translation>El modelo de datos: un texto de modelo o XML.</translation>
    </message>
    <message>
        <source>The folder of the queries.</source>
        <translation>La carpeta de las consultas.</translation>
    </message>
    <message>
        <source>The queries are in the database.</source>
        <translation>Las consultas están en la base de datos.</translation>
    </message>
    <message>
        <source>Keep settings, unsaved work and the sample there.</source>
        <translation>Guardar ahí la configuración, el trabajo sin guardar y el ejemplo.</translation>
    </message>
    <message>
        <source>Play the script with keys and clicks, then quit; see docs/workbench.md.</source>
        <translation>Reproducir el guion con teclas y clics y después salir; véase docs/workbench.md.</translation>
    </message>
    <message>
        <source>Write a picture of the window, at the end of the script, then quit.</source>
        <translation>Guardar una imagen de la ventana al final del guion y después salir.</translation>
    </message>
    <message>
        <source>Open the sample.</source>
        <translation>Abrir el ejemplo.</translation>
    </message>
</context>
</TS>
