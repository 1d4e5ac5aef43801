<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1, %2 px</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>What the library logs appears here.</source>
        <translation>Le journal de la bibliothèque apparaît ici.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvi Capture</source>
        <translation>Quorvi Capture</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Tout rétablir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Réglages…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>&amp;Tout rétablir…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thème</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Variables – %1 sur %2 modifiées</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Raccourci utilisé&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Impossible d’écrire %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Rétablir tous les réglages par défaut et les profils prédéfinis&#x202f;?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Suivre le système</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Souris</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Affichage de la taille</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Magnétisme</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Images épinglées</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Après une capture</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>Dans cette app</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniature</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Un profil doit avoir un nom.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Un nom peut comporter au plus %1 caractères.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Un autre profil porte déjà ce nom.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Nouveau profil</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Nouveau profil %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Rétablir les profils prédéfinis</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Il n’y a aucun profil.
Ajoutez-en un ou rétablissez les profils prédéfinis.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Inclure le pointeur de la souris</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Profil prédéfini, non modifié.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Profil personnel ou prédéfini modifié.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>« %1 » garde son nom. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Supprimer le profil « %1 » ?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Rétablir les profils prédéfinis ? Vos propres profils seront supprimés et vos modifications des profils prédéfinis annulées.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Icône dans la barre des menus</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Son après une capture</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Afficher les astuces</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Captures récentes dans le menu</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Intervalle de recherche (jours)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Proposer les versions bêta</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Épaisseur du cadre</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Voile extérieur</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Afficher la loupe</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Grossissement</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Afficher la taille près de la sélection</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Délai avant une capture</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Compte à rebours à l’écran</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Inclure le pointeur de la souris</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Inclure l’ombre des fenêtres</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Figer l’écran pendant la sélection</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Images par seconde des vidéos</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Aimanter à</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Bords de l’écran</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Repères</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Dernière sélection</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Raccourcis dans les apps en plein écran</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Délai de répétition</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Capturer une zone</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Capturer une fenêtre</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Capturer l’écran</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Épingler le presse-papiers</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Terminer par un double-clic</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Inverser la molette</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Mouvement avant de glisser</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Afficher le menu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Dessiner</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Ouvrir dans l’éditeur</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Autoriser les raccourcis globaux simples</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Afficher les réglages avancés</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Étapes annulables</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Rétablir les images épinglées au lancement</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Cache (Mo)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Threads de compression</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Dessiner avec la carte graphique</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Afficher les temps de dessin</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Écrire un fichier journal</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Enregistrer maintenant</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Votre nom</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Figure dans les images si les détails incluent l’auteur.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Jeton pour les envois</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Images (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Fichier journal</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Enregistrer toutes les</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Titre de la fenêtre</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Détails dans le fichier</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Utiliser un proxy</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>Un nom d’hôte ne contient pas d’espaces.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Suivre le système</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Prélever une couleur</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Rien n’a encore été modifié.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Vide : aucun</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>Impossible d’écrire %1</translation>
    </message>
</context>
</TS>
