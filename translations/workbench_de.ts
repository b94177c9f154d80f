<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Values of the query</source>
        <translation>Werte der Abfrage</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>Werte von „%1“</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The password for %1</source>
        <translation>Das Passwort für %1</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keychain</source>
        <translation>Im &amp;Schlüsselbund merken</translation>
    </message>
    <message>
        <source>This system has no keychain: it is forgotten when the program ends.</source>
        <translation>Dieses System hat keinen Schlüsselbund: Beim Beenden des Programms wird es vergessen.</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>Von jemand anderem geändert</translation>
    </message>
    <message>
        <source>&amp;Mine</source>
        <translation>&amp;Meine Fassung</translation>
    </message>
    <message>
        <source>&amp;Theirs</source>
        <translation>&amp;Andere Fassung</translation>
    </message>
    <message>
        <source>The query is no longer in the store.</source>
        <translation>Die Abfrage ist nicht mehr in der Sammlung.</translation>
    </message>
    <message>
        <source>&amp;Save mine</source>
        <translation>Meine &amp;speichern</translation>
    </message>
    <message>
        <source>What is stored now is replaced by your query</source>
        <translation>Was jetzt gespeichert ist, wird durch Ihre Abfrage ersetzt</translation>
    </message>
    <message>
        <source>Your query is stored again</source>
        <translation>Ihre Abfrage wird wieder gespeichert</translation>
    </message>
    <message>
        <source>Take t&amp;heirs</source>
        <translation>Andere über&amp;nehmen</translation>
    </message>
    <message>
        <source>&amp;Delete mine, too</source>
        <translation>Meine auch &amp;löschen</translation>
    </message>
    <message>
        <source>Your changes are lost</source>
        <translation>Ihre Änderungen gehen verloren</translation>
    </message>
    <message>
        <source>Your query is lost</source>
        <translation>Ihre Abfrage geht verloren</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Beide behalten</translation>
    </message>
    <message>
        <source>Yours is stored as another query</source>
        <translation>Ihre wird als weitere Abfrage gespeichert</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (meine)</translation>
    </message>
    <message>
        <source>%1 (mine %2)</source>
        <translation>%1 (meine %2)</translation>
    </message>
</context>
<context>
    <name>tolvi::TAbout</name>
    <message>
        <source>About the workbench</source>
        <translation>Über die Workbench</translation>
    </message>
    <message>
        <source>Ask databases in sentences: Tolvi writes the SQL. All that you see here is made of the panels and dialogs of the Tolvi library, which other programs can use, too.

Tolvi comes under the MIT licence. As this program shows SQL with QScintilla and charts with Qt Charts, it comes as a whole under the GNU General Public License, version 3. It also uses Qt %1, libxlsxwriter and QtKeychain.</source>
        <translation>Datenbanken in Sätzen befragen: Tolvi schreibt das SQL. Alles, was Sie hier sehen, besteht aus den Panels und Dialogen der Tolvi-Bibliothek, die auch andere Programme verwenden können.

Tolvi steht unter der MIT-Lizenz. Da dieses Programm SQL mit QScintilla und Diagramme mit Qt Charts anzeigt, steht es als Ganzes unter der GNU General Public License, Version 3. Außerdem verwendet es Qt %1, libxlsxwriter und QtKeychain.</translation>
    </message>
