<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CUI</name>
    <message>
        <source>Velstudio Default Keyset</source>
        <translation>Velstudio-Standardtastenkürzel</translation>
    </message>
    <message>
        <source>Zarvi Default Keyset</source>
        <translation>Zarvi-Standardtastenkürzel</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyAudit</name>
    <message>
        <source>In %1 this key runs %2, never %3.</source>
        <translation>In %1 löst diese Taste %2 aus, nie %3.</translation>
    </message>
    <message>
        <source>Elsewhere it runs nothing, since these count there equally: %1.</source>
        <translation>Sonst löst sie nichts aus, weil dort mehrere gleich gelten: %1.</translation>
    </message>
    <message>
        <source>This key runs nothing, since these count everywhere equally: %1.</source>
        <translation>Diese Taste löst nichts aus, weil mehrere überall gleich gelten: %1.</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1.</source>
        <translation>Sonst löst sie %1 aus.</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1, never %2.</source>
        <translation>Sonst löst sie %1 aus, nie %2.</translation>
    </message>
    <message>
        <source>Everywhere this key runs %1, never %2.</source>
        <translation>Diese Taste löst überall %1 aus, nie %2.</translation>
    </message>
    <message>
        <source>In %1 this key runs %2.</source>
        <translation>In %1 löst diese Taste %2 aus.</translation>
    </message>
    <message>
        <source>While text is typed, this key does not run %1: %2.</source>
        <translation>Während der Texteingabe löst diese Taste %1 nicht aus: %2.</translation>
    </message>
    <message>
        <source>%1 has lost %2.</source>
        <translation>%1 hat %2 verloren.</translation>
    </message>
    <message>
        <source>%1 has lost %2, and %3 has it now.</source>
        <translation>%1 hat %2 an %3 verloren.</translation>
    </message>
    <message>
        <source>No key has this name, so that none runs %1.</source>
        <translation>Keine Taste hat diesen Namen, also löst keine %1 aus.</translation>
    </message>
    <message>
        <source>The keyboard in use has no such key, so that none runs %1.</source>
        <translation>Die verwendete Tastatur hat diese Taste nicht, also löst keine %1 aus.</translation>
    </message>
    <message>
        <source>%1 runs %2, %3 runs %4.</source>
        <translation>%1 löst %2 aus, %3 löst %4 aus.</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 hotkeys.</source>
        <translation>%1 hat %2 von höchstens %3 Tastenkürzeln.</translation>
    </message>
    <message>
        <source>%1 may take this key before it runs %2.</source>
        <translation>%1 kann diese Taste abfangen, bevor sie %2 auslöst.</translation>
    </message>
    <message>
        <source>In %1 this key runs %2, not %3.</source>
        <translation>In %1 löst diese Taste %2 aus, nicht %3.</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyFinding</name>
    <message>
        <source>Held twice</source>
        <translation>Doppelt belegt</translation>
    </message>
    <message>
        <source>Ambiguous</source>
        <translation>Mehrdeutig</translation>
    </message>
    <message>
        <source>Names no key</source>
        <translation>Keine Taste</translation>
    </message>
    <message>
        <source>Not on the keyboard</source>
        <translation>Nicht auf der Tastatur</translation>
    </message>
    <message>
        <source>Shadowed</source>
        <translation>Verdeckt</translation>
    </message>
    <message>
        <source>Taken by the desktop</source>
        <translation>Vom Desktop belegt</translation>
    </message>
    <message>
        <source>Hotkey lost</source>
        <translation>Tastenkürzel verloren</translation>
    </message>
    <message>
        <source>Taken by text fields</source>
        <translation>Von Textfeldern belegt</translation>
    </message>
    <message>
        <source>Differs by keypad only</source>
        <translation>Nur durch den Ziffernblock verschieden</translation>
    </message>
    <message>
        <source>Differs by Shift only</source>
        <translation>Nur durch die Umschalttaste verschieden</translation>
    </message>
    <message>
        <source>Close to the limit</source>
        <translation>Nahe an der Höchstzahl</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyKeyboard</name>
    <message>
        <source>Not a hotkey</source>
        <translation>Kein Tastenkürzel</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Taken in several groups</source>
        <translation>In mehreren Gruppen belegt</translation>
    </message>
    <message>
        <source>Reserved by the system</source>
        <translation>Vom System reserviert</translation>
    </message>
    <message>
        <source>Without modifiers</source>
        <translation>Ohne Umschalttasten</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyReservation</name>
    <message>
        <source>Close window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Switch windows</source>
        <translation>Fenster wechseln</translation>
    </message>
    <message>
        <source>Window menu</source>
        <translation>Fenstermenü</translation>
    </message>
    <message>
        <source>Move or resize window</source>
        <translation>Fenster verschieben oder Größe ändern</translation>
    </message>
    <message>
        <source>Hide or minimize window</source>
        <translation>Fenster ausblenden oder minimieren</translation>
    </message>
    <message>
        <source>Show all windows</source>
        <translation>Alle Fenster anzeigen</translation>
    </message>
    <message>
        <source>Show the desktop</source>
        <translation>Desktop anzeigen</translation>
    </message>
    <message>
        <source>Switch workspace</source>
        <translation>Arbeitsfläche wechseln</translation>
    </message>
    <message>
        <source>Move window to a workspace</source>
        <translation>Fenster auf eine Arbeitsfläche verschieben</translation>
    </message>
    <message>
        <source>Search or start a program</source>
        <translation>Programm suchen oder starten</translation>
    </message>
    <message>
        <source>Open a terminal</source>
        <translation>Terminal öffnen</translation>
    </message>
    <message>
        <source>Log out or lock the screen</source>
        <translation>Abmelden oder Bildschirm sperren</translation>
    </message>
    <message>
        <source>Task manager or force quit</source>
        <translation>Taskmanager oder Beenden erzwingen</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Switch to a text console</source>
        <translation>Zu einer Textkonsole wechseln</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Bedienungshilfen</translation>
    </message>
    <message>
        <source>Cut, copy or paste</source>
        <translation>Ausschneiden, kopieren oder einfügen</translation>
    </message>
    <message>
        <source>Undo or redo</source>
        <translation>Rückgängig machen oder wiederherstellen</translation>
    </message>
    <message>
        <source>Select text</source>
        <translation>Text auswählen</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>Text löschen</translation>
    </message>
    <message>
        <source>Move the text cursor</source>
        <translation>Textcursor bewegen</translation>
    </message>
    <message>
        <source>KDE: System Settings &gt; Keyboard &gt; Shortcuts</source>
        <translation>KDE: Systemeinstellungen &gt; Tastatur &gt; Kurzbefehle</translation>
    </message>
    <message>
        <source>GNOME: Settings &gt; Keyboard</source>
        <translation>GNOME: Einstellungen &gt; Tastatur</translation>
    </message>
    <message>
        <source>macOS: System Settings &gt; Keyboard &gt; Keyboard Shortcuts</source>
        <translation>macOS: Systemeinstellungen &gt; Tastatur &gt; Tastaturkurzbefehle</translation>
    </message>
    <message>
        <source>Text fields of Qt</source>
        <translation>Textfelder von Qt</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Textfelder</translation>
    </message>
    <message>
        <source>Show or hide the Dock</source>
        <translation>Dock ein- oder ausblenden</translation>
    </message>
    <message>
        <source>%1: built into the system</source>
        <translation>%1: fest im System</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeySheet</name>
    <message>
        <source>Hotkeys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the code of this translation&apos;s language</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (Fortsetzung)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>CUI::KeyboardChoosers</name>
    <message>
        <source>%1 groups</source>
        <translation>%1 Gruppen</translation>
    </message>
    <message>
        <source>Modifiers:</source>
        <translation>Umschalttasten:</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>Form:</translation>
    </message>
    <message>
        <source>Of the layout in use</source>
        <translation>Der verwendeten Belegung</translation>
    </message>
