<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
        <translation>Nessuna stampante indicata: manca --ppd FILE</translation>
    </message>
    <message>
        <source>No document was named</source>
        <translation>Nessun documento indicato</translation>
    </message>
    <message>
        <source>Only one document can be printed at a time, and %1 were named</source>
        <translation>Si può stampare un solo documento alla volta e ne sono stati indicati %1</translation>
    </message>
    <message>
        <source>Try "kvprint --help".</source>
        <translation>Provare "kvprint --help".</translation>
    </message>
</context>
<context>
    <name>dialog::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>&amp;Fascicola copie</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Tutte le pagine una volta, poi di nuovo; altrimenti tutte le copie di una pagina insieme</translation>
    </message>
    <message>
        <source>all, or for example 1-3, 5</source>
        <translation>tutte o, per esempio, 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Copie</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>Pa&amp;gine</translation>
    </message>
    <message>
        <source>Cannot print so many labels at once: a job has at most %1</source>
        <translation>Impossibile stampare tante etichette insieme: un lavoro ne ha al massimo %1</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tutte</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
    <message>
        <source>The page is larger than the label and is shrunk to fit.</source>
        <translation>La pagina è più grande dell'etichetta e viene ridotta.</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Pagina successiva</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
</context>
<context>
    <name>dialog::PaperChooser</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>largo %1, lungo %2</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>C&amp;arta</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Search papers</source>
        <translation>Cerca carta</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Stampa %1</translation>
    </message>
    <message>
        <source>Options, preview and summary</source>
        <translation>Opzioni, anteprima e riepilogo</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Stampa</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>Stampante: %1</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Riepilogo</translation>
    </message>
    <message>
        <source>"%1" cannot save its settings: %2</source>
        <translation>"%1" non può salvare le impostazioni: %2</translation>
    </message>
    <message>
        <source>"%1" does not let the job be printed with these settings.</source>
        <translation>"%1" non consente di stampare il lavoro con queste impostazioni.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Label strip</source>
        <translation>Striscia di etichette</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etichette</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Pezzi</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Nastro</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation>Tagli</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Ante&amp;prima pagina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>dialog::PrintRun</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altre %2</translation>
    </message>
    <message>
        <source>The PPD file "%1" has no paper "%2"; it has: %3</source>
        <translation>Il file PPD "%1" non ha la carta "%2"; ha: %3</translation>
    </message>
    <message>
        <source>The PPD file "%1" names no paper to print on</source>
        <translation>Il file PPD "%1" non indica alcuna carta</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation>Le opzioni di taglio non possono essere mostrate. %1</translation>
    </message>
    <message>
        <source>The panel bundle "%1" could not make its panel</source>
        <translation>Il bundle "%1" non ha potuto creare il suo pannello</translation>
    </message>
    <message>
        <source>The panel of the bundle "%1" cannot be shown: its layout file cannot be used</source>
        <translation>Il pannello del bundle "%1" non può essere mostrato: il suo file di layout è inutilizzabile</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>La striscia di etichette è in:</translation>
    </message>
</context>
<context>
    <name>dialog::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Striscia di etichette</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPage</name>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
</context>
<context>
    <name>host::CutPlan</name>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>Nessun taglio completo: le etichette escono in un'unica striscia.</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>Taglio completo dopo l'ultima etichetta.</translation>
    </message>
    <message>
        <source>Full cut after every label.</source>
        <translation>Taglio completo dopo ogni etichetta.</translation>
    </message>
    <message>
        <source>Full cut after every %1 labels.</source>
        <translation>Taglio completo ogni %1 etichette.</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <comment>a length</comment>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>Etichette: %1 · Pezzi: %2 · Nastro: %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>Non si stampa nulla.</translation>
    </message>
    <message>
        <source>Special tape: the printer cuts nothing.</source>
        <translation>Nastro speciale: la stampante non taglia nulla.</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>Mezzo taglio tra le etichette di un pezzo.</translation>
    </message>
    <message>
        <source>Printed marks where nothing is cut through.</source>
        <translation>Segni stampati dove non si taglia.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job goes on from it without a margin.</source>
        <translation>La fine resta nella stampante; il lavoro seguente continua da lì senza margine.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is left out.</source>
        <translation>Il nastro vuoto prima e dopo ogni etichetta viene omesso.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>Le etichette sono speculari.</translation>
    </message>
</context>
<context>
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document "%1": %2</source>
        <translation>Impossibile aprire il documento "%1": %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>il file non esiste</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it is encrypted; remove its password first</source>
        <translation>è cifrato; togliere prima la password</translation>
    </message>
    <message>
        <source>it is encrypted in a way that is not known here</source>
        <translation>è cifrato in un modo sconosciuto</translation>
    </message>
    <message>
        <source>it is no PDF, or a damaged one</source>
        <translation>non è un PDF o è danneggiato</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>non ha pagine</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>la pagina %1 non ha area</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>la pagina %1 è più lunga di %2 m</translation>
    </message>
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle "%1": %2</source>
        <translation>Impossibile usare il bundle "%1": %2</translation>
    </message>
    <message>
        <source>its library is no library of panels</source>
        <translation>la sua libreria non contiene pannelli</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>è fatto per la versione %1 dell'interfaccia e questo programma ha la %2</translation>
    </message>
    <message>
        <source>missing or unreadable: %1</source>
        <translation>manca o non è leggibile: %1</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>la cartella non esiste</translation>
    </message>
    <message>
        <source>Cannot find the panel bundle; looked for %1</source>
        <translation>Bundle del pannello non trovato; cercato: %1</translation>
    </message>
    <message>
        <source>it has no library %1</source>
        <translation>non ha la libreria %1</translation>
    </message>
    <message>
        <source>it does not work on this system</source>
        <translation>non funziona su questo sistema</translation>
    </message>
</context>
<context>
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file "%1": %2</source>
        <translation>Impossibile aprire il file PPD "%1": %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer's description</source>
        <translation>supera %1 MB, più di qualsiasi descrizione di stampante</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be unpacked to its end</source>
        <translation>è danneggiato o incompleto: non si può decomprimere fino alla fine</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>finisce a metà di un valore; il file è incompleto</translation>
    </message>
    <message>
        <source>it ends in the middle of an option; the file is incomplete</source>
        <translation>finisce a metà di un'opzione; il file è incompleto</translation>
    </message>
</context>
<context>
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages "%1": write numbers and ranges such as 1-3, 5</source>
        <translation>Pagine "%1" non comprese: scrivere numeri e intervalli come 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages "%1": the document's last page is %2</source>
        <translation>Impossibile stampare le pagine "%1": l'ultima pagina del documento è %2</translation>
    </message>
</context>
<context>
    <name>host::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>lavoro seguente</translation>
    </message>
</context>
<context>
    <name>host::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 su %2, %3</translation>
    </message>
</context>
<context>
    <name>host::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>impossibile creare la cartella: %1</translation>
    </message>
    <message>
        <source>Cannot write "%1": %2</source>
        <translation>Impossibile scrivere "%1": %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>è una cartella</translation>
    </message>
</context>
</TS>