</context>
<context>
    <name>tolvi::TChartData</name>
    <message>
        <source>The first %1 of %2 rows.</source>
        <translation>Die ersten %1 von %2 Zeilen.</translation>
    </message>
    <message>
        <source>%1 rows: each point is the average of %2 rows that follow each other.</source>
        <translation>%1 Zeilen: Jeder Punkt ist der Mittelwert von %2 aufeinanderfolgenden Zeilen.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows without a number are left out.</source>
        <translation>
            <numerusform>%n Zeile ohne Zahl ist ausgelassen.</numerusform>
            <numerusform>%n Zeilen ohne Zahl sind ausgelassen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TChartPane</name>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Ac&amp;ross:</source>
        <translation>Waa&amp;gerecht:</translation>
    </message>
    <message>
        <source>&amp;Values:</source>
        <translation>Wer&amp;te:</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Save picture...</source>
        <translation>Bild s&amp;peichern...</translation>
    </message>
    <message>
        <source>There are no rows to draw.</source>
        <translation>Es gibt keine Zeilen zum Zeichnen.</translation>
    </message>
    <message>
        <source>There is no column of numbers to draw.</source>
        <translation>Es gibt keine Spalte mit Zahlen zum Zeichnen.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; holds no numbers.</source>
        <translation>Die Spalte „%1“ enthält keine Zahlen.</translation>
    </message>
    <message>
        <source>Bars: %1 by %2.</source>
        <translation>Balken: %1 nach %2.</translation>
    </message>
    <message>
        <source>Line: %1 by %2.</source>
        <translation>Linie: %1 nach %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n values, the least %1 (%2), the greatest %3 (%4).</source>
        <translation>
            <numerusform>%n Wert, der kleinste %1 (%2), der größte %3 (%4).</numerusform>
            <numerusform>%n Werte, der kleinste %1 (%2), der größte %3 (%4).</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png or .svg.</source>
        <translation>Der Name der Datei „%1“ muss auf .png oder .svg enden.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Bild (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>Read &amp;all rows</source>
        <translation>Alle Zeilen &amp;lesen</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln rows have been read.</source>
        <translation>
            <numerusform>Nur die erste Zeile wurde gelesen.</numerusform>
            <numerusform>Nur die ersten %Ln Zeilen wurden gelesen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionForm</name>
    <message>
        <source>SQLite file</source>
        <translation>SQLite-Datei</translation>
    </message>
    <message>
        <source>PostgreSQL</source>
        <translation>PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL</source>
        <translation>MariaDB oder MySQL</translation>
    </message>
    <message>
        <source>ODBC</source>
        <translation>ODBC</translation>
    </message>
    <message>
        <source>&amp;Kind of database:</source>
        <translation>&amp;Art der Datenbank:</translation>
    </message>
    <message>
        <source>Data &amp;source:</source>
        <translation>Daten&amp;quelle:</translation>
    </message>
    <message>
        <source>Name, or Driver={...};Server=...</source>
        <translation>Name oder Driver={...};Server=...</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Host:</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>dieser Computer</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>P&amp;ort:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Datenbank:</translation>
    </message>
    <message>
        <source>S&amp;chema:</source>
        <translation>S&amp;chema:</translation>
    </message>
    <message>
        <source>the usual one</source>
        <translation>das übliche</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Durchs&amp;uchen...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>Dat&amp;ei:</translation>
    </message>
    <message>
        <source>Browse for it, or drop it here</source>
        <translation>Suchen Sie danach, oder legen Sie sie hier ab</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;wort:</translation>
    </message>
    <message>
        <source>&amp;Remember the password in the keychain</source>
        <translation>Passwort im &amp;Schlüsselbund merken</translation>
    </message>
    <message>
        <source>Open a database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>SQLite databases (*.sqlite *.sqlite3 *.db *.db3);;All files (*)</source>
        <translation>SQLite-Datenbanken (*.sqlite *.sqlite3 *.db *.db3);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Wählen Sie eine Datei.</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>Name the data source.</source>
        <translation>Geben Sie die Datenquelle an.</translation>
    </message>
    <message>
        <source>Name the database.</source>
        <translation>Geben Sie die Datenbank an.</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>Der Port ist eine Zahl von 1 bis 65535.</translation>
    </message>
    <message>
        <source>known</source>
        <translation>bekannt</translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionTest</name>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check host and port.</source>
        <translation>
            <numerusform>Innerhalb von %n Sekunde kam keine Antwort: Prüfen Sie Host und Port.</numerusform>
            <numerusform>Innerhalb von %n Sekunden kam keine Antwort: Prüfen Sie Host und Port.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The connection works; %n table(s) found.</source>
        <translation>
            <numerusform>Die Verbindung funktioniert; %n Tabelle gefunden.</numerusform>
            <numerusform>Die Verbindung funktioniert; %n Tabellen gefunden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check that the file can be read and no program locks it.</source>
        <translation>
            <numerusform>Innerhalb von %n Sekunde kam keine Antwort: Prüfen Sie, ob die Datei gelesen werden kann und kein Programm sie sperrt.</numerusform>
            <numerusform>Innerhalb von %n Sekunden kam keine Antwort: Prüfen Sie, ob die Datei gelesen werden kann und kein Programm sie sperrt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check the data source and its driver.</source>
        <translation>
            <numerusform>Innerhalb von %n Sekunde kam keine Antwort: Prüfen Sie die Datenquelle und ihren Treiber.</numerusform>
            <numerusform>Innerhalb von %n Sekunden kam keine Antwort: Prüfen Sie die Datenquelle und ihren Treiber.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TExportDialog</name>
    <message>
        <source>Export rows</source>
        <translation>Zeilen exportieren</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot;...</source>
        <translation>„%1“ wird geschrieben...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
</context>
<context>
    <name>tolvi::TFaultPage</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>Was schiefgegangen ist</translation>
    </message>
</context>
<context>
    <name>tolvi::TMainWindow</name>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>Open a database to ask it something.</source>
        <translation>Öffnen Sie eine Datenbank, um sie zu befragen.</translation>
    </message>
    <message>
        <source>The query “%1” has changes that are not saved.</source>
        <translation>Die Abfrage „%1“ hat ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>Abfrage &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>Änderungen &amp;verwerfen</translation>
    </message>
    <message>
        <source>The data model has changes that are not saved.</source>
        <translation>Das Datenmodell hat ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>&amp;Save model</source>
        <translation>Modell &amp;speichern</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” were saved. Here they are again.</source>
        <translation>Das Programm wurde beendet, bevor Änderungen an „%1“ gespeichert waren. Hier sind sie wieder.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model were saved. Here they are again.</source>
        <translation>Das Programm wurde beendet, bevor Änderungen am Datenmodell gespeichert waren. Hier sind sie wieder.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>&amp;Datenbank</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open the &amp;sample</source>
        <translation>Bei&amp;spiel öffnen</translation>
    </message>
    <message>
        <source>Make the sample a&amp;new</source>
        <translation>Beispiel &amp;neu anlegen</translation>
    </message>
    <message>
        <source>&amp;Export rows...</source>
        <translation>Zeilen &amp;exportieren...</translation>
    </message>
    <message>
        <source>&amp;Print rows...</source>
        <translation>Zeilen d&amp;rucken...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Abfrage</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Re&amp;vert to saved</source>
        <translation>&amp;Zurück zum gespeicherten Stand</translation>
    </message>
    <message>
        <source>&amp;Find a query</source>
        <translation>Abfrage su&amp;chen</translation>
    </message>
    <message>
        <source>Paste S&amp;QL...</source>
        <translation>S&amp;QL einfügen...</translation>
    </message>
    <message>
        <source>&amp;Where queries are kept</source>
        <translation>Speicher&amp;ort der Abfragen</translation>
    </message>
    <message>
        <source>By the &amp;workbench</source>
        <translation>In der &amp;Workbench</translation>
    </message>
    <message>
        <source>In a &amp;folder...</source>
        <translation>In einem &amp;Ordner...</translation>
    </message>
    <message>
        <source>Folder of the queries</source>
        <translation>Ordner der Abfragen</translation>
    </message>
    <message>
        <source>In the &amp;database itself</source>
        <translation>In der &amp;Datenbank selbst</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Result &amp;columns...</source>
        <translation>Ergebniss&amp;palten...</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modell</translation>
    </message>
    <message>
        <source>&amp;Edit the model...</source>
        <translation>Modell &amp;bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Diagram...</source>
        <translation>&amp;Diagramm...</translation>
    </message>
    <message>
        <source>Read new tables from the data&amp;base</source>
        <translation>&amp;Neue Tabellen aus der Datenbank lesen</translation>
    </message>
    <message>
        <source>&amp;Undo change of the model</source>
        <translation>Modelländerung &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Redo change of the model</source>
        <translation>Modelländerung &amp;wiederholen</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Laden...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Ansi&amp;cht</translation>
    </message>
    <message>
        <source>Go to the &amp;queries</source>
        <translation>Zu den &amp;Abfragen</translation>
    </message>
    <message>
        <source>Go to the &amp;conditions</source>
        <translation>Zu den &amp;Bedingungen</translation>
    </message>
    <message>
        <source>Go to the co&amp;lumns</source>
        <translation>Zu den &amp;Spalten</translation>
    </message>
    <message>
        <source>Go to the &amp;rows</source>
        <translation>Zu den &amp;Zeilen</translation>
    </message>
    <message>
        <source>Go to the &amp;SQL</source>
        <translation>Zum S&amp;QL</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>Those of the s&amp;ystem</source>
        <translation>Wie im S&amp;ystem</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Über die &amp;Workbench</translation>
    </message>
    <message>
        <source>Data models (*.model *.xml);;All files (*)</source>
        <translation>Datenmodelle (*.model *.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>XML documents</source>
        <translation>XML-Dokumente</translation>
    </message>
    <message>
        <source>Changes of the model are in use now. Model &gt; Save keeps them.</source>
        <translation>Änderungen des Modells gelten ab jetzt. „Modell &gt; Speichern“ bewahrt sie auf.</translation>
    </message>
    <message>
        <source>Diagram of the model</source>
        <translation>Diagramm des Modells</translation>
    </message>
    <message>
        <source>The model is saved in %1.</source>
        <translation>Das Modell ist in %1 gespeichert.</translation>
    </message>
    <message>
        <source>Save the model</source>
        <translation>Modell speichern</translation>
    </message>
    <message>
        <source>Load a model</source>
        <translation>Modell laden</translation>
    </message>
    <message>
        <source>The model has all tables and columns of the database.</source>
        <translation>Das Modell enthält alle Tabellen und Spalten der Datenbank.</translation>
    </message>
    <message>
        <source>Add a column to the result to see rows.</source>
        <translation>Fügen Sie dem Ergebnis eine Spalte hinzu, um Zeilen zu sehen.</translation>
    </message>
    <message>
        <source>The query asks for values: run it to give them.</source>
        <translation>Die Abfrage verlangt Werte: Führen Sie sie aus, um sie einzugeben.</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>In der Abfrage zeigen</translation>
    </message>
    <message>
        <source>The database refuses the condition “%1”:
%2</source>
        <translation>Die Datenbank lehnt die Bedingung „%1“ ab:
%2</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>„%1“ ist gespeichert.</translation>
    </message>
    <message>
        <source>Go to the c&amp;hart</source>
        <translation>Zum D&amp;iagramm</translation>
    </message>
    <message>
        <source>Rows appear here when you run the query.</source>
        <translation>Zeilen erscheinen hier, wenn Sie die Abfrage ausführen.</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here. Run the query first to have all of them.</source>
        <translation>Hier sind nur die ersten %L1 Zeilen. Führen Sie die Abfrage zuerst aus, um alle zu erhalten.</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ausführen</translation>
    </message>
    <message>
        <source>&amp;These rows only</source>
        <translation>&amp;Nur diese Zeilen</translation>
    </message>
    <message>
        <source>The former queries are still in the database.</source>
        <translation>Die bisherigen Abfragen sind noch in der Datenbank.</translation>
    </message>
    <message>
        <source>The former queries are still in %1.</source>
        <translation>Die bisherigen Abfragen sind noch in %1.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Copy them here</source>
        <translation>Hierher kopieren</translation>
    </message>
    <message numerus="yes">
        <source>%n query(ies) copied.</source>
        <translation>
            <numerusform>%n Abfrage kopiert.</numerusform>
            <numerusform>%n Abfragen kopiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new table(s)</source>
        <translation>
            <numerusform>%n Tabelle</numerusform>
            <numerusform>%n Tabellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new column(s)</source>
        <translation>
            <numerusform>%n Spalte</numerusform>
            <numerusform>%n Spalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new link(s)</source>
        <translation>
            <numerusform>%n Verknüpfung</numerusform>
            <numerusform>%n Verknüpfungen</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no new tables and columns.</source>
        <translation>Die Datenbank enthält keine neuen Tabellen und Spalten.</translation>
    </message>
    <message>
        <source>New in the model: %1.</source>
        <translation>Neu im Modell: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s), column(s) or link(s) of the model are not in the database.</source>
        <translation>
            <numerusform>%n Tabelle, Spalte oder Verknüpfung des Modells ist nicht in der Datenbank.</numerusform>
            <numerusform>%n Tabellen, Spalten oder Verknüpfungen des Modells sind nicht in der Datenbank.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) have another type in the database than in the model.</source>
        <translation>
            <numerusform>%n Spalte hat in der Datenbank einen anderen Typ als im Modell.</numerusform>
            <numerusform>%n Spalten haben in der Datenbank einen anderen Typ als im Modell.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show...</source>
        <translation>Anzeigen...</translation>
    </message>
    <message>
        <source>The database refuses the column “%1”:
