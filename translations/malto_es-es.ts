<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>ColorSelectButton</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
</context>
<context>
    <name>ConfigurationWindow</name>
    <message>
        <source>Quorvi Configuration</source>
        <translation>Ajustes de Quorvi</translation>
    </message>
    <message>
        <source>Restore All Default</source>
        <translation>Restaurar todo</translation>
    </message>
    <message>
        <source>Restore Default</source>
        <translation>Restaurar valores predeterminados</translation>
    </message>
</context>
<context>
    <name>KeySequenceEdit</name>
    <message>
        <source>Press shortcut key</source>
        <translation>Pulse un atajo</translation>
    </message>
    <message>
        <source>Clear shortcut key</source>
        <translation>Borrar el atajo de teclado</translation>
    </message>
    <message>
        <source>Shortkey [%1] is too simple.
To avoid conflicts with other functions and prevent accidental activations, please set a more complex hotkey combination.

If you need to set simple shortcuts, go to the [System] Settings page and check [Allow simple global hotkeys].</source>
        <translation>El atajo de teclado [%1] es demasiado sencillo.
Para evitar conflictos con otras funciones y activaciones accidentales, defina una combinación de teclas más compleja.

Si necesita atajos sencillos, vaya a la página de ajustes [Sistema] y marque [Permitir atajos globales sencillos].</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfDefWidgetQKeySequence</name>
    <message>
        <source>Not set</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Setup failed, the hotkey may be occupied. Click to try setup again.</source>
        <translation>No se pudo configurar; es posible que el atajo ya esté en uso. Haga clic para volver a intentarlo.</translation>
    </message>
    <message>
        <source>Setup success.</source>
        <translation>Configurado correctamente.</translation>
    </message>
    <message>
        <source>Disabled.</source>
        <translation>Desactivado.</translation>
    </message>
    <message>
        <source>Another program may use this hotkey.</source>
        <translation>Es posible que otro programa use este atajo.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>The desktop has not answered yet.</source>
        <translation>El entorno de escritorio aún no ha respondido.</translation>
    </message>
    <message>
        <source>The hotkey has not been set up yet.</source>
        <translation>El atajo aún no se ha configurado.</translation>
    </message>
    <message>
        <source>A global hotkey is one key, alone or with modifiers.</source>
        <translation>Un atajo global es una sola tecla, con o sin modificadores.</translation>
    </message>
    <message>
        <source>This keyboard does not have the key.</source>
        <translation>Este teclado no tiene esa tecla.</translation>
    </message>
    <message>
        <source>Another program uses this hotkey.</source>
        <translation>Otro programa usa este atajo.</translation>
    </message>
    <message>
        <source>The hotkey was refused by you or by the desktop.</source>
        <translation>El atajo fue rechazado por usted o por el entorno de escritorio.</translation>
    </message>
    <message>
        <source>Global hotkeys are not available on this system.</source>
        <translation>Los atajos globales no están disponibles en este sistema.</translation>
    </message>
    <message>
        <source>Click to try again.</source>
        <translation>Haga clic para volver a intentarlo.</translation>
    </message>
    <message>
        <source>Assigned by the desktop: %1</source>
        <translation>Asignado por el entorno de escritorio: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetDateTime</name>
    <message>
        <source>Not set</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Enter a date and time from %1 to %2</source>
        <translation>Introduzca una fecha y hora de %1 a %2</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetLanguage</name>
    <message>
        <source>Follow the system</source>
        <translation>Según el sistema</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetMouseAction</name>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Left Click</source>
        <translation>Clic izquierdo</translation>
    </message>
    <message>
        <source>Left Double Click</source>
        <translation>Doble clic izquierdo</translation>
    </message>
    <message>
        <source>Right Click</source>
        <translation>Clic derecho</translation>
    </message>
    <message>
        <source>Right Double Click</source>
        <translation>Doble clic derecho</translation>
    </message>
    <message>
        <source>Middle Click</source>
        <translation>Clic central</translation>
    </message>
    <message>
        <source>Middle Double Click</source>
        <translation>Doble clic central</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rueda</translation>
    </message>
    <message>
        <source>Left Drag</source>
        <translation>Arrastre izquierdo</translation>
    </message>
    <message>
        <source>Right Drag</source>
        <translation>Arrastre derecho</translation>
    </message>
    <message>
        <source>Middle Drag</source>
        <translation>Arrastre central</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
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
        <translation>Examinar…</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Esta carpeta no existe.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Esto es un archivo, no una carpeta.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Esto es una carpeta, no un archivo.</translation>
    </message>
    <message>
        <source>The folder of this file does not exist.</source>
        <translation>La carpeta de este archivo no existe.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Este archivo no existe.</translation>
    </message>
