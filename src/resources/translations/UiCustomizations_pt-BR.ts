<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CUI</name>
    <message>
        <source>Velstudio Default Keyset</source>
        <translation>Conjunto de atalhos padrão do Velstudio</translation>
    </message>
    <message>
        <source>Zarvi Default Keyset</source>
        <translation>Conjunto de atalhos padrão do Zarvi</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyAudit</name>
    <message>
        <source>In %1 this key runs %2, never %3.</source>
        <translation>Em %1, esta tecla executa %2, nunca %3.</translation>
    </message>
    <message>
        <source>Elsewhere it runs nothing, since these count there equally: %1.</source>
        <translation>Nos demais lugares, não executa nada, pois estas valem igualmente: %1.</translation>
    </message>
    <message>
        <source>This key runs nothing, since these count everywhere equally: %1.</source>
        <translation>Esta tecla não executa nada, pois estas valem igualmente em qualquer lugar: %1.</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1.</source>
        <translation>Nos demais lugares, executa %1.</translation>
    </message>
    <message>
        <source>Elsewhere it runs %1, never %2.</source>
        <translation>Nos demais lugares, executa %1, nunca %2.</translation>
    </message>
    <message>
        <source>Everywhere this key runs %1, never %2.</source>
        <translation>Em qualquer lugar, esta tecla executa %1, nunca %2.</translation>
    </message>
    <message>
        <source>In %1 this key runs %2.</source>
        <translation>Em %1, esta tecla executa %2.</translation>
    </message>
    <message>
        <source>While text is typed, this key does not run %1: %2.</source>
        <translation>Enquanto se digita texto, esta tecla não executa %1: %2.</translation>
    </message>
    <message>
        <source>%1 has lost %2.</source>
        <translation>%1 perdeu %2.</translation>
    </message>
    <message>
        <source>%1 has lost %2, and %3 has it now.</source>
        <translation>%1 perdeu %2, agora de %3.</translation>
    </message>
    <message>
        <source>No key has this name, so that none runs %1.</source>
        <translation>Nenhuma tecla tem este nome, portanto nenhuma executa %1.</translation>
    </message>
    <message>
        <source>The keyboard in use has no such key, so that none runs %1.</source>
        <translation>O teclado em uso não tem esta tecla, portanto nenhuma executa %1.</translation>
    </message>
    <message>
        <source>%1 runs %2, %3 runs %4.</source>
        <translation>%1 executa %2, %3 executa %4.</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 hotkeys.</source>
        <translation>%1 tem %2 de %3 atalhos.</translation>
    </message>
    <message>
        <source>%1 may take this key before it runs %2.</source>
        <translation>%1 pode usar esta tecla antes que ela execute %2.</translation>
    </message>
    <message>
        <source>In %1 this key runs %2, not %3.</source>
        <translation>Em %1, esta tecla executa %2, não %3.</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyFinding</name>
    <message>
        <source>Held twice</source>
        <translation>Atribuído duas vezes</translation>
    </message>
    <message>
        <source>Ambiguous</source>
        <translation>Ambíguo</translation>
    </message>
    <message>
        <source>Names no key</source>
        <translation>Nenhuma tecla</translation>
    </message>
    <message>
        <source>Not on the keyboard</source>
        <translation>Ausente no teclado</translation>
    </message>
    <message>
        <source>Shadowed</source>
        <translation>Encoberto</translation>
    </message>
    <message>
        <source>Taken by the desktop</source>
        <translation>Usado pela área de trabalho</translation>
    </message>
    <message>
        <source>Hotkey lost</source>
        <translation>Atalho perdido</translation>
    </message>
    <message>
        <source>Taken by text fields</source>
        <translation>Usado por campos de texto</translation>
    </message>
    <message>
        <source>Differs by keypad only</source>
        <translation>Difere só pelo teclado numérico</translation>
    </message>
    <message>
        <source>Differs by Shift only</source>
        <translation>Difere só por Shift</translation>
    </message>
    <message>
        <source>Close to the limit</source>
        <translation>Perto do limite</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Observação</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyKeyboard</name>
    <message>
        <source>Not a hotkey</source>
        <translation>Não é atalho</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Livre</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>Taken in several groups</source>
        <translation>Ocupado em vários grupos</translation>
    </message>
    <message>
        <source>Reserved by the system</source>
        <translation>Reservado pelo sistema</translation>
    </message>
    <message>
        <source>Without modifiers</source>
        <translation>Sem modificadores</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeyReservation</name>
    <message>
        <source>Close window</source>
        <translation>Fechar janela</translation>
    </message>
    <message>
        <source>Switch windows</source>
        <translation>Alternar janelas</translation>
    </message>
    <message>
        <source>Window menu</source>
        <translation>Menu da janela</translation>
    </message>
    <message>
        <source>Move or resize window</source>
        <translation>Mover ou redimensionar janela</translation>
    </message>
    <message>
        <source>Hide or minimize window</source>
        <translation>Ocultar ou minimizar janela</translation>
    </message>
    <message>
        <source>Show all windows</source>
        <translation>Mostrar todas as janelas</translation>
    </message>
    <message>
        <source>Show the desktop</source>
        <translation>Mostrar a área de trabalho</translation>
    </message>
    <message>
        <source>Switch workspace</source>
        <translation>Alternar espaço de trabalho</translation>
    </message>
    <message>
        <source>Move window to a workspace</source>
        <translation>Mover janela para um espaço de trabalho</translation>
    </message>
    <message>
        <source>Search or start a program</source>
        <translation>Pesquisar ou iniciar um programa</translation>
    </message>
    <message>
        <source>Open a terminal</source>
        <translation>Abrir um terminal</translation>
    </message>
    <message>
        <source>Log out or lock the screen</source>
        <translation>Sair da sessão ou bloquear a tela</translation>
    </message>
    <message>
        <source>Task manager or force quit</source>
        <translation>Gerenciador de tarefas ou encerramento forçado</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>Captura de tela</translation>
    </message>
    <message>
        <source>Switch to a text console</source>
        <translation>Alternar para um console de texto</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Acessibilidade</translation>
    </message>
    <message>
        <source>Cut, copy or paste</source>
        <translation>Recortar, copiar ou colar</translation>
    </message>
    <message>
        <source>Undo or redo</source>
        <translation>Desfazer ou refazer</translation>
    </message>
    <message>
        <source>Select text</source>
        <translation>Selecionar texto</translation>
    </message>
    <message>
        <source>Delete text</source>
        <translation>Excluir texto</translation>
    </message>
    <message>
        <source>Move the text cursor</source>
        <translation>Mover o cursor de texto</translation>
    </message>
    <message>
        <source>KDE: System Settings &gt; Keyboard &gt; Shortcuts</source>
        <translation>KDE: Configurações do sistema &gt; Teclado &gt; Atalhos</translation>
    </message>
    <message>
        <source>GNOME: Settings &gt; Keyboard</source>
        <translation>GNOME: Configurações &gt; Teclado</translation>
    </message>
    <message>
        <source>macOS: System Settings &gt; Keyboard &gt; Keyboard Shortcuts</source>
        <translation>macOS: Ajustes do Sistema &gt; Teclado &gt; Atalhos de Teclado</translation>
    </message>
    <message>
        <source>Text fields of Qt</source>
        <translation>Campos de texto do Qt</translation>
    </message>
    <message>
        <source>Text fields</source>
        <translation>Campos de texto</translation>
    </message>
    <message>
        <source>Show or hide the Dock</source>
        <translation>Mostrar ou ocultar o Dock</translation>
    </message>
    <message>
        <source>%1: built into the system</source>
        <translation>%1: integrado ao sistema</translation>
    </message>