%2</source>
        <translation>Die Datenbank lehnt die Spalte „%1“ ab:
%2</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here: the settings let a run read no more.</source>
        <translation>Hier sind nur die ersten %L1 Zeilen: Mehr darf eine Ausführung laut den Einstellungen nicht lesen.</translation>
    </message>
    <message>
        <source>1 row is in %1.</source>
        <translation>1 Zeile steht in %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows are in %1.</source>
        <translation>
            <numerusform>%Ln Zeile steht in %1.</numerusform>
            <numerusform>%Ln Zeilen stehen in %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the &amp;note</source>
        <translation>Zum &amp;Hinweis</translation>
    </message>
</context>
<context>
    <name>tolvi::TNameEditor</name>
    <message>
        <source>Name of the query</source>
        <translation>Name der Abfrage</translation>
    </message>
</context>
<context>
    <name>tolvi::TNoteBar</name>
    <message>
        <source>Close this note</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
</context>
<context>
    <name>tolvi::TOpeningDialog</name>
    <message>
        <source>Open a database</source>
        <translation>Datenbank öffnen</translation>
    </message>
    <message>
        <source>Reading the tables of %1...</source>
        <translation>Die Tabellen von %1 werden gelesen...</translation>
    </message>
    <message>
        <source>Waiting for %1...</source>
        <translation>Warten auf %1...</translation>
    </message>
