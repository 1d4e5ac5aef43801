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
