<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>tolvi::TCatalogueTablesModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schéma</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Nature</translation>
    </message>
    <message>
        <source>view</source>
        <translation>vue</translation>
    </message>
    <message>
        <source>table</source>
        <translation>table</translation>
    </message>
    <message>
        <source>%1, in the model</source>
        <translation>%1, dans le modèle</translation>
    </message>
</context>
<context>
    <name>tolvi::TConditionsPage</name>
    <message>
        <source>Predefined conditions</source>
        <translation>Conditions prédéfinies</translation>
    </message>
    <message>
        <source>Display format</source>
        <translation>Format d’affichage</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>New condition</source>
        <translation>Nouvelle condition</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Display &amp;format:</source>
        <translation>&amp;Format d’affichage&#xa0;:</translation>
    </message>
    <message>
        <source>@ is the place of a value.</source>
        <translation>@ marque la place d’une valeur.</translation>
    </message>
    <message>
        <source>S&amp;QL:</source>
        <translation>S&amp;QL&#xa0;:</translation>
    </message>
    <message>
        <source>@1 and @2 stand for the values.</source>
        <translation>@1 et @2 représentent les valeurs.</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>Tables&#xa0;:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemple&#xa0;:</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Text before it</source>
        <translation>Texte qui précède</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>Modifier le type de la valeur</translation>
    </message>
    <message>
        <source>A single value</source>
        <translation>Une seule valeur</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>Une liste de valeurs</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>Une sous-requête</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>Modifier la forme de la valeur</translation>
    </message>
    <message>
        <source>Data t&amp;ype:</source>
        <translation>T&amp;ype de données&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>For&amp;me&#xa0;:</translation>
    </message>
    <message>
        <source>Change SQL</source>
        <translation>Modifier le SQL</translation>
    </message>
    <message>
        <source>Change display format</source>
        <translation>Modifier le format d’affichage</translation>
    </message>
    <message>
        <source>Add condition</source>
        <translation>Ajouter une condition</translation>
    </message>
    <message>
        <source>Delete condition</source>
        <translation>Supprimer la condition</translation>
    </message>
</context>
<context>
    <name>tolvi::TDesignMinimap</name>
    <message>
        <source>The whole diagram; click to go there</source>
        <translation>Le diagramme entier&#xa0;; cliquer pour y aller</translation>
    </message>
    <message>
        <source>The whole diagram</source>
        <translation>Le diagramme entier</translation>
    </message>
</context>
<context>
    <name>tolvi::TDropDownDate</name>
    <message>
        <source>This is no time. Write it like %1.</source>
        <translation>Ce n’est pas une heure. Écrivez-la comme %1.</translation>
    </message>
    <message>
        <source>This is no date. Write it like %1.</source>
        <translation>Ce n’est pas une date. Écrivez-la comme %1.</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>&amp;Aujourd’hui</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Maintenant</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesModel</name>
    <message>
        <source>(no group)</source>
        <translation>(aucun groupe)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Column or expression</source>
        <translation>Colonne ou expression</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntitiesPage</name>
    <message>
        <source>Fields in groups</source>
        <translation>Champs par groupe</translation>
    </message>
    <message>
        <source>Find fields or groups</source>
        <translation>Rechercher des champs ou des groupes</translation>
    </message>
    <message>
        <source>Add columns...</source>
        <translation>Ajouter des colonnes...</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Opérateurs</translation>
    </message>
    <message>
        <source>Value Editor</source>
        <translation>Éditeur de valeurs</translation>
    </message>
    <message>
        <source>Add columns</source>
        <translation>Ajouter des colonnes</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nouveau champ</translation>
    </message>
    <message>
        <source>Add expression</source>
        <translation>Ajouter une expression</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Nouveau groupe</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Ajouter un groupe</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Supprimer le groupe</translation>
    </message>
    <message>
        <source>Delete field</source>
        <translation>Supprimer le champ</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>Déplacer le champ</translation>
    </message>
    <message>
        <source>Move group</source>
        <translation>Déplacer le groupe</translation>
    </message>
