<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <translation>Hotkey Editor</translation>
    </message>
    <message>
        <source>Save changes...</source>
        <translation>Saves your changes to the current hotkey set, or to a new one if the set is locked.</translation>
    </message>
    <message>
        <source>Save, load...</source>
        <translation>Saves, loads, resets or imports hotkey sets.</translation>
    </message>
    <message>
        <source>Change the active...</source>
        <translation>Changes which hotkey set is active.</translation>
    </message>
    <message>
        <source>Filter the list... assigned</source>
        <translation>Filters the list of actions by the state of their hotkeys: assigned, customized or not saved yet.</translation>
    </message>
    <message>
        <source>Filter the list...context</source>
        <translation>Filters the list of actions by the group they belong to.</translation>
    </message>
    <message>
        <source>Press keys and modifiers...</source>
        <translation>Type part of the action&apos;s name or, when searching by hotkey, press the keys and modifiers you are looking for.</translation>
    </message>
    <message>
        <source>Search will be... hotkey</source>
        <translation>Searches by hotkey: press the keys and modifiers you are looking for.</translation>
    </message>
    <message>
        <source>Search will be... action</source>
        <translation>Searches by action: type part of its name.</translation>
    </message>
    <message>
        <source>Press keys and... assign</source>
        <translation>Press the keys and modifiers that you want to assign to the selected action.</translation>
    </message>
    <message>
        <source>Assigns the hotkey...</source>
        <translation>Assigns the hotkey to the selected action.</translation>
    </message>
    <message>
        <source>Reassign the hotkey...</source>
        <translation>Reassigns the hotkey to the action it was removed from.</translation>
    </message>
    <message>
        <source>Removes the assignment...</source>
        <translation>Removes the hotkey from the action that has it now, so that you can assign it to the selected one.</translation>
    </message>
</context>
</TS>