</context>
<context>
    <name>CUI::HotkeySheet</name>
    <message>
        <source>Hotkeys</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the code of this translation&apos;s language</comment>
        <translation>pt</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (continuação)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>CUI::KeyboardChoosers</name>
    <message>
        <source>%1 groups</source>
        <translation>%1 grupos</translation>
    </message>
    <message>
        <source>Modifiers:</source>
        <translation>Modificadores:</translation>
    </message>
    <message>
        <source>Shape:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Of the layout in use</source>
        <translation>Do layout em uso</translation>
    </message>
</context>
<context>
    <name>CUI::QvelActionItemModel</name>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
</context>
<context>
    <name>CUI::QvelAssignedShortcutListItem</name>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Successfully removed</source>
        <translation>Removido com sucesso</translation>
    </message>
</context>
<context>
    <name>CUI::QvelCommandPalette</name>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (não disponível)</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>Pressione as teclas...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Atribuir</translation>
    </message>
    <message>
        <source>New hotkey for %1:</source>
        <translation>Novo atalho para %1:</translation>
    </message>
    <message>
        <source>New hotkey for %1 instead of %2:</source>
        <translation>Novo atalho para %1 em vez de %2:</translation>
    </message>
    <message>
        <source>Press the new hotkey, or Escape to leave it.</source>
        <translation>Pressione o novo atalho, ou Esc para desistir.</translation>
    </message>
    <message>
        <source>Enter assigns it.</source>
        <translation>Enter o atribui.</translation>
    </message>
    <message>
        <source>Conflicts with: %1. Enter takes it from there.</source>
        <translation>Conflito com: %1. Enter o retira de lá.</translation>
    </message>
    <message>
        <source>Assign %1 to %2</source>
        <translation>Atribuir %1 a %2</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>Pesquisar por ações...</translation>
    </message>
    <message>
        <source>Search for a command</source>
        <translation>Pesquisar um comando</translation>
    </message>
    <message>
        <source>It acts only while its hotkey is held.</source>
        <translation>Atua somente enquanto seu atalho está pressionado.</translation>
    </message>
    <message>
        <source>It is disabled at the moment.</source>
        <translation>Desativado no momento.</translation>
    </message>
    <message>
        <source>The application does not perform it.</source>
        <translation>O aplicativo não o executa.</translation>
    </message>
    <message>
        <source>No command has this name.</source>
        <translation>Nenhum comando tem este nome.</translation>
    </message>
    <message>
        <source>Enter runs it, Tab changes its hotkey, Escape closes.</source>
        <translation>Enter: executar, Tab: mudar o atalho, Esc: fechar.</translation>
    </message>