</context>
<context>
    <name>MtConf::ConfWidgetStringList</name>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
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
        <translation>Introduzca un número de %1 a %2</translation>
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
        <translation>¿Seguro que desea restaurar los valores predeterminados de esta página?</translation>
    </message>
    <message>
        <source>Are you sure to restore all default?</source>
        <translation>¿Seguro que desea restaurar todos los valores predeterminados?</translation>
    </message>
</context>
<context>
    <name>MtConf::DependencyNote</name>
    <message>
        <source>Needs “%1”</source>
        <translation>Requiere «%1»</translation>
    </message>
    <message>
        <source>Not with “%1”</source>
        <translation>No disponible con «%1»</translation>
    </message>
    <message>
        <source>Needs “%1”: %2</source>
        <translation>Requiere «%1»: %2</translation>
    </message>
</context>
<context>
    <name>MtConf::HistoryFeature</name>
    <message>
        <source>Removed 1 entry.</source>
        <translation>Se ha quitado 1 entrada.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n entries.</source>
        <translation>
            <numerusform>Se ha quitado %n entrada.</numerusform>
            <numerusform>Se han quitado %n entradas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Imported 1 setting.</source>
        <translation>Se ha importado 1 ajuste.</translation>
    </message>
    <message numerus="yes">
        <source>Imported %n settings.</source>
        <translation>
            <numerusform>Se ha importado %n ajuste.</numerusform>
            <numerusform>Se han importado %n ajustes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n settings.</source>
        <translation>
            <numerusform>Se ha restaurado %n ajuste.</numerusform>
            <numerusform>Se han restaurado %n ajustes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MtConf::ImportDialog</name>
    <message>
        <source>Import settings</source>
        <translation>Importar ajustes</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes these settings. Those that are checked are imported.</source>
        <translation>El archivo «%1» cambia estos ajustes. Se importan los que estén marcados.</translation>
    </message>
    <message>
        <source>Settings in the file</source>
        <translation>Ajustes del archivo</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aquí</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>En el archivo</translation>
    </message>
    <message>
        <source>%1, here: %2, in the file: %3</source>
        <translation>%1, aquí: %2, en el archivo: %3</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Marcar todo</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Desmarcar todo</translation>
    </message>
    <message>
        <source>Import (%1)</source>
        <translation>Importar (%1)</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Otros ajustes</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (predeterminado)</translation>
    </message>
    <message>
        <source>Does not exist</source>
        <translation>No existe</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Quitado</translation>
    </message>
    <message>
        <source>Entries of other versions, which are left out: %1</source>
        <translation>Entradas de otras versiones que se omiten: %1</translation>
    </message>
    <message>
        <source>Entries that cannot be read, which are left out: %1</source>
        <translation>Entradas ilegibles que se omiten: %1</translation>
    </message>
    <message>
        <source>Settings that stay on each computer, which are left out: %1</source>
        <translation>Ajustes propios de cada equipo que se omiten: %1</translation>
    </message>
    <message>
        <source>Locked settings, which are left out: %1</source>
        <translation>Ajustes bloqueados que se omiten: %1</translation>
    </message>
    <message>
        <source>Settings whose value is not accepted here: %1</source>
        <translation>Ajustes cuyo valor no se admite aquí: %1</translation>
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
        <translation>Importar ajustes de un archivo</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Export the settings to a file</source>
        <translation>Exportar los ajustes a un archivo</translation>
    </message>
    <message>
        <source>Settings (*.json)</source>
        <translation>Ajustes (*.json)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export settings</source>
        <translation>Exportar ajustes</translation>
    </message>
    <message>
        <source>Import settings</source>
        <translation>Importar ajustes</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; changes nothing here.</source>
        <translation>El archivo «%1» no cambia nada aquí.</translation>
    </message>
    <message>
        <source>Settings that could not be imported: %1</source>
        <translation>Ajustes que no se han podido importar: %1</translation>
    </message>
</context>
<context>
    <name>MtConf::InputConflicts</name>
    <message>
        <source>%1 is used by: %2</source>
        <translation>%1 se usa en: %2</translation>
    </message>
    <message>
        <source>Also used by: %1</source>
        <translation>También se usa en: %1</translation>
    </message>
    <message>
        <source>%1 is needed for typing and editing.</source>
        <translation>Se necesita %1 para escribir y editar.</translation>
    </message>
