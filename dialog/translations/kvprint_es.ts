<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>dialog::job::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation>Clase de impresoras: %1</translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation>I&amp;mpresora</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation>Esa impresora no existe.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>Esperando la respuesta del servidor de impresión…</translation>
    </message>
    <message>
        <source>Last known state: %1</source>
        <translation>La última vez: %1</translation>
    </message>
    <message>
        <source>The print server does not respond. Last known state: %1</source>
        <translation>El servidor de impresión no responde. La última vez: %1</translation>
    </message>
    <message>
        <source>The print server does not respond.</source>
        <translation>El servidor de impresión no responde.</translation>
    </message>
    <message>
        <source>The print server requires a password.</source>
        <translation>El servidor de impresión pide una contraseña.</translation>
    </message>
    <message>
        <source>The print server requires a password. Last known state: %1</source>
        <translation>El servidor de impresión pide una contraseña. La última vez: %1</translation>
    </message>
    <message>
        <source>The print server is not trusted.</source>
        <translation>No se confía en el servidor de impresión.</translation>
    </message>
    <message>
        <source>The print server is not trusted. Last known state: %1</source>
        <translation>No se confía en el servidor de impresión. La última vez: %1</translation>
    </message>
</context>
<context>
    <name>dialog::job::DocumentPasswordDialog</name>
    <message>
        <source>Password for the document</source>
        <translation>Contraseña del documento</translation>
    </message>
    <message>
        <source>The document on standard input is encrypted.</source>
        <translation>El documento de la entrada estándar está cifrado.</translation>
    </message>
    <message>
        <source>The document &quot;%1&quot; is encrypted.</source>
        <translation>El documento «%1» está cifrado.</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>La contraseña es incorrecta.</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>Con&amp;traseña</translation>
    </message>
</context>
<context>
    <name>dialog::job::ErrorBanner</name>
    <message>
        <source>Try again</source>
        <translation>Intentar de nuevo</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobPage</name>
    <message>
        <source>Print time</source>
        <translation>Hora de impresión</translation>
    </message>
    <message>
        <source>Queue default</source>
        <translation>Según la cola</translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation>De 1 a 100; los trabajos con mayor prioridad se imprimen antes que los demás</translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation>&amp;Nombre del trabajo</translation>
    </message>
    <message>
        <source>Orienta&amp;tion</source>
        <translation>Orien&amp;tación</translation>
    </message>
    <message>
        <source>When to pr&amp;int</source>
        <translation>C&amp;uándo imprimir</translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation>&amp;Prioridad</translation>
    </message>
    <message>
        <source>Printer default</source>
        <translation>Según la impresora</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Horizontal invertida</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Vertical invertida</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Cuando lo libere</translation>
    </message>
    <message>
        <source>At a specific time</source>
        <translation>A una hora determinada</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Durante el día</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Por la tarde</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Por la noche</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>En el segundo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>En el tercer turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>El fin de semana</translation>
    </message>
    <message>
        <source>Page si&amp;ze</source>
        <translation>Tamaño &amp;de página</translation>
    </message>
    <message>
        <source>Shrink pages larger than the label</source>
        <translation>Reducir las páginas mayores que la etiqueta</translation>
    </message>
    <message>
        <source>Fit to the printable area</source>
        <translation>Ajustar al área imprimible</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Llenar la etiqueta</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobWindow</name>
    <message>
        <source>The job was sent.</source>
        <translation>El trabajo se ha enviado.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Trabajo %1: %2</translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation>Cancelar el &amp;trabajo</translation>
    </message>
</context>
<context>
    <name>dialog::job::LeftJobBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Cancel the job</source>
        <translation>Retirar el trabajo</translation>
    </message>
    <message>
        <source>Release the job</source>
        <translation>Liberar el trabajo</translation>
    </message>
</context>
<context>
    <name>dialog::job::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>Interca&amp;lar copias</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Todas las páginas una vez y luego otra; si no, todas las copias de una página juntas</translation>
    </message>
    <message>
        <source>all, or ranges: 1-3, 5</source>
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
        <source>Reverse order</source>
        <translation>Última página primero</translation>
    </message>
</context>
<context>
    <name>dialog::job::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation>Contraseña del servidor de impresión</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nombre de &amp;usuario</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>Con&amp;traseña</translation>
    </message>
</context>
<context>
    <name>dialog::job::SendBar</name>
    <message>
        <source>Cancel sending</source>
        <translation>Detener el envío</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>Enviando «%1»</translation>
    </message>
</context>
<context>
    <name>dialog::job::SummaryPage</name>
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
    <name>dialog::job::TicketPage</name>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Se envía</translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation>Opciones del trabajo</translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation>El mismo tra&amp;bajo en la línea de órdenes</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Copiar la orden</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>dialog::job::TrustText</name>
    <message>
        <source>Connection without encryption</source>
        <translation>Conexión sin cifrar</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password, and the connection to it is not encrypted.</source>
        <translation>El servidor de impresión «%1» pide una contraseña y la conexión con él no está cifrada.</translation>
    </message>
    <message>
        <source>Others on the network can read the password.</source>
        <translation>Otros en la red pueden leer la contraseña.</translation>
    </message>
    <message>
        <source>Send anyway</source>
        <translation>Enviar de todos modos</translation>
    </message>
    <message>
        <source>Certificate of the print server</source>
        <translation>Certificado del servidor de impresión</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2.</source>
        <translation>No se confía en el certificado del servidor de impresión «%1»: %2.</translation>
    </message>
    <message>
        <source>Its SHA-256 fingerprint is:
%1

Trust it only if the server&apos;s administrator confirms this fingerprint. It stays trusted for later connections.</source>
        <translation>Su huella SHA-256 es:
%1

Confíe en él solo si el administrador del servidor indica la misma huella. A partir de entonces se confía en él.</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>Confiar</translation>
    </message>
</context>
<context>
    <name>dialog::job::VirtualSender</name>
    <message>
        <source>The PPD file defines no paper</source>
        <translation>El archivo PPD no indica ningún papel en el que imprimir</translation>
    </message>
