<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <extracomment>Name of the panel's page in the print dialog.</extracomment>
        <translation>Options de coupe</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The count and RS_Labels follow below it: Cut Every / 3 label(s).</extracomment>
        <translation>Couper par lot de</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <extracomment>Follows the count, on the panel and in the summary: 3 label(s).</extracomment>
        <translation>étiquette(s)</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Coupe automatique</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Couper à la fin</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The label is cut, its backing is not.</extracomment>
        <translation>Demi-coupe</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Tape that must not be cut by the printer, such as woven tape.</extracomment>
        <translation>Ruban spécial</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <extracomment>Describes the label strip in the dialog while "Special Tape" is on.</extracomment>
        <translation>Ruban spécial : l’imprimante ne coupe rien.</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The end of the strip stays in the printer for the next job, which saves tape.</extracomment>
        <translation>Impression en chaîne</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. For labels that are read from behind, through glass for instance.</extracomment>
        <translation>Impression en miroir</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Takes off what is blank before and after the print of each label.</extracomment>
        <translation>Supprimer les blancs</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Marks are printed where the labels are to be cut by hand.</extracomment>
        <translation>Repères de coupe</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Couper par lot de</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Coupe automatique</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Couper à la fin</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Demi-coupe</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Ruban spécial</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Impression en chaîne</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Impression en miroir</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Supprimer les blancs</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Repères de coupe</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <extracomment>Value of a line of the dialog's summary: the option is on.</extracomment>
        <translation>Oui</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <extracomment>Value of a line of the dialog's summary: the option is off.</extracomment>
        <translation>Non</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <extracomment>Warning when automatic cutting is switched on with heat-shrink tube paper.</extracomment>
        <translation>Le papier choisi est une gaine thermorétractable. Si l’imprimante la coupe automatiquement, la gaine peut être écrasée, se déchirer ou bloquer le dispositif de coupe. Désactivez la coupe automatique et coupez la gaine à la main après l’impression.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Couper par lot de</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Coupe automatique</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Couper à la fin</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Demi-coupe</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Ruban spécial</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Impression en chaîne</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Impression en miroir</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Supprimer les blancs</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Repères de coupe</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Aucune coupe</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Aucune coupe, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Aucune coupe, fin retenue pour le travail suivant</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Aucune coupe, fin retenue pour le travail suivant, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Demi-coupe après chaque étiquette</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Demi-coupe après chaque étiquette, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Demi-coupe après chaque étiquette, fin retenue pour le travail suivant</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Demi-coupe après chaque étiquette, fin retenue pour le travail suivant, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque étiquette</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque étiquette, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque étiquette, fin retenue pour le travail suivant</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque étiquette, fin retenue pour le travail suivant, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque lot d’étiquettes, demi-coupes entre elles</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque lot d’étiquettes, demi-coupes entre elles, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque lot d’étiquettes, demi-coupes entre elles, fin retenue pour le travail suivant</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque lot d’étiquettes, demi-coupes entre elles, fin retenue pour le travail suivant, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_SPMROnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Ruban spécial : aucune coupe</translation>
    </message>
    <message>
        <source>OP_PICTURE_SPMROnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Ruban spécial : aucune coupe, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Repères de coupe imprimés entre les étiquettes</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Repères de coupe imprimés entre les étiquettes, fin retenue pour le travail suivant</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Aucun repère de coupe</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Aucun repère de coupe, fin retenue pour le travail suivant</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Aucune coupe</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe à la fin</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque étiquette</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Aucune coupe, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe à la fin, en miroir</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Coupe après chaque étiquette, en miroir</translation>
    </message>
</context>
</TS>
