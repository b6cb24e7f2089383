<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>Localizable</name>
    <message>
        <source>OP_PANEL_NAME</source>
        <extracomment>Name of the panel's page in the print dialog.</extracomment>
        <translation>Snijopties</translation>
    </message>
    <message>
        <source>RS_CutAtEvery</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The count and RS_Labels follow below it: Cut Every / 3 label(s).</extracomment>
        <translation>Snijden per</translation>
    </message>
    <message>
        <source>RS_Labels</source>
        <extracomment>Follows the count, on the panel and in the summary: 3 label(s).</extracomment>
        <translation>label(s)</translation>
    </message>
    <message>
        <source>RS_AutoTapeCut</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Automatisch snijden</translation>
    </message>
    <message>
        <source>RS_CutAtEnd</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Aan het einde snijden</translation>
    </message>
    <message>
        <source>RS_HalfCut</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The label is cut, its backing is not.</extracomment>
        <translation>Halve snede</translation>
    </message>
    <message>
        <source>RS_SpecialTape</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Tape that must not be cut by the printer, such as woven tape.</extracomment>
        <translation>Speciale tape</translation>
    </message>
    <message>
        <source>RS_Strip_SpecialTape</source>
        <extracomment>Describes the label strip in the dialog while "Special Tape" is on.</extracomment>
        <translation>Speciale tape: de printer snijdt niets.</translation>
    </message>
    <message>
        <source>RS_ChainPrinting</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. The end of the strip stays in the printer for the next job, which saves tape.</extracomment>
        <translation>Kettingafdrukken</translation>
    </message>
    <message>
        <source>RS_MirrorPrinting</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. For labels that are read from behind, through glass for instance.</extracomment>
        <translation>Spiegelbeeld</translation>
    </message>
    <message>
        <source>RS_RemoveBlkSpace</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Takes off what is blank before and after the print of each label.</extracomment>
        <translation>Lege ruimte verwijderen</translation>
    </message>
    <message>
        <source>RS_CutMark</source>
        <extracomment>Title of a check box of the panel; 230 points wide at most. Marks are printed where the labels are to be cut by hand.</extracomment>
        <translation>Snijmarkeringen</translation>
    </message>
    <message>
        <source>RS_STitle_CutLabels</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Snijden per</translation>
    </message>
    <message>
        <source>RS_STitle_AutoTapeCut</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Automatisch snijden</translation>
    </message>
    <message>
        <source>RS_STitle_CutAtEnd</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Aan het einde snijden</translation>
    </message>
    <message>
        <source>RS_STitle_HalfCut</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Halve snede</translation>
    </message>
    <message>
        <source>RS_STitle_SpecialTape</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Speciale tape</translation>
    </message>
    <message>
        <source>RS_STitle_ChainPrint</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Kettingafdrukken</translation>
    </message>
    <message>
        <source>RS_STitle_MirrorPrinting</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Spiegelbeeld</translation>
    </message>
    <message>
        <source>RS_STitle_RemoveBlkSpace</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Lege ruimte verwijderen</translation>
    </message>
    <message>
        <source>RS_STitle_CutMark</source>
        <extracomment>Title of a line of the dialog's summary.</extracomment>
        <translation>Snijmarkeringen</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <extracomment>Value of a line of the dialog's summary: the option is on.</extracomment>
        <translation>Ja</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <extracomment>Value of a line of the dialog's summary: the option is off.</extracomment>
        <translation>Nee</translation>
    </message>
    <message>
        <source>RS_Alrt_AutoCutWithHS</source>
        <extracomment>Warning when automatic cutting is switched on with heat-shrink tube paper.</extracomment>
        <translation>Het gekozen papier is krimpkous. Als de printer die automatisch afsnijdt, kan de krimpkous worden platgedrukt, scheuren of het snijmechanisme blokkeren. Schakel automatisch snijden uit en knip de krimpkous na het afdrukken met de hand af.</translation>
    </message>
    <message>
        <source>Cut Every</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Snijden per</translation>
    </message>
    <message>
        <source>Auto Cut</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Automatisch snijden</translation>
    </message>
    <message>
        <source>Cut at End</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Aan het einde snijden</translation>
    </message>
    <message>
        <source>Half Cut</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Halve snede</translation>
    </message>
    <message>
        <source>Special Tape</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Speciale tape</translation>
    </message>
    <message>
        <source>Chain Printing</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Kettingafdrukken</translation>
    </message>
    <message>
        <source>Mirror Printing</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Spiegelbeeld</translation>
    </message>
    <message>
        <source>Remove Blank Space</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Lege ruimte verwijderen</translation>
    </message>
    <message>
        <source>Cut Mark</source>
        <extracomment>Text of an option in a printer's description. Title of a check box of the panel; 230 points wide at most.</extracomment>
        <translation>Snijmarkeringen</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Niet snijden</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Niet snijden, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Niet snijden, einde blijft in de printer voor de volgende taak</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Niet snijden, einde blijft in de printer voor de volgende taak, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Halve snede na elk label</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Halve snede na elk label, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Halve snede na elk label, einde blijft in de printer voor de volgende taak</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOffOnOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Halve snede na elk label, einde blijft in de printer voor de volgende taak, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elk label</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elk label, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elk label, einde blijft in de printer voor de volgende taak</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elk label, einde blijft in de printer voor de volgende taak, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elke reeks labels, halve sneden ertussen</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elke reeks labels, halve sneden ertussen, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elke reeks labels, halve sneden ertussen, einde blijft in de printer voor de volgende taak</translation>
    </message>
    <message>
        <source>OP_PICTURE_AHCMOnOnOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elke reeks labels, halve sneden ertussen, einde blijft in de printer voor de volgende taak, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_SPMROnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Speciale tape: niet snijden</translation>
    </message>
    <message>
        <source>OP_PICTURE_SPMROnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Speciale tape: niet snijden, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Gedrukte snijmarkeringen tussen de labels</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROnOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Gedrukte snijmarkeringen tussen de labels, einde blijft in de printer voor de volgende taak</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Geen snijmarkeringen</translation>
    </message>
    <message>
        <source>OP_PICTURE_CTMROffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Geen snijmarkeringen, einde blijft in de printer voor de volgende taak</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Niet snijden</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOnOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden aan het einde</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOnOffOff</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elk label</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Niet snijden, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOffOnOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden aan het einde, in spiegelbeeld</translation>
    </message>
    <message>
        <source>OP_PICTURE_EveryEndMirrorOnOffOn</source>
        <extracomment>Spoken description of a preset's picture, as tool tip and for screen readers.</extracomment>
        <translation>Afsnijden na elk label, in spiegelbeeld</translation>
    </message>
</context>
</TS>