</context>
<context>
    <name>dialog::options::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation>sin ajustar</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1…</source>
        <comment>a choice whose value is still to be given</comment>
        <translation>%1…</translation>
    </message>
</context>
<context>
    <name>dialog::options::ConflictQuestion</name>
    <message>
        <source>The printer does not support this combination of settings.</source>
        <translation>La impresora no puede hacer todo esto a la vez.</translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation>Imprimir de todos modos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>dialog::options::CustomValueFields</name>
    <message numerus="yes">
        <source>&quot;%1&quot; needs at least %n character(s). Until then, the previous value is used.</source>
        <translation>
            <numerusform>«%1» necesita al menos %n carácter. Hasta entonces, el ajuste queda como estaba.</numerusform>
            <numerusform>«%1» necesita al menos %n caracteres. Hasta entonces, el ajuste queda como estaba.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::options::OptionsPage</name>
    <message>
        <source>Option groups</source>
        <translation>Grupos de opciones</translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation>Esta impresora no tiene más opciones.</translation>
    </message>
</context>
<context>
    <name>dialog::paper::CustomPaperFields</name>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest length</comment>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Ancho del papel</translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation>Largo del papel</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>Anc&amp;ho</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>La&amp;rgo</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperChooser</name>
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
        <translation>Personalizado, %1</translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation>Usar el tamaño del documento: %1</translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation>Un tamaño personalizado</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation>%1 de ancho</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>%1 de ancho, %2 de largo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Tamaño personalizado…</translation>
    </message>
</context>
<context>
    <name>dialog::widgets::LengthUnit</name>
    <message>
        <source>%1 %2</source>
        <comment>a number and its unit</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>in</source>
        <comment>inches</comment>
        <translation>pulg.</translation>
    </message>
    <message>
        <source>mm</source>
        <comment>millimetres</comment>
        <translation>mm</translation>
    </message>
    <message>
        <source>%1 × %2 %3</source>
        <comment>width, length and their unit</comment>
        <translation>%1 × %2 %3</translation>
    </message>
</context>
<context>
    <name>dialog::window::ChoicesColumn</name>
    <message>
        <source>Printer: %1</source>
        <translation>Impresora: %1</translation>
    </message>
</context>
<context>
    <name>dialog::window::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation>Opciones, vista previa y resumen</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>&amp;Vista previa</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>Re&amp;sumen</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>Traba&amp;jo</translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation>Lo que se &amp;enviará</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opciones</translation>
    </message>
</context>
<context>
    <name>dialog::window::PagePreview</name>
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
    <name>dialog::window::PanelBanner</name>
    <message>
        <source>The printer&apos;s options are listed on the page &quot;Options&quot;.</source>
        <translation>Las opciones de la impresora están en la página «Opciones».</translation>
    </message>
    <message>
        <source>Load It Again</source>
        <translation>Cargar de nuevo</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelPage</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>dialog::window::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The printer has no description (PPD); its papers and cuts are not known.</source>
        <translation>La impresora no tiene descripción, por lo que aquí no se conocen sus papeles ni sus cortes.</translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation>Esperando la descripción de la impresora…</translation>
    </message>
    <message>
        <source>No printer is selected.</source>
        <translation>No se ha elegido ninguna impresora.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>Esperando la respuesta del servidor de impresión…</translation>
    </message>
    <message>
        <source>The printer&apos;s description is not known.</source>
        <translation>No se conoce la descripción de la impresora.</translation>
    </message>
</context>
<context>
    <name>dialog::window::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Tira de etiquetas</translation>
    </message>
