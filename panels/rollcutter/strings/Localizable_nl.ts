<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>Localizable</name>
    <message>
        <source>PANEL_NAME</source>
        <extracomment>Name of the panel's page in the print dialog.</extracomment>
        <translation>Rol en snijder</translation>
    </message>
    <message>
        <source>CUT_TITLE</source>
        <extracomment>Title of the group of radio buttons and of the line in the summary.</extracomment>
        <translation>Snijden</translation>
    </message>
    <message>
        <source>CUT_EVERY_LABEL</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Snijden na elk etiket</translation>
    </message>
    <message>
        <source>CUT_EVERY_FEW</source>
        <extracomment>Radio button. A field with the number and INTERVAL_SUFFIX follows: Cut after every [5 labels].</extracomment>
        <translation>Snijden na elke</translation>
    </message>
    <message>
        <source>INTERVAL_SUFFIX</source>
        <extracomment>Follows the number in the field; 2 or more. Begins with a space if the language needs one.</extracomment>
        <translation> etiketten</translation>
    </message>
    <message>
        <source>INTERVAL_NAME</source>
        <extracomment>Name of the field for the number, for screen readers.</extracomment>
        <translation>Etiketten tussen twee sneden</translation>
    </message>
    <message>
        <source>CUT_EVERY_NUMBER</source>
        <extracomment>Value in the summary. %1: the number, 2 or more.</extracomment>
        <translation>Snijden na elke %1 etiketten</translation>
    </message>
    <message>
        <source>CUT_EACH_COPY</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Snijden na elk exemplaar</translation>
    </message>
    <message>
        <source>CUT_EACH_DOCUMENT</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Snijden na elk document</translation>
    </message>
    <message>
        <source>CUT_AT_END</source>
        <extracomment>Radio button and value in the summary: at the end of the print job.</extracomment>
        <translation>Aan het einde snijden</translation>
    </message>
    <message>
        <source>CUT_TEAR</source>
        <extracomment>Radio button and value in the summary: the user tears the labels off by hand.</extracomment>
        <translation>Zelf afscheuren</translation>
    </message>
    <message>
        <source>CUT_PEEL</source>
        <extracomment>Radio button and value in the summary: the printer peels each label off the backing.</extracomment>
        <translation>Elk etiket losmaken</translation>
    </message>
    <message>
        <source>CUT_REWIND</source>
        <extracomment>Radio button and value in the summary: the printer winds the printed labels up.</extracomment>
        <translation>Etiketten opwikkelen</translation>
    </message>
    <message>
        <source>CUT_APPLICATOR</source>
        <extracomment>Radio button and value in the summary: a machine applies each printed label.</extracomment>
        <translation>Elk etiket machinaal aanbrengen</translation>
    </message>
    <message>
        <source>CUT_NEVER</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Niet snijden</translation>
    </message>
    <message>
        <source>CUT_SOMEWHERE</source>
        <extracomment>Radio button and value in the summary: the printer cuts, and nothing says where.</extracomment>
        <translation>Snijden waar de printer bepaalt</translation>
    </message>
    <message>
        <source>STRIP_PEEL</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Elk etiket wordt van de drager losgemaakt.</translation>
    </message>
    <message>
        <source>STRIP_REWIND</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>De afgedrukte etiketten worden opgewikkeld.</translation>
    </message>
    <message>
        <source>STRIP_APPLICATOR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Elk etiket wordt door een machine aangebracht.</translation>
    </message>
    <message>
        <source>STRIP_SOMEWHERE</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Het snijden is niet bekend: de printer bepaalt waar hij snijdt.</translation>
    </message>
    <message>
        <source>STRIP_PRINTER_SETTING</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Het snijden is niet bekend: de instelling op de printer geldt.</translation>
    </message>
    <message>
        <source>CUT_PRINTER_SETTING</source>
        <extracomment>Radio button and value in the summary: the setting at the printer's own controls.</extracomment>
        <translation>Zoals ingesteld op de printer</translation>
    </message>
    <message>
        <source>CUT_OTHER</source>
        <extracomment>Value in the summary: a choice without a text.</extracomment>
        <translation>Anders</translation>
    </message>
    <message>
        <source>REASON_INTERVAL</source>
        <extracomment>Tool tip of the disabled field for the number.</extracomment>
        <translation>Kies ‘Snijden na elke … etiketten’ om het aantal etiketten in te stellen.</translation>
    </message>
    <message>
        <source>REASON_TEAR_INTERVAL</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>De printer stopt alleen om af te scheuren als ‘Zelf afscheuren’ is gekozen.</translation>
    </message>
    <message>
        <source>REASON_TEAR_POSITION</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>De printer snijdt de etiketten, zodat de afscheurpositie geen effect heeft.</translation>
    </message>
    <message>
        <source>STRIP_TEAR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>De etiketten worden met de hand afgescheurd.</translation>
    </message>
    <message>
        <source>REASON_NOT_SENT</source>
        <extracomment>Tool tip of a disabled option: an error in the printer's driver.</extracomment>
        <translation>De printerdriver geeft deze instelling niet door; de instelling op de printer geldt.</translation>
    </message>
    <message>
        <source>PREVIEW_NAME</source>
        <extracomment>Name of the picture, for screen readers.</extracomment>
        <translation>Voorbeeld van de sneden</translation>
    </message>
    <message>
        <source>HELP</source>
        <extracomment>Help of the panel. Blank lines separate paragraphs.</extracomment>
        <translation>Kies waar de printer de rol snijdt. Alleen de manieren die de printer ondersteunt, staan in de lijst.

De afbeelding toont twee exemplaren van een document met drie etiketten: een schaar voor een snede, een streepjeslijn waar u afscheurt en een vraagteken waar de instelling van de printer bepaalt.

‘Zoals ingesteld op de printer’ verzendt niets over snijden; de instelling op de printer geldt. Etiketten die aan het einde van de taak na de laatste snede overblijven, blijven aan de rol.</translation>
    </message>
</context>
</TS>
