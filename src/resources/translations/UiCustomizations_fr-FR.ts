<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>CUI</name>
    <message>
        <source>Velstudio Default Keyset</source>
        <translation>Jeu de raccourcis Velstudio par défaut</translation>
    </message>
    <message>
        <source>Zarvi Default Keyset</source>
        <translation>Jeu de raccourcis Zarvi par défaut</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyAudit</name>
    <message>
        <source>In %1 this key runs %2, never %3.</source>
        <translation>Dans %1, cette touche exécute %2, jamais %3.</translation>
    </message>
    <message>
        <source>Elsewhere it runs nothing, since these count there equally: %1.</source>
        <translation>Ailleurs, elle n’exécute rien, car plusieurs actions y comptent autant : %1.</translation>
    </message>
    <message>
        <source>This key runs nothing, since these count everywhere equally: %1.</source>
        <translation>Cette touche n’exécute rien, car plusieurs actions comptent autant partout : %1.</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1.</source>
        <translation>Ailleurs, elle exécute %1.</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1, never %2.</source>
        <translation>Ailleurs, elle exécute %1, jamais %2.</translation>
    </message>
    <message>
        <source>Everywhere this key runs %1, never %2.</source>
        <translation>Partout, cette touche exécute %1, jamais %2.</translation>
    </message>
    <message>
        <source>In %1 this key runs %2.</source>
        <translation>Dans %1, cette touche exécute %2.</translation>
    </message>
    <message>
        <source>While text is typed, this key does not run %1: %2.</source>
        <translation>Pendant la saisie de texte, cette touche n’exécute pas %1 : %2.</translation>
    </message>
    <message>
        <source>%1 has lost %2.</source>
        <translation>%1 a perdu %2.</translation>
    </message>
    <message>
        <source>%1 has lost %2, and %3 has it now.</source>
        <translation>%1 a perdu %2 au profit de %3.</translation>
    </message>
    <message>
        <source>No key has this name, so that none runs %1.</source>
        <translation>Aucune touche ne porte ce nom ; aucune n’exécute donc %1.</translation>
    </message>
    <message>
        <source>The keyboard in use has no such key, so that none runs %1.</source>
        <translation>Le clavier utilisé n’a pas cette touche ; aucune n’exécute donc %1.</translation>
    </message>
    <message>
        <source>%1 runs %2, %3 runs %4.</source>
        <translation>%1 exécute %2, %3 exécute %4.</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 hotkeys.</source>
        <translation>%1 a %2 raccourcis sur %3.</translation>
    </message>
    <message>
        <source>%1 may take this key before it runs %2.</source>
        <translation>%1 peut prendre cette touche avant qu’elle n’exécute %2.</translation>
    </message>
    <message>
        <source>In %1 this key runs %2, not %3.</source>
        <translation>Dans %1, cette touche exécute %2, et non %3.</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyFinding</name>
    <message>
        <source>Held twice</source>
        <translation>Attribué deux fois</translation>
    </message>
    <message>
        <source>Ambiguous</source>
        <translation>Ambigu</translation>
    </message>
    <message>
        <source>Names no key</source>
        <translation>Aucune touche</translation>
    </message>
    <message>
        <source>Not on the keyboard</source>
        <translation>Absent du clavier</translation>
    </message>
    <message>
        <source>Shadowed</source>
        <translation>Masqué</translation>
    </message>
    <message>
        <source>Taken by the desktop</source>
        <translation>Pris par le bureau</translation>
    </message>
    <message>
        <source>Hotkey lost</source>
        <translation>Raccourci perdu</translation>
    </message>
    <message>
        <source>Taken by text fields</source>
        <translation>Pris par les champs de texte</translation>
    </message>
    <message>
        <source>Differs by keypad only</source>
        <translation>Ne diffère que par le pavé numérique</translation>
    </message>
    <message>
        <source>Differs by Shift only</source>
        <translation>Ne diffère que par Maj</translation>
    </message>
    <message>
        <source>Close to the limit</source>
        <translation>Proche de la limite</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyKeyboard</name>
    <message>
        <source>Not a hotkey</source>
        <translation>Pas un raccourci</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Occupé</translation>
    </message>
    <message>
        <source>Taken in several groups</source>
        <translation>Occupé dans plusieurs groupes</translation>
    </message>
    <message>
        <source>Reserved by the system</source>
        <translation>Réservé par le système</translation>
    </message>
    <message>
        <source>Without modifiers</source>
        <translation>Sans modificateur</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyReservation</name>
    <message>
        <source>Close window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Switch windows</source>
        <translation>Changer de fenêtre</translation>
    </message>
    <message>
        <source>Window menu</source>
        <translation>Menu de la fenêtre</translation>
    </message>
    <message>
        <source>Move or resize window</source>
        <translation>Déplacer ou redimensionner la fenêtre</translation>
    </message>
    <message>
        <source>Hide or minimize window</source>
        <translation>Masquer ou réduire la fenêtre</translation>
    </message>
    <message>
        <source>Show all windows</source>
        <translation>Afficher toutes les fenêtres</translation>
    </message>
    <message>
        <source>Show the desktop</source>
        <translation>Afficher le bureau</translation>
    </message>
    <message>
        <source>Switch workspace</source>
        <translation>Changer d’espace de travail</translation>
    </message>
    <message>
        <source>Move window to a workspace</source>
        <translation>Déplacer la fenêtre vers un espace de travail</translation>
    </message>
    <message>
        <source>Search or start a program</source>
        <translation>Rechercher ou lancer un programme</translation>
    </message>
    <message>
        <source>Open a terminal</source>
        <translation>Ouvrir un terminal</translation>
    </message>
    <message>
        <source>Log out or lock the screen</source>
        <translation>Se déconnecter ou verrouiller l’écran</translation>
    </message>
    <message>
        <source>Task manager or force quit</source>
        <translation>Gestionnaire des tâches ou arrêt forcé</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Switch to a text console</source>
        <translation>Passer à une console texte</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Cut, copy or paste</source>
        <translation>Couper, copier ou coller</translation>
    </message>
    <message>
        <source>Undo or redo</source>
        <translation>Annuler ou rétablir</translation>
    </message>
    <message>
        <source>Select text</source>
        <translation>Sélectionner du texte</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>Supprimer du texte</translation>
    </message>
    <message>
        <source>Move the text cursor</source>
        <translation>Déplacer le curseur de texte</translation>
    </message>
    <message>
        <source>KDE: System Settings &gt; Keyboard &gt; Shortcuts</source>
        <translation>KDE : Configuration du système &gt; Clavier &gt; Raccourcis</translation>
    </message>
    <message>
        <source>GNOME: Settings &gt; Keyboard</source>
        <translation>GNOME : Paramètres &gt; Clavier</translation>
    </message>
    <message>
        <source>macOS: System Settings &gt; Keyboard &gt; Keyboard Shortcuts</source>
        <translation>macOS : Réglages Système &gt; Clavier &gt; Raccourcis clavier</translation>
    </message>
    <message>
        <source>Text fields of Qt</source>
        <translation>Champs de texte de Qt</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Champs de texte</translation>
    </message>
    <message>
        <source>Show or hide the Dock</source>
        <translation>Afficher ou masquer le Dock</translation>
    </message>
    <message>
        <source>%1: built into the system</source>
        <translation>%1 : intégré au système</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeySheet</name>
    <message>
        <source>Hotkeys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the code of this translation&apos;s language</comment>
        <translation>fr</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (suite)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>CUI::KeyboardChoosers</name>
    <message>
        <source>%1 groups</source>
        <translation>%1 groupes</translation>
    </message>
    <message>
        <source>Modifiers:</source>
        <translation>Modificateurs :</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>Forme :</translation>
    </message>
    <message>
        <source>Of the layout in use</source>
        <translation>De la disposition utilisée</translation>
    </message>