</context>
<context>
    <name>tolvi::TParamEdit</name>
    <message>
        <source>One a line</source>
        <translation>Einer pro Zeile</translation>
    </message>
    <message>
        <source>Calendar (Alt+Down)</source>
        <translation>Kalender (Alt+Runter)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Choose or type</source>
        <translation>Auswählen oder eingeben</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>Ein Wert ist erforderlich.</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>Zum Beispiel %1</translation>
    </message>
</context>
<context>
    <name>tolvi::TPrintRows</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 (only the first %Ln rows)</source>
        <translation>
            <numerusform>%1 (nur die erste Zeile)</numerusform>
            <numerusform>%1 (nur die ersten %Ln Zeilen)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are %1 rows. Print them all, or the first %2?</source>
        <translation>Es sind %1 Zeilen. Alle drucken oder nur die ersten %2?</translation>
    </message>
    <message>
        <source>&amp;First %1 rows</source>
        <translation>&amp;Erste %1 Zeilen</translation>
    </message>
    <message>
        <source>&amp;All rows</source>
        <translation>&amp;Alle Zeilen</translation>
    </message>
</context>
<context>
    <name>tolvi::TProgram</name>
    <message>
        <source>The sample is as good as new. The former one is in %1.</source>
        <translation>Das Beispiel ist wie neu. Das bisherige liegt in %1.</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept for the case that the program ends: %1</source>
        <translation>Ungespeicherte Arbeit kann nicht für den Fall gesichert werden, dass das Programm endet: %1</translation>
    </message>
    <message>
        <source>%1 is not open.</source>
        <translation>%1 ist nicht geöffnet.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Open another one...</source>
        <translation>Andere öffnen...</translation>
    </message>
    <message>
        <source>Open the sample</source>
        <translation>Beispiel öffnen</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” in %2 were saved. They are kept until you take them or discard them.</source>
        <translation>Das Programm wurde beendet, bevor Änderungen an „%1“ (%2) gespeichert waren. Sie bleiben aufbewahrt, bis Sie sie übernehmen oder verwerfen.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model of %1 were saved. They are kept until you take them or discard them.</source>
        <translation>Das Programm wurde beendet, bevor Änderungen am Datenmodell von %1 gespeichert waren. Sie bleiben aufbewahrt, bis Sie sie übernehmen oder verwerfen.</translation>
    </message>
    <message>
        <source>Open %1 with them</source>
        <translation>%1 damit öffnen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>tolvi::TQueryArea</name>
    <message>
        <source>C&amp;onditions</source>
        <translation>Bed&amp;ingungen</translation>
    </message>
    <message>
        <source>Co&amp;lumns of the result</source>
        <translation>&amp;Spalten des Ergebnisses</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultGrid</name>
    <message>
        <source>Rows of the result</source>
        <translation>Zeilen des Ergebnisses</translation>
    </message>
    <message>
        <source>Sort &amp;ascending</source>
        <translation>&amp;Aufsteigend sortieren</translation>
    </message>
    <message>
        <source>Sort &amp;descending</source>
        <translation>A&amp;bsteigend sortieren</translation>
    </message>
    <message>
        <source>&amp;Order of the database</source>
        <translation>&amp;Reihenfolge der Datenbank</translation>
    </message>
    <message>
        <source>&amp;Hide column</source>
        <translation>Spalte ausb&amp;lenden</translation>
    </message>
    <message>
        <source>&amp;Show columns</source>
        <translation>&amp;Spalten einblenden</translation>
    </message>
    <message>
        <source>&amp;Fit width</source>
        <translation>Breite an&amp;passen</translation>
    </message>
    <message>
        <source>Fit &amp;all widths</source>
        <translation>Alle Br&amp;eiten anpassen</translation>
    </message>
    <message>
        <source>Copy column &amp;name</source>
        <translation>Spalten&amp;namen kopieren</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy with &amp;headers</source>
        <translation>&amp;Mit Überschriften kopieren</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Show value</source>
        <translation>&amp;Wert anzeigen</translation>
    </message>
    <message>
        <source>Co&amp;lumn</source>
        <translation>S&amp;palte</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>%1 cells are too many for the clipboard.</source>
        <translation>%1 Zellen sind zu viele für die Zwischenablage.</translation>
    </message>
    <message>
        <source>Copy %1 cells to the clipboard?</source>
        <translation>%1 Zellen in die Zwischenablage kopieren?</translation>
    </message>
    <message>
        <source>Select fewer of them, or export the rows to a file.</source>
        <translation>Wählen Sie weniger Zellen aus, oder exportieren Sie die Zeilen in eine Datei.</translation>
    </message>
    <message>
        <source>A file may be the better place for so many: export the rows instead.</source>
        <translation>Für so viele ist eine Datei wohl besser geeignet: Exportieren Sie stattdessen die Zeilen.</translation>
    </message>
    <message>
        <source>Copying: %1 % (Esc stops it)</source>
        <translation>Kopieren: %1 % (Esc bricht ab)</translation>
    </message>
    <message>
        <source>Copied 1 row</source>
        <translation>1 Zeile kopiert</translation>
    </message>
    <message numerus="yes">
        <source>Copied %Ln rows</source>
        <translation>
            <numerusform>%Ln Zeile kopiert</numerusform>
            <numerusform>%Ln Zeilen kopiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying was stopped; the clipboard holds what it held</source>
        <translation>Das Kopieren wurde abgebrochen; die Zwischenablage ist unverändert</translation>
    </message>
    <message>
        <source>Stop copying</source>
        <translation>Kopieren abbrechen</translation>
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
        <translation>Nach %1 gestoppt</translation>
    </message>
    <message>
        <source>Stopped after 1 row · %1</source>
        <translation>Nach 1 Zeile gestoppt · %1</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %Ln rows · %1</source>
        <translation>
            <numerusform>Nach %Ln Zeile gestoppt · %1</numerusform>
            <numerusform>Nach %Ln Zeilen gestoppt · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>First row · %1</source>
        <translation>Erste Zeile · %1</translation>
    </message>
    <message numerus="yes">
        <source>First %Ln rows · %1</source>
        <translation>
            <numerusform>Erste %Ln Zeile · %1</numerusform>
            <numerusform>Erste %Ln Zeilen · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No rows · %1</source>
        <translation>Keine Zeilen · %1</translation>
    </message>
    <message>
        <source>1 row · %1</source>
        <translation>1 Zeile · %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows · %1</source>
        <translation>
            <numerusform>%Ln Zeile · %1</numerusform>
            <numerusform>%Ln Zeilen · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Aus&amp;führen</translation>
    </message>
    <message>
        <source>Fetch all rows (F5)</source>
        <translation>Alle Zeilen holen (F5)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Sto&amp;pp</translation>
    </message>
    <message>
        <source>Stop the query that runs (Esc)</source>
        <translation>Die laufende Abfrage stoppen (Esc)</translation>
    </message>
    <message>
        <source>Live &amp;preview</source>
        <translation>Live-&amp;Vorschau</translation>
    </message>
    <message>
        <source>Show the first rows whenever the query changes</source>
        <translation>Zeigt die ersten Zeilen, sobald sich die Abfrage ändert</translation>
    </message>
    <message>
        <source>Rows appear here when you run a query.</source>
        <translation>Hier erscheinen Zeilen, wenn Sie eine Abfrage ausführen.</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Wird ausgeführt…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>Wird sortiert…</translation>
    </message>
    <message>
        <source>1 row so far…</source>
        <translation>Bisher 1 Zeile…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows so far…</source>
        <translation>
            <numerusform>Bisher %Ln Zeile…</numerusform>
            <numerusform>Bisher %Ln Zeilen…</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no connection to the database</source>
        <translation>Es besteht keine Verbindung zur Datenbank</translation>
    </message>
    <message>
        <source>The database could not run the query</source>
        <translation>Die Datenbank konnte die Abfrage nicht ausführen</translation>
    </message>
    <message>
        <source>The query cannot be run</source>
        <translation>Die Abfrage kann nicht ausgeführt werden</translation>
    </message>
