<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>Localizable</name>
    <message>
        <source>PANEL_NAME</source>
        <extracomment>Name of the panel's page in the print dialog.</extracomment>
        <translation>Rotolo e taglio</translation>
    </message>
    <message>
        <source>CUT_TITLE</source>
        <extracomment>Title of the group of radio buttons and of the line in the summary.</extracomment>
        <translation>Taglio</translation>
    </message>
    <message>
        <source>CUT_EVERY_LABEL</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Taglia dopo ogni etichetta</translation>
    </message>
    <message>
        <source>CUT_EVERY_FEW</source>
        <extracomment>Radio button. A field with the number and INTERVAL_SUFFIX follows: Cut after every [5 labels].</extracomment>
        <translation>Taglia ogni</translation>
    </message>
    <message>
        <source>INTERVAL_SUFFIX</source>
        <extracomment>Follows the number in the field; 2 or more. Begins with a space if the language needs one.</extracomment>
        <translation> etichette</translation>
    </message>
    <message>
        <source>INTERVAL_NAME</source>
        <extracomment>Name of the field for the number, for screen readers.</extracomment>
        <translation>Etichette tra due tagli</translation>
    </message>
    <message>
        <source>CUT_EVERY_NUMBER</source>
        <extracomment>Value in the summary. %1: the number, 2 or more.</extracomment>
        <translation>Taglia ogni %1 etichette</translation>
    </message>
    <message>
        <source>CUT_EACH_COPY</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Taglia dopo ogni copia</translation>
    </message>
    <message>
        <source>CUT_EACH_DOCUMENT</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Taglia dopo ogni documento</translation>
    </message>
    <message>
        <source>CUT_AT_END</source>
        <extracomment>Radio button and value in the summary: at the end of the print job.</extracomment>
        <translation>Taglia alla fine</translation>
    </message>
    <message>
        <source>CUT_TEAR</source>
        <extracomment>Radio button and value in the summary: the user tears the labels off by hand.</extracomment>
        <translation>Strappo a mano</translation>
    </message>
    <message>
        <source>CUT_PEEL</source>
        <extracomment>Radio button and value in the summary: the printer peels each label off the backing.</extracomment>
        <translation>Spellicola ogni etichetta</translation>
    </message>
    <message>
        <source>CUT_REWIND</source>
        <extracomment>Radio button and value in the summary: the printer winds the printed labels up.</extracomment>
        <translation>Riavvolgi le etichette</translation>
    </message>
    <message>
        <source>CUT_APPLICATOR</source>
        <extracomment>Radio button and value in the summary: a machine applies each printed label.</extracomment>
        <translation>Applica ogni etichetta a macchina</translation>
    </message>
    <message>
        <source>CUT_NEVER</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Non tagliare</translation>
    </message>
    <message>
        <source>CUT_SOMEWHERE</source>
        <extracomment>Radio button and value in the summary: the printer cuts, and nothing says where.</extracomment>
        <translation>Taglia dove decide la stampante</translation>
    </message>
    <message>
        <source>STRIP_PEEL</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Ogni etichetta viene staccata dal supporto.</translation>
    </message>
    <message>
        <source>STRIP_REWIND</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Le etichette stampate vengono riavvolte.</translation>
    </message>
    <message>
        <source>STRIP_APPLICATOR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Ogni etichetta viene applicata da una macchina.</translation>
    </message>
    <message>
        <source>STRIP_SOMEWHERE</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Il taglio non è noto: la stampante decide dove tagliare.</translation>
    </message>
    <message>
        <source>STRIP_PRINTER_SETTING</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Il taglio non è noto: vale l’impostazione della stampante.</translation>
    </message>
    <message>
        <source>CUT_PRINTER_SETTING</source>
        <extracomment>Radio button and value in the summary: the setting at the printer's own controls.</extracomment>
        <translation>Come impostato sulla stampante</translation>
    </message>
    <message>
        <source>CUT_OTHER</source>
        <extracomment>Value in the summary: a choice without a text.</extracomment>
        <translation>Altro</translation>
    </message>
    <message>
        <source>REASON_INTERVAL</source>
        <extracomment>Tool tip of the disabled field for the number.</extracomment>
        <translation>Per impostare il numero di etichette, selezionare «Taglia ogni … etichette».</translation>
    </message>
    <message>
        <source>REASON_TEAR_INTERVAL</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>La stampante si ferma per lo strappo solo se è selezionato «Strappo a mano».</translation>
    </message>
    <message>
        <source>REASON_TEAR_POSITION</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>La stampante taglia le etichette, quindi la posizione di strappo non ha effetto.</translation>
    </message>
    <message>
        <source>STRIP_TEAR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Le etichette vengono strappate a mano.</translation>
    </message>
    <message>
        <source>REASON_NOT_SENT</source>
        <extracomment>Tool tip of a disabled option: an error in the printer's driver.</extracomment>
        <translation>Il driver della stampante non trasmette questa impostazione; vale quella della stampante.</translation>
    </message>
    <message>
        <source>PREVIEW_NAME</source>
        <extracomment>Name of the picture, for screen readers.</extracomment>
        <translation>Anteprima dei tagli</translation>
    </message>
    <message>
        <source>HELP</source>
        <extracomment>Help of the panel. Blank lines separate paragraphs.</extracomment>
        <translation>Scegliere dove la stampante taglia il rotolo. Sono elencati solo i modi supportati dalla stampante.

L’immagine mostra due copie di un documento con tre etichette: le forbici per un taglio, una linea tratteggiata dove si strappa e un punto interrogativo dove decide l’impostazione della stampante.

«Come impostato sulla stampante» non invia nulla sul taglio; vale l’impostazione della stampante. Le etichette che restano alla fine del lavoro dopo l’ultimo taglio rimangono sul rotolo.</translation>
    </message>
</context>
</TS>