</context>
<context>
    <name>CUI::QvelActionItemModel</name>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
</context>
<context>
    <name>CUI::QvelAssignedShortcutListItem</name>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Successfully removed</source>
        <translation>Raccourci supprimé</translation>
    </message>
</context>
<context>
    <name>CUI::QvelCommandPalette</name>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (indisponible)</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>Appuyer sur les touches...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Attribuer</translation>
    </message>
    <message>
        <source>New hotkey for %1:</source>
        <translation>Nouveau raccourci pour %1 :</translation>
    </message>
    <message>
        <source>New hotkey for %1 instead of %2:</source>
        <translation>Nouveau raccourci pour %1 au lieu de %2 :</translation>
    </message>
    <message>
        <source>Press the new hotkey, or Escape to leave it.</source>
        <translation>Appuyez sur le nouveau raccourci, ou sur Échap pour abandonner.</translation>
    </message>
    <message>
        <source>Enter assigns it.</source>
        <translation>Entrée l’attribue.</translation>
    </message>
    <message>
        <source>Conflicts with: %1. Enter takes it from there.</source>
        <translation>En conflit avec : %1. Entrée le lui retire.</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>Attribuer %1 à %2</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>Rechercher par action...</translation>
    </message>
    <message>
        <source>Search for a command</source>
        <translation>Rechercher une commande</translation>
    </message>
    <message>
        <source>It acts only while its hotkey is held.</source>
        <translation>N’agit que tant que son raccourci est maintenu.</translation>
    </message>
    <message>
        <source>It is disabled at the moment.</source>
        <translation>Désactivé pour le moment.</translation>
    </message>
    <message>
        <source>The application does not perform it.</source>
        <translation>L’application ne l’exécute pas.</translation>
    </message>
    <message>
        <source>No command has this name.</source>
        <translation>Aucune commande ne porte ce nom.</translation>
    </message>
    <message>
        <source>Enter runs it, Tab changes its hotkey, Escape closes.</source>
        <translation>Entrée : exécuter, Tab : changer le raccourci, Échap : fermer.</translation>
    </message>
