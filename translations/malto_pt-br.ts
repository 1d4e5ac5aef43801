<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Configurações do Quorvi</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Restaurar todos os padrões</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Restaurar padrões</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Pressione um atalho</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Limpar o atalho de teclado</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>O atalho de teclado [%1] é simples demais.
Para evitar conflitos com outras funções e acionamentos acidentais, defina uma combinação de teclas mais complexa.

Se precisar de atalhos simples, acesse a página de configurações [Sistema] e marque [Permitir atalhos globais simples].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Não definido</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>Falha na configuração; o atalho pode já estar em uso. Clique para tentar novamente.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Configurado com sucesso.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Desativado.</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Outro programa pode estar usando este atalho.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>O ambiente de desktop ainda não respondeu.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>O atalho ainda não foi configurado.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Um atalho global é uma única tecla, com ou sem modificadores.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Este teclado não tem essa tecla.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Outro programa está usando este atalho.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>O atalho foi recusado por você ou pelo ambiente de desktop.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Os atalhos globais não estão disponíveis neste sistema.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Clique para tentar novamente.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Atribuído pelo ambiente de desktop: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Não definida</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Insira uma data e hora de %1 a %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Seguir o sistema</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Clique esquerdo</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Clique duplo esquerdo</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Clique direito</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Clique duplo direito</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Clique do meio</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Clique duplo do meio</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Roda do mouse</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Arraste esquerdo</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Arraste direito</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Arraste do meio</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
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
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetPath</name>
    <message>
        <source>Browse...</source>
        <translation>Procurar…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Esta pasta não existe.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Isto é um arquivo, não uma pasta.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Isto é uma pasta, não um arquivo.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>A pasta deste arquivo não existe.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Este arquivo não existe.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Para cima</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Para baixo</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigItemWidget</name>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 a %2</translation>
    </message>
    <message>
        <source>Enter a number from %1 to %2</source>
        <translation>Insira um número de %1 a %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Are you sure to restore current page default?</source>
        <translation>Tem certeza de que deseja restaurar os padrões da página atual?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>Tem certeza de que deseja restaurar todos os padrões?</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Requer “%1”</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>Indisponível com “%1”</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Requer “%1”: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>1 entrada removida.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>%n entrada removida.</numerusform>
            <numerusform>%n entradas removidas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>1 configuração importada.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>%n configuração importada.</numerusform>
            <numerusform>%n configurações importadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>%n configuração restaurada.</numerusform>
            <numerusform>%n configurações restauradas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Importar configurações</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>O arquivo “%1” altera estas configurações. As que estiverem marcadas serão importadas.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Configurações no arquivo</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aqui</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>No arquivo</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, aqui: %2, no arquivo: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Marcar tudo</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Desmarcar tudo</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importar (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Outras configurações</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (padrão)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>Não existe</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removida</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Entradas de outras versões, ignoradas: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Entradas ilegíveis, ignoradas: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Configurações próprias de cada computador, ignoradas: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Configurações bloqueadas, ignoradas: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Configurações cujo valor não é aceito aqui: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ImportExport</name>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Import settings from a file</source>
        <translation>Importar configurações de um arquivo</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Exportar as configurações para um arquivo</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Configurações (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Exportar configurações</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Importar configurações</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>O arquivo “%1” não altera nada aqui.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Configurações que não puderam ser importadas: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 está em uso por: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>Também em uso por: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>%1 é necessário para digitar e editar.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Trocar</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Manter os dois</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>MtConf::InputRegistry</name>
    <message>
        <source>another shortcut of this program</source>
        <translation>outro atalho deste programa</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Alterada em outro lugar nesse meio-tempo. O que você digitar a substituirá.</translation>
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
        <translation>Nenhum modificador</translation>
    </message>
</context>
<context>
    <name>MtConf::ModernWindow</name>
    <message>
        <source>Reset this page…</source>
        <translation>Restaurar esta página…</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Restaurar tudo…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>Restaurar esta página?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>Restaurar todas as configurações?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>Restaurar 1 configuração desta página?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>Restaurar 1 configuração de todas as páginas?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>Restaurar %n configuração desta página?</numerusform>
            <numerusform>Restaurar %n configurações desta página?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>Restaurar %n configuração de todas as páginas?</numerusform>
            <numerusform>Restaurar %n configurações de todas as páginas?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>MtConf::RowReset</name>
    <message>
        <source>Show changed</source>
        <translation>Mostrar alteradas</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n alterada</numerusform>
            <numerusform>%n alteradas</numerusform>
        </translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Restaurar %1</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Copiar chave</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copiar valor</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterada</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Configurações alteradas</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Padrão: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Não alterada</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Alterada em %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Alterada</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Do arquivo %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Alterada por outro programa ou computador em %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Alterada por outro programa ou computador</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Bloqueada pelo administrador</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>“%1” não é um arquivo.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>Não foi possível salvar as configurações em “%1”.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>O arquivo “%1” não existe.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>O arquivo “%1” é maior que %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>Não foi possível ler o arquivo “%1”.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>O arquivo “%1” está vazio.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>O arquivo “%1” está danificado: seu conteúdo tem níveis demais de aninhamento.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>O arquivo “%1” está danificado ou incompleto.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>O arquivo “%1” não contém configurações.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Configurações do %1</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFind</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Limpar a busca</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Mostrar mais (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Nenhuma configuração corresponde a “%1”</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Enter abre a página</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Não definido</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vazio</translation>
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
        <translation>negrito</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>itálico</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>sublinhado</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Configurações – %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>O clique esquerdo não pode ser definido sozinho</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Não definida</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Conflito com “%1”</translation>
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
        <translation> d</translation>
    </message>
</context>
</TS>