</context>
<context>
    <name>CUI::QvelActionItemModel</name>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
</context>
<context>
    <name>CUI::QvelAssignedShortcutListItem</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Successfully removed</source>
        <translation>Erfolgreich entfernt</translation>
    </message>
</context>
<context>
    <name>CUI::QvelCommandPalette</name>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (nicht verfügbar)</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>Tasten drücken...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Zuweisen</translation>
    </message>
    <message>
        <source>New hotkey for %1:</source>
        <translation>Neues Tastenkürzel für %1:</translation>
    </message>
    <message>
        <source>New hotkey for %1 instead of %2:</source>
        <translation>Neues Tastenkürzel für %1 statt %2:</translation>
    </message>
    <message>
        <source>Press the new hotkey, or Escape to leave it.</source>
        <translation>Drücken Sie das neue Tastenkürzel oder Esc zum Abbrechen.</translation>
    </message>
    <message>
        <source>Enter assigns it.</source>
        <translation>Mit der Eingabetaste weisen Sie es zu.</translation>
    </message>
    <message>
        <source>Conflicts with: %1. Enter takes it from there.</source>
        <translation>Konflikt mit: %1. Mit der Eingabetaste nehmen Sie es von dort.</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>%1 zu %2 zuweisen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>Nach Aktionen suchen...</translation>
    </message>
    <message>
        <source>Search for a command</source>
        <translation>Befehl suchen</translation>
    </message>
    <message>
        <source>It acts only while its hotkey is held.</source>
        <translation>Wirkt nur, solange das Tastenkürzel gehalten wird.</translation>
    </message>
    <message>
        <source>It is disabled at the moment.</source>
        <translation>Zurzeit deaktiviert.</translation>
    </message>
    <message>
        <source>The application does not perform it.</source>
        <translation>Die Anwendung führt dies nicht aus.</translation>
    </message>
    <message>
        <source>No command has this name.</source>
        <translation>Kein Befehl hat diesen Namen.</translation>
    </message>
    <message>
        <source>Enter runs it, Tab changes its hotkey, Escape closes.</source>
        <translation>Eingabetaste: ausführen, Tab: Tastenkürzel ändern, Esc: schließen.</translation>
    </message>