</context>
<context>
    <name>CUI::QvelConflictsWidget</name>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Constat</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>What happens today</source>
        <translation>Ce qui se passe aujourd’hui</translation>
    </message>
    <message>
        <source>Findings: %1 of %2</source>
        <translation>Constats : %1 sur %2</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Erreurs uniquement</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>Erreurs et avertissements</translation>
    </message>
    <message>
        <source>All findings</source>
        <translation>Tous les constats</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Tous les types</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>Saisir une recherche...</translation>
    </message>
    <message>
        <source>Search the findings</source>
        <translation>Rechercher dans les constats</translation>
    </message>
    <message>
        <source>Least severe finding</source>
        <translation>Gravité minimale</translation>
    </message>
    <message>
        <source>Kind of finding</source>
        <translation>Type de constat</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Constats</translation>
    </message>
    <message>
        <source>What settles the finding</source>
        <translation>Ce qui résout le constat</translation>
    </message>
    <message>
        <source>Select a finding to see what settles it.</source>
        <translation>Sélectionnez un constat pour voir ce qui le résout.</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Rendre</translation>
    </message>
    <message>
        <source>Give to this action</source>
        <translation>Donner à cette action</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>En choisir un autre</translation>
    </message>
    <message>
        <source>Remove %1 from %2</source>
        <translation>Supprimer %1 de %2</translation>
    </message>
    <message>
        <source>Give %1 to %2</source>
        <translation>Donner %1 à %2</translation>
    </message>
    <message>
        <source>Give %1 back to %2</source>
        <translation>Rendre %1 à %2</translation>
    </message>
    <message>
        <source>Change %1 to %2 for %3</source>
        <translation>Remplacer %1 par %2 pour %3</translation>
    </message>
</context>
<context>
    <name>CUI::QvelKeyboardWidget</name>
    <message>
        <source>Show in the Table</source>
        <translation>Afficher dans le tableau</translation>
    </message>
    <message>
        <source>Assign to %1</source>
        <translation>Attribuer à %1</translation>
    </message>
    <message>
        <source>Move %1 to Another Key</source>
        <translation>Déplacer %1 vers une autre touche</translation>
    </message>
    <message>
        <source>Move %1 Here</source>
        <translation>Déplacer %1 ici</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Actions of the key</source>
        <translation>Actions de la touche</translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation>Déplacer %1 vers %2</translation>
    </message>
