<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>QMessageBox</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Values of the query</source>
        <translation>Valeurs de la requête</translation>
    </message>
    <message>
        <source>Values of “%1”</source>
        <translation>Valeurs de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The password for %1</source>
        <translation>Le mot de passe pour %1</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Remember it in the keychain</source>
        <translation>Le &amp;garder dans le trousseau</translation>
    </message>
    <message>
        <source>This system has no keychain: it is forgotten when the program ends.</source>
        <translation>Ce système n’a pas de trousseau&#xa0;: le mot de passe est oublié à la fin du programme.</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>Modifiée par quelqu’un d’autre</translation>
    </message>
    <message>
        <source>&amp;Mine</source>
        <translation>&amp;Ma version</translation>
    </message>
    <message>
        <source>&amp;Theirs</source>
        <translation>&amp;Autre version</translation>
    </message>
    <message>
        <source>The query is no longer in the store.</source>
        <translation>La requête n’est plus dans la collection.</translation>
    </message>
    <message>
        <source>&amp;Save mine</source>
        <translation>&amp;Enregistrer la mienne</translation>
    </message>
    <message>
        <source>What is stored now is replaced by your query</source>
        <translation>Ce qui est enregistré actuellement est remplacé par votre requête</translation>
    </message>
    <message>
        <source>Your query is stored again</source>
        <translation>Votre requête est de nouveau enregistrée</translation>
    </message>
    <message>
        <source>Take t&amp;heirs</source>
        <translation>&amp;Prendre l’autre</translation>
    </message>
    <message>
        <source>&amp;Delete mine, too</source>
        <translation>&amp;Supprimer aussi la mienne</translation>
    </message>
    <message>
        <source>Your changes are lost</source>
        <translation>Vos modifications sont perdues</translation>
    </message>
    <message>
        <source>Your query is lost</source>
        <translation>Votre requête est perdue</translation>
    </message>
    <message>
        <source>&amp;Keep both</source>
        <translation>&amp;Conserver les deux</translation>
    </message>
    <message>
        <source>Yours is stored as another query</source>
        <translation>La vôtre est enregistrée comme une autre requête</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (la mienne)</translation>
    </message>
    <message>
        <source>%1 (mine %2)</source>
        <translation>%1 (la mienne %2)</translation>
    </message>
</context>
<context>
    <name>tolvi::TAbout</name>
    <message>
        <source>About the workbench</source>
        <translation>À propos de Workbench</translation>
    </message>
    <message>
        <source>Ask databases in sentences: Tolvi writes the SQL. All that you see here is made of the panels and dialogs of the Tolvi library, which other programs can use, too.

Tolvi comes under the MIT licence. As this program shows SQL with QScintilla and charts with Qt Charts, it comes as a whole under the GNU General Public License, version 3. It also uses Qt %1, libxlsxwriter and QtKeychain.</source>
        <translation>Interroger des bases de données par des phrases&#xa0;: Tolvi écrit le SQL. Tout ce que vous voyez ici est fait des panneaux et des boîtes de dialogue de la bibliothèque Tolvi, que d’autres programmes peuvent aussi utiliser.

Tolvi est distribué sous licence MIT. Comme ce programme affiche le SQL avec QScintilla et les graphiques avec Qt Charts, il est distribué dans son ensemble sous la licence publique générale GNU, version 3. Il utilise aussi Qt %1, libxlsxwriter et QtKeychain.</translation>
    </message>
