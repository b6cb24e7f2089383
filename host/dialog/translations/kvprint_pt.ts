<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
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
        <translation>Nenhuma impressora indicada: falta --ppd FICHEIRO</translation>
    </message>
    <message>
        <source>No document was named</source>
        <translation>Nenhum documento indicado</translation>
    </message>
    <message>
        <source>Only one document can be printed at a time, and %1 were named</source>
        <translation>Só é possível imprimir um documento de cada vez e foram indicados %1</translation>
    </message>
    <message>
        <source>Try "kvprint --help".</source>
        <translation>Experimente "kvprint --help".</translation>
    </message>
</context>
<context>
    <name>dialog::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>Agrupa&amp;r cópias</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Todas as páginas uma vez e depois outra; caso contrário, todas as cópias de uma página juntas</translation>
    </message>
    <message>
        <source>all, or for example 1-3, 5</source>
        <translation>todas ou, por exemplo, 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Cópias</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>Pá&amp;ginas</translation>
    </message>
    <message>
        <source>Cannot print so many labels at once: a job has at most %1</source>
        <translation>Não é possível imprimir tantas etiquetas de uma vez: um trabalho tem no máximo %1</translation>
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
        <translation>A página é maior do que a etiqueta e é reduzida.</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página seguinte</translation>
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
        <translation>%1 de largura, %2 de comprimento</translation>
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
        <translation>Procurar papéis</translation>
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
        <translation>Opções, pré-visualização e resumo</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>Impressora: %1</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>Re&amp;sumo</translation>
    </message>
    <message>
        <source>"%1" cannot save its settings: %2</source>
        <translation>"%1" não consegue guardar as definições: %2</translation>
    </message>
    <message>
        <source>"%1" does not let the job be printed with these settings.</source>
        <translation>"%1" não permite imprimir o trabalho com estas definições.</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impressão</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
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
        <translation>Cópias</translation>
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
        <translation>Peças</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Fita</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation>Cortes</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Pré-&amp;visualização</translation>
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
        <translation>%1 e mais %2</translation>
    </message>
    <message>
        <source>The PPD file "%1" has no paper "%2"; it has: %3</source>
        <translation>O ficheiro PPD "%1" não tem o papel "%2"; tem: %3</translation>
    </message>
    <message>
        <source>The PPD file "%1" names no paper to print on</source>
        <translation>O ficheiro PPD "%1" não indica nenhum papel</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation>Não é possível mostrar as opções de corte. %1</translation>
    </message>
    <message>
        <source>The panel bundle "%1" could not make its panel</source>
        <translation>O pacote "%1" não conseguiu criar o seu painel</translation>
    </message>
    <message>
        <source>The panel of the bundle "%1" cannot be shown: its layout file cannot be used</source>
        <translation>Não é possível mostrar o painel do pacote "%1": o ficheiro de disposição não serve</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>A tira de etiquetas está em:</translation>
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
        <translation>Definição</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
</context>
<context>
    <name>host::CutPlan</name>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>Sem corte completo: as etiquetas saem numa só tira.</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>Corte completo após a última etiqueta.</translation>
    </message>
    <message>
        <source>Full cut after every label.</source>
        <translation>Corte completo após cada etiqueta.</translation>
    </message>
    <message>
        <source>Full cut after every %1 labels.</source>
        <translation>Corte completo a cada %1 etiquetas.</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <comment>a length</comment>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>Etiquetas: %1 · Peças: %2 · Fita: %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>Nada é impresso.</translation>
    </message>
    <message>
        <source>Special tape: the printer cuts nothing.</source>
        <translation>Fita especial: a impressora não corta nada.</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>Meio corte entre as etiquetas de uma peça.</translation>
    </message>
    <message>
        <source>Printed marks where nothing is cut through.</source>
        <translation>Marcas impressas onde não se corta.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job goes on from it without a margin.</source>
        <translation>O fim fica na impressora; o trabalho seguinte continua sem margem.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is left out.</source>
        <translation>A fita em branco antes e depois de cada etiqueta é omitida.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>As etiquetas são espelhadas.</translation>
    </message>
</context>
<context>
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document "%1": %2</source>
        <translation>Não é possível abrir o documento "%1": %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>o ficheiro não existe</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>não é um ficheiro</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>it is encrypted; remove its password first</source>
        <translation>está cifrado; retire primeiro a palavra-passe</translation>
    </message>
    <message>
        <source>it is encrypted in a way that is not known here</source>
        <translation>está cifrado de um modo desconhecido</translation>
    </message>
    <message>
        <source>it is no PDF, or a damaged one</source>
        <translation>não é um PDF ou está danificado</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>não tem páginas</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>a página %1 não tem área</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>a página %1 tem mais de %2 m</translation>
    </message>
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle "%1": %2</source>
        <translation>Não é possível usar o pacote "%1": %2</translation>
    </message>
    <message>
        <source>its library is no library of panels</source>
        <translation>a biblioteca não contém painéis</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>foi feito para a versão %1 da interface e este programa tem a %2</translation>
    </message>
    <message>
        <source>missing or unreadable: %1</source>
        <translation>em falta ou ilegível: %1</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>não é uma pasta</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>a pasta não existe</translation>
    </message>
    <message>
        <source>Cannot find the panel bundle; looked for %1</source>
        <translation>Não se encontra o pacote do painel; procurou-se %1</translation>
    </message>
    <message>
        <source>it has no library %1</source>
        <translation>não tem a biblioteca %1</translation>
    </message>
    <message>
        <source>it does not work on this system</source>
        <translation>não funciona neste sistema</translation>
    </message>
</context>
<context>
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file "%1": %2</source>
        <translation>Não é possível abrir o ficheiro PPD "%1": %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer's description</source>
        <translation>tem mais de %1 MB, mais do que qualquer descrição de impressora</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be unpacked to its end</source>
        <translation>está danificado ou incompleto: não se consegue descomprimir até ao fim</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>não é um ficheiro</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>termina a meio de um valor; o ficheiro está incompleto</translation>
    </message>
    <message>
        <source>it ends in the middle of an option; the file is incomplete</source>
        <translation>termina a meio de uma opção; o ficheiro está incompleto</translation>
    </message>
</context>
<context>
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages "%1": write numbers and ranges such as 1-3, 5</source>
        <translation>Não se entendem as páginas "%1": escreva números e intervalos como 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages "%1": the document's last page is %2</source>
        <translation>Não é possível imprimir as páginas "%1": a última página do documento é %2</translation>
    </message>
</context>
<context>
    <name>host::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>trabalho seguinte</translation>
    </message>
</context>
<context>
    <name>host::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 em %2, %3</translation>
    </message>
</context>
<context>
    <name>host::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>não é uma pasta</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>não é possível criar a pasta: %1</translation>
    </message>
    <message>
        <source>Cannot write "%1": %2</source>
        <translation>Não é possível escrever "%1": %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
</context>
</TS>
