<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>tolvi::TCatalogueTablesModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>view</source>
        <translation>Sicht</translation>
    </message>
    <message>
        <source>table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>%1, in the model</source>
        <translation>%1, im Modell</translation>
    </message>
</context>
<context>
    <name>tolvi::TConditionsPage</name>
    <message>
        <source>Predefined conditions</source>
        <translation>Vordefinierte Bedingungen</translation>
    </message>
    <message>
        <source>Display format</source>
        <translation>Anzeigeformat</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>New condition</source>
        <translation>Neue Bedingung</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Display &amp;format:</source>
        <translation>Anzeige&amp;format:</translation>
    </message>
    <message>
        <source>@ is the place of a value.</source>
        <translation>@ steht an der Stelle eines Werts.</translation>
    </message>
    <message>
        <source>S&amp;QL:</source>
        <translation>S&amp;QL:</translation>
    </message>
    <message>
        <source>@1 and @2 stand for the values.</source>
        <translation>@1 und @2 stehen für die Werte.</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>Tabellen:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Text before it</source>
        <translation>Text davor</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>Werttyp ändern</translation>
    </message>
    <message>
        <source>A single value</source>
        <translation>Ein einzelner Wert</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>Eine Werteliste</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>Eine Unterabfrage</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>Art des Werts ändern</translation>
    </message>
    <message>
        <source>Data t&amp;ype:</source>
        <translation>Datent&amp;yp:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>Change SQL</source>
        <translation>SQL ändern</translation>
    </message>
    <message>
        <source>Change display format</source>
        <translation>Anzeigeformat ändern</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>Bedingung hinzufügen</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>Bedingung löschen</translation>
    </message>
</context>
<context>
    <name>tolvi::TDesignMinimap</name>
    <message>
        <source>The whole diagram; click to go there</source>
        <translation>Das ganze Diagramm; klicken, um dorthin zu gehen</translation>
    </message>
    <message>
        <source>The whole diagram</source>
        <translation>Das ganze Diagramm</translation>
    </message>