</context>
<context>
    <name>CUI::QvelConflictsWidget</name>
    <message>
        <source>Severity</source>
        <translation>Gravidade</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Constatação</translation>
    </message>
    <message>
        <source>Hotkey</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Ações</translation>
    </message>
    <message>
        <source>What happens today</source>
        <translation>O que acontece hoje</translation>
    </message>
    <message>
        <source>Findings: %1 of %2</source>
        <translation>Constatações: %1 de %2</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Somente erros</translation>
    </message>
    <message>
        <source>Errors and warnings</source>
        <translation>Erros e avisos</translation>
    </message>
    <message>
        <source>All findings</source>
        <translation>Todas as constatações</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Todos os tipos</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>Digite para pesquisar...</translation>
    </message>
    <message>
        <source>Search the findings</source>
        <translation>Pesquisar nas constatações</translation>
    </message>
    <message>
        <source>Least severe finding</source>
        <translation>Gravidade mínima</translation>
    </message>
    <message>
        <source>Kind of finding</source>
        <translation>Tipo de constatação</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Constatações</translation>
    </message>
    <message>
        <source>What settles the finding</source>
        <translation>O que resolve a constatação</translation>
    </message>
    <message>
        <source>Select a finding to see what settles it.</source>
        <translation>Selecione uma constatação para ver o que a resolve.</translation>
    </message>
    <message>
        <source>Give back</source>
        <translation>Devolver</translation>
    </message>
    <message>
        <source>Give to this action</source>
        <translation>Dar a esta ação</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Choose another</source>
        <translation>Escolher outro</translation>
    </message>
    <message>
        <source>Remove %1 from %2</source>
        <translation>Remover %1 de %2</translation>
    </message>
    <message>
        <source>Give %1 to %2</source>
        <translation>Dar %1 a %2</translation>
    </message>
    <message>
        <source>Give %1 back to %2</source>
        <translation>Devolver %1 a %2</translation>
    </message>
    <message>
        <source>Change %1 to %2 for %3</source>
        <translation>Mudar %1 para %2 em %3</translation>
    </message>
