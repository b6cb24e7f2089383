<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>Localizable</name>
    <message>
        <source>PANEL_NAME</source>
        <extracomment>Name of the panel's page in the print dialog.</extracomment>
        <translation>Rolo e corte</translation>
    </message>
    <message>
        <source>CUT_TITLE</source>
        <extracomment>Title of the group of radio buttons and of the line in the summary.</extracomment>
        <translation>Corte</translation>
    </message>
    <message>
        <source>CUT_EVERY_LABEL</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Cortar após cada etiqueta</translation>
    </message>
    <message>
        <source>CUT_EVERY_FEW</source>
        <extracomment>Radio button. A field with the number and INTERVAL_SUFFIX follows: Cut after every [5 labels].</extracomment>
        <translation>Cortar a cada</translation>
    </message>
    <message>
        <source>INTERVAL_SUFFIX</source>
        <extracomment>Follows the number in the field; 2 or more. Begins with a space if the language needs one.</extracomment>
        <translation> etiquetas</translation>
    </message>
    <message>
        <source>INTERVAL_NAME</source>
        <extracomment>Name of the field for the number, for screen readers.</extracomment>
        <translation>Etiquetas entre dois cortes</translation>
    </message>
    <message>
        <source>CUT_EVERY_NUMBER</source>
        <extracomment>Value in the summary. %1: the number, 2 or more.</extracomment>
        <translation>Cortar a cada %1 etiquetas</translation>
    </message>
    <message>
        <source>CUT_EACH_COPY</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Cortar após cada cópia</translation>
    </message>
    <message>
        <source>CUT_EACH_DOCUMENT</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Cortar após cada documento</translation>
    </message>
    <message>
        <source>CUT_AT_END</source>
        <extracomment>Radio button and value in the summary: at the end of the print job.</extracomment>
        <translation>Cortar no final</translation>
    </message>
    <message>
        <source>CUT_TEAR</source>
        <extracomment>Radio button and value in the summary: the user tears the labels off by hand.</extracomment>
        <translation>Destacar à mão</translation>
    </message>
    <message>
        <source>CUT_PEEL</source>
        <extracomment>Radio button and value in the summary: the printer peels each label off the backing.</extracomment>
        <translation>Descolar cada etiqueta</translation>
    </message>
    <message>
        <source>CUT_REWIND</source>
        <extracomment>Radio button and value in the summary: the printer winds the printed labels up.</extracomment>
        <translation>Rebobinar as etiquetas</translation>
    </message>
    <message>
        <source>CUT_APPLICATOR</source>
        <extracomment>Radio button and value in the summary: a machine applies each printed label.</extracomment>
        <translation>Aplicar cada etiqueta com máquina</translation>
    </message>
    <message>
        <source>CUT_NEVER</source>
        <extracomment>Radio button and value in the summary.</extracomment>
        <translation>Não cortar</translation>
    </message>
    <message>
        <source>CUT_SOMEWHERE</source>
        <extracomment>Radio button and value in the summary: the printer cuts, and nothing says where.</extracomment>
        <translation>Cortar onde a impressora decidir</translation>
    </message>
    <message>
        <source>STRIP_PEEL</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Cada etiqueta é descolada do suporte.</translation>
    </message>
    <message>
        <source>STRIP_REWIND</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>As etiquetas impressas são rebobinadas.</translation>
    </message>
    <message>
        <source>STRIP_APPLICATOR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>Cada etiqueta é aplicada por uma máquina.</translation>
    </message>
    <message>
        <source>STRIP_SOMEWHERE</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>O corte não é conhecido: a impressora decide onde corta.</translation>
    </message>
    <message>
        <source>STRIP_PRINTER_SETTING</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>O corte não é conhecido: aplica-se a definição da impressora.</translation>
    </message>
    <message>
        <source>CUT_PRINTER_SETTING</source>
        <extracomment>Radio button and value in the summary: the setting at the printer's own controls.</extracomment>
        <translation>Conforme definido na impressora</translation>
    </message>
    <message>
        <source>CUT_OTHER</source>
        <extracomment>Value in the summary: a choice without a text.</extracomment>
        <translation>Outro</translation>
    </message>
    <message>
        <source>REASON_INTERVAL</source>
        <extracomment>Tool tip of the disabled field for the number.</extracomment>
        <translation>Para definir o número de etiquetas, selecione “Cortar a cada … etiquetas”.</translation>
    </message>
    <message>
        <source>REASON_TEAR_INTERVAL</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>A impressora só para para destacar se “Destacar à mão” estiver selecionado.</translation>
    </message>
    <message>
        <source>REASON_TEAR_POSITION</source>
        <extracomment>Tool tip of a disabled option.</extracomment>
        <translation>A impressora corta as etiquetas, por isso a posição de destaque não tem efeito.</translation>
    </message>
    <message>
        <source>STRIP_TEAR</source>
        <extracomment>Sentence beside the strip in the print dialog.</extracomment>
        <translation>As etiquetas são destacadas à mão.</translation>
    </message>
    <message>
        <source>REASON_NOT_SENT</source>
        <extracomment>Tool tip of a disabled option: an error in the printer's driver.</extracomment>
        <translation>O controlador da impressora não transmite esta definição; aplica-se a da impressora.</translation>
    </message>
    <message>
        <source>PREVIEW_NAME</source>
        <extracomment>Name of the picture, for screen readers.</extracomment>
        <translation>Pré-visualização dos cortes</translation>
    </message>
    <message>
        <source>HELP</source>
        <extracomment>Help of the panel. Blank lines separate paragraphs.</extracomment>
        <translation>Escolha onde a impressora corta o rolo. Só são apresentadas as formas suportadas pela impressora.

A imagem mostra duas cópias de um documento com três etiquetas: uma tesoura para um corte, uma linha tracejada onde se destaca e um ponto de interrogação onde decide a definição da impressora.

“Conforme definido na impressora” não envia nada sobre o corte; aplica-se a definição da própria impressora. As etiquetas que restam no fim do trabalho após o último corte ficam no rolo.</translation>
    </message>
</context>
</TS>