</context>
<context>
    <name>CUI::QvelConflictsWidget</name>
    <message>
        <source>Severity</source>
        <translation>Schweregrad</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>What happens today</source>
        <translation>Was heute geschieht</translation>
    </message>
    <message>
        <source>Findings: %1 of %2</source>
        <translation>Befunde: %1 von %2</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>Fehler und Warnungen</translation>
    </message>
    <message>
        <source>All findings</source>
        <translation>Alle Befunde</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>Suchbegriff eingeben...</translation>
    </message>
    <message>
        <source>Search the findings</source>
        <translation>Befunde durchsuchen</translation>
    </message>
    <message>
        <source>Least severe finding</source>
        <translation>Geringster Schweregrad</translation>
    </message>
    <message>
        <source>Kind of finding</source>
        <translation>Art des Befunds</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>What settles the finding</source>
        <translation>Was den Befund behebt</translation>
    </message>
    <message>
        <source>Select a finding to see what settles it.</source>
        <translation>Wählen Sie einen Befund aus, um zu sehen, was ihn behebt.</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Zurückgeben</translation>
    </message>
    <message>
        <source>Give to this action</source>
        <translation>Dieser Aktion geben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Anderes wählen</translation>
    </message>
    <message>
        <source>Remove %1 from %2</source>
        <translation>%1 von %2 entfernen</translation>
    </message>
    <message>
        <source>Give %1 to %2</source>
        <translation>%1 an %2 geben</translation>
    </message>
    <message>
        <source>Give %1 back to %2</source>
        <translation>%1 an %2 zurückgeben</translation>
    </message>
    <message>
        <source>Change %1 to %2 for %3</source>
        <translation>%1 in %2 ändern für %3</translation>
    </message>
</context>
<context>
    <name>CUI::QvelKeyboardWidget</name>
    <message>
        <source>Show in the Table</source>
        <translation>In der Tabelle anzeigen</translation>
    </message>
    <message>
        <source>Assign to %1</source>
        <translation>%1 zuweisen</translation>
    </message>
    <message>
        <source>Move %1 to Another Key</source>
        <translation>%1 auf eine andere Taste verschieben</translation>
    </message>
    <message>
        <source>Move %1 Here</source>
        <translation>%1 hierher verschieben</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Actions of the key</source>
        <translation>Aktionen der Taste</translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation>%1 nach %2 verschieben</translation>
    </message>
</context>
<context>
    <name>CUI::QvelMessageLogWidget</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Protokoll leeren</translation>
    </message>