</context>
<context>
    <name>host::base::OutOfMemory</name>
    <message>
        <source>Out of memory; nothing was printed.</source>
        <translation>Memoria agotada; no se ha impreso nada.</translation>
    </message>
    <message>
        <source>Out of memory; the job may be incomplete, or left on the print server.</source>
        <translation>Memoria agotada; es posible que el trabajo esté incompleto o haya quedado en el servidor de impresión.</translation>
    </message>
    <message>
        <source>Out of memory. The job was sent nevertheless.</source>
        <translation>Memoria agotada. El trabajo se envió de todos modos.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation>La impresora «%1» no tiene la opción «%2».</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation>La impresora «%1» no tiene el papel «%2».</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation>La opción «%1» de la impresora «%2» no tiene el valor «%3»; tiene: %4</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print on the paper &quot;%2&quot;: its size is %3 × %4 points; width and length must be greater than 0, one of them at most %5 m, the other at most %6 m.</source>
        <translation>La impresora «%1» no puede imprimir en el papel «%2»: su tamaño es de %3 × %4 puntos; el ancho y el largo deben ser mayores que 0, uno de ellos de %5 m como máximo y el otro de %6 m como máximo.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation>No se puede leer el documento «%1»: %2</translation>
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
        <source>it has become shorter while it was read</source>
        <translation>se ha acortado mientras se leía</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>el archivo ha cambiado desde que se abrió; ábralo de nuevo</translation>
    </message>
    <message>
        <source>it has changed while it was read</source>
        <translation>ha cambiado mientras se leía</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobChange</name>
    <message>
        <source>It is printed again, but held. %1</source>
        <translation>Se va a imprimir de nuevo, pero está retenido. %1</translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation>El trabajo %1 no se ha modificado. %2</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Ningún servidor de impresión puede transmitir el valor «%1» de la opción «%2».</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobFate</name>
    <message>
        <source>%1 A job &quot;%2&quot; without documents may be left in the queue &quot;%3&quot; of the print server &quot;%4&quot;; it prints nothing.</source>
        <translation>%1 Es posible que en la cola «%3» del servidor de impresión «%4» haya quedado un trabajo «%2» sin documentos; no se imprime nada de él.</translation>
    </message>
    <message>
        <source>%1 The print server &quot;%2&quot; has all documents of job %3-%4, but did not report whether it released the job: it is printed, or it is still held. Check the queue before you print again.</source>
        <translation>%1 El servidor de impresión «%2» tiene todos los documentos del trabajo %3-%4 y no ha dicho si lo libera: el trabajo se imprime, o está retenido y no se imprime. Revise la cola antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 on the print server &quot;%4&quot; may have been printed; check the queue before you print again.</source>
        <translation>%1 Es posible que el trabajo %2-%3 del servidor de impresión «%4» se haya impreso; revise la cola antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; it is held on the print server &quot;%4&quot; and is not printed unless it is released.</source>
        <translation>%1 No se pudo retirar el trabajo %2-%3; está retenido en el servidor de impresión «%4» y no se imprime mientras no se libere.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; check the queue before you print again.</source>
        <translation>%1 No se pudo retirar el trabajo %2-%3; revise la cola antes de volver a imprimir.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3: %4</source>
        <translation>%1 Trabajo %2-%3: %4</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobJournal</name>
    <message>
        <source>The record &quot;%1&quot; of an interrupted job was damaged and has been removed. Check your queues for a held job.</source>
        <translation>El registro «%1» de un trabajo que se estaba enviando está dañado y se ha eliminado; compruebe en sus colas si ha quedado algún trabajo.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation>predeterminado de la impresora</translation>
    </message>
    <message>
        <source>queue default</source>
        <translation>predeterminado de la cola</translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation>su valor predeterminado (lpoptions)</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>preajuste</translation>
    </message>
    <message>
        <source>cut options</source>
        <translation>opciones de corte</translation>
    </message>
    <message>
        <source>set by you</source>
        <translation>elegido por usted</translation>
    </message>
    <message>
        <source>page layout</source>
        <translation>diseño de página</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobSettings</name>
    <message>
        <source>Cannot print the job: it has more than %1 labels</source>
        <translation>No se pueden imprimir tantas etiquetas a la vez: un trabajo tiene como máximo %1</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation>Retenido hasta que se libere.</translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation>Retenido hasta: %1.</translation>
    </message>
    <message>
        <source>Waiting in the queue.</source>
        <translation>Esperando su turno.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Imprimiendo.</translation>
    </message>
    <message>
        <source>Stopped; it continues when the printer is ready.</source>
        <translation>Detenido; continúa cuando la impresora vuelva a estar lista.</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Aborted by the print server.</source>
        <translation>Interrumpido por el servidor de impresión.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Impreso.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>El servidor dice: %1</translation>
    </message>
    <message>
        <source>The job is finished; the print server keeps no record of it.</source>
        <translation>El trabajo ha terminado; el servidor de impresión no guarda registro de él.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobUpload</name>
    <message>
        <source>There is no document to print.</source>
        <translation>No hay ningún documento que imprimir.</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Ningún servidor de impresión puede transmitir el valor «%1» de la opción «%2».</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; did not receive all of &quot;%2&quot;.</source>
        <translation>El servidor de impresión «%1» no ha aceptado todo «%2».</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LeftJob</name>
    <message>
        <source>The print server &quot;%1&quot; no longer has the job &quot;%2&quot; in the queue &quot;%3&quot;, or the job is finished.</source>
        <translation>El servidor de impresión «%1» ya no tiene ningún trabajo «%2» en la cola «%3», o ha terminado.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is not held: %4</source>
        <translation>El trabajo %1-%2 del servidor de impresión «%3» no está retenido: %4</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is released.</source>
        <translation>El trabajo %1-%2 del servidor de impresión «%3» se ha liberado.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is canceled.</source>
        <translation>El trabajo %1-%2 del servidor de impresión «%3» se ha retirado.</translation>
    </message>
    <message>
        <source>An interrupted program may have left job %1 (&quot;%2&quot;) on the print server &quot;%3&quot;; the job may be incomplete.</source>
        <translation>Un programa que se detuvo mientras imprimía puede haber dejado el trabajo %1 («%2») en el servidor de impresión «%3», quizá sin todos sus documentos.</translation>
    </message>
    <message>
        <source>An interrupted program may have left a job &quot;%1&quot; without documents in the queue &quot;%2&quot; of the print server &quot;%3&quot;.</source>
        <translation>Un programa que se detuvo mientras imprimía puede haber dejado un trabajo «%1» sin documentos en la cola «%2» del servidor de impresión «%3».</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LpCommand</name>
    <message>
        <source>lp cannot express these options: %1</source>
        <translation>lp no puede expresar estas opciones tal como se envían: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::DiscoveredQueue</name>
    <message>
        <source>The print server &quot;%1&quot; cannot reach the printer &quot;%2&quot;.</source>
        <translation>El servidor de impresión «%1» no puede comunicarse con la impresora «%2».</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer on the network.</source>
        <translation>La impresora «%1» ya no está en la red.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation>El servidor de impresión «%1» no tiene ninguna cola o clase «%2».</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueText</name>
    <message>
        <source>The printer needs labels or tape.</source>
        <translation>La impresora espera etiquetas o cinta.</translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation>Las etiquetas o la cinta están atascadas.</translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation>El rollo de etiquetas o la cinta está a punto de acabarse.</translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation>El rollo de etiquetas o la cinta se ha acabado.</translation>
    </message>
    <message>
        <source>The printer is pausing.</source>
        <translation>La impresora está a punto de ponerse en pausa.</translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation>La cola está en pausa; los trabajos esperan.</translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation>La impresora está apagada.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Conectando con la impresora.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>La impresora no responde.</translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation>La impresora se está deteniendo.</translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation>Algunas impresoras de la clase están detenidas.</translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation>El tóner está a punto de agotarse.</translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation>El tóner se ha agotado.</translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation>El servidor de impresión no tiene espacio libre.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation>La cubierta de la impresora está abierta.</translation>
    </message>
    <message>
        <source>An interlock of the printer is open.</source>
        <translation>Un cierre de la impresora está abierto.</translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation>La puerta de la impresora está abierta.</translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation>Falta el casete o el soporte del rollo.</translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation>Falta la bandeja de salida.</translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation>La bandeja de salida está casi llena.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>La bandeja de salida está llena.</translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation>La tinta o la cinta entintada está a punto de agotarse.</translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation>La tinta o la cinta entintada se ha agotado.</translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation>El depósito de residuos está casi lleno.</translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation>El depósito de residuos está lleno.</translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation>La impresora está demasiado caliente.</translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation>La impresora se está calentando.</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>La impresora está desconectada.</translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation>Los trabajos nuevos se retienen.</translation>
    </message>
    <message>
        <source>The printer was deactivated by its administrator.</source>
        <translation>El administrador ha desactivado la impresora.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is missing.</source>
        <translation>Falta una parte del controlador de la impresora.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is not installed securely.</source>
        <translation>Una parte del controlador de la impresora no está instalada de forma segura.</translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation>Esperando a que la impresora termine el trabajo.</translation>
    </message>
    <message>
        <source>The printer does not conform to its protocol.</source>
        <translation>La impresora no cumple su protocolo.</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Lista.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Imprimiendo.</translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation>Encontrada en la red.</translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation>Estado desconocido.</translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation>La cola no acepta trabajos.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>El servidor dice: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::server::CupsConnection</name>
    <message>
        <source>Canceled on request.</source>
        <translation>Interrumpido a petición del usuario.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not respond.</source>
        <translation>El servidor de impresión «%1» no responde.</translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation>No se puede conectar con el servidor de impresión «%1»: %2</translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; was lost.</source>
        <translation>Se ha cortado la conexión con el servidor de impresión «%1».</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; reports: %2</source>
        <translation>El servidor de impresión «%1» dice: %2</translation>
    </message>
    <message>
        <source>Cannot fetch &quot;%2&quot; from the print server &quot;%1&quot;: %3</source>
        <translation>El servidor de impresión «%1» no entrega «%2»: %3</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>ocupa más de %1 MB</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>la conexión se cortó a la mitad</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;, and none was entered.</source>
        <translation>El servidor de impresión «%1» pide una contraseña para el usuario «%2» y no se indicó ninguna.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no certificate.</source>
        <translation>El servidor de impresión «%1» no tiene certificado.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not the one that is trusted for this host. The trusted one has the SHA-256 fingerprint %2, the server&apos;s has %3. The server&apos;s certificate may have been replaced, another print server may run on the same host, or someone may be intercepting the connection. If the server&apos;s administrator confirms the fingerprint, remove the file &quot;%4&quot; and try again.</source>
        <translation>El certificado del servidor de impresión «%1» no es el que está marcado como de confianza para este equipo. El de confianza tiene la huella SHA-256 %2; el del servidor, %3. Puede que se haya sustituido el certificado del servidor, que en el mismo equipo funcione otro servidor de impresión o que alguien esté interceptando la conexión. Si el administrador del servidor confirma la huella, elimine el archivo «%4» e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; with the SHA-256 fingerprint %2 cannot be trusted: %3</source>
        <translation>No se permite confiar en el certificado del servidor de impresión «%1» con la huella SHA-256 %2: %3</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2. Its SHA-256 fingerprint is %3. Compare it with the fingerprint that the server&apos;s administrator gives you, and confirm it in the dialog or on a terminal.</source>
        <translation>No se confía en el certificado del servidor de impresión «%1»: %2. Su huella SHA-256 es %3. Compárela con la que indica el administrador del servidor y confírmela cuando se le pregunte, en la ventana o en un terminal.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>El nombre de usuario o la contraseña son incorrectos.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;. None was sent, because the connection is not encrypted and others could read it. Encrypt the connection (-E), or confirm the question in the dialog or on a terminal.</source>
        <translation>El servidor de impresión «%1» pide una contraseña para el usuario «%2». No se ha enviado ninguna porque la conexión no está cifrada y otros podrían leerla. Cifre la conexión (-E) o confírmelo cuando se le pregunte, en la ventana o en un terminal.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not accept the password of the user &quot;%2&quot;.</source>
        <translation>El servidor de impresión «%1» no acepta la contraseña del usuario «%2».</translation>
    </message>
