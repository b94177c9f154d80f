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