</context>
<context>
    <name>tolvi::TRowFiles</name>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>CSV, separated by commas</source>
        <translation>CSV, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>CSV, separated by semicolons</source>
        <translation>CSV, durch Semikolons getrennt</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>Text, durch Tabulatoren getrennt</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Tabellenkalkulation</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Table in Markdown</source>
        <translation>Tabelle in Markdown</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>es ist keine Datei</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>Wie im System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>Wie im System</translation>
    </message>
    <message>
        <source>Show the &amp;first rows while a query is edited</source>
        <translation>Beim Bearbeiten einer Abfrage die &amp;ersten Zeilen zeigen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>&amp;Queries may hold conditions written in SQL</source>
        <translation>&amp;Abfragen dürfen in SQL geschriebene Bedingungen enthalten</translation>
    </message>
    <message>
        <source>Such a condition reaches the database as it is. Allow it only for queries that come from people whom you trust.</source>
        <translation>Eine solche Bedingung erreicht die Datenbank, wie sie ist. Erlauben Sie das nur bei Abfragen von Personen, denen Sie vertrauen.</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Farben:</translation>
    </message>
    <message>
        <source>&amp;Size of letters:</source>
        <translation>Schrift&amp;größe:</translation>
    </message>
    <message>
        <source>&amp;Rows of the preview:</source>
        <translation>Zeilen der &amp;Vorschau:</translation>
    </message>
    <message>
        <source>Rows of a run at &amp;most:</source>
        <translation>&amp;Höchstzahl der Zeilen je Ausführung:</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsFile</name>
    <message>
        <source>The settings could not be read (%1): they are the default ones now. The file is kept as %2.</source>
        <translation>Die Einstellungen konnten nicht gelesen werden (%1): Es gelten jetzt die Standardeinstellungen. Die Datei wird als %2 aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>tolvi::TShortcuts</name>
    <message>
        <source>Among the conditions</source>
        <translation>In den Bedingungen</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>In the list of queries</source>
        <translation>In der Liste der Abfragen</translation>
    </message>
    <message>
        <source>Among the rows</source>
        <translation>In den Zeilen</translation>
    </message>
    <message>
        <source>In the SQL</source>
        <translation>Im SQL</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlEdit</name>
    <message>
        <source>Copy what is selected</source>
        <translation>Auswahl kopieren</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Größere Schrift</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Kleinere Schrift</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlPane</name>
    <message>
        <source>Statement</source>
        <translation>Anweisung</translation>
    </message>
    <message>
        <source>S&amp;yntax:</source>
        <translation>S&amp;yntax:</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>Die SQL-Syntax, in der die Anweisung geschrieben wird</translation>
    </message>
    <message>
        <source>&amp;Paste SQL...</source>
        <translation>SQL &amp;einfügen...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the whole statement</source>
        <translation>Die ganze Anweisung kopieren</translation>
    </message>
    <message>
        <source>Copy with &amp;values</source>
        <translation>Mit &amp;Werten kopieren</translation>
    </message>
    <message>
        <source>Copy with &amp;parameters as ?</source>
        <translation>Mit &amp;Parametern als ? kopieren</translation>
    </message>
    <message>
        <source>Copy with parameters as :&amp;Name</source>
        <translation>Mit Parametern als :&amp;Name kopieren</translation>
    </message>
    <message>
        <source>Copy with parameters as $&amp;1</source>
        <translation>Mit Parametern als $&amp;1 kopieren</translation>
    </message>
    <message>
        <source>Make a query of a SELECT statement</source>
        <translation>Aus einer SELECT-Anweisung eine Abfrage erstellen</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>In der Abfrage zeigen</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n weitere Warnung</numerusform>
            <numerusform>%n weitere Warnungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreModel</name>
    <message>
        <source>Deleted by somebody else</source>
        <translation>Von jemand anderem gelöscht</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>Von jemand anderem geändert</translation>
    </message>
    <message>
        <source>Changed by somebody else, %1</source>
        <translation>Von jemand anderem geändert, %1</translation>
    </message>
    <message>
        <source>Changed by %1, %2</source>
        <translation>Von %1 geändert, %2</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>angezeigt</translation>
    </message>
    <message>
        <source>changes not saved</source>
        <translation>Änderungen nicht gespeichert</translation>
    </message>
    <message>
        <source>Has changes that are not saved</source>
        <translation>Hat ungespeicherte Änderungen</translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreNote</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>tolvi::TStorePane</name>
    <message>
        <source>Search queries</source>
        <translation>Abfragen suchen</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Clear the search to put queries in another order.</source>
        <translation>Leeren Sie die Suche, um die Abfragen umzuordnen.</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>&amp;Neue Abfrage</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>D&amp;escription...</source>
        <translation>&amp;Beschreibung...</translation>
    </message>
    <message>
        <source>De&amp;lete...</source>
        <translation>&amp;Löschen...</translation>
    </message>
    <message>
        <source>&amp;Copy query text</source>
        <translation>Abfragetext &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste query text</source>
        <translation>Abfragetext &amp;einfügen</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Aktuali&amp;sieren</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>Es ist keine Sammlung geöffnet.</translation>
    </message>
    <message>
        <source>There are no queries yet. Press %1 to make one.</source>
        <translation>Es gibt noch keine Abfragen. Mit %1 legen Sie eine an.</translation>
    </message>
    <message>
        <source>No query holds this text.</source>
        <translation>Keine Abfrage enthält diesen Text.</translation>
    </message>
    <message>
        <source>Description of “%1”</source>
        <translation>Beschreibung von „%1“</translation>
    </message>
    <message>
        <source>&amp;What the query answers, for those who look for it:</source>
        <translation>&amp;Was die Abfrage beantwortet, für alle, die danach suchen:</translation>
    </message>
    <message>
        <source>Delete it all the same?</source>
        <translation>Trotzdem löschen?</translation>
    </message>
    <message>
        <source>New query %1</source>
        <translation>Neue Abfrage %1</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>Neue Abfrage</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (Kopie %2)</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (Kopie)</translation>
    </message>
    <message>
        <source>Delete the query “%1”?</source>
        <translation>Die Abfrage „%1“ löschen?</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>„%1“ wurde gelöscht.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>What was copied is no query text. Statements in SQL are pasted into the SQL.</source>
        <translation>Was kopiert wurde, ist kein Abfragetext. SQL-Anweisungen werden in das SQL eingefügt.</translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. You can take that back until the note about it is closed.</source>
        <translation>Sie wird für alle gelöscht, die diese Sammlung benutzen. Sie können das zurücknehmen, bis der Hinweis darauf geschlossen wird.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was deleted, and %n before it.</source>
        <translation>
            <numerusform>„%1“ wurde gelöscht, davor %n weitere.</numerusform>
            <numerusform>„%1“ wurde gelöscht, davor %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. It cannot be read: you cannot take that back.</source>
        <translation>Sie wird für alle gelöscht, die diese Sammlung benutzen. Sie kann nicht gelesen werden: Das können Sie nicht zurücknehmen.</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueDlg</name>
    <message>
        <source>Value of %1</source>
        <translation>Wert von %1</translation>
    </message>
    <message>
        <source>NULL: there is no value</source>
        <translation>NULL: Es gibt keinen Wert</translation>
    </message>
    <message>
        <source>An empty text</source>
        <translation>Ein leerer Text</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>tolvi::TWorkspace</name>
    <message>
        <source>The sample cannot be put into %1: the folder cannot be made. The option --home names another place.</source>
        <translation>Das Beispiel kann nicht in %1 angelegt werden: Der Ordner lässt sich nicht erstellen. Die Option --home gibt einen anderen Ort an.</translation>
    </message>
    <message>
        <source>The sample stays as it is: %1 cannot be renamed.</source>
        <translation>Das Beispiel bleibt, wie es ist: %1 kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>The data model cannot be kept: %1. Model &gt; Save as... keeps it in another place.</source>
        <translation>Das Datenmodell kann nicht aufbewahrt werden: %1. „Modell &gt; Speichern unter...“ bewahrt es an einem anderen Ort auf.</translation>
    </message>
    <message numerus="yes">
        <source>The driver tells nothing of links between tables. %n link(s) were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</source>
        <translation>
            <numerusform>Der Treiber gibt keine Auskunft über Verknüpfungen zwischen Tabellen. %n Verknüpfung wurde anhand der Spaltennamen gefunden; „Modell &gt; Diagramm...“ zeigt sie, und dort lassen sich weitere zeichnen.</numerusform>
            <numerusform>Der Treiber gibt keine Auskunft über Verknüpfungen zwischen Tabellen. %n Verknüpfungen wurden anhand der Spaltennamen gefunden; „Modell &gt; Diagramm...“ zeigt sie, und dort lassen sich weitere zeichnen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no tables that can be read. Once it has some, Model &gt; Read new tables from the database finds them.</source>
        <translation>Die Datenbank enthält keine lesbaren Tabellen. Sobald es welche gibt, findet „Modell &gt; Neue Tabellen aus der Datenbank lesen“ sie.</translation>
    </message>
    <message>
        <source>%1 is no data model, or a damaged one: %2. Choose another file; where there is none, a model is made from the tables of the database.</source>
        <translation>%1 ist kein Datenmodell oder ein beschädigtes: %2. Wählen Sie eine andere Datei; wo es keine gibt, wird ein Modell aus den Tabellen der Datenbank erstellt.</translation>
    </message>
    <message>
        <source>Queries cannot be kept in this database: %1</source>
        <translation>In dieser Datenbank können keine Abfragen gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Queries cannot be kept: %1. Query &gt; Where queries are kept has other places.</source>
        <translation>Abfragen können nicht gespeichert werden: %1. „Abfrage &gt; Speicherort der Abfragen“ bietet andere Orte.</translation>
    </message>
