<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>dialog::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1…</source>
        <comment>a choice whose value is still to be given</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>Pruebe «kvprint --help».</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints documents on label printers, with a dialog for paper, pages and cuts that shows the label strip as it will come out. Without a display it prints at once. PDF, PNG, JPEG and SVG; &quot;-&quot; or nothing is standard input.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the options: what follows are documents.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit status:
  0  printed, or told what was asked for
  1  something could not be opened, used, sent or written; nothing was printed
  2  the command line was not understood
  3  printed, but without the cut-options panel
  4  cancelled in the dialog
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; takes no value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is about the virtual printer and needs &quot;--ppd&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; is about a job that was sent before and needs &quot;-i&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no documents, and &quot;%2&quot; was named</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not go together with &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; goes only together with one of: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No document was named; name a file, or &quot;-&quot; to type one in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time to print at; write HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not possible; it must be one of: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of copies; it must be from 1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no priority; it must be from 1 (last) to 100 (first)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no queue; write QUEUE or QUEUE/INSTANCE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no job; write its number, or QUEUE-NUMBER as it was told when it was sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no option; write NAME=VALUE</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::CustomPaperFields</name>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest length</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished">Impresora</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the print server&apos;s answer…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last time: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server does not answer. Last time: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation type="unfinished">Opciones, vista previa y resumen</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation type="unfinished">&amp;Vista previa</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation type="unfinished">Re&amp;sumen</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::FreeChoiceFields</name>
    <message numerus="yes">
        <source>&quot;%1&quot; needs %n character(s) at least. Until then the setting is as it was before.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destination to print on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; together with the other cut options and is printed as &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This would help: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::JobPage</name>
    <message>
        <source>Time to print at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the queue is set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;rint it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the printer is set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When I release it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>During the day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At night</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::JobWindow</name>
    <message>
        <source>The job is sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::LengthUnit</name>
    <message>
        <source>%1 %2</source>
        <comment>a number and its unit</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in</source>
        <comment>inches</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <comment>millimetres</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 %3</source>
        <comment>width, length and their unit</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::OptionsPage</name>
    <message>
        <source>Groups of options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>Interca&amp;lar copias</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Todas las páginas una vez y luego otra; si no, todas las copias de una página juntas</translation>
    </message>
    <message>
        <source>all, or for example 1-3, 5</source>
        <translation>todas o, por ejemplo, 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Copias</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>Pá&amp;ginas</translation>
    </message>
    <message>
        <source>Cannot print so many labels at once: a job has at most %1</source>
        <translation>No se pueden imprimir tantas etiquetas a la vez: un trabajo tiene como máximo %1</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
    <message>
        <source>The page is larger than the label and is shrunk to fit.</source>
        <translation>La página es mayor que la etiqueta y se reduce para que quepa.</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>dialog::PaperChooser</name>
    <message>
        <source>P&amp;aper</source>
        <translation>P&amp;apel</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Search papers</source>
        <translation>Buscar papeles</translation>
    </message>
    <message>
        <source>Custom, %1</source>
        <comment>a size</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation type="unfinished">%1 de ancho, %2 de largo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>Impresora: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation type="unfinished">No se pueden mostrar las opciones de corte. %1</translation>
    </message>
    <message>
        <source>The printer has no description, so its papers and cuts are not known here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the print server&apos;s answer…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer cannot do all of these together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>El archivo PPD «%1» no tiene el papel «%2»; tiene: %3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; names no paper to print on</source>
        <translation>El archivo PPD «%1» no indica ningún papel en el que imprimir</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>La tira de etiquetas está en:</translation>
    </message>
</context>
<context>
    <name>dialog::SendBar</name>
    <message>
        <source>Stop sending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::SentPage</name>
    <message>
        <source>Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished">Valor</translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lp cannot say these options as they are sent: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>dialog::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Tira de etiquetas</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPage</name>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
</context>
<context>
    <name>dialog::VirtualSender</name>
    <message>
        <source>The PPD file names no paper to print on</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::Constraints</name>
    <message>
        <source>&quot;%1: %2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This printer cannot do %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::CupsConnection</name>
    <message>
        <source>Given up on request.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; broke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; says: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not give &quot;%2&quot;: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the connection broke in the middle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::CutPlan</name>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>Sin corte completo: las etiquetas salen en una sola tira.</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>Corte completo tras la última etiqueta.</translation>
    </message>
    <message>
        <source>Full cut after every label.</source>
        <translation>Corte completo tras cada etiqueta.</translation>
    </message>
    <message>
        <source>Full cut after every %1 labels.</source>
        <translation>Corte completo cada %1 etiquetas.</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <comment>a length</comment>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>Etiquetas: %1 · Piezas: %2 · Cinta: %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>No se imprime nada.</translation>
    </message>
    <message>
        <source>Special tape: the printer cuts nothing.</source>
        <translation>Cinta especial: la impresora no corta nada.</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>Medio corte entre las etiquetas de una pieza.</translation>
    </message>
    <message>
        <source>Printed marks where nothing is cut through.</source>
        <translation>Marcas impresas donde no se corta por completo.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job goes on from it without a margin.</source>
        <translation>El final queda en la impresora; el siguiente trabajo continúa desde ahí sin margen.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is left out.</source>
        <translation>Se omite la cinta en blanco antes y después de cada etiqueta.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>Las etiquetas están reflejadas.</translation>
    </message>