</context>
<context>
    <name>CUI::QvelPresetComboBox</name>
    <message>
        <source>[Unsaved Changes*]</source>
        <translation>[Nicht gespeicherte Änderungen*]</translation>
    </message>
</context>
<context>
    <name>CUI::QvelShortcutManager</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen:</translation>
    </message>
    <message>
        <source>to</source>
        <translation>zu</translation>
    </message>
    <message>
        <source>from</source>
        <translation>von</translation>
    </message>
</context>
<context>
    <name>QvelCustomizeUiDialog</name>
    <message>
        <source>All Groups</source>
        <translation>Alle Gruppen</translation>
    </message>
    <message>
        <source>All Actions</source>
        <translation>Alle Aktionen</translation>
    </message>
    <message>
        <source>Assigned Hotkeys Only</source>
        <translation>Nur zugewiesene Tastenkürzel</translation>
    </message>
    <message>
        <source>Customized Hotkeys Only</source>
        <translation>Nur angepasste Tastenkürzel</translation>
    </message>
    <message>
        <source>Unsaved Hotkeys Only</source>
        <translation>Nur nicht gespeicherte Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>QvelMenusWidget</name>
    <message>
        <source>QvelMenusWidget</source>
        <translation>Menüs</translation>
    </message>
</context>
<context>
    <name>QvelShortcutsWidget</name>
    <message>
        <source>QvelShortcutsWidget</source>
        <translation>Tastenkürzel-Editor</translation>
    </message>
    <message>
        <source>Type to search by Hotkeys...</source>
        <translation>Nach Tastenkürzeln suchen...</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>Nach Aktionen suchen...</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>Suchbegriff eingeben...</translation>
    </message>
    <message>
        <source>Press and hold to temporarily activate.</source>
        <translation>Gedrückt halten, um die Aktion vorübergehend zu aktivieren.</translation>
    </message>
    <message>
        <source>No action selected</source>
        <translation>Keine Aktion ausgewählt</translation>
    </message>
    <message>
        <source>Select an action in the table to edit its hotkeys.</source>
        <translation>Wählen Sie in der Tabelle eine Aktion aus, um ihre Tastenkürzel zu bearbeiten.</translation>
    </message>
    <message>
        <source>Select an action in the table on the left to edit its hotkeys</source>
        <translation>Wählen Sie links in der Tabelle eine Aktion aus, um ihre Tastenkürzel zu bearbeiten</translation>
    </message>
    <message>
        <source>Too Many Hotkeys</source>
        <translation>Zu viele Tastenkürzel</translation>
    </message>
    <message>
        <source>An action can have at most %1 hotkeys.

Remove one of them before you assign another.
</source>
        <translation>Eine Aktion kann höchstens %1 Tastenkürzel haben.