</context>
<context>
    <name>tolvi::TDropDownDate</name>
    <message>
        <source>This is no time. Write it like %1.</source>
        <translation>Das ist keine Uhrzeit. Schreiben Sie sie wie %1.</translation>
    </message>
    <message>
        <source>This is no date. Write it like %1.</source>
        <translation>Das ist kein Datum. Schreiben Sie es wie %1.</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Heute</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Jetzt</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesModel</name>
    <message>
        <source>(no group)</source>
        <translation>(keine Gruppe)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Column or expression</source>
        <translation>Spalte oder Ausdruck</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesPage</name>
    <message>
        <source>Fields in groups</source>
        <translation>Felder in Gruppen</translation>
    </message>
    <message>
        <source>Find fields or groups</source>
        <translation>Felder oder Gruppen suchen</translation>
    </message>
    <message>
        <source>Add columns...</source>
        <translation>Spalten hinzufügen...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Operatoren</translation>
    </message>
    <message>
        <source>Value Editor</source>
        <translation>Werteditor</translation>
    </message>
    <message>
        <source>Add columns</source>
        <translation>Spalten hinzufügen</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Neues Feld</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>Ausdruck hinzufügen</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Gruppe löschen</translation>
    </message>
    <message>
        <source>Delete field</source>
        <translation>Feld löschen</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>Feld verschieben</translation>
    </message>
    <message>
        <source>Move group</source>
        <translation>Gruppe verschieben</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntryTable</name>
    <message>
        <source>Text shown</source>
        <translation>Angezeigter Text</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>Wert in SQL</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>Werteliste</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldForm</name>
    <message>
        <source>Offered in conditions</source>
        <translation>In Bedingungen angeboten</translation>
    </message>
    <message>
        <source>Offer in conditions</source>
        <translation>In Bedingungen anbieten</translation>
    </message>
    <message>
        <source>Offered as result column</source>
        <translation>Als Ergebnisspalte angeboten</translation>
    </message>
    <message>
        <source>Offer as result column</source>
        <translation>Als Ergebnisspalte anbieten</translation>
    </message>
    <message>
        <source>Aggregate</source>
        <translation>Aggregat</translation>
    </message>
    <message>
        <source>Mark as aggregate</source>
        <translation>Als Aggregat kennzeichnen</translation>
    </message>
    <message>
        <source>The expression calls an aggregate function: conditions on it go to HAVING</source>
        <translation>Der Ausdruck ruft eine Aggregatfunktion auf: Bedingungen darauf stehen in HAVING</translation>
    </message>
    <message>
        <source>Quoted column name</source>
        <translation>Spaltenname in Anführungszeichen</translation>
    </message>
    <message>
        <source>Quote column name</source>
        <translation>Spaltennamen in Anführungszeichen setzen</translation>
    </message>
    <message>
        <source>Group &amp;name:</source>
        <translation>Gruppen&amp;name:</translation>
    </message>
    <message>
        <source>Change group name</source>
        <translation>Gruppennamen ändern</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>An&amp;zeigename:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Anzeigenamen ändern</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>A&amp;rt:</translation>
    </message>
    <message>
        <source>Change kind</source>
        <translation>Art ändern</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>T&amp;abelle:</translation>
    </message>
    <message>
        <source>Change table</source>
        <translation>Tabelle ändern</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>A&amp;usdruck:</translation>
    </message>
    <message>
        <source>Change expression</source>
        <translation>Ausdruck ändern</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>Tabellen:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>Move fields to group</source>
        <translation>Felder in Gruppe verschieben</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(unbekannt)</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>T&amp;yp:</translation>
    </message>
    <message>
        <source>Change type</source>
        <translation>Typ ändern</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Change size</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Gr&amp;öße:</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>(fields chosen: %1)</source>
        <translation>(gewählte Felder: %1)</translation>
    </message>
    <message>
        <source>(no group)</source>
        <translation>(keine Gruppe)</translation>
    </message>
    <message>
        <source>Colu&amp;mn:</source>
        <translation>&amp;Spalte:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldOperators</name>
    <message>
        <source>Offered operators</source>
        <translation>Angebotene Operatoren</translation>
    </message>
    <message>
        <source>O&amp;ffered:</source>
        <translation>An&amp;geboten:</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove operator</source>
        <translation>Operator entfernen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Operators that are not offered</source>
        <translation>Nicht angebotene Operatoren</translation>
    </message>
    <message>
        <source>&amp;Not offered:</source>
        <translation>&amp;Nicht angeboten:</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Anbieten</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>Operator anbieten</translation>
    </message>
    <message>
        <source>All that apply</source>
        <translation>Alle passenden</translation>
    </message>
    <message>
        <source>Offer just the operators that are made for the type of the field</source>
        <translation>Genau die Operatoren anbieten, die für den Typ des Felds gedacht sind</translation>
    </message>
    <message>
        <source>- by some</source>
        <translation>– von einigen</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>Operator verschieben</translation>
    </message>
    <message>
        <source>Offer all operators that apply</source>
        <translation>Alle passenden Operatoren anbieten</translation>
    </message>
    <message>
        <source>Remove all operators</source>
        <translation>Alle Operatoren entfernen</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldTree</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find a field</source>
        <translation>Feld suchen</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillChoicePage</name>
    <message>
        <source>Tables and fields that are added</source>
        <translation>Tabellen und Felder, die hinzugefügt werden</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>Check all that is listed</source>
        <translation>Alle aufgelisteten Einträge auswählen</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>Uncheck all that is listed</source>
        <translation>Alle aufgelisteten Einträge abwählen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Change the display name (F2)</source>
        <translation>Anzeigenamen ändern (F2)</translation>
    </message>
    <message>
        <source>&amp;Lists of Values</source>
        <translation>Werte&amp;listen</translation>
    </message>
    <message>
        <source>With or without lists of values (Ctrl+L)</source>
        <translation>Mit oder ohne Wertelisten (Strg+L)</translation>
    </message>
    <message>
        <source>Links that are added</source>
        <translation>Verknüpfungen, die hinzugefügt werden</translation>
    </message>
    <message>
        <source>Check all links that are listed</source>
        <translation>Alle aufgelisteten Verknüpfungen auswählen</translation>
    </message>
    <message>
        <source>Uncheck all links that are listed</source>
        <translation>Alle aufgelisteten Verknüpfungen abwählen</translation>
    </message>
    <message>
        <source>&amp;Rows...</source>
        <translation>Zei&amp;len...</translation>
    </message>
    <message>
        <source>Choose which rows a link keeps (F2)</source>
        <translation>Festlegen, welche Zeilen eine Verknüpfung behält (F2)</translation>
    </message>
    <message>
        <source>&amp;Tables and Fields (%1)</source>
        <translation>&amp;Tabellen und Felder (%1)</translation>
    </message>
    <message>
        <source>Lin&amp;ks (%1)</source>
        <translation>&amp;Verknüpfungen (%1)</translation>
    </message>
    <message>
        <source>Nothing is added: the model has all that these tables have.</source>
        <translation>Es wird nichts hinzugefügt: Das Modell enthält bereits alles aus diesen Tabellen.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillFieldItems</name>
    <message>
        <source>Further alias of %1</source>
        <translation>Weiterer Alias von %1</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>Im Modell</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>Neue Tabelle</translation>
    </message>
    <message>
        <source>with a list</source>
        <translation>mit Liste</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(kein Name)</translation>
    </message>
    <message>
        <source>Table, column</source>
        <translation>Tabelle, Spalte</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>Werteliste</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillLinkItems</name>
    <message>
        <source>Only rows that match</source>
        <translation>Nur passende Zeilen</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>Alle Zeilen von %1</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>Alle Zeilen beider Tabellen</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>Zeilen des Ergebnisses</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPage</name>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPreviewPage</name>
    <message>
        <source>What the database no longer has stays in the model. Delete it there if nothing needs it.</source>
        <translation>Was es in der Datenbank nicht mehr gibt, bleibt im Modell. Löschen Sie es dort, wenn es nicht mehr gebraucht wird.</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Was sich ändert</translation>
    </message>
    <message>
        <source>Added: %1 tables, %2 fields, %3 links.</source>
        <translation>Hinzugefügt: %1 Tabellen, %2 Felder, %3 Verknüpfungen.</translation>
    </message>
    <message>
        <source>Changed: %1 types.</source>
        <translation>Geändert: %1 Typen.</translation>
    </message>
    <message>
        <source>Vanished: %1.</source>
        <translation>Entfallen: %1.</translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Es gibt nichts zu ergänzen.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillReportItems</name>
    <message>
        <source>Types that change</source>
        <translation>Typen, die sich ändern</translation>
    </message>
    <message>
        <source>Types that differ in the database</source>
        <translation>Typen, die in der Datenbank anders sind</translation>
    </message>
    <message>
        <source>New tables</source>
        <translation>Neue Tabellen</translation>
    </message>
    <message>
        <source>New groups</source>
        <translation>Neue Gruppen</translation>
    </message>
    <message>
        <source>New fields</source>
        <translation>Neue Felder</translation>
    </message>
    <message>
        <source>New lists of values</source>
        <translation>Neue Wertelisten</translation>
    </message>
    <message>
        <source>New links</source>
        <translation>Neue Verknüpfungen</translation>
    </message>
    <message>
        <source>Vanished tables</source>
        <translation>Entfallene Tabellen</translation>
    </message>
    <message>
        <source>Vanished fields</source>
        <translation>Entfallene Felder</translation>
    </message>
    <message>
        <source>Vanished links</source>
        <translation>Entfallene Verknüpfungen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Hinweise</translation>
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
        <translation>Sicht</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>Im Modell</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTablesPage</name>
    <message>
        <source>Tables of the database</source>
        <translation>Tabellen der Datenbank</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Datenbank:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>Check all tables that are listed</source>
        <translation>Alle aufgelisteten Tabellen auswählen</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>Uncheck all tables that are listed</source>
        <translation>Alle aufgelisteten Tabellen abwählen</translation>
    </message>
    <message>
        <source>Only Ne&amp;w</source>
        <translation>&amp;Nur neue</translation>
    </message>
    <message>
        <source>Check those that the model does not have, uncheck the others</source>
        <translation>Tabellen auswählen, die im Modell fehlen, die anderen abwählen</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>Links from foreign keys</source>
        <translation>Verknüpfungen aus Fremdschlüsseln</translation>
    </message>
    <message>
        <source>Links from names of columns</source>
        <translation>Verknüpfungen aus Spaltennamen</translation>
    </message>
    <message>
        <source>Further aliases of tables that are linked twice</source>
        <translation>Weitere Aliasse für doppelt verknüpfte Tabellen</translation>
    </message>
    <message>
        <source>New columns of tables that the model has</source>
        <translation>Neue Spalten von Tabellen, die im Modell sind</translation>
    </message>
    <message>
        <source>Take over types that have changed</source>
        <translation>Geänderte Typen übernehmen</translation>
    </message>
    <message>
        <source>Quote names in mixed case</source>
        <translation>Namen mit Groß- und Kleinbuchstaben in Anführungszeichen</translation>
    </message>
    <message>
        <source>Lists of values for foreign keys, up to</source>
        <translation>Wertelisten für Fremdschlüssel, bis zu</translation>
    </message>
    <message>
        <source> rows</source>
        <translation> Zeilen</translation>
    </message>
    <message>
        <source>Most rows of a list of values</source>
        <translation>Höchstzahl der Zeilen einer Werteliste</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>Nur passende Zeilen</translation>
    </message>
    <message>
        <source>All rows of the table that refers</source>
        <translation>Alle Zeilen der verweisenden Tabelle</translation>
    </message>
    <message>
        <source>All rows of the table referred to</source>
        <translation>Alle Zeilen der Tabelle, auf die verwiesen wird</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>Alle Zeilen beider Tabellen</translation>
    </message>
    <message>
        <source>Rows of &amp;links:</source>
        <translation>Zeilen der &amp;Verknüpfungen:</translation>
    </message>
    <message>
        <source>(that of the connection)</source>
        <translation>(die der Verbindung)</translation>
    </message>
    <message>
        <source>%1 of %2 tables are checked</source>
        <translation>%1 von %2 Tabellen ausgewählt</translation>
    </message>
