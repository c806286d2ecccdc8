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
</context>
</TS>
