<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>dialog::CommandLine</name>
    <message>
        <source>Exit status:
  0  printed
  1  something could not be opened, used or written; nothing was printed
  2  the command line was not understood
  3  printed, but without the cut-options panel
  4  cancelled in the dialog
</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Prints the pages of a PDF as labels, with a dialog for paper, pages and cuts that shows the label strip as it will come out. Without a display it prints at once.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>The printer's PPD file, plain or gzip. Required.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>The paper's name in the PPD, or Custom.WIDTHxLENGTHmm where the printer takes free sizes. The PPD's default without it.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>The bundle with the cut-options panel, or the folder it is in.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>The folder for strip.pdf and job.json, made when it is not there. A new folder among the user's data without it.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Saves a picture of the dialog, as it opens, in a PNG file.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Prints at once, with the settings that the dialog would open with.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Shows this help.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>Shows the version.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>The labels, one a page.</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>No printer was named: --ppd FILE is missing</source>
        <translation>Geen printer opgegeven: --ppd BESTAND ontbreekt</translation>
    </message>
    <message>
        <source>No document was named</source>
        <translation>Geen document opgegeven</translation>
    </message>
    <message>
        <source>Only one document can be printed at a time, and %1 were named</source>
        <translation>Er kan maar één document tegelijk worden afgedrukt; er zijn er %1 opgegeven</translation>
    </message>
    <message>
        <source>Try "kvprint --help".</source>
        <translation>Probeer "kvprint --help".</translation>
    </message>
</context>
<context>
    <name>dialog::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>Per se&amp;t</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Eerst alle pagina's één keer, dan opnieuw; anders alle exemplaren van een pagina bij elkaar</translation>
    </message>
    <message>
        <source>all, or for example 1-3, 5</source>
        <translation>alle, of bijvoorbeeld 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Exemplaren</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>Pa&amp;gina's</translation>
    </message>
    <message>
        <source>Cannot print so many labels at once: a job has at most %1</source>
        <translation>Zoveel labels kunnen niet tegelijk worden afgedrukt: een taak heeft er hoogstens %1</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
    <message>
        <source>The page is larger than the label and is shrunk to fit.</source>
        <translation>De pagina is groter dan het label en wordt verkleind.</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige pagina</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Volgende pagina</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 van %2</translation>
    </message>
</context>
<context>
    <name>dialog::PaperChooser</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>%1 breed, %2 lang</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>P&amp;apier</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Search papers</source>
        <translation>Papier zoeken</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 afdrukken</translation>
    </message>
    <message>
        <source>Options, preview and summary</source>
        <translation>Opties, voorbeeld en samenvatting</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>Printer: %1</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Samenvatting</translation>
    </message>
    <message>
        <source>"%1" cannot save its settings: %2</source>
        <translation>"%1" kan de instellingen niet opslaan: %2</translation>
    </message>
    <message>
        <source>"%1" does not let the job be printed with these settings.</source>
        <translation>"%1" laat de taak met deze instellingen niet afdrukken.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina's</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplaren</translation>
    </message>
    <message>
        <source>Label strip</source>
        <translation>Labelstrook</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Stukken</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Tape</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation>Sneden</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Pagina&amp;voorbeeld</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>dialog::PrintRun</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 en nog %2</translation>
    </message>
    <message>
        <source>The PPD file "%1" has no paper "%2"; it has: %3</source>
        <translation>Het PPD-bestand "%1" heeft geen papier "%2"; wel: %3</translation>
    </message>
    <message>
        <source>The PPD file "%1" names no paper to print on</source>
        <translation>Het PPD-bestand "%1" noemt geen papier om op af te drukken</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation>De snijopties kunnen niet worden getoond. %1</translation>
    </message>
    <message>
        <source>The panel bundle "%1" could not make its panel</source>
        <translation>De bundel "%1" kon zijn paneel niet maken</translation>
    </message>
    <message>
        <source>The panel of the bundle "%1" cannot be shown: its layout file cannot be used</source>
        <translation>Het paneel van de bundel "%1" kan niet worden getoond: het opmaakbestand is onbruikbaar</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>De labelstrook staat in:</translation>
    </message>
</context>
<context>
    <name>dialog::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Labelstrook</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPage</name>
    <message>
        <source>Setting</source>
        <translation>Instelling</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