</context>
<context>
    <name>tolvi::TItemList</name>
    <message>
        <source>Type to search</source>
        <translation>Suchtext eingeben</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>Nothing to choose from</source>
        <translation>Nichts zur Auswahl</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Keine Treffer</translation>
    </message>
</context>
<context>
    <name>tolvi::TJResultFieldsPanel</name>
    <message>
        <source>Sorting</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
</context>
<context>
    <name>tolvi::TJStructDesignPanel</name>
    <message>
        <source>Move tables</source>
        <translation>Tabellen verschieben</translation>
    </message>
    <message>
        <source>Resize table</source>
        <translation>Tabellengröße ändern</translation>
    </message>
    <message>
        <source>Diagram of tables and links</source>
        <translation>Diagramm der Tabellen und Verknüpfungen</translation>
    </message>
    <message>
        <source>Arrange tables in rows</source>
        <translation>Tabellen in Zeilen anordnen</translation>
    </message>
    <message>
        <source>Arrange tables by links</source>
        <translation>Tabellen nach Verknüpfungen anordnen</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>Höhe anpassen</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1 x %2 pixels.</source>
        <translation>Der Speicher reicht nicht für ein Bild mit %1 × %2 Pixeln.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png, .svg or .pdf.</source>
        <translation>Der Name der Datei „%1“ muss auf .png, .svg oder .pdf enden.</translation>
    </message>
    <message>
        <source>Export Diagram</source>
        <translation>Diagramm exportieren</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;Documents (*.pdf)</source>
        <translation>Bilder (*.png *.svg);;Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Tabellen hinzufügen</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Tabelle löschen</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Verknüpfung löschen</translation>
    </message>
    <message>
        <source>Delete tables</source>
        <translation>Tabellen löschen</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>Verknüpfung bearbeiten</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Verknüpfung hinzufügen</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>Tabelle %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>Feld %1</translation>
    </message>
    <message>
        <source>link %1</source>
        <translation>Verknüpfung %1</translation>
    </message>
    <message>
        <source>Add &amp;Tables...</source>
        <translation>&amp;Tabellen hinzufügen...</translation>
    </message>
    <message>
        <source>Add &amp;Link</source>
        <translation>&amp;Verknüpfung hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Cancel Adding</source>
        <translation>Hinzufügen ab&amp;brechen</translation>
    </message>
    <message>
        <source>&amp;Edit Link...</source>
        <translation>Verknüpfung bearb&amp;eiten...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Fit &amp;Height to Fields</source>
        <translation>&amp;Höhe an Felder anpassen</translation>
    </message>
    <message>
        <source>Arrange in Ro&amp;ws</source>
        <translation>In &amp;Zeilen anordnen</translation>
    </message>
    <message>
        <source>Arrange &amp;by Links</source>
        <translation>&amp;Nach Verknüpfungen anordnen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show &amp;Whole Diagram</source>
        <translation>Ganzes &amp;Diagramm anzeigen</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture</source>
        <translation>Bild ko&amp;pieren</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Dru&amp;cken...</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairs</name>
    <message>
        <source>Column pairs</source>
        <translation>Spaltenpaare</translation>
    </message>
    <message>
        <source>New pair</source>
        <translation>Neues Paar</translation>
    </message>
    <message>
        <source>Delete pairs</source>
        <translation>Paare löschen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairsModel</name>
    <message>
        <source>A constant...</source>
        <translation>Eine Konstante...</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Constant: %1</source>
        <translation>Konstante: %1</translation>
    </message>
    <message>
        <source>(choose a column)</source>
        <translation>(Spalte wählen)</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelCheckPane</name>
    <message>
        <source>What is wrong with the model</source>
        <translation>Fehler im Modell</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Nothing is wrong with the model.</source>
        <translation>Das Modell ist fehlerfrei.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Fehler: %1, Warnungen: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelPage</name>
    <message>
        <source>The model stays as it was.</source>
        <translation>Das Modell bleibt unverändert.</translation>
    </message>