</context>
<context>
    <name>tolvi::TChartData</name>
    <message>
        <source>The first %1 of %2 rows.</source>
        <translation>Les %1 premières lignes sur %2.</translation>
    </message>
    <message>
        <source>%1 rows: each point is the average of %2 rows that follow each other.</source>
        <translation>%1 lignes&#xa0;: chaque point est la moyenne de %2 lignes consécutives.</translation>
    </message>
    <message numerus="yes">
        <source>%n rows without a number are left out.</source>
        <translation>
            <numerusform>%n ligne sans nombre est omise.</numerusform>
            <numerusform>%n lignes sans nombre sont omises.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TChartPane</name>
    <message>
        <source>Chart</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>T&amp;ype&#xa0;:</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Barres</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Ac&amp;ross:</source>
        <translation>&amp;Horizontalement&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Values:</source>
        <translation>&amp;Valeurs&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>Copier l’ima&amp;ge</translation>
    </message>
    <message>
        <source>&amp;Save picture...</source>
        <translation>&amp;Enregistrer l’image...</translation>
    </message>
    <message>
        <source>There are no rows to draw.</source>
        <translation>Il n’y a aucune ligne à représenter.</translation>
    </message>
    <message>
        <source>There is no column of numbers to draw.</source>
        <translation>Il n’y a aucune colonne de nombres à représenter.</translation>
    </message>
    <message>
        <source>The column &quot;%1&quot; holds no numbers.</source>
        <translation>La colonne «&#xa0;%1&#xa0;» ne contient aucun nombre.</translation>
    </message>
    <message>
        <source>Bars: %1 by %2.</source>
        <translation>Barres&#xa0;: %1 selon %2.</translation>
    </message>
    <message>
        <source>Line: %1 by %2.</source>
        <translation>Ligne&#xa0;: %1 selon %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n values, the least %1 (%2), the greatest %3 (%4).</source>
        <translation>
            <numerusform>%n valeur, la plus petite %1 (%2), la plus grande %3 (%4).</numerusform>
            <numerusform>%n valeurs, la plus petite %1 (%2), la plus grande %3 (%4).</numerusform>
        </translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; must end with .png or .svg.</source>
        <translation>Le nom du fichier «&#xa0;%1&#xa0;» doit se terminer par .png ou .svg.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Picture (*.png)</source>
        <translation>Image (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Dessin (*.svg)</translation>
    </message>
    <message>
        <source>Read &amp;all rows</source>
        <translation>&amp;Lire toutes les lignes</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln rows have been read.</source>
        <translation>
            <numerusform>Seule la première ligne a été lue.</numerusform>
            <numerusform>Seules les %Ln premières lignes ont été lues.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionForm</name>
    <message>
        <source>SQLite file</source>
        <translation>Fichier SQLite</translation>
    </message>
    <message>
        <source>PostgreSQL</source>
        <translation>PostgreSQL</translation>
    </message>
    <message>
        <source>MariaDB or MySQL</source>
        <translation>MariaDB ou MySQL</translation>
    </message>
    <message>
        <source>ODBC</source>
        <translation>ODBC</translation>
    </message>
    <message>
        <source>&amp;Kind of database:</source>
        <translation>&amp;Type de base de données&#xa0;:</translation>
    </message>
    <message>
        <source>Data &amp;source:</source>
        <translation>&amp;Source de données&#xa0;:</translation>
    </message>
    <message>
        <source>Name, or Driver={...};Server=...</source>
        <translation>Nom, ou Driver={...};Server=...</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>&amp;Hôte&#xa0;:</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>cet ordinateur</translation>
    </message>
    <message>
        <source>P&amp;ort:</source>
        <translation>&amp;Port&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Base de données&#xa0;:</translation>
    </message>
    <message>
        <source>S&amp;chema:</source>
        <translation>Sché&amp;ma&#xa0;:</translation>
    </message>
    <message>
        <source>the usual one</source>
        <translation>celui d’usage</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Pa&amp;rcourir...</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>&amp;Fichier&#xa0;:</translation>
    </message>
    <message>
        <source>Browse for it, or drop it here</source>
        <translation>Parcourez vos fichiers ou déposez-en un ici</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>M&amp;ot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Remember the password in the keychain</source>
        <translation>&amp;Garder le mot de passe dans le trousseau</translation>
    </message>
    <message>
        <source>Open a database</source>
        <translation>Ouvrir une base de données</translation>
    </message>
    <message>
        <source>SQLite databases (*.sqlite *.sqlite3 *.db *.db3);;All files (*)</source>
        <translation>Bases de données SQLite (*.sqlite *.sqlite3 *.db *.db3);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Choose a file.</source>
        <translation>Choisissez un fichier.</translation>
    </message>
    <message>
        <source>This is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>Name the data source.</source>
        <translation>Indiquez la source de données.</translation>
    </message>
    <message>
        <source>Name the database.</source>
        <translation>Indiquez la base de données.</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>Le port est un nombre de 1 à 65535.</translation>
    </message>
    <message>
        <source>known</source>
        <translation>connu</translation>
    </message>
</context>
<context>
    <name>tolvi::TConnectionTest</name>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check host and port.</source>
        <translation>
            <numerusform>Aucune réponse en %n seconde&#xa0;: vérifiez l’hôte et le port.</numerusform>
            <numerusform>Aucune réponse en %n secondes&#xa0;: vérifiez l’hôte et le port.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The connection works; %n table(s) found.</source>
        <translation>
            <numerusform>La connexion fonctionne&#xa0;; %n table trouvée.</numerusform>
            <numerusform>La connexion fonctionne&#xa0;; %n tables trouvées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check that the file can be read and no program locks it.</source>
        <translation>
            <numerusform>Aucune réponse en %n seconde&#xa0;: vérifiez que le fichier est lisible et qu’aucun programme ne le verrouille.</numerusform>
            <numerusform>Aucune réponse en %n secondes&#xa0;: vérifiez que le fichier est lisible et qu’aucun programme ne le verrouille.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>There was no answer within %n second(s): check the data source and its driver.</source>
        <translation>
            <numerusform>Aucune réponse en %n seconde&#xa0;: vérifiez la source de données et son pilote.</numerusform>
            <numerusform>Aucune réponse en %n secondes&#xa0;: vérifiez la source de données et son pilote.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TExportDialog</name>
    <message>
        <source>Export rows</source>
        <translation>Exporter les lignes</translation>
    </message>
    <message>
        <source>Writing &quot;%1&quot;...</source>
        <translation>Écriture de «&#xa0;%1&#xa0;»...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
</context>
<context>
    <name>tolvi::TFaultPage</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>What went wrong</source>
        <translation>Ce qui s’est mal passé</translation>
    </message>
</context>
<context>
    <name>tolvi::TMainWindow</name>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>SQL</source>
        <translation>SQL</translation>
    </message>
    <message>
        <source>Open a database to ask it something.</source>
        <translation>Ouvrez une base de données pour l’interroger.</translation>
    </message>
    <message>
        <source>The query “%1” has changes that are not saved.</source>
        <translation>La requête «&#xa0;%1&#xa0;» a des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>&amp;Save query</source>
        <translation>&amp;Enregistrer la requête</translation>
    </message>
    <message>
        <source>&amp;Discard changes</source>
        <translation>&amp;Abandonner les modifications</translation>
    </message>
    <message>
        <source>The data model has changes that are not saved.</source>
        <translation>Le modèle de données a des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>&amp;Save model</source>
        <translation>&amp;Enregistrer le modèle</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” were saved. Here they are again.</source>
        <translation>Le programme s’est terminé avant l’enregistrement des modifications de «&#xa0;%1&#xa0;». Les voici de nouveau.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model were saved. Here they are again.</source>
        <translation>Le programme s’est terminé avant l’enregistrement des modifications du modèle de données. Les voici de nouveau.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>&amp;Database</source>
        <translation>&amp;Base de données</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Bases &amp;récentes</translation>
    </message>
    <message>
        <source>Open the &amp;sample</source>
        <translation>Ouvrir l’&amp;exemple</translation>
    </message>
    <message>
        <source>Make the sample a&amp;new</source>
        <translation>Re&amp;créer l’exemple</translation>
    </message>
    <message>
        <source>&amp;Export rows...</source>
        <translation>E&amp;xporter les lignes...</translation>
    </message>
    <message>
        <source>&amp;Print rows...</source>
        <translation>&amp;Imprimer les lignes...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Aucune pour l’instant</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Requête</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Re&amp;vert to saved</source>
        <translation>Re&amp;venir à la version enregistrée</translation>
    </message>
    <message>
        <source>&amp;Find a query</source>
        <translation>Rec&amp;hercher une requête</translation>
    </message>
    <message>
        <source>Paste S&amp;QL...</source>
        <translation>Coller du S&amp;QL...</translation>
    </message>
    <message>
        <source>&amp;Where queries are kept</source>
        <translation>Emplace&amp;ment des requêtes</translation>
    </message>
    <message>
        <source>By the &amp;workbench</source>
        <translation>Dans le &amp;Workbench</translation>
    </message>
    <message>
        <source>In a &amp;folder...</source>
        <translation>Dans un d&amp;ossier...</translation>
    </message>
    <message>
        <source>Folder of the queries</source>
        <translation>Dossier des requêtes</translation>
    </message>
    <message>
        <source>In the &amp;database itself</source>
        <translation>Dans la &amp;base de données elle-même</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Result &amp;columns...</source>
        <translation>Co&amp;lonnes du résultat...</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modèle</translation>
    </message>
    <message>
        <source>&amp;Edit the model...</source>
        <translation>&amp;Modifier le modèle...</translation>
    </message>
    <message>
        <source>&amp;Diagram...</source>
        <translation>&amp;Diagramme...</translation>
    </message>
    <message>
        <source>Read new tables from the data&amp;base</source>
        <translation>&amp;Lire les nouvelles tables de la base de données</translation>
    </message>
    <message>
        <source>&amp;Undo change of the model</source>
        <translation>A&amp;nnuler la modification du modèle</translation>
    </message>
    <message>
        <source>&amp;Redo change of the model</source>
        <translation>&amp;Rétablir la modification du modèle</translation>
    </message>
    <message>
        <source>&amp;Load...</source>
        <translation>&amp;Charger...</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Go to the &amp;queries</source>
        <translation>Aller aux re&amp;quêtes</translation>
    </message>
    <message>
        <source>Go to the &amp;conditions</source>
        <translation>Aller aux &amp;conditions</translation>
    </message>
    <message>
        <source>Go to the co&amp;lumns</source>
        <translation>Aller aux c&amp;olonnes</translation>
    </message>
    <message>
        <source>Go to the &amp;rows</source>
        <translation>Aller aux li&amp;gnes</translation>
    </message>
    <message>
        <source>Go to the &amp;SQL</source>
        <translation>Aller au &amp;SQL</translation>
    </message>
    <message>
        <source>L&amp;anguage</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>Co&amp;uleurs</translation>
    </message>
    <message>
        <source>Those of the s&amp;ystem</source>
        <translation>Celles du s&amp;ystème</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claires</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombres</translation>
    </message>
    <message>
        <source>S&amp;ettings...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Keyboard shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Data models (*.model *.xml);;All files (*)</source>
        <translation>Modèles de données (*.model *.xml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>XML documents</source>
        <translation>Documents XML</translation>
    </message>
    <message>
        <source>Changes of the model are in use now. Model &gt; Save keeps them.</source>
        <translation>Les modifications du modèle sont maintenant appliquées. Modèle &gt; Enregistrer les conserve.</translation>
    </message>
    <message>
        <source>Diagram of the model</source>
        <translation>Diagramme du modèle</translation>
    </message>
    <message>
        <source>The model is saved in %1.</source>
        <translation>Le modèle est enregistré dans %1.</translation>
    </message>
    <message>
        <source>Save the model</source>
        <translation>Enregistrer le modèle</translation>
    </message>
    <message>
        <source>Load a model</source>
        <translation>Charger un modèle</translation>
    </message>
    <message>
        <source>The model has all tables and columns of the database.</source>
        <translation>Le modèle contient toutes les tables et colonnes de la base de données.</translation>
    </message>
    <message>
        <source>Add a column to the result to see rows.</source>
        <translation>Ajoutez une colonne au résultat pour voir des lignes.</translation>
    </message>
    <message>
        <source>The query asks for values: run it to give them.</source>
        <translation>La requête demande des valeurs&#xa0;: exécutez-la pour les saisir.</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>Montrer dans la requête</translation>
    </message>
    <message>
        <source>The database refuses the condition “%1”:
%2</source>
        <translation>La base de données refuse la condition «&#xa0;%1&#xa0;»&#xa0;:
%2</translation>
    </message>
    <message>
        <source>“%1” is saved.</source>
        <translation>«&#xa0;%1&#xa0;» est enregistrée.</translation>
    </message>
    <message>
        <source>Go to the c&amp;hart</source>
        <translation>Aller au grap&amp;hique</translation>
    </message>
    <message>
        <source>Rows appear here when you run the query.</source>
        <translation>Les lignes apparaîtront ici quand vous exécuterez la requête.</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here. Run the query first to have all of them.</source>
        <translation>Seules les %L1 premières lignes sont ici. Exécutez d’abord la requête pour les avoir toutes.</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Exécuter</translation>
    </message>
    <message>
        <source>&amp;These rows only</source>
        <translation>&amp;Ces lignes seulement</translation>
    </message>
    <message>
        <source>The former queries are still in the database.</source>
        <translation>Les anciennes requêtes sont toujours dans la base de données.</translation>
    </message>
    <message>
        <source>The former queries are still in %1.</source>
        <translation>Les anciennes requêtes sont toujours dans %1.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Copy them here</source>
        <translation>Les copier ici</translation>
    </message>
    <message numerus="yes">
        <source>%n query(ies) copied.</source>
        <translation>
            <numerusform>%n requête copiée.</numerusform>
            <numerusform>%n requêtes copiées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new table(s)</source>
        <translation>
            <numerusform>%n table</numerusform>
            <numerusform>%n tables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new column(s)</source>
        <translation>
            <numerusform>%n colonne</numerusform>
            <numerusform>%n colonnes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new link(s)</source>
        <translation>
            <numerusform>%n lien</numerusform>
            <numerusform>%n liens</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no new tables and columns.</source>
        <translation>Il n’y a ni nouvelle table ni nouvelle colonne dans la base de données.</translation>
    </message>
    <message>
        <source>New in the model: %1.</source>
        <translation>Nouveau dans le modèle&#xa0;: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n table(s), column(s) or link(s) of the model are not in the database.</source>
        <translation>
            <numerusform>%n table, colonne ou lien du modèle n’est pas dans la base de données.</numerusform>
            <numerusform>%n tables, colonnes ou liens du modèle ne sont pas dans la base de données.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n column(s) have another type in the database than in the model.</source>
        <translation>
            <numerusform>%n colonne n’a pas le même type dans la base de données que dans le modèle.</numerusform>
            <numerusform>%n colonnes n’ont pas le même type dans la base de données que dans le modèle.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show...</source>
        <translation>Afficher...</translation>
    </message>
    <message>
        <source>The database refuses the column “%1”:
%2</source>
        <translation>La base de données refuse la colonne «&#xa0;%1&#xa0;»&#xa0;:
%2</translation>
    </message>
    <message>
        <source>Only the first %L1 rows are here: the settings let a run read no more.</source>
        <translation>Seules les %L1 premières lignes sont ici&#xa0;: les préférences ne permettent pas d’en lire davantage par exécution.</translation>
    </message>
    <message>
        <source>1 row is in %1.</source>
        <translation>1 ligne se trouve dans %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows are in %1.</source>
        <translation>
            <numerusform>%Ln ligne se trouve dans %1.</numerusform>
            <numerusform>%Ln lignes se trouvent dans %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Go to the &amp;note</source>
        <translation>Aller à la &amp;note</translation>
    </message>
</context>
<context>
    <name>tolvi::TNameEditor</name>
    <message>
        <source>Name of the query</source>
        <translation>Nom de la requête</translation>
    </message>
</context>
<context>
    <name>tolvi::TNoteBar</name>
    <message>
        <source>Close this note</source>
        <translation>Fermer cette note</translation>
    </message>
</context>
<context>
    <name>tolvi::TOpeningDialog</name>
    <message>
        <source>Open a database</source>
        <translation>Ouvrir une base de données</translation>
    </message>
    <message>
        <source>Reading the tables of %1...</source>
        <translation>Lecture des tables de %1...</translation>
    </message>
    <message>
        <source>Waiting for %1...</source>
        <translation>En attente de %1...</translation>
    </message>
</context>
<context>
    <name>tolvi::TParamEdit</name>
    <message>
        <source>One a line</source>
        <translation>Une par ligne</translation>
    </message>
    <message>
        <source>Calendar (Alt+Down)</source>
        <translation>Calendrier (Alt+Bas)</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Choose or type</source>
        <translation>Choisir ou saisir</translation>
    </message>
    <message>
        <source>A value is needed.</source>
        <translation>Une valeur est requise.</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>Par exemple %1</translation>
    </message>
</context>
<context>
    <name>tolvi::TPrintRows</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 (only the first %Ln rows)</source>
        <translation>
            <numerusform>%1 (seulement la première ligne)</numerusform>
            <numerusform>%1 (seulement les %Ln premières lignes)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are %1 rows. Print them all, or the first %2?</source>
        <translation>Il y a %1 lignes. Les imprimer toutes, ou seulement les %2 premières&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;First %1 rows</source>
        <translation>Les %1 &amp;premières lignes</translation>
    </message>
    <message>
        <source>&amp;All rows</source>
        <translation>&amp;Toutes les lignes</translation>
    </message>
</context>
<context>
    <name>tolvi::TProgram</name>
    <message>
        <source>The sample is as good as new. The former one is in %1.</source>
        <translation>L’exemple est comme neuf. L’ancien se trouve dans %1.</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept for the case that the program ends: %1</source>
        <translation>Le travail non enregistré ne peut pas être conservé en prévision d’une fin du programme&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is not open.</source>
        <translation>%1 n’est pas ouverte.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Open another one...</source>
        <translation>En ouvrir une autre...</translation>
    </message>
    <message>
        <source>Open the sample</source>
        <translation>Ouvrir l’exemple</translation>
    </message>
    <message>
        <source>The program ended before changes of “%1” in %2 were saved. They are kept until you take them or discard them.</source>
        <translation>Le programme s’est terminé avant l’enregistrement des modifications de «&#xa0;%1&#xa0;» (%2). Elles sont conservées jusqu’à ce que vous les repreniez ou les abandonniez.</translation>
    </message>
    <message>
        <source>The program ended before changes of the data model of %1 were saved. They are kept until you take them or discard them.</source>
        <translation>Le programme s’est terminé avant l’enregistrement des modifications du modèle de données de %1. Elles sont conservées jusqu’à ce que vous les repreniez ou les abandonniez.</translation>
    </message>
    <message>
        <source>Open %1 with them</source>
        <translation>Ouvrir %1 avec les modifications</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
</context>
<context>
    <name>tolvi::TQueryArea</name>
    <message>
        <source>C&amp;onditions</source>
        <translation>&amp;Conditions</translation>
    </message>
    <message>
        <source>Co&amp;lumns of the result</source>
        <translation>Co&amp;lonnes du résultat</translation>
    </message>
</context>
<context>
    <name>tolvi::TResultGrid</name>
    <message>
        <source>Rows of the result</source>
        <translation>Lignes du résultat</translation>
    </message>
    <message>
        <source>Sort &amp;ascending</source>
        <translation>Tri c&amp;roissant</translation>
    </message>
    <message>
        <source>Sort &amp;descending</source>
        <translation>Tri &amp;décroissant</translation>
    </message>
    <message>
        <source>&amp;Order of the database</source>
        <translation>&amp;Ordre de la base de données</translation>
    </message>
    <message>
        <source>&amp;Hide column</source>
        <translation>&amp;Masquer la colonne</translation>
    </message>
    <message>
        <source>&amp;Show columns</source>
        <translation>&amp;Afficher les colonnes</translation>
    </message>
    <message>
        <source>&amp;Fit width</source>
        <translation>Ajuster la lar&amp;geur</translation>
    </message>
    <message>
        <source>Fit &amp;all widths</source>
        <translation>Ajuster &amp;toutes les largeurs</translation>
    </message>
    <message>
        <source>Copy column &amp;name</source>
        <translation>Copier le &amp;nom de la colonne</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy with &amp;headers</source>
        <translation>Copier avec les &amp;en-têtes</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Show value</source>
        <translation>&amp;Afficher la valeur</translation>
    </message>
    <message>
        <source>Co&amp;lumn</source>
        <translation>Co&amp;lonne</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>%1 cells are too many for the clipboard.</source>
        <translation>%1 cellules, c’est trop pour le presse-papiers.</translation>
    </message>
    <message>
        <source>Copy %1 cells to the clipboard?</source>
        <translation>Copier %1 cellules dans le presse-papiers&#xa0;?</translation>
    </message>
    <message>
        <source>Select fewer of them, or export the rows to a file.</source>
        <translation>Sélectionnez-en moins ou exportez les lignes dans un fichier.</translation>
    </message>
    <message>
        <source>A file may be the better place for so many: export the rows instead.</source>
        <translation>Un fichier convient peut-être mieux à une telle quantité&#xa0;: exportez plutôt les lignes.</translation>
    </message>
    <message>
        <source>Copying: %1 % (Esc stops it)</source>
        <translation>Copie&#xa0;: %1&#xa0;% (Échap pour arrêter)</translation>
    </message>
    <message>
        <source>Copied 1 row</source>
        <translation>1 ligne copiée</translation>
    </message>
    <message numerus="yes">
        <source>Copied %Ln rows</source>
        <translation>
            <numerusform>%Ln ligne copiée</numerusform>
            <numerusform>%Ln lignes copiées</numerusform>
        </translation>
    </message>
    <message>
        <source>Copying was stopped; the clipboard holds what it held</source>
        <translation>La copie a été arrêtée&#xa0;; le presse-papiers est inchangé</translation>
    </message>
    <message>
        <source>Stop copying</source>
        <translation>Arrêter la copie</translation>
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
        <translation>Arrêté après %1</translation>
    </message>
    <message>
        <source>Stopped after 1 row · %1</source>
        <translation>Arrêté après 1 ligne · %1</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %Ln rows · %1</source>
        <translation>
            <numerusform>Arrêté après %Ln ligne · %1</numerusform>
            <numerusform>Arrêté après %Ln lignes · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>First row · %1</source>
        <translation>Première ligne · %1</translation>
    </message>
    <message numerus="yes">
        <source>First %Ln rows · %1</source>
        <translation>
            <numerusform>%Ln première ligne · %1</numerusform>
            <numerusform>%Ln premières lignes · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>No rows · %1</source>
        <translation>Aucune ligne · %1</translation>
    </message>
    <message>
        <source>1 row · %1</source>
        <translation>1 ligne · %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows · %1</source>
        <translation>
            <numerusform>%Ln ligne · %1</numerusform>
            <numerusform>%Ln lignes · %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;xécuter</translation>
    </message>
    <message>
        <source>Fetch all rows (F5)</source>
        <translation>Récupérer toutes les lignes (F5)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Arrê&amp;ter</translation>
    </message>
    <message>
        <source>Stop the query that runs (Esc)</source>
        <translation>Arrêter la requête en cours (Échap)</translation>
    </message>
    <message>
        <source>Live &amp;preview</source>
        <translation>A&amp;perçu en direct</translation>
    </message>
    <message>
        <source>Show the first rows whenever the query changes</source>
        <translation>Afficher les premières lignes à chaque modification de la requête</translation>
    </message>
    <message>
        <source>Rows appear here when you run a query.</source>
        <translation>Les lignes apparaissent ici quand vous exécutez une requête.</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>Exécution en cours…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>Tri en cours…</translation>
    </message>
    <message>
        <source>1 row so far…</source>
        <translation>1 ligne pour l’instant…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows so far…</source>
        <translation>
            <numerusform>%Ln ligne pour l’instant…</numerusform>
            <numerusform>%Ln lignes pour l’instant…</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no connection to the database</source>
        <translation>Il n’y a pas de connexion à la base de données</translation>
    </message>
    <message>
        <source>The database could not run the query</source>
        <translation>La base de données n’a pas pu exécuter la requête</translation>
    </message>
    <message>
        <source>The query cannot be run</source>
        <translation>La requête ne peut pas être exécutée</translation>
    </message>
</context>
<context>
    <name>tolvi::TRowFiles</name>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>CSV, separated by commas</source>
        <translation>CSV, séparé par des virgules</translation>
    </message>
    <message>
        <source>CSV, separated by semicolons</source>
        <translation>CSV, séparé par des points-virgules</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>Texte, séparé par des tabulations</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Feuille de calcul</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Table in Markdown</source>
        <translation>Tableau en Markdown</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Those of the system</source>
        <translation>Celles du système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claires</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombres</translation>
    </message>
    <message>
        <source>That of the system</source>
        <translation>Celle du système</translation>
    </message>
    <message>
        <source>Show the &amp;first rows while a query is edited</source>
        <translation>Afficher les &amp;premières lignes pendant la modification d’une requête</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>&amp;Queries may hold conditions written in SQL</source>
        <translation>Les re&amp;quêtes peuvent contenir des conditions écrites en SQL</translation>
    </message>
    <message>
        <source>Such a condition reaches the database as it is. Allow it only for queries that come from people whom you trust.</source>
        <translation>Une telle condition parvient telle quelle à la base de données. Ne l’autorisez que pour des requêtes venant de personnes de confiance.</translation>
    </message>
    <message>
        <source>&amp;Colours:</source>
        <translation>&amp;Couleurs&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Size of letters:</source>
        <translation>&amp;Taille des caractères&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Rows of the preview:</source>
        <translation>&amp;Lignes de l’aperçu&#xa0;:</translation>
    </message>
    <message>
        <source>Rows of a run at &amp;most:</source>
        <translation>&amp;Maximum de lignes par exécution&#xa0;:</translation>
    </message>
</context>
<context>
    <name>tolvi::TSettingsFile</name>
    <message>
        <source>The settings could not be read (%1): they are the default ones now. The file is kept as %2.</source>
        <translation>Les préférences n’ont pas pu être lues (%1)&#xa0;: celles par défaut sont maintenant utilisées. Le fichier est conservé sous %2.</translation>
    </message>
</context>
<context>
    <name>tolvi::TShortcuts</name>
    <message>
        <source>Among the conditions</source>
        <translation>Dans les conditions</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>In the list of queries</source>
        <translation>Dans la liste des requêtes</translation>
    </message>
    <message>
        <source>Among the rows</source>
        <translation>Dans les lignes</translation>
    </message>
    <message>
        <source>In the SQL</source>
        <translation>Dans le SQL</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlEdit</name>
    <message>
        <source>Copy what is selected</source>
        <translation>Copier la sélection</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Caractères plus grands</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Caractères plus petits</translation>
    </message>
</context>
<context>
    <name>tolvi::TSqlPane</name>
    <message>
        <source>Statement</source>
        <translation>Instruction</translation>
    </message>
    <message>
        <source>S&amp;yntax:</source>
        <translation>S&amp;yntaxe&#xa0;:</translation>
    </message>
    <message>
        <source>The SQL syntax in which the statement is written</source>
        <translation>La syntaxe SQL dans laquelle l’instruction est écrite</translation>
    </message>
    <message>
        <source>&amp;Paste SQL...</source>
        <translation>C&amp;oller du SQL...</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Copi&amp;er</translation>
    </message>
    <message>
        <source>Copy the whole statement</source>
        <translation>Copier l’instruction entière</translation>
    </message>
    <message>
        <source>Copy with &amp;values</source>
        <translation>Copier avec les &amp;valeurs</translation>
    </message>
    <message>
        <source>Copy with &amp;parameters as ?</source>
        <translation>Copier avec les &amp;paramètres en ?</translation>
    </message>
    <message>
        <source>Copy with parameters as :&amp;Name</source>
        <translation>Copier avec les paramètres en :&amp;nom</translation>
    </message>
    <message>
        <source>Copy with parameters as $&amp;1</source>
        <translation>Copier avec les paramètres en $&amp;1</translation>
    </message>
    <message>
        <source>Make a query of a SELECT statement</source>
        <translation>Créer une requête à partir d’une instruction SELECT</translation>
    </message>
    <message>
        <source>Show in query</source>
        <translation>Montrer dans la requête</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n autre avertissement</numerusform>
            <numerusform>%n autres avertissements</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreModel</name>
    <message>
        <source>Deleted by somebody else</source>
        <translation>Supprimée par quelqu’un d’autre</translation>
    </message>
    <message>
        <source>Changed by somebody else</source>
        <translation>Modifiée par quelqu’un d’autre</translation>
    </message>
    <message>
        <source>Changed by somebody else, %1</source>
        <translation>Modifiée par quelqu’un d’autre, %1</translation>
    </message>
    <message>
        <source>Changed by %1, %2</source>
        <translation>Modifiée par %1, %2</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>affichée</translation>
    </message>
    <message>
        <source>changes not saved</source>
        <translation>modifications non enregistrées</translation>
    </message>
    <message>
        <source>Has changes that are not saved</source>
        <translation>A des modifications non enregistrées</translation>
    </message>
</context>
<context>
    <name>tolvi::TStoreNote</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>tolvi::TStorePane</name>
    <message>
        <source>Search queries</source>
        <translation>Rechercher des requêtes</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>Requêtes</translation>
    </message>
    <message>
        <source>Clear the search to put queries in another order.</source>
        <translation>Effacez la recherche pour changer l’ordre des requêtes.</translation>
    </message>
    <message>
        <source>&amp;New query</source>
        <translation>&amp;Nouvelle requête</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>D&amp;escription...</source>
        <translation>De&amp;scription...</translation>
    </message>
    <message>
        <source>De&amp;lete...</source>
        <translation>S&amp;upprimer...</translation>
    </message>
    <message>
        <source>&amp;Copy query text</source>
        <translation>&amp;Copier le texte de la requête</translation>
    </message>
    <message>
        <source>&amp;Paste query text</source>
        <translation>C&amp;oller le texte d’une requête</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>D&amp;escendre</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>Aucune collection n’est ouverte.</translation>
    </message>
    <message>
        <source>There are no queries yet. Press %1 to make one.</source>
        <translation>Il n’y a pas encore de requêtes. Appuyez sur %1 pour en créer une.</translation>
    </message>
    <message>
        <source>No query holds this text.</source>
        <translation>Aucune requête ne contient ce texte.</translation>
    </message>
    <message>
        <source>Description of “%1”</source>
        <translation>Description de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&amp;What the query answers, for those who look for it:</source>
        <translation>&amp;Ce à quoi répond la requête, pour ceux qui la cherchent&#xa0;:</translation>
    </message>
    <message>
        <source>Delete it all the same?</source>
        <translation>La supprimer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>New query %1</source>
        <translation>Nouvelle requête %1</translation>
    </message>
    <message>
        <source>New query</source>
        <translation>Nouvelle requête</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (copie %2)</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copie)</translation>
    </message>
    <message>
        <source>Delete the query “%1”?</source>
        <translation>Supprimer la requête «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>«&#xa0;%1&#xa0;» a été supprimée.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>What was copied is no query text. Statements in SQL are pasted into the SQL.</source>
        <translation>Ce qui a été copié n’est pas un texte de requête. Les instructions SQL se collent dans le SQL.</translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. You can take that back until the note about it is closed.</source>
        <translation>Elle est supprimée pour tous ceux qui utilisent cette collection. Vous pouvez annuler cela jusqu’à la fermeture de la note qui l’indique.</translation>
    </message>
    <message numerus="yes">
        <source>“%1” was deleted, and %n before it.</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» a été supprimée, et %n autre avant elle.</numerusform>
            <numerusform>«&#xa0;%1&#xa0;» a été supprimée, et %n autres avant elle.</numerusform>
        </translation>
    </message>
    <message>
        <source>It is deleted for everybody who uses this store. It cannot be read: you cannot take that back.</source>
        <translation>Elle est supprimée pour tous ceux qui utilisent cette collection. Elle ne peut pas être lue&#xa0;: vous ne pourrez pas annuler cela.</translation>
    </message>
</context>
<context>
    <name>tolvi::TValueDlg</name>
    <message>
        <source>Value of %1</source>
        <translation>Valeur de %1</translation>
    </message>
    <message>
        <source>NULL: there is no value</source>
        <translation>NULL&#xa0;: il n’y a pas de valeur</translation>
    </message>
    <message>
        <source>An empty text</source>
        <translation>Un texte vide</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
</context>
<context>
    <name>tolvi::TWorkspace</name>
    <message>
        <source>The sample cannot be put into %1: the folder cannot be made. The option --home names another place.</source>
        <translation>L’exemple ne peut pas être placé dans %1&#xa0;: impossible de créer le dossier. L’option --home indique un autre emplacement.</translation>
    </message>
    <message>
        <source>The sample stays as it is: %1 cannot be renamed.</source>
        <translation>L’exemple reste tel quel&#xa0;: %1 ne peut pas être renommé.</translation>
    </message>
    <message>
        <source>The data model cannot be kept: %1. Model &gt; Save as... keeps it in another place.</source>
        <translation>Le modèle de données ne peut pas être conservé&#xa0;: %1. Modèle &gt; Enregistrer sous... le conserve à un autre emplacement.</translation>
    </message>
    <message numerus="yes">
        <source>The driver tells nothing of links between tables. %n link(s) were found by the names of columns; Model &gt; Diagram... shows them, and can draw others.</source>
        <translation>
            <numerusform>Le pilote ne dit rien des liens entre les tables. %n lien a été trouvé d’après les noms de colonnes&#xa0;; Modèle &gt; Diagramme... montre les liens et permet d’en tracer d’autres.</numerusform>
            <numerusform>Le pilote ne dit rien des liens entre les tables. %n liens ont été trouvés d’après les noms de colonnes&#xa0;; Modèle &gt; Diagramme... les montre et permet d’en tracer d’autres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The database has no tables that can be read. Once it has some, Model &gt; Read new tables from the database finds them.</source>
        <translation>La base de données n’a aucune table lisible. Dès qu’elle en aura, Modèle &gt; Lire les nouvelles tables de la base de données les trouvera.</translation>
    </message>
    <message>
        <source>%1 is no data model, or a damaged one: %2. Choose another file; where there is none, a model is made from the tables of the database.</source>
        <translation>%1 n’est pas un modèle de données, ou il est endommagé&#xa0;: %2. Choisissez un autre fichier&#xa0;; s’il n’y en a pas, un modèle est créé à partir des tables de la base de données.</translation>
    </message>
    <message>
        <source>Queries cannot be kept in this database: %1</source>
        <translation>Les requêtes ne peuvent pas être conservées dans cette base de données&#xa0;: %1</translation>
    </message>
    <message>
        <source>Queries cannot be kept: %1. Query &gt; Where queries are kept has other places.</source>
        <translation>Les requêtes ne peuvent pas être conservées&#xa0;: %1. Requête &gt; Emplacement des requêtes propose d’autres endroits.</translation>
    </message>
</context>
<context>
    <name>tolvi::TXlsxFile</name>
    <message>
        <source>the folder for temporary files, &quot;%1&quot;, is full</source>
        <translation>le dossier des fichiers temporaires, «&#xa0;%1&#xa0;», est plein</translation>
    </message>
    <message>
        <source>the text in row %1, column %2 has %3 letters, and a cell holds %4</source>
        <translation>le texte de la ligne %1, colonne %2 a %3 caractères, et une cellule en contient %4</translation>
    </message>
    <message>
        <source>there are %1 rows, and a sheet holds %2</source>
        <translation>il y a %1 lignes, et une feuille en contient %2</translation>
    </message>
    <message>
        <source>there are %1 columns, and a sheet holds %2</source>
        <translation>il y a %1 colonnes, et une feuille en contient %2</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgConnection</name>
    <message>
        <source>Connect to a database</source>
        <translation>Se connecter à une base de données</translation>
    </message>
    <message>
        <source>Recent connections</source>
        <translation>Connexions récentes</translation>
    </message>
    <message>
        <source>UR&amp;L:</source>
        <translation>UR&amp;L&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>T&amp;ester</translation>
    </message>
    <message>
        <source>This system has no keychain: passwords are forgotten when the program ends.</source>
        <translation>Ce système n’a pas de trousseau&#xa0;: les mots de passe sont oubliés à la fin du programme.</translation>
    </message>
    <message>
        <source>Looking for the keychain of this system...</source>
        <translation>Recherche du trousseau de ce système...</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>The keychain did not take the password: %1. It is known until the program ends.</source>
        <translation>Le trousseau n’a pas accepté le mot de passe&#xa0;: %1. Il reste connu jusqu’à la fin du programme.</translation>
    </message>
</context>
<context>
    <name>tolvi::T_dlgImportSql</name>
    <message>
        <source>Paste SQL</source>
        <translation>Coller du SQL</translation>
    </message>
    <message>
        <source>&amp;Make query</source>
        <translation>&amp;Créer la requête</translation>
    </message>
    <message>
        <source>&amp;Statement:</source>
        <translation>&amp;Instruction&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Only if it can be read exactly</source>
        <translation>&amp;Seulement si elle peut être lue exactement</translation>
    </message>
    <message>
        <source>Otherwise what a query cannot say is left out or replaced, with a warning</source>
        <translation>Sinon, ce qu’une requête ne peut pas exprimer est omis ou remplacé, avec un avertissement</translation>
    </message>
    <message>
        <source>&amp;Keep as rows of SQL what no operator says</source>
        <translation>&amp;Garder comme lignes SQL ce qu’aucun opérateur n’exprime</translation>
    </message>
    <message>
        <source>&amp;Warnings (F8 for the next one):</source>
        <translation>&amp;Avertissements (F8 pour le suivant)&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Query:</source>
        <translation>Re&amp;quête&#xa0;:</translation>
    </message>
    <message>
        <source>The statement is too long: statements of up to %1 KB can be read.</source>
        <translation>L’instruction est trop longue&#xa0;: il est possible de lire jusqu’à %1 Ko.</translation>
    </message>
    <message>
        <source>Paste or type a SELECT statement.</source>
        <translation>Collez ou saisissez une instruction SELECT.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n autre avertissement</numerusform>
            <numerusform>%n autres avertissements</numerusform>
        </translation>
    </message>
    <message>
        <source>The query says what the statement says.</source>
        <translation>La requête dit la même chose que l’instruction.</translation>
    </message>
    <message numerus="yes">
        <source>The statement can be read with %n warnings.</source>
        <translation>
            <numerusform>L’instruction peut être lue avec %n avertissement.</numerusform>
            <numerusform>L’instruction peut être lue avec %n avertissements.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statement cannot be read exactly.</source>
        <translation>L’instruction ne peut pas être lue exactement.</translation>
    </message>
    <message>
        <source>The statement cannot be read.</source>
        <translation>L’instruction ne peut pas être lue.</translation>
    </message>
</context>
<context>
    <name>tolvi::main</name>
    <message>
        <source>Ask databases in sentences.</source>
        <translation>Interroger des bases de données par des phrases.</translation>
    </message>
    <message>
        <source>An SQLite file, or a URL as docs/databases.md tells; without it, what was open the last time, at first the sample.</source>
        <translation>Un fichier SQLite ou une URL comme le décrit docs/databases.md&#xa0;; sinon, ce qui était ouvert la dernière fois, au début l’exemple.</translation>
    </message>
    <message>
        <source>The data model: a model text or XML.</source>
        <translation>Le modèle de données&#xa0;: un texte de modèle ou du XML.</translation>
    </message>
    <message>
        <source>The folder of the queries.</source>
        <translation>Le dossier des requêtes.</translation>
    </message>
    <message>
        <source>The queries are in the database.</source>
        <translation>Les requêtes sont dans la base de données.</translation>
    </message>
    <message>
        <source>Keep settings, unsaved work and the sample there.</source>
        <translation>Y conserver les préférences, le travail non enregistré et l’exemple.</translation>
    </message>
    <message>
        <source>Play the script with keys and clicks, then quit; see docs/workbench.md.</source>
        <translation>Jouer le script avec touches et clics, puis quitter&#xa0;; voir docs/workbench.md.</translation>
    </message>
    <message>
        <source>Write a picture of the window, at the end of the script, then quit.</source>
        <translation>Enregistrer une image de la fenêtre à la fin du script, puis quitter.</translation>
    </message>
    <message>
        <source>Open the sample.</source>
        <translation>Ouvrir l’exemple.</translation>
    </message>
</context>
</TS>