</context>
<context>
    <name>host::cups::server::FailureReason</name>
    <message>
        <source>It cannot store the document: the disk is full, or the document is larger than it accepts.</source>
        <translation>No puede guardar el documento: el disco está lleno o el documento es mayor de lo que acepta.</translation>
    </message>
</context>
<context>
    <name>host::documents::LabelDocument</name>
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
        <source>its encryption is not supported</source>
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
        <translation>No se puede abrir el documento de la entrada estándar: %1</translation>
    </message>
    <message>
        <source>the image is damaged</source>
        <translation>es una imagen dañada</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation>tiene %1 × %2 píxeles, más de los que se pueden imprimir</translation>
    </message>
    <message>
        <source>the end of the image is missing</source>
        <translation>es una imagen a la que le falta el final</translation>
    </message>
    <message>
        <source>No document is specified</source>
        <translation>No se indica ningún documento</translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation>solo se puede leer una vez</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada estándar</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>supera %1</translation>
    </message>
    <message>
        <source>it is not a PDF, PNG, JPEG or SVG file</source>
        <translation>no es PDF, PNG, JPEG ni SVG</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>el archivo ha cambiado desde que se abrió; ábralo de nuevo</translation>
    </message>
    <message>
        <source>the PDF is damaged</source>
        <translation>es un PDF dañado</translation>
    </message>
    <message>
        <source>it cannot be stored in &quot;%1&quot;: %2</source>
        <translation>no se puede guardar en «%1»: %2</translation>
    </message>
    <message>
        <source>the SVG is damaged</source>
        <translation>es un SVG dañado</translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, but other files are not loaded</source>
        <translation>hace referencia a «%1», y solo se imprime lo que está en el propio SVG</translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation>línea %1 del SVG: %2</translation>
    </message>
    <message>
        <source>the SVG is too complex to be drawn</source>
        <translation>es un SVG con más partes de las que se pueden dibujar</translation>
    </message>
    <message>
        <source>it contains a picture that is neither PNG nor JPEG</source>
        <translation>contiene una imagen que no es ni PNG ni JPEG</translation>
    </message>
    <message>
        <source>it contains a damaged picture</source>
        <translation>contiene una imagen dañada</translation>
    </message>
    <message>
        <source>its pictures have more pixels than can be printed</source>
        <translation>contiene imágenes con más píxeles de los que se pueden imprimir</translation>
    </message>
    <message>
        <source>the converter &quot;%1&quot; cannot be started</source>
        <translation>no se puede iniciar el programa «%1», que lo convierte</translation>
    </message>
    <message>
        <source>laying its pages out on labels needs too much memory or time</source>
        <translation>colocar sus páginas en etiquetas necesita demasiada memoria o tiempo</translation>
    </message>
    <message>
        <source>its pages cannot be laid out on labels; the PDF is damaged</source>
        <translation>sus páginas no se pueden colocar en etiquetas; el PDF está dañado</translation>
    </message>
    <message>
        <source>the program that reads PDFs cannot be started</source>
        <translation>el programa que lee los PDF no se puede iniciar</translation>
    </message>
    <message>
        <source>the program that reads PDFs has crashed</source>
        <translation>el programa que lee los PDF ha fallado</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>leerlo tarda demasiado</translation>
    </message>
    <message>
        <source>it attempts what no document may do</source>
        <translation>intenta hacer lo que ningún documento puede hacer</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>la contraseña es incorrecta</translation>
    </message>
    <message>
        <source>decrypting it needs too much memory or time</source>
        <translation>descifrarlo necesita demasiada memoria o tiempo</translation>
    </message>
    <message>
        <source>it is encrypted and needs a password</source>
        <translation>está cifrado y necesita una contraseña</translation>
    </message>