Entfernen Sie eines davon, bevor Sie ein weiteres zuweisen.
</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save changes...</source>
        <translation>Speichert Ihre Änderungen im aktuellen Tastenkürzelsatz oder, wenn dieser gesperrt ist, in einem neuen.</translation>
    </message>
    <message>
        <source>Hotkey Set:</source>
        <translation>Tastenkürzelsatz:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, load...</source>
        <translation>Hier können Sie Tastenkürzelsätze speichern, laden, zurücksetzen oder importieren.</translation>
    </message>
    <message>
        <source>Change the active...</source>
        <translation>Wechselt den aktiven Tastenkürzelsatz.</translation>
    </message>
    <message>
        <source>Filter the list... assigned</source>
        <translation>Filtert die Liste der Aktionen nach dem Zustand ihrer Tastenkürzel: zugewiesen, angepasst oder noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Gruppe:</translation>
    </message>
    <message>
        <source>Filter the list...context</source>
        <translation>Filtert die Liste der Aktionen nach der Gruppe, zu der sie gehören.</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>Press keys and modifiers...</source>
        <translation>Geben Sie einen Teil des Aktionsnamens ein. Bei der Suche nach Tastenkürzeln drücken Sie das gesuchte Tastenkürzel.</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Search will be... hotkey</source>
        <translation>Sucht nach Tastenkürzeln: Drücken Sie das gesuchte Tastenkürzel.</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Search will be... action</source>
        <translation>Sucht nach Aktionen: Geben Sie einen Teil des Namens ein.</translation>
    </message>
    <message>
        <source>Type new hotkey...</source>
        <translation>Neues Tastenkürzel eingeben...</translation>
    </message>
    <message>
        <source>Press keys and... assign</source>
        <translation>Drücken Sie das Tastenkürzel, das Sie der ausgewählten Aktion zuweisen möchten.</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>Tasten drücken...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Zuweisen</translation>
    </message>
    <message>
        <source>Assigns the hotkey...</source>
        <translation>Weist das Tastenkürzel der ausgewählten Aktion zu.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Reassign the hotkey...</source>
        <translation>Weist das Tastenkürzel wieder der Aktion zu, von der es entfernt wurde.</translation>
    </message>
    <message>
        <source>Removed from:</source>
        <translation>Entfernt von:</translation>
    </message>
    <message>
        <source>Conflicts with:</source>
        <translation>Konflikt mit:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Removes the assignment...</source>
        <translation>Entfernt das Tastenkürzel von der Aktion, der es derzeit zugewiesen ist, damit Sie es der ausgewählten zuweisen können.</translation>
    </message>
    <message>
        <source>Validate Shortcut File</source>
        <translation>Tastenkürzeldatei prüfen</translation>
    </message>
    <message>
        <source>Shortcut File Validation</source>
        <translation>Prüfung der Tastenkürzeldatei</translation>
    </message>
    <message>
        <source>Validate Shortcut Transform File</source>
        <translation>Datei mit Tastenkürzeländerungen prüfen</translation>
    </message>
    <message>
        <source>Shortcut Transform File Validation</source>
        <translation>Prüfung der Datei mit Tastenkürzeländerungen</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>Tastenkürzel speichern</translation>
    </message>
    <message>
        <source>Load Shortcuts</source>
        <translation>Tastenkürzel laden</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save your changes, discard them, or cancel to continue making changes.
</source>
        <translation>Speichern oder verwerfen Sie Ihre Änderungen, oder brechen Sie ab, um weitere Änderungen vorzunehmen.
</translation>
    </message>
    <message>
        <source>Reset Hotkeys</source>
        <translation>Tastenkürzel zurücksetzen</translation>
    </message>
    <message>
        <source>Reset to discard all unsaved changes.
</source>
        <translation>Beim Zurücksetzen werden alle nicht gespeicherten Änderungen verworfen.
</translation>
    </message>
    <message>
        <source>File not Found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

You can either preserve the loaded hotkeys by saving them to a file or reset to the default hotkey set.
</source>
        <translation>Die Datei für den Tastenkürzelsatz „%1“ wurde nicht gefunden.

Sie können die geladenen Tastenkürzel in einer Datei speichern, um sie zu behalten, oder sie auf den Standardsatz zurücksetzen.
</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

The missing set will be removed from the list.
</source>
        <translation>Die Datei für den Tastenkürzelsatz „%1“ wurde nicht gefunden.

Der fehlende Satz wird aus der Liste entfernt.
</translation>
    </message>
    <message>
        <source>Hotkey File Already Exists</source>
        <translation>Tastenkürzeldatei bereits vorhanden</translation>
    </message>
    <message>
        <source>%1 already exists in the User Customization folder.

Do you want to replace it?</source>
        <translation>%1 ist in Ihrem Ordner für Benutzereinstellungen bereits vorhanden.

Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>Save Changes Error</source>
        <translation>Fehler beim Speichern der Änderungen</translation>
    </message>
    <message>
        <source>Cannot overwrite a locked preset file!</source>
        <translation>Ein gesperrter Tastenkürzelsatz kann nicht überschrieben werden.</translation>
    </message>
    <message>
        <source>The hotkeys cannot be saved to %1.

Your changes are still here.
</source>
        <translation>Die Tastenkürzel können nicht unter %1 gespeichert werden.

Ihre Änderungen bleiben erhalten.
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>Protokolldatei öffnen</translation>
    </message>
    <message>
        <source>Hotkey Set Not Loaded</source>
        <translation>Tastenkürzelsatz nicht geladen</translation>
    </message>
    <message>
        <source>%1 cannot be loaded.

See the log for more details.</source>
        <translation>%1 kann nicht geladen werden.