</context>
<context>
    <name>CUI::QvelMessageLogWidget</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Effacer le journal</translation>
    </message>
</context>
<context>
    <name>CUI::QvelPresetComboBox</name>
    <message>
        <source>[Unsaved Changes*]</source>
        <translation>[Modifications non enregistrées*]</translation>
    </message>
</context>
<context>
    <name>CUI::QvelShortcutManager</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>from</source>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>QvelCustomizeUiDialog</name>
    <message>
        <source>All Groups</source>
        <translation>Tous les groupes</translation>
    </message>
    <message>
        <source>All Actions</source>
        <translation>Toutes les actions</translation>
    </message>
    <message>
        <source>Assigned Hotkeys Only</source>
        <translation>Raccourcis attribués uniquement</translation>
    </message>
    <message>
        <source>Customized Hotkeys Only</source>
        <translation>Raccourcis personnalisés uniquement</translation>
    </message>
    <message>
        <source>Unsaved Hotkeys Only</source>
        <translation>Raccourcis non enregistrés uniquement</translation>
    </message>
</context>
<context>
    <name>QvelMenusWidget</name>
    <message>
        <source>QvelMenusWidget</source>
        <translation>Menus</translation>
    </message>
</context>
<context>
    <name>QvelShortcutsWidget</name>
    <message>
        <source>QvelShortcutsWidget</source>
        <translation>Éditeur de raccourcis</translation>
    </message>
    <message>
        <source>Type to search by Hotkeys...</source>
        <translation>Rechercher par raccourci...</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>Rechercher par action...</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>Saisir une recherche...</translation>
    </message>
    <message>
        <source>Press and hold to temporarily activate.</source>
        <translation>Maintenez la touche enfoncée pour activer temporairement l’action.</translation>
    </message>
    <message>
        <source>No action selected</source>
        <translation>Aucune action sélectionnée</translation>
    </message>
    <message>
        <source>Select an action in the table to edit its hotkeys.</source>
        <translation>Sélectionnez une action dans le tableau pour modifier ses raccourcis.</translation>
    </message>
    <message>
        <source>Select an action in the table on the left to edit its hotkeys</source>
        <translation>Sélectionnez une action dans le tableau de gauche pour modifier ses raccourcis</translation>
    </message>
    <message>
        <source>Too Many Hotkeys</source>
        <translation>Trop de raccourcis</translation>
    </message>
    <message>
        <source>An action can have at most %1 hotkeys.

Remove one of them before you assign another.
</source>
        <translation>Une action peut avoir au maximum %1 raccourcis.