</context>
<context>
    <name>host::documents::PrintOrder</name>
    <message>
        <source>Invalid page range &quot;%1&quot;: use numbers and ranges such as 1-3, 5</source>
        <translation>No se entienden las páginas «%1»: escriba números e intervalos como 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>No se pueden imprimir las páginas «%1»: la última página del documento es %2</translation>
    </message>
    <message>
        <source>Nothing to print: no page of the document is selected</source>
        <translation>No se imprimiría nada: no se ha elegido ninguna página del documento</translation>
    </message>
</context>
<context>
    <name>host::labels::LabelDrawing</name>
    <message>
        <source>Page %1 cannot be drawn</source>
        <translation>La página %1 no se puede dibujar</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleCatalog</name>
    <message>
        <source>The panel bundle &quot;%1&quot; is not used: %2.</source>
        <translation>El paquete de paneles «%1» no se usa: %2.</translation>
    </message>
    <message>
        <source>The panel bundles in &quot;%1&quot; are not used: %2.</source>
        <translation>Los paquetes de paneles de «%1» no se usan: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>no existe esa carpeta</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleFolders</name>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>«%1» no se puede leer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>«%1» pertenece a otro usuario</translation>
    </message>
    <message>
        <source>other users can write to &quot;%1&quot;; &quot;chmod go-w&quot; prevents it</source>
        <translation>otros usuarios pueden escribir en «%1»; «chmod go-w» lo impide</translation>
    </message>
</context>
<context>
    <name>host::panels::HostedPanel</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation>«%1» no puede guardar sus ajustes: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not allow printing with these settings.</source>
        <translation>«%1» no permite imprimir el trabajo con estos ajustes.</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>No se puede usar el paquete «%1»: %2</translation>
    </message>
    <message>
        <source>its library contains no panels</source>
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
        <source>Cannot find the panel bundle; searched %1</source>
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
    <name>host::panels::PanelGuard</name>
    <message>
        <source>an error occurred in &quot;%1&quot;</source>
        <translation>se produjo un error en «%1»</translation>
    </message>
    <message>
        <source>an error occurred in &quot;%1&quot;: %2</source>
        <translation>se produjo un error en «%1»: %2</translation>
    </message>
</context>
<context>
    <name>host::printer::Constraints</name>
    <message>
        <source>&quot;%1: %2&quot;</source>
        <translation>«%1: %2»</translation>
    </message>
    <message>
        <source>This printer does not support %1.</source>
        <translation>Esta impresora no admite %1.</translation>
    </message>
    <message>
        <source>%1 and %2 conflict.</source>
        <translation>%1 y %2 se excluyen mutuamente.</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>ajustar «%1» a «%2»</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>No se puede abrir el archivo PPD «%1»: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, the maximum for a PPD file</source>
        <translation>ocupa más de %1 MB, más que cualquier descripción de impresora</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be decompressed</source>
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
        <source>it has %1 statements; the maximum is %2</source>
        <translation>tiene %1 instrucciones; el máximo es %2</translation>
    </message>
    <message>
        <source>it has %1 &quot;%2&quot; statements; the maximum is %3</source>
        <translation>tiene %1 instrucciones «%2»; el máximo es %3</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>termina en medio de un valor; el archivo está incompleto</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdOptions</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation>Control de la impresora</translation>
    </message>
</context>
<context>
    <name>host::setup::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation>Trabajo «%1» para «%2» en %3
</translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation>Opciones que se envían:
</translation>
    </message>
</context>
<context>
    <name>host::setup::JobSummary</name>
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
        <source>all</source>
        <translation>todas</translation>
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
        <source>Order</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>última página primero</translation>
    </message>
    <message>
        <source>Page set</source>
        <translation>De ellas</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>las páginas impares</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>las páginas pares</translation>
    </message>
