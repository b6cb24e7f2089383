<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Localizable</name>
    <message>
        <source>PANEL_NAME</source>
        <extracomment>Name of the panel's page in the print dialog.</extracomment>
        <translation>Rouleau et coupe</translation>
    </message>
    <message>
        <source>CUT_TITLE</source>
        <extracomment>Title of the group of radio buttons and of the line in the summary.</extracomment>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>CUT_EVERY_LABEL</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Couper après chaque étiquette</translation>
    </message>
    <message>
        <source>CUT_EVERY_FEW</source>
        <extracomment>Radio button. A field with the number and INTERVAL_SUFFIX follows: Cut after every [5 labels].</extracomment>
        <translation>Couper toutes les</translation>
    </message>
    <message>
        <source>INTERVAL_SUFFIX</source>
        <extracomment>Follows the number in the field; 2 or more. Begins with a space if the language needs one.</extracomment>
        <translation> étiquettes</translation>
    </message>
    <message>
        <source>INTERVAL_NAME</source>
        <extracomment>Name of the field for the number, for screen readers.</extracomment>
        <translation>Étiquettes entre deux coupes</translation>
    </message>
    <message>
        <source>CUT_EVERY_NUMBER</source>
        <extracomment>Value in the summary. %1: the number, 2 or more.</extracomment>
        <translation>Couper toutes les %1 étiquettes</translation>
    </message>
    <message>
        <source>CUT_EACH_COPY</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Couper après chaque exemplaire</translation>
    </message>
    <message>
        <source>CUT_EACH_DOCUMENT</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Couper après chaque document</translation>
    </message>
    <message>
        <source>CUT_AT_END</source>
        <extracomment>Radio button and value in the summary: at the end of the print job.</extracomment>
        <translation>Couper à la fin</translation>
    </message>
    <message>
        <source>CUT_TEAR</source>
        <extracomment>Radio button and value in the summary: the user tears the labels off by hand.</extracomment>
        <translation>Détacher à la main</translation>
    </message>
    <message>
        <source>CUT_PEEL</source>
        <extracomment>Radio button and value in the summary: the printer peels each label off the backing.</extracomment>
        <translation>Décoller chaque étiquette</translation>
    </message>
    <message>
        <source>CUT_REWIND</source>
        <extracomment>Radio button and value in the summary: the printer winds the printed labels up.</extracomment>
        <translation>Rembobiner les étiquettes</translation>
    </message>
    <message>
        <source>CUT_APPLICATOR</source>
        <extracomment>Radio button and value in the summary: a machine applies each printed label.</extracomment>
        <translation>Poser chaque étiquette par machine</translation>
    </message>
    <message>
        <source>CUT_NEVER</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Ne pas couper</translation>
    </message>
    <message>
        <source>CUT_SOMEWHERE</source>
        <extracomment>Radio button and value in the summary: the printer cuts, and nothing says where.</extracomment>
        <translation>Couper là où l’imprimante le décide</translation>
    </message>
    <message>
        <source>STRIP_PEEL</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Chaque étiquette est décollée de son support.</translation>
    </message>
    <message>
        <source>STRIP_REWIND</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Les étiquettes imprimées sont rembobinées.</translation>
    </message>
    <message>
        <source>STRIP_APPLICATOR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Chaque étiquette est posée par une machine.</translation>
    </message>
    <message>
        <source>STRIP_SOMEWHERE</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>La coupe n’est pas connue : l’imprimante décide où elle coupe.</translation>
    </message>
    <message>
        <source>STRIP_PRINTER_SETTING</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>La coupe n’est pas connue : le réglage de l’imprimante s’applique.</translation>
    </message>
    <message>
        <source>CUT_PRINTER_SETTING</source>
        <extracomment>Radio button and value in the summary: the setting at the printer's own controls.</extracomment>
        <translation>Selon le réglage de l’imprimante</translation>
    </message>
    <message>
        <source>CUT_OTHER</source>
        <extracomment>Value in the summary: a choice without a text.</extracomment>
        <translation>Autre</translation>
    </message>
    <message>
        <source>REASON_INTERVAL</source>
        <extracomment>Tool tip of the disabled field for the number.</extracomment>
        <translation>Pour régler le nombre d’étiquettes, sélectionnez « Couper toutes les … étiquettes ».</translation>
    </message>
    <message>
        <source>REASON_TEAR_INTERVAL</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>L’imprimante ne s’arrête pour détacher que si « Détacher à la main » est sélectionné.</translation>
    </message>
    <message>
        <source>REASON_TEAR_POSITION</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>L’imprimante coupe les étiquettes : la position de déchirure est sans effet.</translation>
    </message>
    <message>
        <source>STRIP_TEAR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Les étiquettes sont détachées à la main.</translation>
    </message>
    <message>
        <source>REASON_NOT_SENT</source>
        <extracomment>Tool tip of a disabled option: an error in the printer's driver.</extracomment>
        <translation>Le pilote de l’imprimante ne transmet pas ce réglage ; celui de l’imprimante s’applique.</translation>
    </message>
    <message>
        <source>PREVIEW_NAME</source>
        <extracomment>Name of the picture, for screen readers.</extracomment>
        <translation>Aperçu des coupes</translation>
    </message>
    <message>
        <source>HELP</source>
        <extracomment>Help of the panel. Blank lines separate paragraphs.</extracomment>
        <translation>Choisissez où l’imprimante coupe le rouleau. Seuls les modes pris en charge par l’imprimante sont proposés.

L’image montre deux exemplaires d’un document de trois étiquettes : des ciseaux pour une coupe, une ligne tiretée là où vous détachez, et un point d’interrogation lorsque le réglage de l’imprimante décide.

« Selon le réglage de l’imprimante » n’envoie rien au sujet de la coupe ; le réglage fait sur l’imprimante s’applique. Les étiquettes qui restent après la dernière coupe à la fin de la tâche demeurent sur le rouleau.</translation>
    </message>
</context>
</TS>