</context>
<context>
    <name>host::CutPlan</name>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>Geen volledige snede: de labels komen als één strook.</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>Volledige snede na het laatste label.</translation>
    </message>
    <message>
        <source>Full cut after every label.</source>
        <translation>Volledige snede na elk label.</translation>
    </message>
    <message>
        <source>Full cut after every %1 labels.</source>
        <translation>Volledige snede na elke %1 labels.</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <comment>a length</comment>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>Labels: %1 · Stukken: %2 · Tape: %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>Er wordt niets afgedrukt.</translation>
    </message>
    <message>
        <source>Special tape: the printer cuts nothing.</source>
        <translation>Speciale tape: de printer snijdt niets.</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>Halve snede tussen de labels van een stuk.</translation>
    </message>
    <message>
        <source>Printed marks where nothing is cut through.</source>
        <translation>Gedrukte merktekens waar niet wordt doorgesneden.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job goes on from it without a margin.</source>
        <translation>Het einde blijft in de printer; de volgende taak gaat zonder marge verder.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is left out.</source>
        <translation>Lege tape voor en na elk label vervalt.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>De labels zijn gespiegeld.</translation>
    </message>
</context>
<context>
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document "%1": %2</source>
        <translation>Kan het document "%1" niet openen: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>dat bestand bestaat niet</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>het is geen bestand</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>het is leeg</translation>
    </message>
    <message>
        <source>it is encrypted; remove its password first</source>
        <translation>het is versleuteld; verwijder eerst het wachtwoord</translation>
    </message>
    <message>
        <source>it is encrypted in a way that is not known here</source>
        <translation>het is op een onbekende manier versleuteld</translation>
    </message>
    <message>
        <source>it is no PDF, or a damaged one</source>
        <translation>het is geen PDF, of een beschadigde</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>het heeft geen pagina's</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>pagina %1 heeft geen oppervlak</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>pagina %1 is langer dan %2 m</translation>
    </message>
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle "%1": %2</source>
        <translation>Kan de bundel "%1" niet gebruiken: %2</translation>
    </message>
    <message>
        <source>its library is no library of panels</source>
        <translation>de bibliotheek bevat geen panelen</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>die is gemaakt voor versie %1 van de interface; dit programma heeft versie %2</translation>
    </message>
    <message>
        <source>missing or unreadable: %1</source>
        <translation>ontbreekt of is onleesbaar: %1</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>het is geen map</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>die map bestaat niet</translation>
    </message>
    <message>
        <source>Cannot find the panel bundle; looked for %1</source>
        <translation>Kan de paneelbundel niet vinden; gezocht: %1</translation>
    </message>
    <message>
        <source>it has no library %1</source>
        <translation>de bibliotheek %1 ontbreekt</translation>
    </message>
    <message>
        <source>it does not work on this system</source>
        <translation>die werkt niet op dit systeem</translation>
    </message>
</context>
<context>
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file "%1": %2</source>
        <translation>Kan het PPD-bestand "%1" niet openen: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>regel %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer's description</source>
        <translation>het is groter dan %1 MB, meer dan enige printerbeschrijving</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be unpacked to its end</source>
        <translation>het is beschadigd of onvolledig: het kan niet tot het einde worden uitgepakt</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>het is geen bestand</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>het is leeg</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>het eindigt midden in een waarde; het bestand is onvolledig</translation>
    </message>
    <message>
        <source>it ends in the middle of an option; the file is incomplete</source>
        <translation>het eindigt midden in een optie; het bestand is onvolledig</translation>
    </message>
</context>
<context>
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages "%1": write numbers and ranges such as 1-3, 5</source>
        <translation>De pagina's "%1" zijn onbegrijpelijk: schrijf getallen en bereiken zoals 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages "%1": the document's last page is %2</source>
        <translation>Kan de pagina's "%1" niet afdrukken: de laatste pagina van het document is %2</translation>
    </message>
</context>
<context>
    <name>host::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>volgende taak</translation>
    </message>
</context>
<context>
    <name>host::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 op %2, %3</translation>
    </message>
</context>
<context>
    <name>host::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>het is geen map</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>de map kan niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>Cannot write "%1": %2</source>
        <translation>Kan "%1" niet schrijven: %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>het is een map</translation>
    </message>
</context>
</TS>