</context>
<context>
    <name>tolvi::TXlsxFile</name>
    <message>
        <source>the folder for temporary files, &quot;%1&quot;, is full</source>
        <translation>der Ordner für temporäre Dateien, „%1“, ist voll</translation>
    </message>
    <message>
        <source>the text in row %1, column %2 has %3 letters, and a cell holds %4</source>
        <translation>der Text in Zeile %1, Spalte %2 hat %3 Zeichen, und eine Zelle fasst %4</translation>
    </message>
    <message>
        <source>there are %1 rows, and a sheet holds %2</source>
        <translation>es sind %1 Zeilen, und ein Blatt fasst %2</translation>
    </message>
    <message>
        <source>there are %1 columns, and a sheet holds %2</source>
        <translation>es sind %1 Spalten, und ein Blatt fasst %2</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgConnection</name>
    <message>
        <source>Connect to a database</source>
        <translation>Mit einer Datenbank verbinden</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>Letzte Verbindungen</translation>
    </message>
    <message>
        <source>UR&amp;L:</source>
        <translation>UR&amp;L:</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>This system has no keychain: passwords are forgotten when the program ends.</source>
        <translation>Dieses System hat keinen Schlüsselbund: Passwörter werden beim Beenden des Programms vergessen.</translation>
    </message>
    <message>
        <source>Looking for the keychain of this system...</source>
        <translation>Der Schlüsselbund dieses Systems wird gesucht...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Sto&amp;pp</translation>
    </message>
    <message>
        <source>The keychain did not take the password: %1. It is known until the program ends.</source>
        <translation>Der Schlüsselbund hat das Passwort nicht angenommen: %1. Es ist bis zum Ende des Programms bekannt.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgImportSql</name>
    <message>
        <source>Paste SQL</source>
        <translation>SQL einfügen</translation>
    </message>
    <message>
        <source>&amp;Make query</source>
        <translation>Abfrage &amp;erstellen</translation>
    </message>
    <message>
        <source>&amp;Statement:</source>
        <translation>&amp;Anweisung:</translation>
    </message>
    <message>
        <source>&amp;Only if it can be read exactly</source>
        <translation>&amp;Nur wenn sie genau gelesen werden kann</translation>
    </message>
    <message>
        <source>Otherwise what a query cannot say is left out or replaced, with a warning</source>
        <translation>Sonst wird mit einer Warnung ausgelassen oder ersetzt, was eine Abfrage nicht ausdrücken kann</translation>
    </message>
    <message>
        <source>&amp;Keep as rows of SQL what no operator says</source>
        <translation>Was kein Operator ausdrückt, als &amp;SQL-Zeilen behalten</translation>
    </message>
    <message>
        <source>&amp;Warnings (F8 for the next one):</source>
        <translation>&amp;Warnungen (F8 für die nächste):</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>A&amp;bfrage:</translation>
    </message>
    <message>
        <source>The statement is too long: statements of up to %1 KB can be read.</source>
        <translation>Die Anweisung ist zu lang: Gelesen werden Anweisungen bis %1 KB.</translation>
    </message>
    <message>
        <source>Paste or type a SELECT statement.</source>
        <translation>Fügen Sie eine SELECT-Anweisung ein, oder geben Sie eine ein.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n weitere Warnung</numerusform>
            <numerusform>%n weitere Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>The query says what the statement says.</source>
        <translation>Die Abfrage besagt dasselbe wie die Anweisung.</translation>
    </message>
    <message numerus="yes">
        <source>The statement can be read with %n warnings.</source>
        <translation>
            <numerusform>Die Anweisung kann mit %n Warnung gelesen werden.</numerusform>
            <numerusform>Die Anweisung kann mit %n Warnungen gelesen werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement cannot be read exactly.</source>
        <translation>Die Anweisung kann nicht genau gelesen werden.</translation>
    </message>
    <message>
        <source>The statement cannot be read.</source>
        <translation>Die Anweisung kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>tolvi::main</name>
    <message>
        <source>Ask databases in sentences.</source>
        <translation>Datenbanken in Sätzen befragen.</translation>
    </message>
    <message>
        <source>An SQLite file, or a URL as docs/databases.md tells; without it, what was open the last time, at first the sample.</source>
        <translation>Eine SQLite-Datei oder eine URL wie in docs/databases.md beschrieben; sonst das zuletzt Geöffnete, anfangs das Beispiel.</translation>
    </message>
    <message>
        <source>The data model: a model text or XML.</source>
        <translation>Das Datenmodell: ein Modelltext oder XML.</translation>
    </message>
    <message>
        <source>The folder of the queries.</source>
        <translation>Der Ordner der Abfragen.</translation>
    </message>
    <message>
        <source>The queries are in the database.</source>
        <translation>Die Abfragen liegen in der Datenbank.</translation>
    </message>
    <message>
        <source>Keep settings, unsaved work and the sample there.</source>
        <translation>Einstellungen, ungespeicherte Arbeit und das Beispiel dort aufbewahren.</translation>
    </message>
    <message>
        <source>Play the script with keys and clicks, then quit; see docs/workbench.md.</source>
        <translation>Das Skript mit Tasten und Klicks abspielen, dann beenden; siehe docs/workbench.md.</translation>
    </message>
    <message>
        <source>Write a picture of the window, at the end of the script, then quit.</source>
        <translation>Am Ende des Skripts ein Bild des Fensters schreiben, dann beenden.</translation>
    </message>
    <message>
        <source>Open the sample.</source>
        <translation>Das Beispiel öffnen.</translation>
    </message>
</context>
</TS>