Supprimez-en un avant d’en attribuer un autre.
</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save changes...</source>
        <translation>Enregistre vos modifications dans le jeu de raccourcis actuel ou, s’il est verrouillé, dans un nouveau jeu.</translation>
    </message>
    <message>
        <source>Hotkey Set:</source>
        <translation>Jeu de raccourcis&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, load...</source>
        <translation>Permet d’enregistrer, de charger, de réinitialiser ou d’importer des jeux de raccourcis.</translation>
    </message>
    <message>
        <source>Change the active...</source>
        <translation>Permet de changer de jeu de raccourcis.</translation>
    </message>
    <message>
        <source>Filter the list... assigned</source>
        <translation>Filtre la liste des actions selon l’état de leurs raccourcis&#xa0;: attribués, personnalisés ou non enregistrés.</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Groupe&#xa0;:</translation>
    </message>
    <message>
        <source>Filter the list...context</source>
        <translation>Filtre la liste des actions selon le groupe auquel elles appartiennent.</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtre&#xa0;:</translation>
    </message>
    <message>
        <source>Press keys and modifiers...</source>
        <translation>Saisissez une partie du nom de l’action ou, pour une recherche par raccourci, appuyez sur les touches du raccourci recherché.</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Search will be... hotkey</source>
        <translation>Recherche par raccourci&#xa0;: appuyez sur les touches du raccourci recherché.</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Search will be... action</source>
        <translation>Recherche par action&#xa0;: saisissez une partie de son nom.</translation>
    </message>
    <message>
        <source>Type new hotkey...</source>
        <translation>Saisir un nouveau raccourci...</translation>
    </message>
    <message>
        <source>Press keys and... assign</source>
        <translation>Appuyez sur les touches du raccourci à attribuer à l’action sélectionnée.</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>Appuyer sur les touches...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Attribuer</translation>
    </message>
    <message>
        <source>Assigns the hotkey...</source>
        <translation>Attribue le raccourci à l’action sélectionnée.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Reassign the hotkey...</source>
        <translation>Attribue de nouveau le raccourci à l’action dont il a été supprimé.</translation>
    </message>
    <message>
        <source>Removed from:</source>
        <translation>Supprimé de&#xa0;:</translation>
    </message>
    <message>
        <source>Conflicts with:</source>
        <translation>En conflit avec&#xa0;:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Removes the assignment...</source>
        <translation>Supprime le raccourci de l’action qui l’utilise, pour que vous puissiez l’attribuer à l’action sélectionnée.</translation>
    </message>
    <message>
        <source>Validate Shortcut File</source>
        <translation>Vérifier un fichier de raccourcis</translation>
    </message>
    <message>
        <source>Shortcut File Validation</source>
        <translation>Vérification du fichier de raccourcis</translation>
    </message>
    <message>
        <source>Validate Shortcut Transform File</source>
        <translation>Vérifier un fichier de modifications de raccourcis</translation>
    </message>
    <message>
        <source>Shortcut Transform File Validation</source>
        <translation>Vérification du fichier de modifications de raccourcis</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>Enregistrer les raccourcis</translation>
    </message>
    <message>
        <source>Load Shortcuts</source>
        <translation>Charger des raccourcis</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Save your changes, discard them, or cancel to continue making changes.
</source>
        <translation>Enregistrez vos modifications, abandonnez-les ou annulez pour continuer à modifier les raccourcis.
</translation>
    </message>
    <message>
        <source>Reset Hotkeys</source>
        <translation>Réinitialiser les raccourcis</translation>
    </message>
    <message>
        <source>Reset to discard all unsaved changes.
</source>
        <translation>La réinitialisation abandonne toutes les modifications non enregistrées.
</translation>
    </message>
    <message>
        <source>File not Found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

You can either preserve the loaded hotkeys by saving them to a file or reset to the default hotkey set.
</source>
        <translation>Le fichier du jeu de raccourcis «&#xa0;%1&#xa0;» est introuvable.

Vous pouvez conserver les raccourcis chargés en les enregistrant dans un fichier, ou réinitialiser pour revenir au jeu de raccourcis par défaut.
</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

The missing set will be removed from the list.
</source>
        <translation>Le fichier du jeu de raccourcis «&#xa0;%1&#xa0;» est introuvable.

Le jeu manquant sera retiré de la liste.
</translation>
    </message>
    <message>
        <source>Hotkey File Already Exists</source>
        <translation>Le fichier de raccourcis existe déjà</translation>
    </message>
    <message>
        <source>%1 already exists in the User Customization folder.

Do you want to replace it?</source>
        <translation>%1 existe déjà dans le dossier de vos paramètres utilisateur.

Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Save Changes Error</source>
        <translation>Erreur lors de l’enregistrement des modifications</translation>
    </message>
    <message>
        <source>Cannot overwrite a locked preset file!</source>
        <translation>Impossible de remplacer un jeu de raccourcis verrouillé.</translation>
    </message>
    <message>
        <source>The hotkeys cannot be saved to %1.

Your changes are still here.
</source>
        <translation>Impossible d’enregistrer les raccourcis dans %1.

Vos modifications sont conservées.
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>Ouvrir le fichier journal</translation>
    </message>
    <message>
        <source>Hotkey Set Not Loaded</source>
        <translation>Jeu de raccourcis non chargé</translation>
    </message>
    <message>
        <source>%1 cannot be loaded.

See the log for more details.</source>
        <translation>Impossible de charger %1.