</context>
<context>
    <name>CUI::QvelKeyboardWidget</name>
    <message>
        <source>Show in the Table</source>
        <translation>Mostrar na tabela</translation>
    </message>
    <message>
        <source>Assign to %1</source>
        <translation>Atribuir a %1</translation>
    </message>
    <message>
        <source>Move %1 to Another Key</source>
        <translation>Mover %1 para outra tecla</translation>
    </message>
    <message>
        <source>Move %1 Here</source>
        <translation>Mover %1 para cá</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>Actions of the key</source>
        <translation>Ações da tecla</translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation>Mover %1 para %2</translation>
    </message>
</context>
<context>
    <name>CUI::QvelMessageLogWidget</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Clear Log</source>
        <translation>Limpar log</translation>
    </message>
</context>
<context>
    <name>CUI::QvelPresetComboBox</name>
    <message>
        <source>[Unsaved Changes*]</source>
        <translation>[Alterações não salvas*]</translation>
    </message>
</context>
<context>
    <name>CUI::QvelShortcutManager</name>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
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
        <translation>Todos os grupos</translation>
    </message>
    <message>
        <source>All Actions</source>
        <translation>Todas as ações</translation>
    </message>
    <message>
        <source>Assigned Hotkeys Only</source>
        <translation>Somente atalhos atribuídos</translation>
    </message>
    <message>
        <source>Customized Hotkeys Only</source>
        <translation>Somente atalhos personalizados</translation>
    </message>
    <message>
        <source>Unsaved Hotkeys Only</source>
        <translation>Somente atalhos não salvos</translation>
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
        <translation>Editor de atalhos</translation>
    </message>
    <message>
        <source>Type to search by Hotkeys...</source>
        <translation>Pesquisar por atalhos...</translation>
    </message>
    <message>
        <source>Type to search by Actions...</source>
        <translation>Pesquisar por ações...</translation>
    </message>
    <message>
        <source>Type to search...</source>
        <translation>Digite para pesquisar...</translation>
    </message>
    <message>
        <source>Press and hold to temporarily activate.</source>
        <translation>Mantenha pressionado para ativar temporariamente.</translation>
    </message>
    <message>
        <source>No action selected</source>
        <translation>Nenhuma ação selecionada</translation>
    </message>
    <message>
        <source>Select an action in the table to edit its hotkeys.</source>
        <translation>Selecione uma ação na tabela para editar os atalhos dela.</translation>
    </message>
    <message>
        <source>Select an action in the table on the left to edit its hotkeys</source>
        <translation>Selecione uma ação na tabela à esquerda para editar os atalhos dela</translation>
    </message>
    <message>
        <source>Too Many Hotkeys</source>
        <translation>Limite de atalhos atingido</translation>
    </message>
    <message>
        <source>An action can have at most %1 hotkeys.

Remove one of them before you assign another.
</source>
        <translation>Uma ação pode ter no máximo %1 atalhos.

