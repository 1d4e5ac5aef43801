<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Réglages de Quorvi</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Tout rétablir par défaut</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Rétablir par défaut</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Saisissez un raccourci</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Effacer le raccourci</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>Le raccourci [%1] est trop simple.
Pour éviter les conflits avec d’autres fonctions et les déclenchements accidentels, veuillez définir une combinaison de touches plus complexe.

Si vous avez besoin de raccourcis simples, ouvrez la page de réglages [Système] et cochez [Autoriser les raccourcis globaux simples].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Échec de la configuration&#xa0;: le raccourci est peut-être déjà utilisé. Cliquez pour réessayer.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Configuration réussie.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Désactivé.</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Un autre programme utilise peut-être ce raccourci.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>L’environnement de bureau n’a pas encore répondu.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>Le raccourci n’est pas encore configuré.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Un raccourci global est une seule touche, avec ou sans modificateurs.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Ce clavier n’a pas cette touche.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Un autre programme utilise ce raccourci.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>Le raccourci a été refusé par vous ou par l’environnement de bureau.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Les raccourcis globaux ne sont pas disponibles sur ce système.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Cliquez pour réessayer.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Attribué par l’environnement de bureau&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Non définie</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Saisissez une date et une heure de %1 à %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Suivre le système</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Clic gauche</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Double-clic gauche</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Clic droit</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Double-clic droit</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Clic central</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Double-clic central</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Molette</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Glisser (gauche)</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Glisser (droit)</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Glisser (central)</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPassword</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Ce dossier n’existe pas.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Ceci est un fichier, pas un dossier.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Ceci est un dossier, pas un fichier.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>Le dossier de ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
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
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 à %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Saisissez un nombre de %1 à %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Voulez-vous vraiment rétablir les valeurs par défaut de cette page&#x202f;?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Voulez-vous vraiment rétablir toutes les valeurs par défaut&#x202f;?</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Nécessite «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Incompatible avec «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Nécessite «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 entrée supprimée.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n entrée supprimée.</numerusform>
            <numerusform>%n entrées supprimées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 réglage importé.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n réglage importé.</numerusform>
            <numerusform>%n réglages importés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n réglage rétabli.</numerusform>
            <numerusform>%n réglages rétablis.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Importer des réglages</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» modifie ces réglages. Ceux qui sont cochés sont importés.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Réglages du fichier</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Ici</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Dans le fichier</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, ici&#xa0;: %2, dans le fichier&#xa0;: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout cocher</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Tout décocher</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importer (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Autres réglages</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (par défaut)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>N’existe pas</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Entrées d’autres versions, ignorées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Entrées illisibles, ignorées&#xa0;: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Réglages propres à chaque ordinateur, ignorés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Réglages verrouillés, ignorés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Réglages dont la valeur n’est pas acceptée ici&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Importer des réglages depuis un fichier</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Exporter les réglages dans un fichier</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Réglages (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Exporter les réglages</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Importer des réglages</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne change rien ici.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Réglages qui n’ont pas pu être importés&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 est utilisé par&#xa0;: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Également utilisé par&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 est nécessaire pour saisir et modifier du texte.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Échanger</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Garder les deux</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>un autre raccourci de ce programme</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Modifié ailleurs entre-temps. Votre saisie remplacera la nouvelle valeur.</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernPageBuilder</name>
    <message>
        <source>, </source>
        <comment>between the chosen entries</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>No modifier key</source>
        <translation>Aucun modificateur</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Rétablir la page…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Tout rétablir…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Rétablir les valeurs par défaut de cette page&#x202f;?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Rétablir tous les réglages par défaut&#x202f;?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>Rétablir 1 réglage de cette page&#x202f;?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>Rétablir 1 réglage de toutes les pages&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>Rétablir %n réglage de cette page&#x202f;?</numerusform>
            <numerusform>Rétablir %n réglages de cette page&#x202f;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>Rétablir %n réglage de toutes les pages&#x202f;?</numerusform>
            <numerusform>Rétablir %n réglages de toutes les pages&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Afficher les modifiés</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modifié</numerusform>
            <numerusform>%n modifiés</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Rétablir %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Copier la clé</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copier la valeur</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifiée</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Réglages modifiés</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Non modifié</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Modifié le %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Du fichier %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Modifié par un autre programme ou ordinateur le %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Modifié par un autre programme ou ordinateur</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Verrouillé par l’administrateur</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>Impossible d’enregistrer les réglages dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» dépasse %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Impossible de lire le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est vide.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est endommagé&#xa0;: son contenu est imbriqué trop profondément.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne contient pas de réglages.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Réglages de %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Trouver un réglage</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Afficher plus (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Aucun réglage ne correspond à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Entrée ouvre la page</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>gras</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>italique</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>souligné</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Réglages – %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>Le clic gauche ne peut pas être utilisé seul</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Non définie</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Conflit avec «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source> d</source>
        <translation> j</translation>
    </message>
</context>
</TS>
