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
