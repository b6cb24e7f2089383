<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>No se indicó ninguna impresora: falta --ppd ARCHIVO</translation>
    </message>
    <message>
        <source>No document was named</source>
        <translation>No se indicó ningún documento</translation>
    </message>
    <message>
        <source>Only one document can be printed at a time, and %1 were named</source>
        <translation>Solo se puede imprimir un documento a la vez y se indicaron %1</translation>
    </message>
    <message>
        <source>Try "kvprint --help".</source>
        <translation>Pruebe «kvprint --help».</translation>
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
    <message>
        <source>all</source>
        <translation>todas</translation>
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
        <source>%1 wide, %2 long</source>
        <translation>%1 de ancho, %2 de largo</translation>
    </message>
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
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>Options, preview and summary</source>
        <translation>Opciones, vista previa y resumen</translation>
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
        <source>&amp;Summary</source>
        <translation>Re&amp;sumen</translation>
    </message>
    <message>
        <source>"%1" cannot save its settings: %2</source>
        <translation>«%1» no puede guardar sus ajustes: %2</translation>
    </message>
    <message>
        <source>"%1" does not let the job be printed with these settings.</source>
        <translation>«%1» no permite imprimir el trabajo con estos ajustes.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Label strip</source>
        <translation>Tira de etiquetas</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Piezas</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Cinta</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation>Cortes</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>dialog::PrintRun</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>The PPD file "%1" has no paper "%2"; it has: %3</source>
        <translation>El archivo PPD «%1» no tiene el papel «%2»; tiene: %3</translation>
    </message>
    <message>
        <source>The PPD file "%1" names no paper to print on</source>
        <translation>El archivo PPD «%1» no indica ningún papel en el que imprimir</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation>No se pueden mostrar las opciones de corte. %1</translation>
    </message>
    <message>
        <source>The panel bundle "%1" could not make its panel</source>
        <translation>El paquete «%1» no pudo crear su panel</translation>
    </message>
    <message>
        <source>The panel of the bundle "%1" cannot be shown: its layout file cannot be used</source>
        <translation>No se puede mostrar el panel del paquete «%1»: su archivo de diseño no sirve</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>La tira de etiquetas está en:</translation>
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
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document "%1": %2</source>
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
        <source>it is no PDF, or a damaged one</source>
        <translation>no es un PDF o está dañado</translation>
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
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle "%1": %2</source>
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
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file "%1": %2</source>
        <translation>No se puede abrir el archivo PPD «%1»: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer's description</source>
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
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages "%1": write numbers and ranges such as 1-3, 5</source>
        <translation>No se entienden las páginas «%1»: escriba números e intervalos como 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages "%1": the document's last page is %2</source>
        <translation>No se pueden imprimir las páginas «%1»: la última página del documento es %2</translation>
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
        <source>Cannot write "%1": %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
</context>
</TS>