</context>
<context>
    <name>tolvi::TEntryTable</name>
    <message>
        <source>Text shown</source>
        <translation>Texte affiché</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>Valeur en SQL</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>Liste de valeurs</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldForm</name>
    <message>
        <source>Offered in conditions</source>
        <translation>Proposé dans les conditions</translation>
    </message>
    <message>
        <source>Offer in conditions</source>
        <translation>Proposer dans les conditions</translation>
    </message>
    <message>
        <source>Offered as result column</source>
        <translation>Proposé comme colonne de résultat</translation>
    </message>
    <message>
        <source>Offer as result column</source>
        <translation>Proposer comme colonne de résultat</translation>
    </message>
    <message>
        <source>Aggregate</source>
        <translation>Agrégat</translation>
    </message>
    <message>
        <source>Mark as aggregate</source>
        <translation>Marquer comme agrégat</translation>
    </message>
    <message>
        <source>The expression calls an aggregate function: conditions on it go to HAVING</source>
        <translation>L’expression appelle une fonction d’agrégation&#xa0;: les conditions qui l’utilisent vont dans HAVING</translation>
    </message>
    <message>
        <source>Quoted column name</source>
        <translation>Nom de colonne entre guillemets</translation>
    </message>
    <message>
        <source>Quote column name</source>
        <translation>Mettre le nom de colonne entre guillemets</translation>
    </message>
    <message>
        <source>Group &amp;name:</source>
        <translation>No&amp;m du groupe&#xa0;:</translation>
    </message>
    <message>
        <source>Change group name</source>
        <translation>Modifier le nom du groupe</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>Nom a&amp;ffiché&#xa0;:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Modifier le nom affiché</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>Nat&amp;ure&#xa0;:</translation>
    </message>
    <message>
        <source>Change kind</source>
        <translation>Modifier la nature</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>Ta&amp;ble&#xa0;:</translation>
    </message>
    <message>
        <source>Change table</source>
        <translation>Modifier la table</translation>
    </message>
    <message>
        <source>E&amp;xpression:</source>
        <translation>E&amp;xpression&#xa0;:</translation>
    </message>
    <message>
        <source>Change expression</source>
        <translation>Modifier l’expression</translation>
    </message>
    <message>
        <source>Tables:</source>
        <translation>Tables&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Groupe&#xa0;:</translation>
    </message>
    <message>
        <source>Move fields to group</source>
        <translation>Déplacer les champs dans le groupe</translation>
    </message>
    <message>
        <source>(unknown)</source>
        <translation>(inconnu)</translation>
    </message>
    <message>
        <source>T&amp;ype:</source>
        <translation>T&amp;ype&#xa0;:</translation>
    </message>
    <message>
        <source>Change type</source>
        <translation>Modifier le type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Change size</source>
        <translation>Modifier la taille</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>T&amp;aille&#xa0;:</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID&#xa0;:</translation>
    </message>
    <message>
        <source>(fields chosen: %1)</source>
        <translation>(champs choisis&#xa0;: %1)</translation>
    </message>
    <message>
        <source>(no group)</source>
        <translation>(aucun groupe)</translation>
    </message>
    <message>
        <source>Colu&amp;mn:</source>
        <translation>Colo&amp;nne&#xa0;:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldOperators</name>
    <message>
        <source>Offered operators</source>
        <translation>Opérateurs proposés</translation>
    </message>
    <message>
        <source>O&amp;ffered:</source>
        <translation>&amp;Proposés&#xa0;:</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove operator</source>
        <translation>Retirer l’opérateur</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Operators that are not offered</source>
        <translation>Opérateurs non proposés</translation>
    </message>
    <message>
        <source>&amp;Not offered:</source>
        <translation>&amp;Non proposés&#xa0;:</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Proposer</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>Proposer l’opérateur</translation>
    </message>
    <message>
        <source>All that apply</source>
        <translation>Tous ceux qui conviennent</translation>
    </message>
    <message>
        <source>Offer just the operators that are made for the type of the field</source>
        <translation>Proposer exactement les opérateurs prévus pour le type du champ</translation>
    </message>
    <message>
        <source>- by some</source>
        <translation>– par certains</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>Déplacer l’opérateur</translation>
    </message>
    <message>
        <source>Offer all operators that apply</source>
        <translation>Proposer tous les opérateurs qui conviennent</translation>
    </message>
    <message>
        <source>Remove all operators</source>
        <translation>Retirer tous les opérateurs</translation>
    </message>
</context>
<context>
    <name>tolvi::TFieldTree</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find a field</source>
        <translation>Rechercher un champ</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillChoicePage</name>
    <message>
        <source>Tables and fields that are added</source>
        <translation>Tables et champs ajoutés</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>T&amp;out</translation>
    </message>
    <message>
        <source>Check all that is listed</source>
        <translation>Cocher tous les éléments affichés</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Aucun</translation>
    </message>
    <message>
        <source>Uncheck all that is listed</source>
        <translation>Décocher tous les éléments affichés</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Reno&amp;mmer</translation>
    </message>
    <message>
        <source>Change the display name (F2)</source>
        <translation>Modifier le nom affiché (F2)</translation>
    </message>
    <message>
        <source>&amp;Lists of Values</source>
        <translation>&amp;Listes de valeurs</translation>
    </message>
    <message>
        <source>With or without lists of values (Ctrl+L)</source>
        <translation>Avec ou sans listes de valeurs (Ctrl+L)</translation>
    </message>
    <message>
        <source>Links that are added</source>
        <translation>Liens ajoutés</translation>
    </message>
    <message>
        <source>Check all links that are listed</source>
        <translation>Cocher tous les liens affichés</translation>
    </message>
    <message>
        <source>Uncheck all links that are listed</source>
        <translation>Décocher tous les liens affichés</translation>
    </message>
    <message>
        <source>&amp;Rows...</source>
        <translation>Li&amp;gnes...</translation>
    </message>
    <message>
        <source>Choose which rows a link keeps (F2)</source>
        <translation>Choisir les lignes qu’un lien conserve (F2)</translation>
    </message>
    <message>
        <source>&amp;Tables and Fields (%1)</source>
        <translation>Tables et &amp;champs (%1)</translation>
    </message>
    <message>
        <source>Lin&amp;ks (%1)</source>
        <translation>L&amp;iens (%1)</translation>
    </message>
    <message>
        <source>Nothing is added: the model has all that these tables have.</source>
        <translation>Rien n’est ajouté&#xa0;: le modèle contient déjà tout ce que contiennent ces tables.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillFieldItems</name>
    <message>
        <source>Further alias of %1</source>
        <translation>Autre alias de %1</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>Dans le modèle</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>Nouvelle table</translation>
    </message>
    <message>
        <source>with a list</source>
        <translation>avec une liste</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>Table, column</source>
        <translation>Table, colonne</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nom affiché</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>List of values</source>
        <translation>Liste de valeurs</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillLinkItems</name>
    <message>
        <source>Only rows that match</source>
        <translation>Seulement les lignes qui correspondent</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>Toutes les lignes de %1</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>Toutes les lignes des deux</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>Lignes du résultat</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPage</name>
    <message>
        <source>&amp;Find:</source>
        <translation>Rec&amp;hercher&#xa0;:</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillPreviewPage</name>
    <message>
        <source>What the database no longer has stays in the model. Delete it there if nothing needs it.</source>
        <translation>Ce qui n’existe plus dans la base de données reste dans le modèle. Supprimez-le du modèle si rien n’en a besoin.</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Ce qui change</translation>
    </message>
    <message>
        <source>Added: %1 tables, %2 fields, %3 links.</source>
        <translation>Ajouts&#xa0;: %1 tables, %2 champs, %3 liens.</translation>
    </message>
    <message>
        <source>Changed: %1 types.</source>
        <translation>Modifications&#xa0;: %1 types.</translation>
    </message>
    <message>
        <source>Vanished: %1.</source>
        <translation>Disparitions&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Il n’y a rien à compléter.</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillReportItems</name>
    <message>
        <source>Types that change</source>
        <translation>Types qui changent</translation>
    </message>
    <message>
        <source>Types that differ in the database</source>
        <translation>Types différents dans la base de données</translation>
    </message>
    <message>
        <source>New tables</source>
        <translation>Nouvelles tables</translation>
    </message>
    <message>
        <source>New groups</source>
        <translation>Nouveaux groupes</translation>
    </message>
    <message>
        <source>New fields</source>
        <translation>Nouveaux champs</translation>
    </message>
    <message>
        <source>New lists of values</source>
        <translation>Nouvelles listes de valeurs</translation>
    </message>
    <message>
        <source>New links</source>
        <translation>Nouveaux liens</translation>
    </message>
    <message>
        <source>Vanished tables</source>
        <translation>Tables disparues</translation>
    </message>
    <message>
        <source>Vanished fields</source>
        <translation>Champs disparus</translation>
    </message>
    <message>
        <source>Vanished links</source>
        <translation>Liens disparus</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTableItems</name>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>In the model</source>
        <translation>Dans le modèle</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Nature</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
</context>
<context>
    <name>tolvi::TFillTablesPage</name>
    <message>
        <source>Tables of the database</source>
        <translation>Tables de la base de données</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Base de données&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>T&amp;outes</translation>
    </message>
    <message>
        <source>Check all tables that are listed</source>
        <translation>Cocher toutes les tables affichées</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>&amp;Aucune</translation>
    </message>
    <message>
        <source>Uncheck all tables that are listed</source>
        <translation>Décocher toutes les tables affichées</translation>
    </message>
    <message>
        <source>Only Ne&amp;w</source>
        <translation>Nou&amp;velles seulement</translation>
    </message>
    <message>
        <source>Check those that the model does not have, uncheck the others</source>
        <translation>Cocher celles que le modèle n’a pas, décocher les autres</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>Optio&amp;ns</translation>
    </message>
    <message>
        <source>Links from foreign keys</source>
        <translation>Liens d’après les clés étrangères</translation>
    </message>
    <message>
        <source>Links from names of columns</source>
        <translation>Liens d’après les noms de colonnes</translation>
    </message>
    <message>
        <source>Further aliases of tables that are linked twice</source>
        <translation>Alias supplémentaires pour les tables liées deux fois</translation>
    </message>
    <message>
        <source>New columns of tables that the model has</source>
        <translation>Nouvelles colonnes des tables du modèle</translation>
    </message>
    <message>
        <source>Take over types that have changed</source>
        <translation>Reprendre les types modifiés</translation>
    </message>
    <message>
        <source>Quote names in mixed case</source>
        <translation>Noms à casse mixte entre guillemets</translation>
    </message>
    <message>
        <source>Lists of values for foreign keys, up to</source>
        <translation>Listes de valeurs pour les clés étrangères, jusqu’à</translation>
    </message>
    <message>
        <source> rows</source>
        <translation> lignes</translation>
    </message>
    <message>
        <source>Most rows of a list of values</source>
        <translation>Nombre maximal de lignes d’une liste de valeurs</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>Seulement les lignes qui correspondent</translation>
    </message>
    <message>
        <source>All rows of the table that refers</source>
        <translation>Toutes les lignes de la table qui fait référence</translation>
    </message>
    <message>
        <source>All rows of the table referred to</source>
        <translation>Toutes les lignes de la table référencée</translation>
    </message>
    <message>
        <source>All rows of both</source>
        <translation>Toutes les lignes des deux</translation>
    </message>
    <message>
        <source>Rows of &amp;links:</source>
        <translation>Lignes des &amp;liens&#xa0;:</translation>
    </message>
    <message>
        <source>(that of the connection)</source>
        <translation>(celle de la connexion)</translation>
    </message>
    <message>
        <source>%1 of %2 tables are checked</source>
        <translation>%1 tables cochées sur %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TItemList</name>
    <message>
        <source>Type to search</source>
        <translation>Saisir pour rechercher</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Nothing to choose from</source>
        <translation>Rien à choisir</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Aucun résultat</translation>
    </message>
</context>
<context>
    <name>tolvi::TJResultFieldsPanel</name>
    <message>
        <source>Sorting</source>
        <translation>Tri</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
</context>
<context>
    <name>tolvi::TJStructDesignPanel</name>
    <message>
        <source>Move tables</source>
        <translation>Déplacer des tables</translation>
    </message>
    <message>
        <source>Resize table</source>
        <translation>Redimensionner la table</translation>
    </message>
    <message>
        <source>Diagram of tables and links</source>
        <translation>Diagramme des tables et des liens</translation>
    </message>
    <message>
        <source>Arrange tables in rows</source>
        <translation>Disposer les tables en lignes</translation>
    </message>
    <message>
        <source>Arrange tables by links</source>
        <translation>Disposer les tables selon les liens</translation>
    </message>
    <message>
        <source>Fit height</source>
        <translation>Adapter la hauteur</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1 x %2 pixels.</source>
        <translation>Mémoire insuffisante pour une image de %1 × %2 pixels.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png, .svg or .pdf.</source>
        <translation>Le nom du fichier «&#xa0;%1&#xa0;» doit se terminer par .png, .svg ou .pdf.</translation>
    </message>
    <message>
        <source>Export Diagram</source>
        <translation>Exporter le diagramme</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg);;Documents (*.pdf)</source>
        <translation>Images (*.png *.svg);;Documents (*.pdf)</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Ajouter des tables</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Supprimer la table</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Supprimer le lien</translation>
    </message>
    <message>
        <source>Delete tables</source>
        <translation>Supprimer les tables</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>Modifier le lien</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Ajouter un lien</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>Table %1</translation>
    </message>
    <message>
        <source>field %1</source>
        <translation>champ %1</translation>
    </message>
    <message>
        <source>link %1</source>
        <translation>lien %1</translation>
    </message>
    <message>
        <source>Add &amp;Tables...</source>
        <translation>Ajouter des &amp;tables...</translation>
    </message>
    <message>
        <source>Add &amp;Link</source>
        <translation>Ajouter un &amp;lien</translation>
    </message>
    <message>
        <source>&amp;Cancel Adding</source>
        <translation>A&amp;bandonner l’ajout</translation>
    </message>
    <message>
        <source>&amp;Edit Link...</source>
        <translation>Modifier le li&amp;en...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Tout séle&amp;ctionner</translation>
    </message>
    <message>
        <source>Fit &amp;Height to Fields</source>
        <translation>Adapter la &amp;hauteur aux champs</translation>
    </message>
    <message>
        <source>Arrange in Ro&amp;ws</source>
        <translation>Disposer en li&amp;gnes</translation>
    </message>
    <message>
        <source>Arrange &amp;by Links</source>
        <translation>&amp;Disposer selon les liens</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Zoom arrière</translation>
    </message>
    <message>
        <source>Show &amp;Whole Diagram</source>
        <translation>A&amp;fficher tout le diagramme</translation>
    </message>
    <message>
        <source>Original &amp;Size</source>
        <translation>Taille d’&amp;origine</translation>
    </message>
    <message>
        <source>Cop&amp;y Picture</source>
        <translation>Copier l’i&amp;mage</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>Im&amp;primer...</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairs</name>
    <message>
        <source>Column pairs</source>
        <translation>Paires de colonnes</translation>
    </message>
    <message>
        <source>New pair</source>
        <translation>Nouvelle paire</translation>
    </message>
    <message>
        <source>Delete pairs</source>
        <translation>Supprimer les paires</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