Weitere Einzelheiten finden Sie im Protokoll.</translation>
    </message>
    <message>
        <source>Hotkey File Converted</source>
        <translation>Tastenkürzeldatei konvertiert</translation>
    </message>
    <message>
        <source>%1 was successfully converted and loaded.

The new file, %2, is saved in your User Settings folder.</source>
        <translation>%1 wurde erfolgreich konvertiert und geladen.

Die neue Datei %2 wurde in Ihrem Ordner für Benutzereinstellungen gespeichert.</translation>
    </message>
    <message>
        <source>Open File Location</source>
        <translation>Dateispeicherort öffnen</translation>
    </message>
    <message>
        <source>Hotkeys Conversion Failed</source>
        <translation>Konvertierung der Tastenkürzel fehlgeschlagen</translation>
    </message>
    <message>
        <source>Something went wrong while converting %1.

See the log for more details.</source>
        <translation>Beim Konvertieren von %1 ist ein Fehler aufgetreten.

Weitere Einzelheiten finden Sie im Protokoll.</translation>
    </message>
    <message>
        <source>Xml File valid!! According to schema definition.</source>
        <translation>Die XML-Datei ist gemäß der Schemadefinition gültig.</translation>
    </message>
    <message>
        <source>Xml File invalid!! According to schema definition.</source>
        <translation>Die XML-Datei ist gemäß der Schemadefinition ungültig.</translation>
    </message>
    <message>
        <source>Hotkey Set File (*.%1)</source>
        <translation>Tastenkürzelsatz-Datei (*.%1)</translation>
    </message>
    <message>
        <source>Shortcut File (*.%1)</source>
        <translation>Tastenkürzeldatei (*.%1)</translation>
    </message>
    <message>
        <source>Save Hotkey Set As</source>
        <translation>Tastenkürzelsatz speichern unter</translation>
    </message>
    <message>
        <source>Load Hotkey Set</source>
        <translation>Tastenkürzelsatz laden</translation>
    </message>
    <message>
        <source>Convert Legacy Hotkeys</source>
        <translation>Tastenkürzel aus älterer Version konvertieren</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts (*.%1)</source>
        <translation>Tastenkürzel (*.%1)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Load From File...</source>
        <translation>Aus Datei laden...</translation>
    </message>
    <message>
        <source>Import Legacy Hotkeys...</source>
        <translation>Tastenkürzel aus älterer Version importieren...</translation>
    </message>
    <message>
        <source>Shortcut Transformation List</source>
        <translation>Liste der Tastenkürzeländerungen</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Hotkey Set Changed</source>
        <translation>Tastenkürzelsatz geändert</translation>
    </message>
    <message>
        <source>The file of hotkey set &apos;%1&apos; was changed by another program since it was loaded.

Saving replaces those changes by yours.
</source>
        <translation>Die Datei des Tastenkürzelsatzes „%1“ wurde seit dem Laden von einem anderen Programm geändert.

Beim Speichern werden diese Änderungen durch Ihre ersetzt.
</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Trotzdem speichern</translation>
    </message>
    <message>
        <source>%1 is already assigned to:

%2

Reassign it?</source>
        <translation>%1 ist bereits zugewiesen:

%2

Neu zuweisen?</translation>
    </message>
    <message>
        <source>Reassign Hotkey</source>
        <translation>Tastenkürzel neu zuweisen</translation>
    </message>
    <message>
        <source>Copy Hotkey</source>
        <translation>Tastenkürzel kopieren</translation>
    </message>
    <message>
        <source>Show What Has This Hotkey</source>
        <translation>Aktionen mit diesem Tastenkürzel anzeigen</translation>
    </message>
    <message>
        <source>Reset %1 to Default</source>
        <translation>%1 auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Reset Group to Default</source>
        <translation>Gruppe auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Reset All to Default</source>
        <translation>Alle auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Default: none</source>
        <translation>Standard: keine</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Standard: %1</translation>
    </message>
    <message>
        <source>Other actions have these default hotkeys now:

%1

Take them back?</source>
        <translation>Andere Aktionen haben jetzt diese Standard-Tastenkürzel:

%1

Sollen sie zurückgeholt werden?</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Belassen</translation>
    </message>
</context>
</TS>
