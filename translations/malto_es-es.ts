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