</context>
<context>
    <name>tolvi::TOperatorsPage</name>
    <message>
        <source>In &amp;list</source>
        <translation>In Li&amp;ste</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>Zwisc&amp;hen</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>Beginnt &amp;mit</translation>
    </message>
    <message>
        <source>Conta&amp;ins</source>
        <translation>Enthä&amp;lt</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>Z&amp;ahl</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>Dat&amp;um</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Change name</source>
        <translation>Namen ändern</translation>
    </message>
    <message>
        <source>Dis&amp;play name:</source>
        <translation>An&amp;zeigename:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Anzeigenamen ändern</translation>
    </message>
    <message>
        <source>S&amp;QL template:</source>
        <translation>S&amp;QL-Vorlage:</translation>
    </message>
    <message>
        <source>Change SQL template</source>
        <translation>SQL-Vorlage ändern</translation>
    </message>
    <message>
        <source>&amp;Between values:</source>
        <translation>Zwis&amp;chen den Werten:</translation>
    </message>
    <message>
        <source>Change value format</source>
        <translation>Werteformat ändern</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Operatoren</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>SQL template</source>
        <translation>SQL-Vorlage</translation>
    </message>
    <message>
        <source>New operator</source>
        <translation>Neuer Operator</translation>
    </message>
    <message>
        <source>Add defaults</source>
        <translation>Standard hinzufügen</translation>
    </message>
    <message>
        <source>Adds the default operators that the model lacks</source>
        <translation>Fügt die Standardoperatoren hinzu, die im Modell fehlen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Default operators that the model has</source>
        <translation>Standardoperatoren im Modell</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>Beim Ausschalten einer Gruppe werden ihre Operatoren gelöscht</translation>
    </message>
    <message>
        <source>Change default operators</source>
        <translation>Standardoperatoren ändern</translation>
    </message>
    <message>
        <source>@f stands for the field, @1 and @2 for the values.</source>
        <translation>@f steht für das Feld, @1 und @2 für die Werte.</translation>
    </message>
    <message>
        <source>What users read between the two values, as &quot;and&quot;</source>
        <translation>Was zwischen den beiden Werten zu lesen ist, etwa „und“</translation>
    </message>
    <message>
        <source>Single values</source>
        <translation>Einzelne Werte</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>Eine Werteliste</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>Eine Unterabfrage</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>Art der Werte ändern</translation>
    </message>
    <message>
        <source>The type of the field</source>
        <translation>Der Typ des Felds</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>Werttyp ändern</translation>
    </message>
    <message>
        <source>Texts are compared without re&amp;gard to case</source>
        <translation>Texte ohne Rücksicht auf &amp;Groß-/Kleinschreibung vergleichen</translation>
    </message>
    <message>
        <source>Change letter case</source>
        <translation>Groß-/Kleinschreibung ändern</translation>
    </message>
    <message>
        <source>&amp;Kind of values:</source>
        <translation>A&amp;rt der Werte:</translation>
    </message>
    <message>
        <source>T&amp;ype of values:</source>
        <translation>T&amp;yp der Werte:</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Types of fields to which it applies</source>
        <translation>Typen der Felder, für die er gilt</translation>
    </message>
    <message>
        <source>Types of fields</source>
        <translation>Feldtypen</translation>
    </message>
    <message>
        <source>Offe&amp;r for all of them</source>
        <translation>&amp;Für alle anbieten</translation>
    </message>
    <message>
        <source>All fields of these types offer the operator then</source>
        <translation>Alle Felder dieser Typen bieten den Operator dann an</translation>
    </message>
    <message>
        <source>Fields of these types: %1. Fields that offer it: %2.</source>
        <translation>Felder dieser Typen: %1. Felder, die ihn anbieten: %2.</translation>
    </message>
    <message>
        <source>Change types</source>
        <translation>Typen ändern</translation>
    </message>
    <message>
        <source>Add operator</source>
        <translation>Operator hinzufügen</translation>
    </message>
    <message>
        <source>Add default operators</source>
        <translation>Standardoperatoren hinzufügen</translation>
    </message>
    <message>
        <source>Copy operator</source>
        <translation>Operator kopieren</translation>
    </message>
    <message>
        <source>Delete operator</source>
        <translation>Operator löschen</translation>
    </message>
    <message>
        <source>Delete all operators</source>
        <translation>Alle Operatoren löschen</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>Operator verschieben</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>Operator anbieten</translation>
    </message>
