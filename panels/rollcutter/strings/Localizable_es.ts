<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Localizable</name>
    <message>
        <source>PANEL_NAME</source>
        <extracomment>Name of the panel's page in the print dialog.</extracomment>
        <translation>Rollo y corte</translation>
    </message>
    <message>
        <source>CUT_TITLE</source>
        <extracomment>Title of the group of radio buttons and of the line in the summary.</extracomment>
        <translation>Corte</translation>
    </message>
    <message>
        <source>CUT_EVERY_LABEL</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Cortar después de cada etiqueta</translation>
    </message>
    <message>
        <source>CUT_EVERY_FEW</source>
        <extracomment>Radio button. A field with the number and INTERVAL_SUFFIX follows: Cut after every [5 labels].</extracomment>
        <translation>Cortar cada</translation>
    </message>
    <message>
        <source>INTERVAL_SUFFIX</source>
        <extracomment>Follows the number in the field; 2 or more. Begins with a space if the language needs one.</extracomment>
        <translation> etiquetas</translation>
    </message>
    <message>
        <source>INTERVAL_NAME</source>
        <extracomment>Name of the field for the number, for screen readers.</extracomment>
        <translation>Etiquetas entre dos cortes</translation>
    </message>
    <message>
        <source>CUT_EVERY_NUMBER</source>
        <extracomment>Value in the summary. %1: the number, 2 or more.</extracomment>
        <translation>Cortar cada %1 etiquetas</translation>
    </message>
    <message>
        <source>CUT_EACH_COPY</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Cortar después de cada copia</translation>
    </message>
    <message>
        <source>CUT_EACH_DOCUMENT</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Cortar después de cada documento</translation>
    </message>
    <message>
        <source>CUT_AT_END</source>
        <extracomment>Radio button and value in the summary: at the end of the print job.</extracomment>
        <translation>Cortar al final</translation>
    </message>
    <message>
        <source>CUT_TEAR</source>
        <extracomment>Radio button and value in the summary: the user tears the labels off by hand.</extracomment>
        <translation>Arrancar a mano</translation>
    </message>
    <message>
        <source>CUT_PEEL</source>
        <extracomment>Radio button and value in the summary: the printer peels each label off the backing.</extracomment>
        <translation>Despegar cada etiqueta</translation>
    </message>
    <message>
        <source>CUT_REWIND</source>
        <extracomment>Radio button and value in the summary: the printer winds the printed labels up.</extracomment>
        <translation>Rebobinar las etiquetas</translation>
    </message>
    <message>
        <source>CUT_APPLICATOR</source>
        <extracomment>Radio button and value in the summary: a machine applies each printed label.</extracomment>
        <translation>Aplicar cada etiqueta a máquina</translation>
    </message>
    <message>
        <source>CUT_NEVER</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>No cortar</translation>
    </message>
    <message>
        <source>CUT_SOMEWHERE</source>
        <extracomment>Radio button and value in the summary: the printer cuts, and nothing says where.</extracomment>
        <translation>Cortar donde decida la impresora</translation>
    </message>
    <message>
        <source>STRIP_PEEL</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Cada etiqueta se despega del soporte.</translation>
    </message>
    <message>
        <source>STRIP_REWIND</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Las etiquetas impresas se rebobinan.</translation>
    </message>
    <message>
        <source>STRIP_APPLICATOR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Una máquina aplica cada etiqueta.</translation>
    </message>
    <message>
        <source>STRIP_SOMEWHERE</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>No se conoce el corte: la impresora decide dónde corta.</translation>
    </message>
    <message>
        <source>STRIP_PRINTER_SETTING</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>No se conoce el corte: se aplica el ajuste de la impresora.</translation>
    </message>
    <message>
        <source>CUT_PRINTER_SETTING</source>
        <extracomment>Radio button and value in the summary: the setting at the printer's own controls.</extracomment>
        <translation>Según el ajuste de la impresora</translation>
    </message>
    <message>
        <source>CUT_OTHER</source>
        <extracomment>Value in the summary: a choice without a text.</extracomment>
        <translation>Otro</translation>
    </message>
    <message>
        <source>REASON_INTERVAL</source>
        <extracomment>Tool tip of the disabled field for the number.</extracomment>
        <translation>Para ajustar el número de etiquetas, seleccione «Cortar cada … etiquetas».</translation>
    </message>
    <message>
        <source>REASON_TEAR_INTERVAL</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>La impresora solo se detiene para arrancar si está seleccionado «Arrancar a mano».</translation>
    </message>
    <message>
        <source>REASON_TEAR_POSITION</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>La impresora corta las etiquetas, por lo que la posición de arranque no tiene efecto.</translation>
    </message>
    <message>
        <source>STRIP_TEAR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Las etiquetas se arrancan a mano.</translation>
    </message>
    <message>
        <source>REASON_NOT_SENT</source>
        <extracomment>Tool tip of a disabled option: an error in the printer's driver.</extracomment>
        <translation>El controlador de la impresora no transmite este ajuste; se aplica el de la impresora.</translation>
    </message>
    <message>
        <source>PREVIEW_NAME</source>
        <extracomment>Name of the picture, for screen readers.</extracomment>
        <translation>Vista previa de los cortes</translation>
    </message>
    <message>
        <source>HELP</source>
        <extracomment>Help of the panel. Blank lines separate paragraphs.</extracomment>
        <translation>Elija dónde corta la impresora el rollo. Solo aparecen las formas que admite la impresora.

La imagen muestra dos copias de un documento con tres etiquetas: unas tijeras para un corte, una línea discontinua donde se arranca y un signo de interrogación donde decide el ajuste de la impresora.

«Según el ajuste de la impresora» no envía nada sobre el corte; se aplica el ajuste de la propia impresora. Las etiquetas que quedan al final del trabajo después del último corte permanecen en el rollo.</translation>
    </message>
</context>
</TS>
