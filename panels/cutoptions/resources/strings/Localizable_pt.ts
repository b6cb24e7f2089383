<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <extracomment>Name of the panel's page in the print dialog.</extracomment>
        <translation>Opções de corte</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The count and RS_Labels follow below it: Cut Every / 3 label(s).</extracomment>
        <translation>Cortar a cada</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <extracomment>Follows the count, on the panel and in the summary: 3 label(s).</extracomment>
        <translation>etiqueta(s)</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Cortar no fim</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The label is cut, its backing is not.</extracomment>
        <translation>Meio corte</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Tape that must not be cut by the printer, such as woven tape.</extracomment>
        <translation>Fita especial</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <extracomment>Describes the label strip in the dialog while "Special Tape" is on.</extracomment>
        <translation>Fita especial: a impressora não corta nada.</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The end of the strip stays in the printer for the next job, which saves tape.</extracomment>
        <translation>Impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. For labels that are read from behind, through glass for instance.</extracomment>
        <translation>Impressão em espelho</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Takes off what is blank before and after the print of each label.</extracomment>
        <translation>Remover espaço em branco</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Marks are printed where the labels are to be cut by hand.</extracomment>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Cortar a cada</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Cortar no fim</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Meio corte</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Fita especial</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Impressão em cadeia</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Impressão em espelho</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Remover espaço em branco</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <extracomment>Value of a line of the dialog's summary: the option is on.</extracomment>
        <translation>Sim</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <extracomment>Value of a line of the dialog's summary: the option is off.</extracomment>
        <translation>Não</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <extracomment>Warning when automatic cutting is switched on with heat-shrink tube paper.</extracomment>
        <translation>O papel escolhido é tubo termorretrátil. Se a impressora o cortar automaticamente, o tubo pode ficar esmagado, rasgar ou bloquear a lâmina. Desative o corte automático e corte o tubo à mão depois de imprimir.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Cortar a cada</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Corte automático</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Cortar no fim</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Meio corte</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Fita especial</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Impressão em cadeia</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Impressão em espelho</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Remover espaço em branco</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Sem cortes</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Sem cortes, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Sem cortes, o fim fica retido para o próximo trabalho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Sem cortes, o fim fica retido para o próximo trabalho, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Meio corte após cada etiqueta</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Meio corte após cada etiqueta, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Meio corte após cada etiqueta, o fim fica retido para o próximo trabalho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Meio corte após cada etiqueta, o fim fica retido para o próximo trabalho, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada etiqueta</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada etiqueta, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada etiqueta, o fim fica retido para o próximo trabalho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada etiqueta, o fim fica retido para o próximo trabalho, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada conjunto de etiquetas, meios cortes entre elas</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada conjunto de etiquetas, meios cortes entre elas, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada conjunto de etiquetas, meios cortes entre elas, o fim fica retido para o próximo trabalho</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada conjunto de etiquetas, meios cortes entre elas, o fim fica retido para o próximo trabalho, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_SPMROnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Fita especial: sem cortes</translation>
    </message>
    <message>
        <source>OP_PICTURE_SPMROnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Fita especial: sem cortes, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Marcas de corte impressas entre as etiquetas</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Marcas de corte impressas entre as etiquetas, o fim fica retido para o próximo trabalho</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Sem marcas de corte</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Sem marcas de corte, o fim fica retido para o próximo trabalho</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Sem cortes</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte no fim</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada etiqueta</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Sem cortes, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte no fim, em espelho</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Corte após cada etiqueta, em espelho</translation>
    </message>
</context>
</TS>
