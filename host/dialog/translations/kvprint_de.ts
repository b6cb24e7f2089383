<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>Kein Drucker angegeben: --ppd DATEI fehlt</translation>
    </message>
    <message>
        <source>No document was named</source>
        <translation>Kein Dokument angegeben</translation>
    </message>
    <message>
        <source>Only one document can be printed at a time, and %1 were named</source>
        <translation>Es kann nur ein Dokument auf einmal gedruckt werden, angegeben sind %1</translation>
    </message>
    <message>
        <source>Try "kvprint --help".</source>
        <translation>„kvprint --help“ zeigt die Hilfe.</translation>
    </message>
</context>
<context>
    <name>dialog::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>&amp;Satzweise</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Erst alle Seiten einmal, dann alle noch einmal; sonst alle Kopien einer Seite zusammen</translation>
    </message>
    <message>
        <source>all, or for example 1-3, 5</source>
        <translation>alle, oder zum Beispiel 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Kopien</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>S&amp;eiten</translation>
    </message>
    <message>
        <source>Cannot print so many labels at once: a job has at most %1</source>
        <translation>So viele Etiketten auf einmal gehen nicht: Ein Auftrag hat höchstens %1</translation>
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
        <translation>Die Seite ist größer als das Etikett und wird verkleinert.</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>dialog::PaperChooser</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>%1 breit, %2 lang</translation>
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
        <translation>Papiere suchen</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Options, preview and summary</source>
        <translation>Optionen, Vorschau und Übersicht</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>Drucker: %1</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>Ü&amp;bersicht</translation>
    </message>
    <message>
        <source>"%1" cannot save its settings: %2</source>
        <translation>„%1“ kann die Einstellungen nicht speichern: %2</translation>
    </message>
    <message>
        <source>"%1" does not let the job be printed with these settings.</source>
        <translation>„%1“ lässt den Auftrag mit diesen Einstellungen nicht drucken.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>Label strip</source>
        <translation>Etikettenstreifen</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Stücke</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation>Schnitte</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Seiten&amp;vorschau</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>dialog::PrintRun</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>The PPD file "%1" has no paper "%2"; it has: %3</source>
        <translation>Die PPD-Datei „%1“ hat kein Papier „%2“; sie hat: %3</translation>
    </message>
    <message>
        <source>The PPD file "%1" names no paper to print on</source>
        <translation>Die PPD-Datei „%1“ nennt kein Papier, auf das gedruckt werden kann</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation>Die Schneideoptionen können nicht gezeigt werden. %1</translation>
    </message>
    <message>
        <source>The panel bundle "%1" could not make its panel</source>
        <translation>Das Bundle „%1“ konnte seine Seite nicht anlegen</translation>
    </message>
    <message>
        <source>The panel of the bundle "%1" cannot be shown: its layout file cannot be used</source>
        <translation>Die Seite des Bundles „%1“ kann nicht gezeigt werden: Ihre Layoutdatei ist unbrauchbar</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>Der Etikettenstreifen liegt in:</translation>
    </message>
</context>
<context>
    <name>dialog::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Etikettenstreifen</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPage</name>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
</context>
<context>
    <name>host::CutPlan</name>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>Kein Vollschnitt: Die Etiketten kommen als ein Streifen.</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>Vollschnitt nach dem letzten Etikett.</translation>
    </message>
    <message>
        <source>Full cut after every label.</source>
        <translation>Vollschnitt nach jedem Etikett.</translation>
    </message>
    <message>
        <source>Full cut after every %1 labels.</source>
        <translation>Vollschnitt nach je %1 Etiketten.</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <comment>a length</comment>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>Etiketten: %1 · Stücke: %2 · Band: %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>Es wird nichts gedruckt.</translation>
    </message>
    <message>
        <source>Special tape: the printer cuts nothing.</source>
        <translation>Spezialband: Der Drucker schneidet nichts.</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>Halbschnitt zwischen den Etiketten eines Stücks.</translation>
    </message>
    <message>
        <source>Printed marks where nothing is cut through.</source>
        <translation>Gedruckte Marken, wo nicht durchgeschnitten wird.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job goes on from it without a margin.</source>
        <translation>Das Ende bleibt im Drucker; der nächste Auftrag schließt ohne Rand an.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is left out.</source>
        <translation>Leeres Band vor und nach jedem Etikett entfällt.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>Die Etiketten sind gespiegelt.</translation>
    </message>
</context>
<context>
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document "%1": %2</source>
        <translation>Das Dokument „%1“ lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>it is encrypted; remove its password first</source>
        <translation>es ist verschlüsselt; entfernen Sie zuerst das Kennwort</translation>
    </message>
    <message>
        <source>it is encrypted in a way that is not known here</source>
        <translation>es ist auf unbekannte Weise verschlüsselt</translation>
    </message>
    <message>
        <source>it is no PDF, or a damaged one</source>
        <translation>es ist kein PDF oder ein beschädigtes</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>es hat keine Seiten</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>Seite %1 hat keine Fläche</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>Seite %1 ist länger als %2 m</translation>
    </message>
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle "%1": %2</source>
        <translation>Das Bundle „%1“ lässt sich nicht verwenden: %2</translation>
    </message>
    <message>
        <source>its library is no library of panels</source>
        <translation>seine Bibliothek enthält keine Seiten für den Druckdialog</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>es ist für Version %1 der Schnittstelle gemacht, dieses Programm hat Version %2</translation>
    </message>
    <message>
        <source>missing or unreadable: %1</source>
        <translation>fehlt oder ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>es ist kein Ordner</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>den Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>Cannot find the panel bundle; looked for %1</source>
        <translation>Das Bundle mit den Schneideoptionen wurde nicht gefunden; gesucht: %1</translation>
    </message>
    <message>
        <source>it has no library %1</source>
        <translation>es hat keine Bibliothek %1</translation>
    </message>
    <message>
        <source>it does not work on this system</source>
        <translation>es läuft auf diesem System nicht</translation>
    </message>
</context>
<context>
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file "%1": %2</source>
        <translation>Die PPD-Datei „%1“ lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer's description</source>
        <translation>sie ist größer als %1 MB, mehr als jede Druckerbeschreibung</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be unpacked to its end</source>
        <translation>sie ist beschädigt oder unvollständig: Sie lässt sich nicht bis zum Ende entpacken</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>sie endet mitten in einem Wert; die Datei ist unvollständig</translation>
    </message>
    <message>
        <source>it ends in the middle of an option; the file is incomplete</source>
        <translation>sie endet mitten in einer Option; die Datei ist unvollständig</translation>
    </message>
</context>
<context>
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages "%1": write numbers and ranges such as 1-3, 5</source>
        <translation>Die Seiten „%1“ sind nicht verständlich: Schreiben Sie Zahlen und Bereiche wie 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages "%1": the document's last page is %2</source>
        <translation>Die Seiten „%1“ lassen sich nicht drucken: Die letzte Seite des Dokuments ist %2</translation>
    </message>
</context>
<context>
    <name>host::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>nächster Auftrag</translation>
    </message>
</context>
<context>
    <name>host::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 auf %2, %3</translation>
    </message>
</context>
<context>
    <name>host::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>es ist kein Ordner</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>der Ordner lässt sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>Cannot write "%1": %2</source>
        <translation>„%1“ lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
</context>
</TS>