</context>
<context>
    <name>tolvi::TLinkPairsModel</name>
    <message>
        <source>A constant...</source>
        <translation>Une constante...</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>Constant: %1</source>
        <translation>Constante&#xa0;: %1</translation>
    </message>
    <message>
        <source>(choose a column)</source>
        <translation>(choisir une colonne)</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelCheckPane</name>
    <message>
        <source>What is wrong with the model</source>
        <translation>Problèmes du modèle</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Nothing is wrong with the model.</source>
        <translation>Le modèle ne présente aucun problème.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Erreurs&#xa0;: %1, avertissements&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TModelPage</name>
    <message>
        <source>The model stays as it was.</source>
        <translation>Le modèle reste inchangé.</translation>
    </message>
</context>
<context>
    <name>tolvi::TOperatorsPage</name>
    <message>
        <source>In &amp;list</source>
        <translation>Dans &amp;une liste</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>Ent&amp;re</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>Commence &amp;par</translation>
    </message>
    <message>
        <source>Conta&amp;ins</source>
        <translation>Co&amp;ntient</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xte</translation>
    </message>
    <message>
        <source>N&amp;umber</source>
        <translation>Nom&amp;bre</translation>
    </message>
    <message>
        <source>D&amp;ate</source>
        <translation>D&amp;ate</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>No&amp;m&#xa0;:</translation>
    </message>
    <message>
        <source>Change name</source>
        <translation>Modifier le nom</translation>
    </message>
    <message>
        <source>Dis&amp;play name:</source>
        <translation>Nom affic&amp;hé&#xa0;:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Modifier le nom affiché</translation>
    </message>
    <message>
        <source>S&amp;QL template:</source>
        <translation>Modèle S&amp;QL&#xa0;:</translation>
    </message>
    <message>
        <source>Change SQL template</source>
        <translation>Modifier le modèle SQL</translation>
    </message>
    <message>
        <source>&amp;Between values:</source>
        <translation>Entre les &amp;valeurs&#xa0;:</translation>
    </message>
    <message>
        <source>Change value format</source>
        <translation>Modifier le format des valeurs</translation>
    </message>
    <message>
        <source>Operators</source>
        <translation>Opérateurs</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nom affiché</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>SQL template</source>
        <translation>Modèle SQL</translation>
    </message>
    <message>
        <source>New operator</source>
        <translation>Nouvel opérateur</translation>
    </message>
    <message>
        <source>Add defaults</source>
        <translation>Ajouter ceux par défaut</translation>
    </message>
    <message>
        <source>Adds the default operators that the model lacks</source>
        <translation>Ajoute les opérateurs par défaut qui manquent au modèle</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Tout supprimer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Default operators that the model has</source>
        <translation>Opérateurs par défaut du modèle</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>Désactiver un groupe supprime ses opérateurs</translation>
    </message>
    <message>
        <source>Change default operators</source>
        <translation>Modifier les opérateurs par défaut</translation>
    </message>
    <message>
        <source>@f stands for the field, @1 and @2 for the values.</source>
        <translation>@f représente le champ, @1 et @2 les valeurs.</translation>
    </message>
    <message>
        <source>What users read between the two values, as &quot;and&quot;</source>
        <translation>Ce qui se lit entre les deux valeurs, par exemple «&#xa0;et&#xa0;»</translation>
    </message>
    <message>
        <source>Single values</source>
        <translation>Valeurs simples</translation>
    </message>
    <message>
        <source>A list of values</source>
        <translation>Une liste de valeurs</translation>
    </message>
    <message>
        <source>A sub-query</source>
        <translation>Une sous-requête</translation>
    </message>
    <message>
        <source>Change value kind</source>
        <translation>Modifier la forme des valeurs</translation>
    </message>
    <message>
        <source>The type of the field</source>
        <translation>Le type du champ</translation>
    </message>
    <message>
        <source>Change value type</source>
        <translation>Modifier le type des valeurs</translation>
    </message>
    <message>
        <source>Texts are compared without re&amp;gard to case</source>
        <translation>Comparer les textes sans é&amp;gard à la casse</translation>
    </message>
    <message>
        <source>Change letter case</source>
        <translation>Modifier la casse</translation>
    </message>
    <message>
        <source>&amp;Kind of values:</source>
        <translation>&amp;Forme des valeurs&#xa0;:</translation>
    </message>
    <message>
        <source>T&amp;ype of values:</source>
        <translation>T&amp;ype des valeurs&#xa0;:</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Exemple</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Exemple&#xa0;:</translation>
    </message>
    <message>
        <source>Types of fields to which it applies</source>
        <translation>Types de champs auxquels il s’applique</translation>
    </message>
    <message>
        <source>Types of fields</source>
        <translation>Types de champs</translation>
    </message>
    <message>
        <source>Offe&amp;r for all of them</source>
        <translation>A&amp;jouter à tous ces champs</translation>
    </message>
    <message>
        <source>All fields of these types offer the operator then</source>
        <translation>Tous les champs de ces types proposent alors l’opérateur</translation>
    </message>
    <message>
        <source>Fields of these types: %1. Fields that offer it: %2.</source>
        <translation>Champs de ces types&#xa0;: %1. Champs qui le proposent&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Change types</source>
        <translation>Modifier les types</translation>
    </message>
    <message>
        <source>Add operator</source>
        <translation>Ajouter un opérateur</translation>
    </message>
    <message>
        <source>Add default operators</source>
        <translation>Ajouter les opérateurs par défaut</translation>
    </message>
    <message>
        <source>Copy operator</source>
        <translation>Copier l’opérateur</translation>
    </message>
    <message>
        <source>Delete operator</source>
        <translation>Supprimer l’opérateur</translation>
    </message>
    <message>
        <source>Delete all operators</source>
        <translation>Supprimer tous les opérateurs</translation>
    </message>
    <message>
        <source>Move operator</source>
        <translation>Déplacer l’opérateur</translation>
    </message>
    <message>
        <source>Offer operator</source>
        <translation>Proposer l’opérateur</translation>
    </message>