</context>
<context>
    <name>host::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished">no es un archivo</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation type="unfinished">está vacío</translation>
    </message>
    <message>
        <source>it has become shorter while it was read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::JobChange</name>
    <message>
        <source>It is to be printed anew, but held. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No print server can pass on the choice &quot;%1&quot; of the option &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>queue default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cut options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set by you</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for its turn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped; it goes on when the printer is ready again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Given up by the print server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server says: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::JobSummary</name>
    <message>
        <source>Printing</source>
        <translation type="unfinished">Impresión</translation>
    </message>
    <message>
        <source>Document</source>
        <translation type="unfinished">Documento</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished">Impresora</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished">Papel</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished">Páginas</translation>
    </message>
    <message>
        <source>all</source>
        <translation type="unfinished">todas</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation type="unfinished">Copias</translation>
    </message>
    <message>
        <source>Label strip</source>
        <translation type="unfinished">Tira de etiquetas</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation type="unfinished">Etiquetas</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation type="unfinished">Piezas</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation type="unfinished">Cinta</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation type="unfinished">Cortes</translation>
    </message>
</context>
<context>
    <name>host::JobUpload</name>
    <message>
        <source>%1 Job %2-%3 could not be taken back; look into the queue before you print again: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no document to print.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No print server can pass on the choice &quot;%1&quot; of the option &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document &quot;%1&quot;: %2</source>
        <translation>No se puede abrir el documento «%1»: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it is encrypted; remove its password first</source>
        <translation>está cifrado; quite antes la contraseña</translation>
    </message>
    <message>
        <source>it is encrypted in a way that is not known here</source>
        <translation>está cifrado de un modo desconocido</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>no tiene páginas</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>la página %1 no tiene superficie</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>la página %1 mide más de %2 m</translation>
    </message>
    <message>
        <source>Cannot open the document on standard input: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a damaged image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is an image whose end is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No document is named</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>it is longer than %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no PDF, PNG, JPEG or SVG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a damaged PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be kept in &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a damaged SVG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, and only what is in the SVG itself is printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is an SVG of more parts than can be drawn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has a picture in it that is neither PNG nor JPEG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has a damaged picture in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has pictures of more pixels in it than can be printed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>No se puede usar el paquete «%1»: %2</translation>
    </message>
    <message>
        <source>its library is no library of panels</source>
        <translation>su biblioteca no contiene paneles</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>se hizo para la versión %1 de la interfaz y este programa tiene la %2</translation>
    </message>
    <message>
        <source>missing or unreadable: %1</source>
        <translation>falta o no se puede leer: %1</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>no existe esa carpeta</translation>
    </message>
    <message>
        <source>Cannot find the panel bundle; looked for %1</source>
        <translation>No se encuentra el paquete del panel; se buscó %1</translation>
    </message>
    <message>
        <source>it has no library %1</source>
        <translation>no tiene la biblioteca %1</translation>
    </message>
    <message>
        <source>it does not work on this system</source>
        <translation>no funciona en este sistema</translation>
    </message>
</context>
<context>
    <name>host::PanelSource</name>
    <message>
        <source>The panel bundle &quot;%1&quot; could not make its panel</source>
        <translation type="unfinished">El paquete «%1» no pudo crear su panel</translation>
    </message>
    <message>
        <source>The panel of the bundle &quot;%1&quot; cannot be shown: its layout file cannot be used</source>
        <translation type="unfinished">No se puede mostrar el panel del paquete «%1»: su archivo de diseño no sirve</translation>
    </message>
</context>
<context>
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>No se puede abrir el archivo PPD «%1»: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer&apos;s description</source>
        <translation>ocupa más de %1 MB, más que cualquier descripción de impresora</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be unpacked to its end</source>
        <translation>está dañado o incompleto: no se puede descomprimir hasta el final</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>termina en medio de un valor; el archivo está incompleto</translation>
    </message>
    <message>
        <source>it ends in the middle of an option; the file is incomplete</source>
        <translation>termina en medio de una opción; el archivo está incompleto</translation>
    </message>
</context>
<context>
    <name>host::PpdOptions</name>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages &quot;%1&quot;: write numbers and ranges such as 1-3, 5</source>
        <translation>No se entienden las páginas «%1»: escriba números e intervalos como 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>No se pueden imprimir las páginas «%1»: la última página del documento es %2</translation>
    </message>
</context>
<context>
    <name>host::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation type="unfinished">«%1» no puede guardar sus ajustes: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not let the job be printed with these settings.</source>
        <translation type="unfinished">«%1» no permite imprimir el trabajo con estos ajustes.</translation>
    </message>
</context>
<context>
    <name>host::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::QueueWords</name>
    <message>
        <source>The printer waits for labels or tape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is about to pause.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A lock of the printer is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is switched off by its administrator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part of the printer&apos;s driver is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part of the printer&apos;s driver is not installed safely.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer does not follow its protocol.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server says: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>trabajo siguiente</translation>
    </message>
</context>
<context>
    <name>host::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 en %2, %3</translation>
    </message>
</context>
<context>
    <name>host::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>no se puede crear la carpeta: %1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
</context>
</TS>