</context>
<context>
    <name>host::setup::PanelSource</name>
    <message>
        <source>it could not create its panel</source>
        <translation>no pudo crear su panel</translation>
    </message>
    <message>
        <source>its panel cannot be shown: its layout file cannot be used</source>
        <translation>su panel no se puede mostrar: su archivo de diseño no se puede usar</translation>
    </message>
    <message>
        <source>The panel bundle &quot;%1&quot; does not control %2: another panel or the dialog does, or its description does not list it.</source>
        <translation>El paquete de paneles «%1» no controla %2: lo hace otro panel o el diálogo, o su descripción no lo incluye.</translation>
    </message>
    <message>
        <source>the program ended or was stopped during its &quot;%1&quot; on %2</source>
        <translation>el programa terminó o fue detenido durante «%1» el %2</translation>
    </message>
</context>
<context>
    <name>host::setup::Preflight</name>
    <message>
        <source>Page %1 is larger than the label and is printed at %2 % of its size.</source>
        <translation>La página %1 es mayor que la etiqueta y se imprime al %2 % de su tamaño.</translation>
    </message>
    <message>
        <source>Pages %1 are larger than the label and are printed smaller, at %2 % or more.</source>
        <translation>Las páginas %1 son mayores que la etiqueta y se imprimen reducidas, al %2 % o más.</translation>
    </message>
    <message>
        <source>Page %1 has content where the printer cannot print.</source>
        <translation>La página %1 tiene contenido donde la impresora no puede imprimir.</translation>
    </message>
    <message>
        <source>Pages %1 have content where the printer cannot print.</source>
        <translation>Las páginas %1 tienen contenido donde la impresora no puede imprimir.</translation>
    </message>
    <message>
        <source>Page %1 is blank.</source>
        <translation>La página %1 está en blanco.</translation>
    </message>
    <message>
        <source>Pages %1 are blank.</source>
        <translation>Las páginas %1 están en blanco.</translation>
    </message>
    <message>
        <source>The last label is a piece of its own.</source>
        <translation>La última etiqueta es una pieza aparte.</translation>
    </message>
    <message>
        <source>The job needs %1 m of tape.</source>
        <translation>El trabajo necesita %1 m de cinta.</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>Usar «%1»</translation>
    </message>
    <message>
        <source>Leave out blank pages</source>
        <translation>Omitir las páginas en blanco</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>La página %1 no se puede dibujar y el trabajo no se puede imprimir: %2.</translation>
    </message>
    <message>
        <source>Pages %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>Las páginas %1 no se pueden dibujar y el trabajo no se puede imprimir: %2.</translation>
    </message>
    <message>
        <source>Leave out pages that cannot be drawn</source>
        <translation>Omitir las páginas que no se pueden dibujar</translation>
    </message>
    <message>
        <source>The labels are printed mirrored, which is readable only through transparent tape.</source>
        <translation>Las etiquetas se imprimen reflejadas, lo que solo se puede leer a través de cinta transparente.</translation>
    </message>
    <message>
        <source>Turn pages to fit</source>
        <translation>Girar las páginas para que quepan</translation>
    </message>
    <message>
        <source>Page %1 is printed smaller than in the orientation that fits.</source>
        <translation>La página %1 se imprime más pequeña que en la orientación adecuada.</translation>
    </message>
    <message>
        <source>Pages %1 are printed smaller than in the orientation that fits.</source>
        <translation>Las páginas %1 se imprimen más pequeñas que en la orientación adecuada.</translation>
    </message>
</context>
<context>
    <name>host::setup::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; with this paper and the other cut options; &quot;%3&quot; is used instead.</source>
        <translation>«%1» no puede ser «%2» con este papel y las demás opciones de corte, y se imprime como «%3».</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;, which is your default (lpoptions).</source>
        <translation>La impresora «%1» no tiene el papel «%2», que es su valor predeterminado (lpoptions).</translation>
    </message>
</context>
<context>
    <name>host::strip::CutPlan</name>
    <message>
        <source>Labels: %1 · Tape: %2</source>
        <translation>Etiquetas: %1 · Cinta: %2</translation>
    </message>
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
        <source>measuring…</source>
        <comment>a length</comment>
        <translation>midiendo…</translation>
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
        <source>Half cut between the labels of a piece.</source>
        <translation>Medio corte entre las etiquetas de una pieza.</translation>
    </message>
    <message>
        <source>Cut marks are printed where there is no full cut.</source>
        <translation>Marcas impresas donde no se corta por completo.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job continues there without a margin.</source>
        <translation>El final queda en la impresora; el siguiente trabajo continúa desde ahí sin margen.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is removed.</source>
        <translation>Se omite la cinta en blanco antes y después de cada etiqueta.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>Las etiquetas están reflejadas.</translation>
    </message>
    <message>
        <source>Cutting is not known: the printer&apos;s description does not say whether it cuts the labels.</source>
        <translation>El corte no se conoce: la descripción de la impresora no dice si corta las etiquetas.</translation>
    </message>
    <message>
        <source>Full cuts after the labels %1.</source>
        <translation>Cortes completos después de las etiquetas %1.</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>trabajo siguiente</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 en %2, %3</translation>
    </message>
</context>
<context>
    <name>host::strip::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>the folder cannot be created: %1</source>
        <translation>no se puede crear la carpeta: %1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
</context>
<context>
    <name>platform::files::OutputFile</name>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>es un enlace simbólico</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>es un socket</translation>
    </message>
    <message>
        <source>it is a block device</source>
        <translation>es un dispositivo de bloques</translation>
    </message>
    <message>
        <source>no program reads from it</source>
        <translation>nadie lee de ahí</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>Pruebe «kvprint --help».</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation>Uso: kvprint [OPCIÓN]... [--] [DOCUMENTO]...
     kvprint -i [COLA-]TRABAJO [OPCIÓN]...
     kvprint --list | --summary | --dry-run [OPCIÓN]... [--] [DOCUMENTO]...
</translation>
    </message>
    <message>
        <source>Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages and cuts shows the label strip as it will come out of the printer. Without a display, the documents are printed immediately. &quot;-&quot; or no document means standard input.</source>
        <translation>Imprime documentos en impresoras de etiquetas, con un diálogo para papel, páginas y cortes que muestra la tira de etiquetas tal como saldrá. Sin pantalla imprime directamente. PDF, PNG, JPEG y SVG; «-» o nada es la entrada estándar.</translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation>Opciones:
</translation>
    </message>
    <message>
        <source>Ends the options; all following arguments are documents.</source>
        <translation>Termina las opciones: lo que sigue son documentos.</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;</source>
        <translation>No existe la opción «%1»</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not accept a value</source>
        <translation>La opción «%1» no admite ningún valor</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires a value: %2</source>
        <translation>La opción «%1» necesita un valor: %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; applies to the virtual printer and requires &quot;--ppd&quot;</source>
        <translation>La opción «%1» es para la impresora virtual y necesita «--ppd»</translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; applies to a job that was already sent and requires &quot;-i&quot;</source>
        <translation>-H: «%1» se refiere a un trabajo ya enviado y necesita «-i»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not accept documents, but &quot;%2&quot; is specified</source>
        <translation>«%1» no admite documentos y se indicó «%2»</translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation>La entrada estándar («-») solo se puede imprimir una vez</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; cannot be combined</source>
        <translation>La opción «%1» no es compatible con «%2»</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires one of: %2</source>
        <translation>La opción «%1» solo se admite junto con una de estas: %2</translation>
    </message>
    <message>
        <source>No document is specified; name a file, or &quot;-&quot; for standard input</source>
        <translation>No se indicó ningún documento; indique un archivo, o «-» para escribirlo</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>el valor está vacío</translation>
    </message>
    <message>
        <source>Invalid time &quot;%1&quot;; use HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation>«%1» no es una hora de impresión; escriba HH:MM o HH:MM:SS (UTC), o una de estas palabras: %2</translation>
    </message>
    <message>
        <source>Invalid value &quot;%1&quot;; use one of: %2</source>
        <translation>«%1» no es posible; tiene que ser uno de estos valores: %2</translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation>no indica ningún papel</translation>
    </message>
    <message>
        <source>Invalid number of copies &quot;%1&quot;; use 1 to %2</source>
        <translation>«%1» no es un número de copias; tiene que estar entre 1 y %2</translation>
    </message>
    <message>
        <source>Invalid priority &quot;%1&quot;; use 1 (last) to 100 (first)</source>
        <translation>«%1» no es una prioridad; tiene que estar entre 1 (último) y 100 (primero)</translation>
    </message>
    <message>
        <source>Missing queue in &quot;%1&quot;; use QUEUE or QUEUE/INSTANCE</source>
        <translation>«%1» no indica ninguna cola; escriba COLA o COLA/INSTANCIA</translation>
    </message>
    <message>
        <source>Invalid job &quot;%1&quot;; use its number, or QUEUE-NUMBER as in the request id</source>
        <translation>«%1» no es un trabajo; escriba su número, o COLA-NÚMERO tal como se mostró al enviarlo</translation>
    </message>
    <message>
        <source>Missing option in &quot;%1&quot;; use NAME=VALUE</source>
        <translation>«%1» no indica ninguna opción; escriba NOMBRE=VALOR</translation>
    </message>
    <message>
        <source>The queue to print on, with an instance if needed. Default: the default queue.</source>
        <translation>La cola en la que se imprime, con un conjunto de opciones con nombre. Sin esta opción, la cola predeterminada.</translation>
    </message>
    <message>
        <source>The print server.</source>
        <translation>El servidor de impresión.</translation>
    </message>
    <message>
        <source>The user name for the print server.</source>
        <translation>El usuario para el que se imprime.</translation>
    </message>
    <message>
        <source>Encrypts the connection to the print server.</source>
        <translation>Cifra la conexión con el servidor de impresión.</translation>
    </message>
    <message>
        <source>The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes.</source>
        <translation>El nombre del papel en el PPD, o Custom.ANCHOxLARGOmm si la impresora admite tamaños personalizados.</translation>
    </message>
    <message>
        <source>The number of copies.</source>
        <translation>El número de copias.</translation>
    </message>
    <message>
        <source>The pages to print, as in 1-3,5,8-.</source>
        <translation>Las páginas que imprimir, por ejemplo 1-3,5,8-.</translation>
    </message>
    <message>
        <source>An option of the PPD or of the print server. Several options are separated by blanks or given one by one.</source>
        <translation>Una opción del PPD o del servidor de impresión; varias a la vez, separadas por espacios, o una por una.</translation>
    </message>
    <message>
        <source>The job&apos;s name in the queue.</source>
        <translation>El nombre del trabajo en la cola.</translation>
    </message>
    <message>
        <source>The job&apos;s priority, from 1 to 100 (first).</source>
        <translation>La prioridad del trabajo, de 1 a 100 (primero).</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and restart for a job that was already sent.</source>
        <translation>Cuándo imprimir: hold, immediate, HH:MM (UTC), night, weekend y otros; para un trabajo ya enviado, también resume y restart.</translation>
    </message>
    <message>
        <source>Sends a mail when the job is finished; implies -s.</source>
        <translation>Envía un correo cuando termina el trabajo; incluye -s.</translation>
    </message>
    <message>
        <source>Does not print the request id.</source>
        <translation>No muestra el número del trabajo.</translation>
    </message>
    <message>
        <source>Ignored, for compatibility with lp: documents are always copied.</source>
        <translation>Se admite por compatibilidad con lp: los documentos siempre se copian.</translation>
    </message>
    <message>
        <source>Changes a job that was already sent.</source>
        <translation>Modifica un trabajo ya enviado.</translation>
    </message>
    <message>
        <source>Prints without the dialog, with the settings that it would show.</source>
        <translation>Imprime directamente, con los ajustes con los que se abriría el diálogo.</translation>
    </message>
    <message>
        <source>Lists the queues and their states.</source>
        <translation>Muestra las colas y su estado.</translation>
    </message>
    <message>
        <source>Writes the settings that the dialog would show, without printing.</source>
        <translation>Muestra los ajustes con los que se abriría el diálogo y no imprime nada.</translation>
    </message>
    <message>
        <source>Prepares the job and writes what would be sent, without sending it.</source>
        <translation>Hace todo menos enviar y muestra lo que se enviaría.</translation>
    </message>
    <message>
        <source>Writes the output as JSON.</source>
        <translation>Lo muestra como JSON.</translation>
    </message>
    <message>
        <source>Sends the job even with conflicts, or with choices that the printer does not have.</source>
        <translation>Envía incluso lo que la impresora no tiene y lo que es incompatible entre sí.</translation>
    </message>
    <message>
        <source>Saves a screenshot of the dialog as a PNG file.</source>
        <translation>Guarda una imagen del diálogo, tal como se abre, en un archivo PNG.</translation>
    </message>
    <message>
        <source>Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue.</source>
        <translation>Un archivo PPD, sin comprimir o gzip: imprime en una impresora virtual en lugar de en una cola.</translation>
    </message>
    <message>
        <source>The folder for strip.pdf and job.json of the virtual printer; created if it does not exist. Default: a new folder among the user&apos;s data.</source>
        <translation>La carpeta para strip.pdf y job.json de la impresora virtual; se crea si no existe. Sin esta opción, una carpeta nueva entre los datos del usuario.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Muestra esta ayuda.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Muestra la versión.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported; documents are sent as PDF</source>
        <translation>«%1» no es posible; los documentos se envían como PDF</translation>
    </message>
    <message>
        <source>Exit status:
  0  success
  1  something could not be opened, used, sent or written; nothing was printed,
     unless standard error states that the job was sent
  2  invalid command line
  3  printed, but without the cut-options panel
  4  canceled in the dialog
  129, 130, 143  stopped by a signal before the job was sent