</context>
<context>
    <name>tolvi::TPartList</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPParamLabel</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Prompt:</source>
        <translation>&amp;Question&#xa0;:</translation>
    </message>
</context>
<context>
    <name>tolvi::TQPRow</name>
    <message>
        <source>Link word</source>
        <translation>Mot de liaison</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Value %1</source>
        <translation>Valeur %1</translation>
    </message>
    <message>
        <source>The row is locked: it cannot be changed here</source>
        <translation>La ligne est verrouillée&#xa0;: elle ne peut pas être modifiée ici</translation>
    </message>
    <message>
        <source>The bracket holds a locked row: it cannot be changed here</source>
        <translation>Le groupe contient une ligne verrouillée&#xa0;: il ne peut pas être modifié ici</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFColumnsPage</name>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>The name of the column in SQL. It follows the name above.</source>
        <translation>Le nom de la colonne en SQL. Il suit le nom ci-dessus.</translation>
    </message>
    <message>
        <source>Type an expression; { offers the fields</source>
        <translation>Saisir une expression&#xa0;; { propose les champs</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>not shown</source>
        <translation>non affiché</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>affiché</translation>
    </message>
    <message>
        <source>Select a field first.</source>
        <translation>Sélectionnez d’abord un champ.</translation>
    </message>
</context>
<context>
    <name>tolvi::TRFSortingPage</name>
    <message>
        <source>The result shows all columns; the result fields only sort it.</source>
        <translation>Le résultat montre toutes les colonnes&#xa0;; les champs de résultat ne font que le trier.</translation>
    </message>
    <message>
        <source>Drag a row, or press Alt+Up or Alt+Down, to move it</source>
        <translation>Pour déplacer une ligne, la faire glisser ou appuyer sur Alt+Haut ou Alt+Bas</translation>
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
        <translation>&amp;Lire ce SQL</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>The text is not read yet</source>
        <translation>Le texte n’a pas encore été lu</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesModel</name>
    <message>
        <source>The default main table</source>
        <translation>La table principale par défaut</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nom affiché</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
</context>
<context>
    <name>tolvi::TTablesPage</name>
    <message>
        <source>Inner</source>
        <translation>Interne</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Complète</translation>
    </message>
    <message>
        <source>&amp;Alias:</source>
        <translation>&amp;Alias&#xa0;:</translation>
    </message>
    <message>
        <source>Change alias</source>
        <translation>Modifier l’alias</translation>
    </message>
    <message>
        <source>Display &amp;name:</source>
        <translation>Nom a&amp;ffiché&#xa0;:</translation>
    </message>
    <message>
        <source>Change display name</source>
        <translation>Modifier le nom affiché</translation>
    </message>
    <message>
        <source>Ta&amp;ble:</source>
        <translation>No&amp;m de la table&#xa0;:</translation>
    </message>
    <message>
        <source>Change table name</source>
        <translation>Modifier le nom de la table</translation>
    </message>
    <message>
        <source>Databa&amp;se:</source>
        <translation>&amp;Base de données&#xa0;:</translation>
    </message>
    <message>
        <source>Change database name</source>
        <translation>Modifier le nom de la base de données</translation>
    </message>
    <message>
        <source>&amp;Hints:</source>
        <translation>Indicateu&amp;rs&#xa0;:</translation>
    </message>
    <message>
        <source>Change hints</source>
        <translation>Modifier les indicateurs</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tables</translation>
    </message>
    <message>
        <source>Find tables</source>
        <translation>Rechercher des tables</translation>
    </message>
    <message>
        <source>There are no tables yet: add some from the database, or by hand.</source>
        <translation>Il n’y a pas encore de tables&#xa0;: ajoutez-en depuis la base de données ou à la main.</translation>
    </message>
    <message>
        <source>Add from database...</source>
        <translation>Ajouter depuis la base de données...</translation>
    </message>
    <message>
        <source>New table</source>
        <translation>Nouvelle table</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>&amp;Quoted name</source>
        <translation>Nom entre &amp;guillemets</translation>
    </message>
    <message>
        <source>Default &amp;main table</source>
        <translation>Table &amp;principale par défaut</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>Les requêtes partent de cette table</translation>
    </message>
    <message>
        <source>Linked with</source>
        <translation>Lié à</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Jointure</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Condition</translation>
    </message>
    <message>
        <source>Links of the table</source>
        <translation>Liens de la table</translation>
    </message>
    <message>
        <source>&amp;Links:</source>
        <translation>Lie&amp;ns&#xa0;:</translation>
    </message>
    <message>
        <source>Add link...</source>
        <translation>Ajouter un lien...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Supprimer le lien</translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Ajouter des tables</translation>
    </message>
    <message>
        <source>NewTable</source>
        <translation>NouvelleTable</translation>
    </message>
    <message>
        <source>Add table</source>
        <translation>Ajouter une table</translation>
    </message>
    <message>
        <source>Delete table</source>
        <translation>Supprimer la table</translation>
    </message>
    <message>
        <source>Move table</source>
        <translation>Déplacer la table</translation>
    </message>
    <message>
        <source>The SQL of fields (%1) and conditions (%2) names the table &quot;%3&quot;. Change it, too?</source>
        <translation>Le SQL de champs (%1) et de conditions (%2) nomme la table «&#xa0;%3&#xa0;». Le modifier aussi&#xa0;?</translation>
    </message>
    <message>
        <source>Unchanged, it no longer finds the table.</source>
        <translation>Inchangé, il ne trouve plus la table.</translation>
    </message>
    <message>
        <source>Quote table name</source>
        <translation>Mettre le nom de la table entre guillemets</translation>
    </message>
    <message>
        <source>Set default main table</source>
        <translation>Définir la table principale par défaut</translation>
    </message>
    <message>
        <source>Add link</source>
        <translation>Ajouter un lien</translation>
    </message>
    <message>
        <source>Edit link</source>
        <translation>Modifier le lien</translation>
    </message>
</context>
<context>
    <name>tolvi::TTitlesModel</name>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Default text</source>
        <translation>Texte par défaut</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
</context>
<context>
    <name>tolvi::TTryPane</name>
    <message>
        <source>Col&amp;umns:</source>
        <translation>Co&amp;lonnes&#xa0;:</translation>
    </message>
    <message>
        <source>Cond&amp;itions:</source>
        <translation>Cond&amp;itions&#xa0;:</translation>
    </message>
    <message>
        <source>SQL syntax</source>
        <translation>Syntaxe SQL</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>La syntaxe SQL dans laquelle l’instruction est écrite</translation>
    </message>
    <message>
        <source>SQL with JOIN</source>
        <translation>SQL avec JOIN</translation>
    </message>
    <message>
        <source>SQL with joins in WHERE</source>
        <translation>SQL avec jointures dans WHERE</translation>
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
        <translation>In&amp;struction&#xa0;:</translation>
    </message>
    <message>
        <source>Choose columns to see a statement.</source>
        <translation>Choisissez des colonnes pour voir une instruction.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueEditorBox</name>
    <message>
        <source>Automatic (by the data type)</source>
        <translation>Automatique (selon le type de données)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Fixed list</source>
        <translation>Liste fixe</translation>
    </message>
    <message>
        <source>The host&apos;s own editor</source>
        <translation>Éditeur propre à l’application</translation>
    </message>
    <message>
        <source>List from a query</source>
        <translation>Liste issue d’une requête</translation>
    </message>
    <message>
        <source>Sub-query</source>
        <translation>Sous-requête</translation>
    </message>
    <message>
        <source>Value editor</source>
        <translation>Éditeur de valeurs</translation>
    </message>
    <message>
        <source>A line of text, a date or a check box, as the data type wants it.</source>
        <translation>Une ligne de texte, une date ou une case à cocher, selon le type de données.</translation>
    </message>
    <message>
        <source>Data for the &amp;host:</source>
        <translation>Données pour l’&amp;application&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Stored query:</source>
        <translation>&amp;Requête enregistrée&#xa0;:</translation>
    </message>
    <message>
        <source>A query text, as query panels save it.</source>
        <translation>Un texte de requête, tel que les panneaux de requête l’enregistrent.</translation>
    </message>
    <message>
        <source>Values are entered &amp;by:</source>
        <translation>Saisie des valeurs &amp;par&#xa0;:</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Texte simple</translation>
    </message>
    <message>
        <source>By the mask</source>
        <translation>Selon le masque</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>As typed</source>
        <translation>Telle quelle</translation>
    </message>
    <message>
        <source>Upper case</source>
        <translation>Majuscules</translation>
    </message>
    <message>
        <source>Lower case</source>
        <translation>Minuscules</translation>
    </message>
    <message>
        <source>That of the field</source>
        <translation>Celui du champ</translation>
    </message>
    <message>
        <source>&amp;With the mask&apos;s fixed characters</source>
        <translation>A&amp;vec les caractères fixes du masque</translation>
    </message>
    <message>
        <source>De&amp;fault value:</source>
        <translation>Valeur par dé&amp;faut&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Kind of text:</source>
        <translation>&amp;Nature du texte&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Mask:</source>
        <translation>&amp;Masque&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Letters:</source>
        <translation>C&amp;asse&#xa0;:</translation>
    </message>
    <message>
        <source>Type of the &amp;value:</source>
        <translation>T&amp;ype de la valeur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Colle&amp;r</translation>
    </message>
    <message>
        <source>Insert rows from the clipboard (%1)</source>
        <translation>Insérer des lignes depuis le presse-papiers (%1)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>Remove the selected rows (%1)</source>
        <translation>Supprimer les lignes sélectionnées (%1)</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move the row up (%1)</source>
        <translation>Déplacer la ligne vers le haut (%1)</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Desce&amp;ndre</translation>
    </message>
    <message>
        <source>Move the row down (%1)</source>
        <translation>Déplacer la ligne vers le bas (%1)</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Requête</translation>
    </message>
    <message>
        <source>SELECT value, text FROM ...</source>
        <translation>SELECT valeur, texte FROM ...</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>name=value, one in a line; :name in the query stands for it</source>
        <translation>nom=valeur, un par ligne&#xa0;; :nom le représente dans la requête</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>Re&amp;quête&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Parameters:</source>
        <translation>Para&amp;mètres&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Exéc&amp;uter</translation>
    </message>
    <message>
        <source>Shows what the query gives</source>
        <translation>Montre ce que donne la requête</translation>
    </message>
    <message>
        <source>Text shown</source>
        <translation>Texte affiché</translation>
    </message>
    <message>
        <source>Value in SQL</source>
        <translation>Valeur en SQL</translation>
    </message>
    <message>
        <source>Values that the query gives</source>
        <translation>Valeurs que donne la requête</translation>
    </message>
    <message>
        <source>What is changed here is changed for all %1 selected fields.</source>
        <translation>Les modifications faites ici s’appliquent aux %1 champs sélectionnés.</translation>
    </message>
    <message>
        <source>The model is not connected to a database</source>
        <translation>Le modèle n’est pas connecté à une base de données</translation>
    </message>
    <message>
        <source>Change value editor</source>
        <translation>Modifier l’éditeur de valeurs</translation>
    </message>
    <message>
        <source>Rows: %1; the first %2 are shown</source>
        <translation>Lignes&#xa0;: %1&#xa0;; les %2 premières sont affichées</translation>
    </message>
    <message>
        <source>Rows: %1</source>
        <translation>Lignes&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgAddTables</name>
    <message>
        <source>Add their &amp;fields</source>
        <translation>Ajouter leurs &amp;champs</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>Sché&amp;ma&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Links to be made:</source>
        <translation>&amp;Liens à créer&#xa0;:</translation>
    </message>
    <message>
        <source>(all)</source>
        <translation>(tous)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source> - by a further alias of the table, &quot;%1&quot;</source>
        <translation> – par un autre alias de la table, «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>Tables chosen: %1</source>
        <translation>Tables choisies&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Add tables</source>
        <translation>Ajouter des tables</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgColumns</name>
    <message>
        <source>Add Fields</source>
        <translation>Ajouter des champs</translation>
    </message>
    <message>
        <source>&amp;Table:</source>
        <translation>&amp;Table&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Other column:</source>
        <translation>&amp;Autre colonne&#xa0;:</translation>
    </message>
    <message>
        <source>No other columns of this table are known.</source>
        <translation>Aucune autre colonne de cette table n’est connue.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgFill</name>
    <message>
        <source>Fill from Database</source>
        <translation>Compléter depuis la base de données</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>F&amp;inish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>Précédent (Alt+Gauche)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The database gave no answer.</source>
        <translation>La base de données n’a pas répondu.</translation>
    </message>
    <message>
        <source>Fill from database</source>
        <translation>Compléter depuis la base de données</translation>
    </message>
    <message>
        <source>Step 1 of 3: Choose the tables</source>
        <translation>Étape 1 sur 3&#xa0;: choisir les tables</translation>
    </message>
    <message>
        <source>Step 2 of 3: Choose and name what is added</source>
        <translation>Étape 2 sur 3&#xa0;: choisir et nommer ce qui est ajouté</translation>
    </message>
    <message>
        <source>Step 3 of 3: Look at what changes</source>
        <translation>Étape 3 sur 3&#xa0;: vérifier ce qui change</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgLinkEdit</name>
    <message>
        <source>&amp;Quote the names of columns</source>
        <translation>Noms de colonnes entre &amp;guillemets</translation>
    </message>
    <message>
        <source>&amp;Condition:</source>
        <translation>&amp;Condition&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;First table:</source>
        <translation>&amp;Première table&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Second table:</source>
        <translation>&amp;Deuxième table&#xa0;:</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>Éc&amp;hanger</translation>
    </message>
    <message>
        <source>The tables and their columns change places; the rows found stay the same</source>
        <translation>Les tables et leurs colonnes changent de place&#xa0;; les lignes trouvées restent les mêmes</translation>
    </message>
    <message>
        <source>Rows of the result</source>
        <translation>Lignes du résultat</translation>
    </message>
    <message>
        <source>Only rows that match</source>
        <translation>Seulement les lignes qui correspondent</translation>
    </message>
    <message>
        <source>All rows of %1</source>
        <translation>Toutes les lignes de %1</translation>
    </message>
    <message>
        <source>All rows of both tables</source>
        <translation>Toutes les lignes des deux tables</translation>
    </message>
    <message>
        <source>Pair %1: %2</source>
        <translation>Paire %1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelEdit</name>
    <message>
        <source>&amp;Tables</source>
        <translation>&amp;Tables</translation>
    </message>
    <message>
        <source>&amp;Entities</source>
        <translation>&amp;Entités</translation>
    </message>
    <message>
        <source>&amp;Operators</source>
        <translation>&amp;Opérateurs</translation>
    </message>
    <message>
        <source>&amp;Conditions</source>
        <translation>&amp;Conditions</translation>
    </message>
    <message>
        <source>&amp;Diagram</source>
        <translation>&amp;Diagramme</translation>
    </message>
    <message>
        <source>Edit Data Model</source>
        <translation>Modifier le modèle de données</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Ouvrir...</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Enregistrer...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Fill from database...</source>
        <translation>Compléter depuis la base de données...</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Essayer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Data models (*.model)</source>
        <translation>Modèles de données (*.model)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The file %1 cannot be opened. The model stays as it was.</source>
        <translation>Impossible d’ouvrir le fichier %1. Le modèle reste inchangé.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>The model cannot be saved in the file %1.</source>
        <translation>Impossible d’enregistrer le modèle dans le fichier %1.</translation>
    </message>
    <message>
        <source>Open Model</source>
        <translation>Ouvrir un modèle</translation>
    </message>
    <message>
        <source>Save Model</source>
        <translation>Enregistrer le modèle</translation>
    </message>
    <message>
        <source>Replace %1?</source>
        <translation>Remplacer %1&#xa0;?</translation>
    </message>
    <message>
        <source>The database cannot be connected.</source>
        <translation>Impossible de se connecter à la base de données.</translation>
    </message>
    <message>
        <source>There is no help.</source>
        <translation>Aucune aide n’est disponible.</translation>
    </message>
    <message>
        <source>The help cannot be shown.</source>
        <translation>Impossible d’afficher l’aide.</translation>
    </message>
    <message>
        <source>Clear model</source>
        <translation>Vider le modèle</translation>
    </message>
    <message>
        <source>The model has been changed.</source>
        <translation>Le modèle a été modifié.</translation>
    </message>
    <message>
        <source>Do you want to keep the changes?</source>
        <translation>Voulez-vous conserver les modifications&#xa0;?</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgModelSettings</name>
    <message>
        <source>&amp;In list</source>
        <translation>Dans une &amp;liste</translation>
    </message>
    <message>
        <source>Bet&amp;ween</source>
        <translation>&amp;Entre</translation>
    </message>
    <message>
        <source>&amp;Starts with</source>
        <translation>&amp;Commence par</translation>
    </message>
    <message>
        <source>&amp;Contains</source>
        <translation>Con&amp;tient</translation>
    </message>
    <message>
        <source>Opening &amp;quote of names:</source>
        <translation>Guillemet &amp;ouvrant des noms&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;losing quote of names:</source>
        <translation>Guillemet &amp;fermant des noms&#xa0;:</translation>
    </message>
    <message>
        <source>F&amp;ull table name:</source>
        <translation>Nom &amp;complet des tables&#xa0;:</translation>
    </message>
    <message>
        <source>DB, OWNER and TABLE stand for the names</source>
        <translation>DB, OWNER et TABLE représentent les noms</translation>
    </message>
    <message>
        <source>&amp;True:</source>
        <translation>&amp;Vrai&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;False:</source>
        <translation>Fau&amp;x&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Date&#xa0;:</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd&apos;</source>
        <translation>Vide&#xa0;: &apos;yyyy-mm-dd&apos;</translation>
    </message>
    <message>
        <source>Ti&amp;me:</source>
        <translation>&amp;Heure&#xa0;:</translation>
    </message>
    <message>
        <source>Empty: &apos;hh:nn:ss&apos;</source>
        <translation>Vide&#xa0;: &apos;hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>D&amp;ate and time:</source>
        <translation>D&amp;ate et heure&#xa0;:</translation>
    </message>
    <message>
        <source>Empty: &apos;yyyy-mm-dd hh:nn:ss&apos;</source>
        <translation>Vide&#xa0;: &apos;yyyy-mm-dd hh:nn:ss&apos;</translation>
    </message>
    <message>
        <source>&amp;Wildcard of LIKE:</source>
        <translation>&amp;Joker de LIKE&#xa0;:</translation>
    </message>
    <message>
        <source>F&amp;unction for lower case:</source>
        <translation>Fonction pour les min&amp;uscules&#xa0;:</translation>
    </message>
    <message>
        <source>Function for li&amp;sts:</source>
        <translation>Fonction pour les &amp;listes&#xa0;:</translation>
    </message>
    <message>
        <source>@1 stands for what is listed</source>
        <translation>@1 représente ce qui est énuméré</translation>
    </message>
    <message>
        <source>Default &amp;database:</source>
        <translation>&amp;Base de données par défaut&#xa0;:</translation>
    </message>
    <message>
        <source>Its tables are written without it</source>
        <translation>Ses tables s’écrivent sans elle</translation>
    </message>
    <message>
        <source>Default o&amp;wner:</source>
        <translation>Proprié&amp;taire par défaut&#xa0;:</translation>
    </message>
    <message>
        <source>Outer joins are written with OUTE&amp;R</source>
        <translation>Écrire les jointures externes avec OUTE&amp;R</translation>
    </message>
    <message>
        <source>AS stands before the alias of a ta&amp;ble</source>
        <translation>AS devant l’alias d’une &amp;table</translation>
    </message>
    <message>
        <source>Tables of &amp;several databases</source>
        <translation>Tables de plu&amp;sieurs bases de données</translation>
    </message>
    <message>
        <source>The connection is stored with the &amp;model</source>
        <translation>&amp;Enregistrer la connexion avec le modèle</translation>
    </message>
    <message>
        <source>Settings of the Model</source>
        <translation>Paramètres du modèle</translation>
    </message>
    <message>
        <source>S&amp;QL</source>
        <translation>S&amp;QL</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modèle</translation>
    </message>
    <message>
        <source>D&amp;efault operators</source>
        <translation>O&amp;pérateurs par défaut</translation>
    </message>
    <message>
        <source>Example of a statement</source>
        <translation>Exemple d’instruction</translation>
    </message>
    <message>
        <source>A statement is written so:</source>
        <translation>Une instruction s’écrit ainsi&#xa0;:</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>(own settings)</source>
        <translation>(paramètres personnels)</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>Préré&amp;glage&#xa0;:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucune)</translation>
    </message>
    <message>
        <source>Queries start from this table</source>
        <translation>Les requêtes partent de cette table</translation>
    </message>
    <message>
        <source>Menus list the &amp;fields outside groups first</source>
        <translation>Afficher d’abord dans les menus les &amp;champs hors groupe</translation>
    </message>
    <message>
        <source>Default m&amp;ain table:</source>
        <translation>Table principale par dé&amp;faut&#xa0;:</translation>
    </message>
    <message>
        <source>Types whose values are written in quotes</source>
        <translation>Types dont les valeurs s’écrivent entre guillemets</translation>
    </message>
    <message>
        <source>&amp;Booleans</source>
        <translation>&amp;Booléens</translation>
    </message>
    <message>
        <source>Dates and &amp;times</source>
        <translation>Dat&amp;es et heures</translation>
    </message>
    <message>
        <source>Groups that the model has</source>
        <translation>Groupes présents dans le modèle</translation>
    </message>
    <message>
        <source>Switching a group off deletes its operators</source>
        <translation>Désactiver un groupe supprime ses opérateurs</translation>
    </message>
    <message>
        <source>Display names of the default operators</source>
        <translation>Noms affichés des opérateurs par défaut</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Display name</source>
        <translation>Nom affiché</translation>
    </message>
    <message>
        <source>Change settings</source>
        <translation>Modifier les paramètres</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgRFieldEdit</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Discard the changes?</source>
        <translation>Abandonner les modifications&#xa0;?</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgTitlesEdit</name>
    <message>
        <source>Edit Texts</source>
        <translation>Modifier les textes</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>Réini&amp;tialiser</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>To&amp;ut réinitialiser</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Charger...</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>&amp;Enregistrer...</translation>
    </message>
    <message>
        <source>Load Texts</source>
        <translation>Charger des textes</translation>
    </message>
    <message>
        <source>Texts (*.titles);;All files (*)</source>
        <translation>Textes (*.titles);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Texts</source>
        <translation>Enregistrer les textes</translation>
    </message>
    <message>
        <source>%1 is not a UTF-8 text.</source>
        <translation>%1 n’est pas un texte UTF-8.</translation>
    </message>
    <message>
        <source>%1 has none of these texts.</source>
        <translation>%1 ne contient aucun de ces textes.</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>Texts to be looked at: %1 (see the notes)</source>
        <translation>Textes à vérifier&#xa0;: %1 (voir les remarques)</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgValueList</name>
    <message>
        <source>&amp;Values, one in a line:</source>
        <translation>&amp;Valeurs, une par ligne&#xa0;:</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Valeurs&#xa0;: %1</translation>
    </message>
</context>
</TS>