Remova um deles antes de atribuir outro.
</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save changes...</source>
        <translation>Salva suas alterações no conjunto de atalhos atual ou, se ele estiver bloqueado, em um novo conjunto.</translation>
    </message>
    <message>
        <source>Hotkey Set:</source>
        <translation>Conjunto de atalhos:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Save, load...</source>
        <translation>Permite salvar, carregar, redefinir ou importar conjuntos de atalhos.</translation>
    </message>
    <message>
        <source>Change the active...</source>
        <translation>Seleciona o conjunto de atalhos ativo.</translation>
    </message>
    <message>
        <source>Filter the list... assigned</source>
        <translation>Filtra a lista de ações pelo estado de seus atalhos: atribuídos, personalizados ou ainda não salvos.</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>Filter the list...context</source>
        <translation>Filtra a lista de ações pelo grupo a que pertencem.</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtro:</translation>
    </message>
    <message>
        <source>Press keys and modifiers...</source>
        <translation>Digite parte do nome da ação ou, na pesquisa por atalhos, pressione as teclas do atalho procurado.</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>Search will be... hotkey</source>
        <translation>Pesquisa por atalho: pressione as teclas do atalho procurado.</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Search will be... action</source>
        <translation>Pesquisa por ação: digite parte do nome da ação.</translation>
    </message>
    <message>
        <source>Type new hotkey...</source>
        <translation>Digite o novo atalho...</translation>
    </message>
    <message>
        <source>Press keys and... assign</source>
        <translation>Pressione as teclas do atalho que deseja atribuir à ação selecionada.</translation>
    </message>
    <message>
        <source>Press keys...</source>
        <translation>Pressione as teclas...</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Atribuir</translation>
    </message>
    <message>
        <source>Assigns the hotkey...</source>
        <translation>Atribui o atalho à ação selecionada.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Reassign the hotkey...</source>
        <translation>Atribui o atalho novamente à ação da qual ele foi removido.</translation>
    </message>
    <message>
        <source>Removed from:</source>
        <translation>Removido de:</translation>
    </message>
    <message>
        <source>Conflicts with:</source>
        <translation>Conflito com:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Removes the assignment...</source>
        <translation>Remove o atalho da ação que o usa, para que você possa atribuí-lo à ação selecionada.</translation>
    </message>
    <message>
        <source>Validate Shortcut File</source>
        <translation>Validar arquivo de atalhos</translation>
    </message>
    <message>
        <source>Shortcut File Validation</source>
        <translation>Validação do arquivo de atalhos</translation>
    </message>
    <message>
        <source>Validate Shortcut Transform File</source>
        <translation>Validar arquivo de alterações de atalhos</translation>
    </message>
    <message>
        <source>Shortcut Transform File Validation</source>
        <translation>Validação do arquivo de alterações de atalhos</translation>
    </message>
    <message>
        <source>Save Shortcuts</source>
        <translation>Salvar atalhos</translation>
    </message>
    <message>
        <source>Load Shortcuts</source>
        <translation>Carregar atalhos</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Alterações não salvas</translation>
    </message>
    <message>
        <source>Save your changes, discard them, or cancel to continue making changes.
</source>
        <translation>Salve suas alterações, descarte-as ou cancele para continuar editando.
</translation>
    </message>
    <message>
        <source>Reset Hotkeys</source>
        <translation>Redefinir atalhos</translation>
    </message>
    <message>
        <source>Reset to discard all unsaved changes.
</source>
        <translation>Ao redefinir, todas as alterações não salvas serão descartadas.
</translation>
    </message>
    <message>
        <source>File not Found</source>
        <translation>Arquivo não encontrado</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

You can either preserve the loaded hotkeys by saving them to a file or reset to the default hotkey set.
</source>
        <translation>O arquivo do conjunto de atalhos “%1” não foi encontrado.

Você pode preservar os atalhos carregados salvando-os em um arquivo ou redefini-los para o conjunto de atalhos padrão.
</translation>
    </message>
    <message>
        <source>The file for hotkey set &apos;%1&apos; cannot be found.

The missing set will be removed from the list.
</source>
        <translation>O arquivo do conjunto de atalhos “%1” não foi encontrado.

O conjunto ausente será removido da lista.
</translation>
    </message>
    <message>
        <source>Hotkey File Already Exists</source>
        <translation>O arquivo de atalhos já existe</translation>
    </message>
    <message>
        <source>%1 already exists in the User Customization folder.

Do you want to replace it?</source>
        <translation>%1 já existe na sua pasta de configurações do usuário.

Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>Save Changes Error</source>
        <translation>Erro ao salvar as alterações</translation>
    </message>
    <message>
        <source>Cannot overwrite a locked preset file!</source>
        <translation>Não é possível substituir um conjunto de atalhos bloqueado.</translation>
    </message>
    <message>
        <source>The hotkeys cannot be saved to %1.

Your changes are still here.
</source>
        <translation>Não é possível salvar os atalhos em %1.

Suas alterações foram mantidas.
</translation>
    </message>
    <message>
        <source>Open Log File</source>
        <translation>Abrir arquivo de log</translation>
    </message>
    <message>
        <source>Hotkey Set Not Loaded</source>
        <translation>Conjunto de atalhos não carregado</translation>
    </message>
    <message>
        <source>%1 cannot be loaded.

See the log for more details.</source>
        <translation>Não é possível carregar %1.

Consulte o log para obter mais detalhes.</translation>
    </message>
    <message>
        <source>Hotkey File Converted</source>
        <translation>Arquivo de atalhos convertido</translation>
    </message>
    <message>
        <source>%1 was successfully converted and loaded.

