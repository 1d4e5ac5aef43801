<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>alterada</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Configuração</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
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
        <translation>O que a biblioteca registra aparece aqui.</translation>
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
        <translation>Registro</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Restaurar tudo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Configurações…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>Sa&amp;lvar</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>&amp;Restaurar tudo…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Variáveis – %1 de %2 alteradas</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Atalho pressionado: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Salvo em %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>Não foi possível gravar %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>Restaurar os padrões de todas as configurações e os perfis predefinidos?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Seguir o sistema</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Mouse</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Dados salvos</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupa</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Rótulo de tamanho</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Encaixe</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Imagens fixadas</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Após uma captura</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Números</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>Neste aplicativo</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatura</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Um perfil precisa de um nome.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Um nome pode ter no máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Outro perfil já tem este nome.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Novo perfil</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Novo perfil %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Restaurar predefinidos</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>Não há nenhum perfil.
Adicione um ou restaure os predefinidos.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Moldura</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Incluir o ponteiro do mouse</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Predefinido, inalterado.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Próprio ou predefinido alterado.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>“%1” mantém seu nome. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>Excluir o perfil “%1”?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>Restaurar os perfis predefinidos? Seus próprios perfis serão excluídos e suas alterações nos predefinidos serão desfeitas.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Abrir ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Ícone na barra de menus</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Som após uma captura</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Mostrar dicas</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Capturas recentes no menu</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar atualizações</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Intervalo de busca (dias)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Oferecer versões beta</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Moldura</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Espessura da moldura</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Escurecimento externo</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Mostrar lupa</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Ampliação</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Mostrar o tamanho ao lado da seleção</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Espera antes de uma captura</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Contagem regressiva na tela</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Incluir o ponteiro do mouse</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Incluir a sombra das janelas</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Congelar a tela ao selecionar</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Quadros por segundo dos vídeos</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Encaixar em</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Janelas</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Bordas da tela</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Guias</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Última seleção</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distância</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Atalhos em aplicativos em tela cheia</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Atraso de repetição</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Capturar uma área</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Capturar uma janela</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Capturar a tela</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Fixar a área de transferência</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Concluir com clique duplo</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Inverter a roda do mouse</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Movimento para começar a arrastar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Mostrar o menu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Desenhar</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca-d’água</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Abrir no editor</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Permitir atalhos globais simples</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Mostrar configurações avançadas</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Passos que podem ser desfeitos</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Recuperar imagens fixadas ao iniciar</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Cache (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Threads de compressão</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Desenhar com a placa de vídeo</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Mostrar tempos de desenho</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Gravar um arquivo de registro</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Abrir as configurações</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Salvar agora</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Seu nome</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>As imagens o contêm se os detalhes incluírem o autor.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Token para envios</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotipo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Imagens (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Arquivo de registro</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margem</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Salvar a cada</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Lembrar em</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Título da janela</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Detalhes no arquivo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usar um proxy</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>O nome do servidor não pode conter espaços.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
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
        <translation>Seguir o sistema</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Selecionar uma cor</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Dados salvos</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Nada foi alterado ainda.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Vazio: nenhuma</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>Não é possível gravar %1</translation>
    </message>
</context>
</TS>
