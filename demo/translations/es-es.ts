<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>BoundValueModel</name>
    <message>
        <source>changed</source>
        <translation>modificado</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
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
        <translation>Aquí aparece lo que registra la biblioteca.</translation>
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
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Restore all</source>
        <translation>Restaurar todo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>A&amp;justes…</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Restore all…</source>
        <translation>&amp;Restaurar todo…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
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
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Variables — %1 of %2 changed</source>
        <translation>Variables: %1 de %2 modificadas</translation>
    </message>
    <message>
        <source>Hotkey pressed: %1 (%2)</source>
        <translation>Atajo pulsado: %1 (%2)</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <translation>Guardado en %1</translation>
    </message>
    <message>
        <source>Could not write %1</source>
        <translation>No se pudo escribir %1</translation>
    </message>
    <message>
        <source>Restore the defaults of all settings and the presets of the profiles?</source>
        <translation>¿Restaurar los perfiles predefinidos y los valores predeterminados de todos los ajustes?</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Según el sistema</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfigurationWindow</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Hotkeys</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Ratón</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Stored data</source>
        <translation>Datos locales</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupa</translation>
    </message>
    <message>
        <source>Size label</source>
        <translation>Etiqueta de tamaño</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Ajuste magnético</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Pinned pictures</source>
        <translation>Imágenes fijadas</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>After a capture</source>
        <translation>Después de una captura</translation>
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
        <translation>Opciones</translation>
    </message>
    <message>
        <source>In this program</source>
        <translation>En esta aplicación</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatura</translation>
    </message>
    <message>
        <source>A profile needs a name.</source>
        <translation>Un perfil necesita un nombre.</translation>
    </message>
    <message>
        <source>A name can have at most %1 characters.</source>
        <translation>Un nombre puede tener como máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>Another profile has this name.</source>
        <translation>Otro perfil ya tiene este nombre.</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Perfil nuevo</translation>
    </message>
    <message>
        <source>New profile %1</source>
        <translation>Perfil nuevo %1</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Restore presets</source>
        <translation>Restaurar predefinidos</translation>
    </message>
    <message>
        <source>There is no profile.
Add one, or restore the presets.</source>
        <translation>No hay ningún perfil.