</context>
<context>
    <name>MtConf::InputOffer</name>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Intercambiar</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Mantener ambos</translation>
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
        <translation>otro atajo de este programa</translation>
    </message>
</context>
<context>
    <name>MtConf::LivePages</name>
    <message>
        <source>Changed elsewhere meanwhile. What you type replaces it.</source>
        <translation>Modificado en otro lugar entretanto. Lo que escriba lo reemplazará.</translation>
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
        <translation>Sin modificador</translation>
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
        <translation>Restaurar todo…</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
</context>
<context>
    <name>MtConf::ResetQuestion</name>
    <message>
        <source>Reset this page?</source>
        <translation>¿Restaurar esta página?</translation>
    </message>
    <message>
        <source>Reset all settings?</source>
        <translation>¿Restaurar todos los ajustes?</translation>
    </message>
    <message>
        <source>Reset 1 setting on this page?</source>
        <translation>¿Restaurar 1 ajuste de esta página?</translation>
    </message>
    <message>
        <source>Reset 1 setting on all pages?</source>
        <translation>¿Restaurar 1 ajuste de todas las páginas?</translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on this page?</source>
        <translation>
            <numerusform>¿Restaurar %n ajuste de esta página?</numerusform>
            <numerusform>¿Restaurar %n ajustes de esta página?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reset %n settings on all pages?</source>
        <translation>
            <numerusform>¿Restaurar %n ajuste de todas las páginas?</numerusform>
            <numerusform>¿Restaurar %n ajustes de todas las páginas?</numerusform>
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
        <translation>Mostrar modificados</translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modificado</numerusform>
            <numerusform>%n modificados</numerusform>
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
        <translation>Copiar la clave</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Copiar el valor</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificada</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Ajustes modificados</translation>
    </message>
</context>
<context>
    <name>MtConf::RowWords</name>
    <message>
        <source>Default: %1</source>
        <translation>Predeterminado: %1</translation>
    </message>
    <message>
        <source>Not changed</source>
        <translation>Sin modificar</translation>
    </message>
    <message>
        <source>Changed on %1</source>
        <translation>Modificado el %1</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>From the file %1</source>
        <translation>Del archivo %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer on %1</source>
        <translation>Modificado por otro programa o equipo el %1</translation>
    </message>
    <message>
        <source>Changed by another program or computer</source>
        <translation>Modificado por otro programa o equipo</translation>
    </message>
    <message>
        <source>Locked by the administrator</source>
        <translation>Bloqueado por el administrador</translation>
    </message>
</context>
<context>
    <name>MtConf::SettingsFile</name>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>«%1» no es un archivo.</translation>
    </message>
    <message>
        <source>The settings could not be saved in &quot;%1&quot;.</source>
        <translation>No se han podido guardar los ajustes en «%1».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>El archivo «%1» no existe.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than %2.</source>
        <translation>El archivo «%1» supera %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read.</source>
        <translation>No se ha podido leer el archivo «%1».</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>El archivo «%1» está vacío.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged: its content is nested too deeply.</source>
        <translation>El archivo «%1» está dañado: su contenido tiene demasiados niveles de anidamiento.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged or not complete.</source>
        <translation>El archivo «%1» está dañado o incompleto.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not contain settings.</source>
        <translation>El archivo «%1» no contiene ajustes.</translation>
    </message>
    <message>
        <source>%1 settings</source>
        <comment>name of a file</comment>
        <translation>Ajustes de %1</translation>
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
        <translation>Buscar ajustes</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>Show more (%1)</source>
        <translation>Mostrar más (%1)</translation>
    </message>
    <message>
        <source>No setting matches “%1”</source>
        <translation>Ningún ajuste coincide con «%1»</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Enter opens the page</source>
        <translation>Intro abre la página</translation>
    </message>
</context>
<context>
    <name>MtConf::UndoBar</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
</context>
<context>
    <name>MtConf::ValueInWords</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vacío</translation>
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
        <translation>negrita</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>cursiva</translation>
    </message>
    <message>
        <source>underlined</source>
        <translation>subrayado</translation>
    </message>
</context>
<context>
    <name>MtConf::WindowIdentity</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Settings — %1</source>
        <translation>Ajustes – %1</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Cannot set left-click separately</source>
        <translation>El clic izquierdo no se puede usar por sí solo</translation>
    </message>
    <message>
        <source>No set</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Conflict with %1</source>
        <translation>Conflicto con «%1»</translation>
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