Consultez le journal pour plus de détails.</translation>
    </message>
    <message>
        <source>Hotkey File Converted</source>
        <translation>Fichier de raccourcis converti</translation>
    </message>
    <message>
        <source>%1 was successfully converted and loaded.

The new file, %2, is saved in your User Settings folder.</source>
        <translation>%1 a bien été converti et chargé.

Le nouveau fichier, %2, est enregistré dans le dossier de vos paramètres utilisateur.</translation>
    </message>
    <message>
        <source>Open File Location</source>
        <translation>Ouvrir l’emplacement du fichier</translation>
    </message>
    <message>
        <source>Hotkeys Conversion Failed</source>
        <translation>Échec de la conversion des raccourcis</translation>
    </message>
    <message>
        <source>Something went wrong while converting %1.

See the log for more details.</source>
        <translation>Une erreur s’est produite lors de la conversion de %1.

Consultez le journal pour plus de détails.</translation>
    </message>
    <message>
        <source>Xml File valid!! According to schema definition.</source>
        <translation>Le fichier XML est valide selon la définition du schéma.</translation>
    </message>
    <message>
        <source>Xml File invalid!! According to schema definition.</source>
        <translation>Le fichier XML n’est pas valide selon la définition du schéma.</translation>
    </message>
    <message>
        <source>Hotkey Set File (*.%1)</source>
        <translation>Fichier de jeu de raccourcis (*.%1)</translation>
    </message>
    <message>
        <source>Shortcut File (*.%1)</source>
        <translation>Fichier de raccourcis (*.%1)</translation>
    </message>
    <message>
        <source>Save Hotkey Set As</source>
        <translation>Enregistrer le jeu de raccourcis sous</translation>
    </message>
    <message>
        <source>Load Hotkey Set</source>
        <translation>Charger un jeu de raccourcis</translation>
    </message>
    <message>
        <source>Convert Legacy Hotkeys</source>
        <translation>Convertir les raccourcis d’une version antérieure</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts (*.%1)</source>
        <translation>Raccourcis clavier (*.%1)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Load From File...</source>
        <translation>Charger depuis un fichier...</translation>
    </message>
    <message>
        <source>Import Legacy Hotkeys...</source>
        <translation>Importer les raccourcis d’une version antérieure...</translation>
    </message>
    <message>
        <source>Shortcut Transformation List</source>
        <translation>Liste des modifications de raccourcis</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Impossible d’ouvrir le fichier.</translation>
    </message>
    <message>
        <source>Hotkey Set Changed</source>
        <translation>Jeu de raccourcis modifié</translation>
    </message>
    <message>
        <source>The file of hotkey set &apos;%1&apos; was changed by another program since it was loaded.

Saving replaces those changes by yours.
</source>
        <translation>Le fichier du jeu de raccourcis « %1 » a été modifié par un autre programme depuis son chargement.

L’enregistrement remplace ces modifications par les vôtres.
</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Enregistrer quand même</translation>
    </message>
    <message>
        <source>%1 is already assigned to:

%2

Reassign it?</source>
        <translation>%1 est déjà attribué à :

%2

Le réattribuer ?</translation>
    </message>
    <message>
        <source>Reassign Hotkey</source>
        <translation>Réattribuer le raccourci</translation>
    </message>
    <message>
        <source>Copy Hotkey</source>
        <translation>Copier le raccourci</translation>
    </message>
    <message>
        <source>Show What Has This Hotkey</source>
        <translation>Afficher ce qui a ce raccourci</translation>
    </message>
    <message>
        <source>Reset %1 to Default</source>
        <translation>Rétablir les valeurs par défaut de %1</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Reset Group to Default</source>
        <translation>Rétablir les valeurs par défaut du groupe</translation>
    </message>
    <message>
        <source>Reset All to Default</source>
        <translation>Tout rétablir par défaut</translation>
    </message>
    <message>
        <source>Default: none</source>
        <translation>Par défaut&#xa0;: aucun</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>Other actions have these default hotkeys now:

%1

Take them back?</source>
        <translation>D’autres actions ont maintenant ces raccourcis par défaut&#xa0;:

%1

Les reprendre&#xa0;?</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Laisser</translation>
    </message>
</context>
</TS>