Añada uno o restaure los predefinidos.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Incluir el puntero del ratón</translation>
    </message>
    <message>
        <source>A preset, unchanged.</source>
        <translation>Predefinido, sin modificar.</translation>
    </message>
    <message>
        <source>Yours, or a changed preset.</source>
        <translation>Propio o predefinido modificado.</translation>
    </message>
    <message>
        <source>“%1” keeps its name. %2</source>
        <translation>«%1» conserva su nombre. %2</translation>
    </message>
    <message>
        <source>Delete the profile “%1”?</source>
        <translation>¿Eliminar el perfil «%1»?</translation>
    </message>
    <message>
        <source>Restore the presets? This deletes your own profiles and undoes your changes of the presets.</source>
        <translation>¿Restaurar los perfiles predefinidos? Se eliminarán sus propios perfiles y se desharán sus cambios en los predefinidos.</translation>
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
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Show icon in the menu bar</source>
        <translation>Icono en la barra de menús</translation>
    </message>
    <message>
        <source>Play a sound after a capture</source>
        <translation>Sonido tras una captura</translation>
    </message>
    <message>
        <source>Show tips</source>
        <translation>Mostrar consejos</translation>
    </message>
    <message>
        <source>Recent captures in the menu</source>
        <translation>Capturas recientes en el menú</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Check interval (days)</source>
        <translation>Intervalo de búsqueda (días)</translation>
    </message>
    <message>
        <source>Offer beta versions</source>
        <translation>Ofrecer versiones beta</translation>
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
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Grosor del marco</translation>
    </message>
    <message>
        <source>Shade outside</source>
        <translation>Oscurecimiento exterior</translation>
    </message>
    <message>
        <source>Show magnifier</source>
        <translation>Mostrar lupa</translation>
    </message>
    <message>
        <source>Magnification</source>
        <translation>Aumento</translation>
    </message>
    <message>
        <source>Show size beside the selection</source>
        <translation>Mostrar el tamaño junto a la selección</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Tipo de letra</translation>
    </message>
    <message>
        <source>Delay before a capture</source>
        <translation>Espera antes de una captura</translation>
    </message>
    <message>
        <source>Count down on the screen</source>
        <translation>Cuenta atrás en la pantalla</translation>
    </message>
    <message>
        <source>Include the mouse pointer</source>
        <translation>Incluir el puntero del ratón</translation>
    </message>
    <message>
        <source>Include the shadow of windows</source>
        <translation>Incluir la sombra de las ventanas</translation>
    </message>
    <message>
        <source>Freeze the screen while selecting</source>
        <translation>Congelar la pantalla al seleccionar</translation>
    </message>
    <message>
        <source>Frames per second of videos</source>
        <translation>Fotogramas por segundo de los vídeos</translation>
    </message>
    <message>
        <source>Snap to</source>
        <translation>Ajustar a</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>Screen edges</source>
        <translation>Bordes de la pantalla</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Guías</translation>
    </message>
    <message>
        <source>Last selection</source>
        <translation>Última selección</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Hotkeys in full-screen applications</source>
        <translation>Atajos en aplicaciones a pantalla completa</translation>
    </message>
    <message>
        <source>Repeat delay</source>
        <translation>Espera antes de repetir</translation>
    </message>
    <message>
        <source>Capture an area</source>
        <translation>Capturar un área</translation>
    </message>
    <message>
        <source>Capture a window</source>
        <translation>Capturar una ventana</translation>
    </message>
    <message>
        <source>Capture the screen</source>
        <translation>Capturar la pantalla</translation>
    </message>
    <message>
        <source>Pin the clipboard</source>
        <translation>Fijar el portapapeles</translation>
    </message>
    <message>
        <source>Double-click to finish</source>
        <translation>Terminar con doble clic</translation>
    </message>
    <message>
        <source>Invert the wheel</source>
        <translation>Invertir la rueda</translation>
    </message>
    <message>
        <source>Movement that begins a drag</source>
        <translation>Movimiento para empezar a arrastrar</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Show the menu</source>
        <translation>Mostrar el menú</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>Dibujar</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca de agua</translation>
    </message>
    <message>
        <source>Copy it</source>
        <translation>Copiarla</translation>
    </message>
    <message>
        <source>Save it</source>
        <translation>Guardarla</translation>
    </message>
    <message>
        <source>Open it in the editor</source>
        <translation>Abrirla en el editor</translation>
    </message>
    <message>
        <source>Allow simple global hotkeys</source>
        <translation>Permitir atajos globales sencillos</translation>
    </message>
    <message>
        <source>Show expert settings</source>
        <translation>Mostrar ajustes avanzados</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Pasos que se pueden deshacer</translation>
    </message>
    <message>
        <source>Bring pinned pictures back at start</source>
        <translation>Recuperar imágenes fijadas al iniciar</translation>
    </message>
    <message>
        <source>Cache (MB)</source>
        <translation>Caché (MB)</translation>
    </message>
    <message>
        <source>Threads that compress</source>
        <translation>Hilos de compresión</translation>
    </message>
    <message>
        <source>Draw with the graphics card</source>
        <translation>Dibujar con la tarjeta gráfica</translation>
    </message>
    <message>
        <source>Show times of drawing</source>
        <translation>Mostrar tiempos de dibujo</translation>
    </message>
    <message>
        <source>Write a log file</source>
        <translation>Escribir un archivo de registro</translation>
    </message>
    <message>
        <source>Open the settings</source>
        <translation>Abrir los ajustes</translation>
    </message>
    <message>
        <source>Save now</source>
        <translation>Guardar ahora</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Your name</source>
        <translation>Su nombre</translation>
    </message>
    <message>
        <source>Pictures contain it if the details include the author.</source>
        <translation>Las imágenes lo incluyen si los detalles contienen el autor.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Token for uploads</source>
        <translation>Token para subidas</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotipo</translation>
    </message>
    <message>
        <source>Pictures (*.png *.svg)</source>
        <translation>Imágenes (*.png *.svg)</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Archivo de registro</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margen</translation>
    </message>
    <message>
        <source>Save every</source>
        <translation>Guardar cada</translation>
    </message>
    <message>
        <source>Remind me</source>
        <translation>Recordármelo el</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Title of the window</source>
        <translation>Título de la ventana</translation>
    </message>
    <message>
        <source>Details in the file</source>
        <translation>Detalles en el archivo</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Usar un proxy</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>A host has no blanks.</source>
        <translation>El nombre del servidor no puede contener espacios.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
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
        <translation>Según el sistema</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Pick a color</source>
        <translation>Tomar un color</translation>
    </message>
</context>
<context>
    <name>StoredDataPage</name>
    <message>
        <source>Stored data</source>
        <translation>Datos guardados</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Todavía no se ha modificado nada.</translation>
    </message>
</context>
<context>
    <name>WatermarkEditor</name>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>None if empty</source>
        <translation>Vacío: ninguna</translation>
    </message>
</context>
<context>
    <name>takePictures</name>
    <message>
        <source>Cannot write %1</source>
        <translation>No se puede escribir %1</translation>
    </message>
</context>
</TS>