</context>
<context>
    <name>tolvi::TPartList</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPParamLabel</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Prompt:</source>
        <translation>&amp;Frage:</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPRow</name>
    <message>
        <source>Link word</source>
        <translation>Verknüpfungswort</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Wert %1</translation>
    </message>
    <message>
        <source>The row is locked: it cannot be changed here</source>
        <translation>Die Zeile ist gesperrt: Sie kann hier nicht geändert werden</translation>
    </message>
    <message>
        <source>The bracket holds a locked row: it cannot be changed here</source>
        <translation>Die Klammer enthält eine gesperrte Zeile: Sie kann hier nicht geändert werden</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFColumnsPage</name>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>The name of the column in SQL. It follows the name above.</source>
        <translation>Der Name der Spalte in SQL. Er folgt dem Namen darüber.</translation>
    </message>
    <message>
        <source>Type an expression; { offers the fields</source>
        <translation>Ausdruck eingeben; { bietet die Felder an</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>nicht angezeigt</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>angezeigt</translation>
    </message>
    <message>
        <source>Select a field first.</source>
        <translation>Wählen Sie zuerst ein Feld aus.</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFSortingPage</name>
    <message>
        <source>The result shows all columns; the result fields only sort it.</source>
        <translation>Das Ergebnis zeigt alle Spalten; die Ergebnisfelder sortieren es nur.</translation>
    </message>
    <message>
        <source>Drag a row, or press Alt+Up or Alt+Down, to move it</source>
        <translation>Zum Verschieben eine Zeile ziehen oder Alt+Hoch bzw. Alt+Runter drücken</translation>
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
        <translation>Dieses SQL &amp;lesen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>The text is not read yet</source>
        <translation>Der Text ist noch nicht gelesen</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesModel</name>
    <message>
        <source>The default main table</source>
        <translation>Die Standardhaupttabelle</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesPage</name>
    <message>
        <source>Inner</source>
        <translation>Innerer</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Linker</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechter</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voller</translation>
    </message>
    <message>
        <source>&amp;Alias:</source>
        <translation>&amp;Alias:</translation>
    </message>
    <message>
        <source>Change alias</source>
        <translation>Alias ändern</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>An&amp;zeigename:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Anzeigenamen ändern</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>Tabe&amp;lle:</translation>
    </message>
    <message>
        <source>Change table name</source>
        <translation>Tabellennamen ändern</translation>
    </message>
    <message>
        <source>Databa&amp;se:</source>
        <translation>Date&amp;nbank:</translation>
    </message>
    <message>
        <source>Change database name</source>
        <translation>Datenbanknamen ändern</translation>
    </message>
    <message>
        <source>&amp;Hints:</source>
        <translation>&amp;Hinweise:</translation>
    </message>
    <message>
        <source>Change hints</source>
        <translation>Hinweise ändern</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Find tables</source>
        <translation>Tabellen suchen</translation>
    </message>
    <message>
        <source>There are no tables yet: add some from the database, or by hand.</source>
        <translation>Es gibt noch keine Tabellen: Fügen Sie welche aus der Datenbank oder von Hand hinzu.</translation>
    </message>
    <message>
        <source>Add from database...</source>
        <translation>Aus Datenbank hinzufügen...</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>Neue Tabelle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>&amp;Quoted name</source>
        <translation>Name in An&amp;führungszeichen</translation>
    </message>
    <message>
        <source>Default &amp;main table</source>
        <translation>&amp;Standardhaupttabelle</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>Abfragen beginnen bei dieser Tabelle</translation>
    </message>
    <message>
        <source>Linked with</source>
        <translation>Verknüpft mit</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Join</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Links of the table</source>
        <translation>Verknüpfungen der Tabelle</translation>
    </message>
    <message>
        <source>&amp;Links:</source>
        <translation>&amp;Verknüpfungen:</translation>
    </message>
    <message>
        <source>Add link...</source>
        <translation>Verknüpfung hinzufügen...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Verknüpfung löschen</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Tabellen hinzufügen</translation>
    </message>
    <message>
        <source>NewTable</source>
        <translation>NeueTabelle</translation>
    </message>
    <message>
        <source>Add table</source>
        <translation>Tabelle hinzufügen</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Tabelle löschen</translation>
    </message>
    <message>
        <source>Move table</source>
        <translation>Tabelle verschieben</translation>
    </message>
    <message>
        <source>The SQL of fields (%1) and conditions (%2) names the table &quot;%3&quot;. Change it, too?</source>
        <translation>Das SQL von Feldern (%1) und Bedingungen (%2) nennt die Tabelle „%3“. Soll es ebenfalls geändert werden?</translation>
    </message>
    <message>
        <source>Unchanged, it no longer finds the table.</source>
        <translation>Ohne Änderung findet es die Tabelle nicht mehr.</translation>
    </message>
    <message>
        <source>Quote table name</source>
        <translation>Tabellennamen in Anführungszeichen setzen</translation>
    </message>
    <message>
        <source>Set default main table</source>
        <translation>Standardhaupttabelle festlegen</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Verknüpfung hinzufügen</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>Verknüpfung bearbeiten</translation>
    </message>
</context>
<context>
    <name>tolvi::TTitlesModel</name>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Default text</source>
        <translation>Standardtext</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>tolvi::TTryPane</name>
    <message>
        <source>Col&amp;umns:</source>
        <translation>S&amp;palten:</translation>
    </message>
    <message>
        <source>Cond&amp;itions:</source>
        <translation>Bed&amp;ingungen:</translation>
    </message>
    <message>
        <source>SQL syntax</source>
        <translation>SQL-Syntax</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>Die SQL-Syntax, in der die Anweisung geschrieben wird</translation>
    </message>
    <message>
        <source>SQL with JOIN</source>
        <translation>SQL mit JOIN</translation>
    </message>
    <message>
        <source>SQL with joins in WHERE</source>
        <translation>SQL mit Joins in WHERE</translation>
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
        <translation>An&amp;weisung:</translation>
    </message>
    <message>
        <source>Choose columns to see a statement.</source>
        <translation>Wählen Sie Spalten, um eine Anweisung zu sehen.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueEditorBox</name>
    <message>
        <source>Automatic (by the data type)</source>
        <translation>Automatisch (nach dem Datentyp)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Fixed list</source>
        <translation>Feste Liste</translation>
    </message>
    <message>
        <source>The host&apos;s own editor</source>
        <translation>Eigener Editor der Anwendung</translation>
    </message>
    <message>
        <source>List from a query</source>
        <translation>Liste aus einer Abfrage</translation>
    </message>
    <message>
        <source>Sub-query</source>
        <translation>Unterabfrage</translation>
    </message>
    <message>
        <source>Value editor</source>
        <translation>Werteditor</translation>
    </message>
    <message>
        <source>A line of text, a date or a check box, as the data type wants it.</source>
        <translation>Eine Textzeile, ein Datum oder ein Kontrollkästchen, je nach Datentyp.</translation>
    </message>
    <message>
        <source>Data for the &amp;host:</source>
        <translation>Daten für die Anwendun&amp;g:</translation>
    </message>
    <message>
        <source>&amp;Stored query:</source>
        <translation>&amp;Gespeicherte Abfrage:</translation>
    </message>
    <message>
        <source>A query text, as query panels save it.</source>
        <translation>Ein Abfragetext, wie ihn Abfragepanels speichern.</translation>
    </message>
    <message>
        <source>Values are entered &amp;by:</source>
        <translation>Werteingabe &amp;mit:</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Einfacher Text</translation>
    </message>
    <message>
        <source>By the mask</source>
        <translation>Nach der Maske</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Wie eingegeben</translation>
    </message>
    <message>
        <source>Upper case</source>
        <translation>Großbuchstaben</translation>
    </message>
    <message>
        <source>Lower case</source>
        <translation>Kleinbuchstaben</translation>
    </message>
    <message>
        <source>That of the field</source>
        <translation>Der des Felds</translation>
    </message>
    <message>
        <source>&amp;With the mask&apos;s fixed characters</source>
        <translation>Mit den &amp;festen Zeichen der Maske</translation>
    </message>
    <message>
        <source>De&amp;fault value:</source>
        <translation>&amp;Standardwert:</translation>
    </message>
    <message>
        <source>&amp;Kind of text:</source>
        <translation>A&amp;rt des Textes:</translation>
    </message>
    <message>
        <source>&amp;Mask:</source>
        <translation>Mas&amp;ke:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>&amp;Groß-/Kleinschreibung:</translation>
    </message>
    <message>
        <source>Type of the &amp;value:</source>
        <translation>T&amp;yp des Werts:</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Einfü&amp;gen</translation>
    </message>
    <message>
        <source>Insert rows from the clipboard (%1)</source>
        <translation>Zeilen aus der Zwischenablage einfügen (%1)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Remove the selected rows (%1)</source>
        <translation>Die ausgewählten Zeilen entfernen (%1)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Na&amp;ch oben</translation>
    </message>
    <message>
        <source>Move the row up (%1)</source>
        <translation>Die Zeile nach oben verschieben (%1)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>&amp;Nach unten</translation>
    </message>
    <message>
        <source>Move the row down (%1)</source>
        <translation>Die Zeile nach unten verschieben (%1)</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Abfrage</translation>
    </message>
    <message>
        <source>SELECT value, text FROM ...</source>
        <translation>SELECT Wert, Text FROM ...</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>name=value, one in a line; :name in the query stands for it</source>
        <translation>Name=Wert, einer pro Zeile; in der Abfrage steht :Name dafür</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>Abf&amp;rage:</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>P&amp;arameter:</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>A&amp;usführen</translation>
    </message>
    <message>
        <source>Shows what the query gives</source>
        <translation>Zeigt, was die Abfrage liefert</translation>
    </message>
    <message>
        <source>Text shown</source>
        <translation>Angezeigter Text</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>Wert in SQL</translation>
    </message>
    <message>
        <source>Values that the query gives</source>
        <translation>Werte, die die Abfrage liefert</translation>
    </message>
    <message>
        <source>What is changed here is changed for all %1 selected fields.</source>
        <translation>Änderungen gelten hier für alle %1 ausgewählten Felder.</translation>
    </message>
    <message>
        <source>The model is not connected to a database</source>
        <translation>Das Modell ist mit keiner Datenbank verbunden</translation>
    </message>
    <message>
        <source>Change value editor</source>
        <translation>Werteditor ändern</translation>
    </message>
    <message>
        <source>Rows: %1; the first %2 are shown</source>
        <translation>Zeilen: %1; die ersten %2 werden angezeigt</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Zeilen: %1</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgAddTables</name>
    <message>
        <source>Add their &amp;fields</source>
        <translation>Auch ihre &amp;Felder hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>Sche&amp;ma:</translation>
    </message>
    <message>
        <source>&amp;Links to be made:</source>
        <translation>Neue &amp;Verknüpfungen:</translation>
    </message>
    <message>
        <source>(all)</source>
        <translation>(alle)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source> - by a further alias of the table, &quot;%1&quot;</source>
        <translation> – über einen weiteren Alias der Tabelle, „%1“</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>Tables chosen: %1</source>
        <translation>Gewählte Tabellen: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere Meldung</numerusform>
            <numerusform>und %n weitere Meldungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Tabellen hinzufügen</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgColumns</name>
    <message>
        <source>Add Fields</source>
        <translation>Felder hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>&amp;Tabelle:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Spalten:</translation>
    </message>
    <message>
        <source>&amp;Other column:</source>
        <translation>&amp;Andere Spalte:</translation>
    </message>
    <message>
        <source>No other columns of this table are known.</source>
        <translation>Weitere Spalten dieser Tabelle sind nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgFill</name>
    <message>
        <source>Fill from Database</source>
        <translation>Aus Datenbank füllen</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>F&amp;inish</source>
        <translation>&amp;Fertigstellen</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>Zurück (Alt+Links)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The database gave no answer.</source>
        <translation>Die Datenbank hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>Fill from database</source>
        <translation>Aus Datenbank füllen</translation>
    </message>
    <message>
        <source>Step 1 of 3: Choose the tables</source>
        <translation>Schritt 1 von 3: Tabellen auswählen</translation>
    </message>
    <message>
        <source>Step 2 of 3: Choose and name what is added</source>
        <translation>Schritt 2 von 3: Neues auswählen und benennen</translation>
    </message>
    <message>
        <source>Step 3 of 3: Look at what changes</source>
        <translation>Schritt 3 von 3: Änderungen ansehen</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgLinkEdit</name>
    <message>
        <source>&amp;Quote the names of columns</source>
        <translation>Spaltennamen in &amp;Anführungszeichen</translation>
    </message>
    <message>
        <source>&amp;Condition:</source>
        <translation>&amp;Bedingung:</translation>
    </message>
    <message>
        <source>&amp;First table:</source>
        <translation>&amp;Erste Tabelle:</translation>
    </message>
    <message>
        <source>&amp;Second table:</source>
        <translation>&amp;Zweite Tabelle:</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>&amp;Tauschen</translation>
    </message>
    <message>
        <source>The tables and their columns change places; the rows found stay the same</source>
        <translation>Die Tabellen und ihre Spalten tauschen die Plätze; die gefundenen Zeilen bleiben dieselben</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>Zeilen des Ergebnisses</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>Nur passende Zeilen</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>Alle Zeilen von %1</translation>
    </message>
    <message>
        <source>All rows of both tables</source>
        <translation>Alle Zeilen beider Tabellen</translation>
    </message>
    <message>
        <source>Pair %1: %2</source>
        <translation>Paar %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere Meldung</numerusform>
            <numerusform>und %n weitere Meldungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelEdit</name>
    <message>
        <source>&amp;Tables</source>
        <translation>&amp;Tabellen</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entitäten</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>&amp;Operatoren</translation>
    </message>
    <message>
        <source>&amp;Conditions</source>
        <translation>&amp;Bedingungen</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>&amp;Diagramm</translation>
    </message>
    <message>
        <source>Edit Data Model</source>
        <translation>Datenmodell bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Speichern...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Fill from database...</source>
        <translation>Aus Datenbank füllen...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Data models (*.model)</source>
        <translation>Datenmodelle (*.model)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened. The model stays as it was.</source>
        <translation>Die Datei %1 kann nicht geöffnet werden. Das Modell bleibt unverändert.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>The model cannot be saved in the file %1.</source>
        <translation>Das Modell kann nicht in der Datei %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>Open Model</source>
        <translation>Modell öffnen</translation>
    </message>
    <message>
        <source>Save Model</source>
        <translation>Modell speichern</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>%1 ersetzen?</translation>
    </message>
    <message>
        <source>The database cannot be connected.</source>
        <translation>Die Verbindung zur Datenbank kann nicht hergestellt werden.</translation>
    </message>
    <message>
        <source>There is no help.</source>
        <translation>Es ist keine Hilfe vorhanden.</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>Die Hilfe kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Clear model</source>
        <translation>Modell leeren</translation>
    </message>
    <message>
        <source>The model has been changed.</source>
        <translation>Das Modell wurde geändert.</translation>
    </message>
    <message>
        <source>Do you want to keep the changes?</source>
        <translation>Möchten Sie die Änderungen behalten?</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelSettings</name>
    <message>
        <source>&amp;In list</source>
        <translation>In &amp;Liste</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>&amp;Zwischen</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>&amp;Beginnt mit</translation>
    </message>
    <message>
        <source>&amp;Contains</source>
        <translation>&amp;Enthält</translation>
    </message>
    <message>
        <source>Opening &amp;quote of names:</source>
        <translation>Anführungszeichen &amp;vor Namen:</translation>
    </message>
    <message>
        <source>C&amp;losing quote of names:</source>
        <translation>Anführungszeichen &amp;nach Namen:</translation>
    </message>
    <message>
        <source>F&amp;ull table name:</source>
        <translation>Vollständiger &amp;Tabellenname:</translation>
    </message>
    <message>
        <source>DB, OWNER and TABLE stand for the names</source>
        <translation>DB, OWNER und TABLE stehen für die Namen</translation>
    </message>
    <message>
        <source>&amp;True:</source>
        <translation>&amp;Wahr:</translation>
    </message>
    <message>
        <source>&amp;False:</source>
        <translation>&amp;Falsch:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd&apos;</source>
        <translation>Leer: &apos;yyyy-mm-dd&apos;</translation>
    </message>
    <message>
        <source>Ti&amp;me:</source>
        <translation>&amp;Uhrzeit:</translation>
    </message>
    <message>
        <source>Empty: &apos;hh:nn:ss&apos;</source>
        <translation>Leer: &apos;hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>D&amp;ate and time:</source>
        <translation>Datum und Uhr&amp;zeit:</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd hh:nn:ss&apos;</source>
        <translation>Leer: &apos;yyyy-mm-dd hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>&amp;Wildcard of LIKE:</source>
        <translation>&amp;Platzhalter bei LIKE:</translation>
    </message>
    <message>
        <source>F&amp;unction for lower case:</source>
        <translation>Funktion für &amp;Kleinschreibung:</translation>
    </message>
    <message>
        <source>Function for li&amp;sts:</source>
        <translation>Funktion für &amp;Listen:</translation>
    </message>
    <message>
        <source>@1 stands for what is listed</source>
        <translation>@1 steht für das, was aufgelistet wird</translation>
    </message>
    <message>
        <source>Default &amp;database:</source>
        <translation>Standard&amp;datenbank:</translation>
    </message>
    <message>
        <source>Its tables are written without it</source>
        <translation>Ihre Tabellen werden ohne sie geschrieben</translation>
    </message>
    <message>
        <source>Default o&amp;wner:</source>
        <translation>Standard&amp;besitzer:</translation>
    </message>
    <message>
        <source>Outer joins are written with OUTE&amp;R</source>
        <translation>Äußere Joins mit OUTE&amp;R schreiben</translation>
    </message>
    <message>
        <source>AS stands before the alias of a ta&amp;ble</source>
        <translation>&amp;AS vor dem Alias einer Tabelle</translation>
    </message>
    <message>
        <source>Tables of &amp;several databases</source>
        <translation>&amp;Tabellen aus mehreren Datenbanken</translation>
    </message>
    <message>
        <source>The connection is stored with the &amp;model</source>
        <translation>&amp;Verbindung mit dem Modell speichern</translation>
    </message>
    <message>
        <source>Settings of the Model</source>
        <translation>Einstellungen des Modells</translation>
    </message>
    <message>
        <source>S&amp;QL</source>
        <translation>S&amp;QL</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modell</translation>
    </message>
    <message>
        <source>D&amp;efault operators</source>
        <translation>&amp;Standardoperatoren</translation>
    </message>
    <message>
        <source>Example of a statement</source>
        <translation>Beispiel einer Anweisung</translation>
    </message>
    <message>
        <source>A statement is written so:</source>
        <translation>So wird eine Anweisung geschrieben:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Voreinstellung</translation>
    </message>
    <message>
        <source>(own settings)</source>
        <translation>(eigene Einstellungen)</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>Voreinstellun&amp;g:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>Abfragen beginnen bei dieser Tabelle</translation>
    </message>
    <message>
        <source>Menus list the &amp;fields outside groups first</source>
        <translation>Menüs zeigen &amp;Felder ohne Gruppe zuerst</translation>
    </message>
    <message>
        <source>Default m&amp;ain table:</source>
        <translation>Standard&amp;haupttabelle:</translation>
    </message>
    <message>
        <source>Types whose values are written in quotes</source>
        <translation>Typen, deren Werte in Anführungszeichen stehen</translation>
    </message>
    <message>
        <source>&amp;Booleans</source>
        <translation>Boolesche W&amp;erte</translation>
    </message>
    <message>
        <source>Dates and &amp;times</source>
        <translation>Datums- und Ze&amp;itwerte</translation>
    </message>
    <message>
        <source>Groups that the model has</source>
        <translation>Gruppen im Modell</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>Beim Ausschalten einer Gruppe werden ihre Operatoren gelöscht</translation>
    </message>
    <message>
        <source>Display names of the default operators</source>
        <translation>Anzeigenamen der Standardoperatoren</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Anzeigename</translation>
    </message>
    <message>
        <source>Change settings</source>
        <translation>Einstellungen ändern</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgRFieldEdit</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgTitlesEdit</name>
    <message>
        <source>Edit Texts</source>
        <translation>Texte bearbeiten</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>&amp;Alle zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Laden...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>S&amp;peichern...</translation>
    </message>
    <message>
        <source>Load Texts</source>
        <translation>Texte laden</translation>
    </message>
    <message>
        <source>Texts (*.titles);;All files (*)</source>
        <translation>Texte (*.titles);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save Texts</source>
        <translation>Texte speichern</translation>
    </message>
    <message>
        <source>%1 is not a UTF-8 text.</source>
        <translation>%1 ist kein UTF-8-Text.</translation>
    </message>
    <message>
        <source>%1 has none of these texts.</source>
        <translation>%1 enthält keinen dieser Texte.</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>Texts to be looked at: %1 (see the notes)</source>
        <translation>Zu prüfende Texte: %1 (siehe Hinweise)</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgValueList</name>
    <message>
        <source>&amp;Values, one in a line:</source>
        <translation>&amp;Werte, einer pro Zeile:</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Werte: %1</translation>
    </message>
</context>
</TS>
