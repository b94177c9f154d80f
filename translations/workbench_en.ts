<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>tolvi::TChartData</name>
    <message numerus="yes">
        <source>%n rows without a number are left out.</source>
        <translation>
            <numerusform>One row without a number is left out.</numerusform>
            <numerusform>%n rows without a number are left out.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TChartPane</name>
    <message numerus="yes">
        <source>%n values, the least %1 (%2), the greatest %3 (%4).</source>
        <translation>
            <numerusform>One value, the least %1 (%2), the greatest %3 (%4).</numerusform>
            <numerusform>%n values, the least %1 (%2), the greatest %3 (%4).</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln rows have been read.</source>
        <translation>
            <numerusform>Only the first row has been read.</numerusform>
            <numerusform>Only the first %Ln rows have been read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionTest</name>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check host and port.</source>
        <translation>
            <numerusform>There was no answer within a second: check host and port.</numerusform>
            <numerusform>There was no answer within %n seconds: check host and port.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The connection works; %n table(s) found.</source>
        <translation>
            <numerusform>The connection works; one table found.</numerusform>
            <numerusform>The connection works; %n tables found.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check that the file can be read and no program locks it.</source>
        <translation>
            <numerusform>There was no answer within a second: check that the file can be read and no program locks it.</numerusform>
            <numerusform>There was no answer within %n seconds: check that the file can be read and no program locks it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check the data source and its driver.</source>
        <translation>
            <numerusform>There was no answer within a second: check the data source and its driver.</numerusform>
            <numerusform>There was no answer within %n seconds: check the data source and its driver.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TMainWindow</name>
    <message numerus="yes">
        <source>%n query(ies) copied.</source>
        <translation>
            <numerusform>%n query copied.</numerusform>
            <numerusform>%n queries copied.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new table(s)</source>
        <translation>
            <numerusform>%n new table</numerusform>
            <numerusform>%n new tables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new column(s)</source>
        <translation>
            <numerusform>%n new column</numerusform>
            <numerusform>%n new columns</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new link(s)</source>
        <translation>
            <numerusform>%n new link</numerusform>
            <numerusform>%n new links</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s), column(s) or link(s) of the model are not in the database.</source>
        <translation>
            <numerusform>One table, column or link of the model is not in the database.</numerusform>
            <numerusform>%n tables, columns or links of the model are not in the database.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) have another type in the database than in the model.</source>
        <translation>
            <numerusform>One column has another type in the database than in the model.</numerusform>
            <numerusform>%n columns have another type in the database than in the model.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows are in %1.</source>
        <translation>
            <numerusform>1 row is in %1.</numerusform>
            <numerusform>%Ln rows are in %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TPrintRows</name>
    <message numerus="yes">
        <source>%1 (only the first %Ln rows)</source>
        <translation>
            <numerusform>%1 (only the first row)</numerusform>
            <numerusform>%1 (only the first %Ln rows)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TResultGrid</name>
    <message numerus="yes">
        <source>Copied %Ln rows</source>
        <translation>
            <numerusform>Copied one row</numerusform>
            <numerusform>Copied %Ln rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TResultPane</name>
    <message numerus="yes">
        <source>Stopped after %Ln rows · %1</source>
        <translation>
            <numerusform>Stopped after one row · %1</numerusform>
            <numerusform>Stopped after %Ln rows · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>First %Ln rows · %1</source>
        <translation>
            <numerusform>First row · %1</numerusform>
            <numerusform>First %Ln rows · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows · %1</source>
        <translation>
            <numerusform>1 row · %1</numerusform>
            <numerusform>%Ln rows · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows so far…</source>
        <translation>
            <numerusform>1 row so far…</numerusform>
            <numerusform>%Ln rows so far…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlPane</name>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>one more warning</numerusform>
            <numerusform>%n more warnings</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TStorePane</name>
    <message numerus="yes">
        <source>“%1” was deleted, and %n before it.</source>
        <translation>
            <numerusform>“%1” was deleted, and one before it.</numerusform>
            <numerusform>“%1” was deleted, and %n before it.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TWorkspace</name>
    <message numerus="yes">
        <source>The driver tells nothing of links between tables. %n link(s) were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</source>
        <translation>
            <numerusform>The driver tells nothing of links between tables. One link was found by the names of columns; Model &gt; Diagram... shows it, and can draw others.</numerusform>
            <numerusform>The driver tells nothing of links between tables. %n links were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgImportSql</name>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>one more warning</numerusform>
            <numerusform>%n more warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The statement can be read with %n warnings.</source>
        <translation>
            <numerusform>The statement can be read with one warning.</numerusform>
            <numerusform>The statement can be read with %n warnings.</numerusform>
        </translation>
    </message>
</context>
</TS>