The new file, %2, is saved in your User Settings folder.</source>
        <translation>%1 foi convertido e carregado com sucesso.

O novo arquivo, %2, foi salvo na sua pasta de configurações do usuário.</translation>
    </message>
    <message>
        <source>Open File Location</source>
        <translation>Abrir local do arquivo</translation>
    </message>
    <message>
        <source>Hotkeys Conversion Failed</source>
        <translation>Falha na conversão dos atalhos</translation>
    </message>
    <message>
        <source>Something went wrong while converting %1.

See the log for more details.</source>
        <translation>Ocorreu um erro ao converter %1.

Consulte o log para obter mais detalhes.</translation>
    </message>
    <message>
        <source>Xml File valid!! According to schema definition.</source>
        <translation>O arquivo XML é válido de acordo com a definição do esquema.</translation>
    </message>
    <message>
        <source>Xml File invalid!! According to schema definition.</source>
        <translation>O arquivo XML não é válido de acordo com a definição do esquema.</translation>
    </message>
    <message>
        <source>Hotkey Set File (*.%1)</source>
        <translation>Arquivo de conjunto de atalhos (*.%1)</translation>
    </message>
    <message>
        <source>Shortcut File (*.%1)</source>
        <translation>Arquivo de atalhos (*.%1)</translation>
    </message>
    <message>
        <source>Save Hotkey Set As</source>
        <translation>Salvar conjunto de atalhos como</translation>
    </message>
    <message>
        <source>Load Hotkey Set</source>
        <translation>Carregar conjunto de atalhos</translation>
    </message>
    <message>
        <source>Convert Legacy Hotkeys</source>
        <translation>Converter atalhos de versão anterior</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts (*.%1)</source>
        <translation>Atalhos de teclado (*.%1)</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Salvar como...</translation>
    </message>
    <message>
        <source>Load From File...</source>
        <translation>Carregar de um arquivo...</translation>
    </message>
    <message>
        <source>Import Legacy Hotkeys...</source>
        <translation>Importar atalhos de versão anterior...</translation>
    </message>
    <message>
        <source>Shortcut Transformation List</source>
        <translation>Lista de alterações de atalhos</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Não é possível abrir o arquivo.</translation>
    </message>
    <message>
        <source>Hotkey Set Changed</source>
        <translation>Conjunto de atalhos alterado</translation>
    </message>
    <message>
        <source>The file of hotkey set &apos;%1&apos; was changed by another program since it was loaded.

Saving replaces those changes by yours.
</source>
        <translation>O arquivo do conjunto de atalhos &apos;%1&apos; foi alterado por outro programa desde que foi carregado.

Ao salvar, essas alterações são substituídas pelas suas.
</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Salvar mesmo assim</translation>
    </message>
    <message>
        <source>%1 is already assigned to:

%2

Reassign it?</source>
        <translation>%1 já está atribuído a:

%2

Reatribuir?</translation>
    </message>
    <message>
        <source>Reassign Hotkey</source>
        <translation>Reatribuir atalho</translation>
    </message>
    <message>
        <source>Copy Hotkey</source>
        <translation>Copiar atalho</translation>
    </message>
    <message>
        <source>Show What Has This Hotkey</source>
        <translation>Mostrar o que tem este atalho</translation>
    </message>
    <message>
        <source>Reset %1 to Default</source>
        <translation>Restaurar o padrão de %1</translation>
    </message>
    <message>
        <source>Reset to Default</source>
        <translation>Restaurar padrão</translation>
    </message>
    <message>
        <source>Reset Group to Default</source>
        <translation>Restaurar padrão do grupo</translation>
    </message>
    <message>
        <source>Reset All to Default</source>
        <translation>Restaurar padrão de tudo</translation>
    </message>
    <message>
        <source>Default: none</source>
        <translation>Padrão: nenhum</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Padrão: %1</translation>
    </message>
    <message>
        <source>Other actions have these default hotkeys now:

%1

Take them back?</source>
        <translation>Outras ações têm agora estes atalhos padrão:

%1

Retomá-los?</translation>
    </message>
    <message>
        <source>Take Back</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Deixar</translation>
    </message>
</context>
</TS>