</source>
        <translation>Estado de salida:
  0  impreso, o mostrado lo que se pidió
  1  algo no se pudo abrir, usar, enviar o escribir; no se imprimió nada,
     salvo que la salida de errores diga que el trabajo se envió de todos modos
  2  no se entendió la línea de órdenes
  3  impreso, pero sin el panel de opciones de corte
  4  cancelado en el diálogo
  129, 130, 143  detenido por una señal antes de enviar el trabajo
</translation>
    </message>
    <message>
        <source>Cancels a job that an interrupted program left on a print server.</source>
        <translation>Retira un trabajo que un programa dejó en un servidor de impresión al ser detenido.</translation>
    </message>
    <message>
        <source>Releases such a job; it may be incomplete.</source>
        <translation>Imprime lo que el servidor de impresión tiene de ese trabajo, quizá no todos los documentos.</translation>
    </message>
    <message>
        <source>A panel bundle, or a folder with bundles, to use instead of the installed ones.</source>
        <translation>Un paquete de paneles, o una carpeta con paquetes, en lugar de los instalados.</translation>
    </message>
    <message>
        <source>Loads panels again that have ended or blocked the program before.</source>
        <translation>Vuelve a cargar los paneles que antes terminaron o bloquearon el programa.</translation>
    </message>
    <message>
        <source>Invalid scaling &quot;%1&quot;; use auto, fit, fill or none</source>
        <translation>Escala no válida «%1»; use auto, fit, fill o none</translation>
    </message>
    <message>
        <source>The kernel has no Landlock: the processes that read documents can read other files.</source>
        <translation>El núcleo no tiene Landlock: los procesos que leen documentos pueden leer otros archivos.</translation>
    </message>
    <message>
        <source>The kernel has no seccomp: the processes that read documents can use the network and start other processes.</source>
        <translation>El núcleo no tiene seccomp: los procesos que leen documentos pueden usar la red e iniciar otros procesos.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::Console</name>
    <message>
        <source>The job was sent nevertheless, as %1-%2.</source>
        <translation>El trabajo se ha enviado de todos modos, como %1-%2.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation>(predeterminada)</translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation>Clase formada por: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destinations</source>
        <translation>El servidor de impresión «%1» no tiene ningún destino en el que imprimir</translation>
    </message>
    <message>
        <source>To resolve the conflict: %1</source>
        <translation>Solución posible: %1</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no default destination; specify one with &quot;-d&quot;</source>
        <translation>El servidor de impresión «%1» no tiene ningún destino predeterminado; indique uno con «-d»</translation>
    </message>
    <message>
        <source>Stopped by a signal; nothing was printed.</source>
        <translation>Detenido por una señal; no se ha impreso nada.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::LeftJobsRun</name>
    <message>
        <source>&quot;kvprint --cancel-left %1&quot; cancels it, &quot;kvprint --release-left %1&quot; releases it.</source>
        <translation>«kvprint --cancel-left %1» lo retira, «kvprint --release-left %1» imprime lo que el servidor tiene de él.</translation>
    </message>
    <message>
        <source>Jobs &quot;%1&quot; are left on several print servers; specify one of: %2</source>
        <translation>Han quedado trabajos «%1» en varios servidores de impresión; nombre uno de estos: %2</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are no such jobs</source>
        <translation>No hay ningún trabajo «%1» dejado por un programa detenido; no ha quedado ninguno</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are these: %2</source>
        <translation>No hay ningún trabajo «%1» dejado por un programa detenido; han quedado estos: %2</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>El archivo PPD «%1» no tiene el papel «%2»; tiene: %3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; defines no paper</source>
        <translation>El archivo PPD «%1» no indica ningún papel en el que imprimir</translation>
    </message>
    <message>
        <source>The label strip was written to:</source>
        <translation>La tira de etiquetas está en:</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::StandardStreams</name>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>No se puede escribir en la salida estándar: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalPassword</name>
    <message>
        <source>Password for the document on standard input:</source>
        <translation>Contraseña del documento de la entrada estándar:</translation>
    </message>
    <message>
        <source>Password for the document &quot;%1&quot;:</source>
        <translation>Contraseña del documento «%1»:</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>La contraseña es incorrecta.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalTrust</name>
    <message>
        <source>Type &quot;%1&quot; to continue:</source>
        <translation>Escriba «%1» para continuar:</translation>
    </message>
</context>
</TS>
