<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>dialog::job::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation>Classe di stampanti: %1</translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation>Stampa&amp;nte</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation>La stampante non esiste.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>In attesa della risposta del server di stampa…</translation>
    </message>
    <message>
        <source>Last known state: %1</source>
        <translation>L&apos;ultima volta: %1</translation>
    </message>
    <message>
        <source>The print server does not respond. Last known state: %1</source>
        <translation>Il server di stampa non risponde. L&apos;ultima volta: %1</translation>
    </message>
    <message>
        <source>The print server does not respond.</source>
        <translation>Il server di stampa non risponde.</translation>
    </message>
    <message>
        <source>The print server requires a password.</source>
        <translation>Il server di stampa richiede una password.</translation>
    </message>
    <message>
        <source>The print server requires a password. Last known state: %1</source>
        <translation>Il server di stampa richiede una password. L&apos;ultima volta: %1</translation>
    </message>
    <message>
        <source>The print server is not trusted.</source>
        <translation>Il server di stampa non è attendibile.</translation>
    </message>
    <message>
        <source>The print server is not trusted. Last known state: %1</source>
        <translation>Il server di stampa non è attendibile. L&apos;ultima volta: %1</translation>
    </message>
</context>
<context>
    <name>dialog::job::DocumentPasswordDialog</name>
    <message>
        <source>Password for the document</source>
        <translation>Password del documento</translation>
    </message>
    <message>
        <source>The document on standard input is encrypted.</source>
        <translation>Il documento sullo standard input è cifrato.</translation>
    </message>
    <message>
        <source>The document &quot;%1&quot; is encrypted.</source>
        <translation>Il documento &quot;%1&quot; è cifrato.</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>La password è errata.</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Password</translation>
    </message>
</context>
<context>
    <name>dialog::job::ErrorBanner</name>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobPage</name>
    <message>
        <source>Print time</source>
        <translation>Ora di stampa</translation>
    </message>
    <message>
        <source>Queue default</source>
        <translation>Come impostato nella coda</translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation>Da 1 a 100; i lavori con priorità più alta vengono stampati prima degli altri</translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation>No&amp;me del lavoro</translation>
    </message>
    <message>
        <source>Orienta&amp;tion</source>
        <translation>Ori&amp;entamento</translation>
    </message>
    <message>
        <source>When to pr&amp;int</source>
        <translation>&amp;Quando stampare</translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation>Priori&amp;tà</translation>
    </message>
    <message>
        <source>Printer default</source>
        <translation>Come impostato nella stampante</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Orizzontale invertito</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Verticale invertito</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Quando lo rilascio</translation>
    </message>
    <message>
        <source>At a specific time</source>
        <translation>A un&apos;ora precisa</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Durante il giorno</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Di sera</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Di notte</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Nel secondo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Nel terzo turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Nel fine settimana</translation>
    </message>
    <message>
        <source>Page si&amp;ze</source>
        <translation>D&amp;imensione pagina</translation>
    </message>
    <message>
        <source>Shrink pages larger than the label</source>
        <translation>Riduci le pagine più grandi dell’etichetta</translation>
    </message>
    <message>
        <source>Fit to the printable area</source>
        <translation>Adatta all’area stampabile</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Riempi l’etichetta</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Dimensioni effettive</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobWindow</name>
    <message>
        <source>The job was sent.</source>
        <translation>Il lavoro è stato inviato.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 su %2</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Lavoro %1: %2</translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation>Annulla il &amp;lavoro</translation>
    </message>
</context>
<context>
    <name>dialog::job::LeftJobBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Cancel the job</source>
        <translation>Ritira il lavoro</translation>
    </message>
    <message>
        <source>Release the job</source>
        <translation>Rilascia il lavoro</translation>
    </message>
</context>
<context>
    <name>dialog::job::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>&amp;Fascicola copie</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Tutte le pagine una volta, poi di nuovo; altrimenti tutte le copie di una pagina insieme</translation>
    </message>
    <message>
        <source>all, or ranges: 1-3, 5</source>
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
        <source>Reverse order</source>
        <translation>Ultima pagina per prima</translation>
    </message>
</context>
<context>
    <name>dialog::job::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation>Password del server di stampa</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nome &amp;utente</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Password</translation>
    </message>
</context>
<context>
    <name>dialog::job::SendBar</name>
    <message>
        <source>Cancel sending</source>
        <translation>Interrompi l&apos;invio</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>Invio di &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>dialog::job::SummaryPage</name>
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
    <name>dialog::job::TicketPage</name>
    <message>
        <source>Option</source>
        <translation>Opzione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Inviato</translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation>Opzioni del lavoro</translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation>Lo s&amp;tesso lavoro da riga di comando</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Cop&amp;ia</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Copia il comando</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
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
        <translation>Connessione non cifrata</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password, and the connection to it is not encrypted.</source>
        <translation>Il server di stampa &quot;%1&quot; richiede una password e la connessione non è cifrata.</translation>
    </message>
    <message>
        <source>Others on the network can read the password.</source>
        <translation>Altri sulla rete possono leggere la password.</translation>
    </message>
    <message>
        <source>Send anyway</source>
        <translation>Invia comunque</translation>
    </message>
    <message>
        <source>Certificate of the print server</source>
        <translation>Certificato del server di stampa</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2.</source>
        <translation>Il certificato del server di stampa &quot;%1&quot; non è attendibile: %2.</translation>
    </message>
    <message>
        <source>Its SHA-256 fingerprint is:
%1

Trust it only if the server&apos;s administrator confirms this fingerprint. It stays trusted for later connections.</source>
        <translation>La sua impronta SHA-256 è:
%1

Considerarlo attendibile solo se l&apos;amministratore del server indica la stessa impronta. Da quel momento resta attendibile.</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>Considera attendibile</translation>
    </message>
</context>
<context>
    <name>dialog::job::VirtualSender</name>
    <message>
        <source>The PPD file defines no paper</source>
        <translation>Il file PPD non indica alcuna carta</translation>
    </message>
</context>
<context>
    <name>dialog::options::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation>non impostato</translation>
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
        <translation>La stampante non può fare tutto questo insieme.</translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation>Stampa comunque</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>dialog::options::CustomValueFields</name>
    <message numerus="yes">
        <source>&quot;%1&quot; needs at least %n character(s). Until then, the previous value is used.</source>
        <translation>
            <numerusform>&quot;%1&quot; richiede almeno %n carattere. Fino ad allora l&apos;impostazione resta com&apos;era.</numerusform>
            <numerusform>&quot;%1&quot; richiede almeno %n caratteri. Fino ad allora l&apos;impostazione resta com&apos;era.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::options::OptionsPage</name>
    <message>
        <source>Option groups</source>
        <translation>Gruppi di opzioni</translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation>Questa stampante non ha altre opzioni.</translation>
    </message>
</context>
<context>
    <name>dialog::paper::CustomPaperFields</name>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest length</comment>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Larghezza della carta</translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation>Lunghezza della carta</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>&amp;Larghezza</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>Lung&amp;hezza</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperChooser</name>
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
    <message>
        <source>Custom, %1</source>
        <comment>a size</comment>
        <translation>Personalizzata, %1</translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation>Usa le dimensioni del documento: %1</translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation>Dimensioni personalizzate</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation>Larghezza %1</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>largo %1, lungo %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Dimensioni personalizzate…</translation>
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
        <translation>in</translation>
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
        <translation>Stampante: %1</translation>
    </message>
</context>
<context>
    <name>dialog::window::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation>Opzioni, anteprima e riepilogo</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Ante&amp;prima pagina</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Riepilogo</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>La&amp;voro</translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation>&amp;Dati da inviare</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opzioni</translation>
    </message>
</context>
<context>
    <name>dialog::window::PagePreview</name>
    <message>
        <source>The page is larger than the label and is shrunk to fit.</source>
        <translation>La pagina è più grande dell&apos;etichetta e viene ridotta.</translation>
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
    <name>dialog::window::PanelBanner</name>
    <message>
        <source>The printer&apos;s options are listed on the page &quot;Options&quot;.</source>
        <translation>Le opzioni della stampante sono nella pagina «Opzioni».</translation>
    </message>
    <message>
        <source>Load It Again</source>
        <translation>Carica di nuovo</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelPage</name>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
</context>
<context>
    <name>dialog::window::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Stampa %1</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Stampa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The printer has no description (PPD); its papers and cuts are not known.</source>
        <translation>La stampante non ha una descrizione, quindi le sue carte e i suoi tagli non sono noti.</translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation>In attesa della descrizione della stampante…</translation>
    </message>
    <message>
        <source>No printer is selected.</source>
        <translation>Nessuna stampante scelta.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>In attesa della risposta del server di stampa…</translation>
    </message>
    <message>
        <source>The printer&apos;s description is not known.</source>
        <translation>La descrizione della stampante non è nota.</translation>
    </message>
</context>
<context>
    <name>dialog::window::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Striscia di etichette</translation>
    </message>
</context>
<context>
    <name>host::base::OutOfMemory</name>
    <message>
        <source>Out of memory; nothing was printed.</source>
        <translation>Memoria esaurita; non è stato stampato nulla.</translation>
    </message>
    <message>
        <source>Out of memory; the job may be incomplete, or left on the print server.</source>
        <translation>Memoria esaurita; il lavoro potrebbe essere incompleto o rimasto sul server di stampa.</translation>
    </message>
    <message>
        <source>Out of memory. The job was sent nevertheless.</source>
        <translation>Memoria esaurita. Il lavoro è stato comunque inviato.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation>La stampante &quot;%1&quot; non ha l&apos;opzione &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation>La stampante &quot;%1&quot; non ha la carta &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation>L&apos;opzione &quot;%1&quot; della stampante &quot;%2&quot; non ha la scelta &quot;%3&quot;; ha: %4</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print on the paper &quot;%2&quot;: its size is %3 × %4 points; width and length must be greater than 0, one of them at most %5 m, the other at most %6 m.</source>
        <translation>La stampante &quot;%1&quot; non può stampare sulla carta &quot;%2&quot;: le dimensioni sono %3 × %4 punti; larghezza e lunghezza devono essere maggiori di 0; una non deve superare %5 m e l&apos;altra %6 m.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation>Impossibile leggere il documento &quot;%1&quot;: %2</translation>
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
        <source>it has become shorter while it was read</source>
        <translation>si è accorciato durante la lettura</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>il file è cambiato da quando è stato aperto; aprirlo di nuovo</translation>
    </message>
    <message>
        <source>it has changed while it was read</source>
        <translation>è cambiato durante la lettura</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobChange</name>
    <message>
        <source>It is printed again, but held. %1</source>
        <translation>Verrà stampato di nuovo, ma è trattenuto. %1</translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation>Il lavoro %1 non è stato modificato. %2</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Nessun server di stampa può trasmettere la scelta &quot;%1&quot; dell&apos;opzione &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobFate</name>
    <message>
        <source>%1 A job &quot;%2&quot; without documents may be left in the queue &quot;%3&quot; of the print server &quot;%4&quot;; it prints nothing.</source>
        <translation>%1 Nella coda &quot;%3&quot; del server di stampa &quot;%4&quot; potrebbe essere rimasto un lavoro &quot;%2&quot; senza documenti; non ne viene stampato nulla.</translation>
    </message>
    <message>
        <source>%1 The print server &quot;%2&quot; has all documents of job %3-%4, but did not report whether it released the job: it is printed, or it is still held. Check the queue before you print again.</source>
        <translation>%1 Il server di stampa &quot;%2&quot; ha tutti i documenti del lavoro %3-%4 e non ha comunicato se lo rilascia: il lavoro viene stampato, oppure è trattenuto e non viene stampato. Controllare la coda prima di stampare di nuovo.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 on the print server &quot;%4&quot; may have been printed; check the queue before you print again.</source>
        <translation>%1 Il lavoro %2-%3 sul server di stampa &quot;%4&quot; potrebbe essere stato stampato; controllare la coda prima di stampare di nuovo.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; it is held on the print server &quot;%4&quot; and is not printed unless it is released.</source>
        <translation>%1 Non è stato possibile ritirare il lavoro %2-%3; è trattenuto sul server di stampa &quot;%4&quot; e non viene stampato finché non viene rilasciato.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; check the queue before you print again.</source>
        <translation>%1 Non è stato possibile ritirare il lavoro %2-%3; controllare la coda prima di stampare di nuovo.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3: %4</source>
        <translation>%1 Lavoro %2-%3: %4</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobJournal</name>
    <message>
        <source>The record &quot;%1&quot; of an interrupted job was damaged and has been removed. Check your queues for a held job.</source>
        <translation>La registrazione &quot;%1&quot; di un lavoro in corso di invio è danneggiata ed è stata rimossa; controllare nelle proprie code se è rimasto un lavoro.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation>predefinito della stampante</translation>
    </message>
    <message>
        <source>queue default</source>
        <translation>predefinito della coda</translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation>predefinito personale (lpoptions)</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>preimpostazione</translation>
    </message>
    <message>
        <source>cut options</source>
        <translation>opzioni di taglio</translation>
    </message>
    <message>
        <source>set by you</source>
        <translation>scelto dall&apos;utente</translation>
    </message>
    <message>
        <source>page layout</source>
        <translation>layout di pagina</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobSettings</name>
    <message>
        <source>Cannot print the job: it has more than %1 labels</source>
        <translation>Impossibile stampare tante etichette insieme: un lavoro ne ha al massimo %1</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation>Trattenuto finché non viene rilasciato.</translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation>Trattenuto fino a: %1.</translation>
    </message>
    <message>
        <source>Waiting in the queue.</source>
        <translation>In attesa del proprio turno.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Stampa in corso.</translation>
    </message>
    <message>
        <source>Stopped; it continues when the printer is ready.</source>
        <translation>Fermo; riprende quando la stampante è di nuovo pronta.</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Annullato.</translation>
    </message>
    <message>
        <source>Aborted by the print server.</source>
        <translation>Interrotto dal server di stampa.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Stampato.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>Il server comunica: %1</translation>
    </message>
    <message>
        <source>The job is finished; the print server keeps no record of it.</source>
        <translation>Il lavoro è terminato; il server di stampa non ne conserva traccia.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobUpload</name>
    <message>
        <source>There is no document to print.</source>
        <translation>Non ci sono documenti da stampare.</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Nessun server di stampa può trasmettere la scelta &quot;%1&quot; dell&apos;opzione &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; did not receive all of &quot;%2&quot;.</source>
        <translation>Il server di stampa &quot;%1&quot; non ha accettato tutto &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LeftJob</name>
    <message>
        <source>The print server &quot;%1&quot; no longer has the job &quot;%2&quot; in the queue &quot;%3&quot;, or the job is finished.</source>
        <translation>Il server di stampa &quot;%1&quot; non ha più alcun lavoro &quot;%2&quot; nella coda &quot;%3&quot;, oppure è terminato.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is not held: %4</source>
        <translation>Il lavoro %1-%2 sul server di stampa &quot;%3&quot; non è trattenuto: %4</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is released.</source>
        <translation>Il lavoro %1-%2 sul server di stampa &quot;%3&quot; è stato rilasciato.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is canceled.</source>
        <translation>Il lavoro %1-%2 sul server di stampa &quot;%3&quot; è stato ritirato.</translation>
    </message>
    <message>
        <source>An interrupted program may have left job %1 (&quot;%2&quot;) on the print server &quot;%3&quot;; the job may be incomplete.</source>
        <translation>Un programma interrotto durante la stampa potrebbe aver lasciato il lavoro %1 (&quot;%2&quot;) sul server di stampa &quot;%3&quot;, forse senza tutti i documenti.</translation>
    </message>
    <message>
        <source>An interrupted program may have left a job &quot;%1&quot; without documents in the queue &quot;%2&quot; of the print server &quot;%3&quot;.</source>
        <translation>Un programma interrotto durante la stampa potrebbe aver lasciato un lavoro &quot;%1&quot; senza documenti nella coda &quot;%2&quot; del server di stampa &quot;%3&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LpCommand</name>
    <message>
        <source>lp cannot express these options: %1</source>
        <translation>lp non può esprimere queste opzioni così come vengono inviate: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::DiscoveredQueue</name>
    <message>
        <source>The print server &quot;%1&quot; cannot reach the printer &quot;%2&quot;.</source>
        <translation>Il server di stampa &quot;%1&quot; non riesce a raggiungere la stampante &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer on the network.</source>
        <translation>La stampante &quot;%1&quot; non è più in rete.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation>Il server di stampa &quot;%1&quot; non ha alcuna coda o classe &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueText</name>
    <message>
        <source>The printer needs labels or tape.</source>
        <translation>La stampante attende etichette o nastro.</translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation>Etichette o nastro inceppati.</translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation>Il rotolo di etichette o il nastro è quasi esaurito.</translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation>Il rotolo di etichette o il nastro è esaurito.</translation>
    </message>
    <message>
        <source>The printer is pausing.</source>
        <translation>La stampante sta per andare in pausa.</translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation>La coda è in pausa; i lavori attendono.</translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation>La stampante è spenta.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Connessione alla stampante in corso.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>La stampante non risponde.</translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation>La stampante si sta fermando.</translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation>Alcune stampanti della classe sono ferme.</translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation>Il toner è quasi esaurito.</translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation>Il toner è esaurito.</translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation>Il server di stampa non ha più spazio.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation>Il coperchio della stampante è aperto.</translation>
    </message>
    <message>
        <source>An interlock of the printer is open.</source>
        <translation>Un blocco della stampante è aperto.</translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation>Lo sportello della stampante è aperto.</translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation>Manca la cassetta o il supporto del rotolo.</translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation>Manca il vassoio di uscita.</translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation>Il vassoio di uscita è quasi pieno.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>Il vassoio di uscita è pieno.</translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation>L&apos;inchiostro o il nastro inchiostrato è quasi esaurito.</translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation>L&apos;inchiostro o il nastro inchiostrato è esaurito.</translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation>Il contenitore degli scarti è quasi pieno.</translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation>Il contenitore degli scarti è pieno.</translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation>La stampante è troppo calda.</translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation>La stampante si sta riscaldando.</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>La stampante è fuori linea.</translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation>I nuovi lavori vengono trattenuti.</translation>
    </message>
    <message>
        <source>The printer was deactivated by its administrator.</source>
        <translation>La stampante è stata disattivata dall&apos;amministratore.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is missing.</source>
        <translation>Manca una parte del driver della stampante.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is not installed securely.</source>
        <translation>Una parte del driver della stampante non è installata in modo sicuro.</translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation>In attesa che la stampante termini il lavoro.</translation>
    </message>
    <message>
        <source>The printer does not conform to its protocol.</source>
        <translation>La stampante non rispetta il suo protocollo.</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Pronta.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Stampa in corso.</translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation>Trovata in rete.</translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation>Stato sconosciuto.</translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation>La coda non accetta lavori.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>Il server comunica: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::server::CupsConnection</name>
    <message>
        <source>Canceled on request.</source>
        <translation>Interrotto su richiesta.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not respond.</source>
        <translation>Il server di stampa &quot;%1&quot; non risponde.</translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation>Impossibile connettersi al server di stampa &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; was lost.</source>
        <translation>La connessione al server di stampa &quot;%1&quot; si è interrotta.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; reports: %2</source>
        <translation>Il server di stampa &quot;%1&quot; comunica: %2</translation>
    </message>
    <message>
        <source>Cannot fetch &quot;%2&quot; from the print server &quot;%1&quot;: %3</source>
        <translation>Il server di stampa &quot;%1&quot; non fornisce &quot;%2&quot;: %3</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>supera %1 MB</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>la connessione si è interrotta a metà</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;, and none was entered.</source>
        <translation>Il server di stampa &quot;%1&quot; richiede una password per l&apos;utente &quot;%2&quot; e non ne è stata indicata alcuna.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no certificate.</source>
        <translation>Il server di stampa &quot;%1&quot; non ha un certificato.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not the one that is trusted for this host. The trusted one has the SHA-256 fingerprint %2, the server&apos;s has %3. The server&apos;s certificate may have been replaced, another print server may run on the same host, or someone may be intercepting the connection. If the server&apos;s administrator confirms the fingerprint, remove the file &quot;%4&quot; and try again.</source>
        <translation>Il certificato del server di stampa &quot;%1&quot; non è quello considerato attendibile per questo host. Quello attendibile ha l’impronta SHA-256 %2, quello del server %3. Il certificato del server potrebbe essere stato sostituito, sullo stesso host potrebbe essere in funzione un altro server di stampa oppure qualcuno potrebbe intercettare la connessione. Se l’amministratore del server conferma l’impronta, eliminare il file &quot;%4&quot; e riprovare.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; with the SHA-256 fingerprint %2 cannot be trusted: %3</source>
        <translation>Il certificato del server di stampa &quot;%1&quot; con l&apos;impronta SHA-256 %2 non può essere considerato attendibile: %3</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2. Its SHA-256 fingerprint is %3. Compare it with the fingerprint that the server&apos;s administrator gives you, and confirm it in the dialog or on a terminal.</source>
        <translation>Il certificato del server di stampa &quot;%1&quot; non è attendibile: %2. La sua impronta SHA-256 è %3. Confrontarla con quella indicata dall&apos;amministratore del server e confermarla quando viene chiesto, nella finestra o su un terminale.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Il nome utente o la password non è corretto.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;. None was sent, because the connection is not encrypted and others could read it. Encrypt the connection (-E), or confirm the question in the dialog or on a terminal.</source>
        <translation>Il server di stampa &quot;%1&quot; richiede una password per l&apos;utente &quot;%2&quot;. Non ne è stata inviata alcuna, perché la connessione non è cifrata e altri potrebbero leggerla. Cifrare la connessione (-E) o confermare quando viene chiesto, nella finestra o su un terminale.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not accept the password of the user &quot;%2&quot;.</source>
        <translation>Il server di stampa &quot;%1&quot; non accetta la password dell&apos;utente &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::server::FailureReason</name>
    <message>
        <source>It cannot store the document: the disk is full, or the document is larger than it accepts.</source>
        <translation>Non può salvare il documento: il disco è pieno oppure il documento è più grande di quanto accetti.</translation>
    </message>
</context>
<context>
    <name>host::documents::LabelDocument</name>
    <message>
        <source>Cannot open the document &quot;%1&quot;: %2</source>
        <translation>Impossibile aprire il documento &quot;%1&quot;: %2</translation>
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
        <source>its encryption is not supported</source>
        <translation>è cifrato in un modo sconosciuto</translation>
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
    <message>
        <source>Cannot open the document on standard input: %1</source>
        <translation>Impossibile aprire il documento dallo standard input: %1</translation>
    </message>
    <message>
        <source>the image is damaged</source>
        <translation>è un&apos;immagine danneggiata</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation>ha %1 × %2 pixel, più di quanti se ne possano stampare</translation>
    </message>
    <message>
        <source>the end of the image is missing</source>
        <translation>è un&apos;immagine a cui manca la fine</translation>
    </message>
    <message>
        <source>No document is specified</source>
        <translation>Nessun documento indicato</translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation>può essere letto una volta sola</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standard input</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e %n altro</numerusform>
            <numerusform>%1 e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>supera %1</translation>
    </message>
    <message>
        <source>it is not a PDF, PNG, JPEG or SVG file</source>
        <translation>non è un PDF, PNG, JPEG o SVG</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>il file è cambiato da quando è stato aperto; aprirlo di nuovo</translation>
    </message>
    <message>
        <source>the PDF is damaged</source>
        <translation>è un PDF danneggiato</translation>
    </message>
    <message>
        <source>it cannot be stored in &quot;%1&quot;: %2</source>
        <translation>non si può salvare in &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>the SVG is damaged</source>
        <translation>è un SVG danneggiato</translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, but other files are not loaded</source>
        <translation>rimanda a &quot;%1&quot;, e si stampa solo ciò che è contenuto nell&apos;SVG stesso</translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation>riga %1 dell&apos;SVG: %2</translation>
    </message>
    <message>
        <source>the SVG is too complex to be drawn</source>
        <translation>è un SVG con più parti di quante se ne possano disegnare</translation>
    </message>
    <message>
        <source>it contains a picture that is neither PNG nor JPEG</source>
        <translation>contiene un&apos;immagine che non è né PNG né JPEG</translation>
    </message>
    <message>
        <source>it contains a damaged picture</source>
        <translation>contiene un&apos;immagine danneggiata</translation>
    </message>
    <message>
        <source>its pictures have more pixels than can be printed</source>
        <translation>contiene immagini con più pixel di quanti se ne possano stampare</translation>
    </message>
    <message>
        <source>the converter &quot;%1&quot; cannot be started</source>
        <translation>impossibile avviare il programma «%1», che lo converte</translation>
    </message>
    <message>
        <source>laying its pages out on labels needs too much memory or time</source>
        <translation>disporre le pagine sulle etichette richiede troppa memoria o troppo tempo</translation>
    </message>
    <message>
        <source>its pages cannot be laid out on labels; the PDF is damaged</source>
        <translation>le pagine non possono essere disposte sulle etichette; il PDF è danneggiato</translation>
    </message>
    <message>
        <source>the program that reads PDFs cannot be started</source>
        <translation>impossibile avviare il programma che legge i PDF</translation>
    </message>
    <message>
        <source>the program that reads PDFs has crashed</source>
        <translation>il programma che legge i PDF si è arrestato in modo anomalo</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>la lettura richiede troppo tempo</translation>
    </message>
    <message>
        <source>it attempts what no document may do</source>
        <translation>tenta di fare ciò che nessun documento può fare</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>la memoria non è sufficiente</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>la password è errata</translation>
    </message>
    <message>
        <source>decrypting it needs too much memory or time</source>
        <translation>la decifratura richiede troppa memoria o troppo tempo</translation>
    </message>
    <message>
        <source>it is encrypted and needs a password</source>
        <translation>è cifrato e richiede una password</translation>
    </message>
</context>
<context>
    <name>host::documents::PrintOrder</name>
    <message>
        <source>Invalid page range &quot;%1&quot;: use numbers and ranges such as 1-3, 5</source>
        <translation>Pagine &quot;%1&quot; non comprese: scrivere numeri e intervalli come 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>Impossibile stampare le pagine &quot;%1&quot;: l&apos;ultima pagina del documento è %2</translation>
    </message>
    <message>
        <source>Nothing to print: no page of the document is selected</source>
        <translation>Non verrebbe stampato nulla: nessuna pagina del documento è scelta</translation>
    </message>
</context>
<context>
    <name>host::labels::LabelDrawing</name>
    <message>
        <source>Page %1 cannot be drawn</source>
        <translation>Impossibile disegnare la pagina %1</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleCatalog</name>
    <message>
        <source>The panel bundle &quot;%1&quot; is not used: %2.</source>
        <translation>Il bundle di pannelli «%1» non viene usato: %2.</translation>
    </message>
    <message>
        <source>The panel bundles in &quot;%1&quot; are not used: %2.</source>
        <translation>I bundle di pannelli in «%1» non vengono usati: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>la cartella non esiste</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>non è una cartella</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleFolders</name>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>«%1» non può essere letto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>«%1» appartiene a un altro utente</translation>
    </message>
    <message>
        <source>other users can write to &quot;%1&quot;; &quot;chmod go-w&quot; prevents it</source>
        <translation>altri utenti possono scrivere in «%1»; «chmod go-w» lo impedisce</translation>
    </message>
</context>
<context>
    <name>host::panels::HostedPanel</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation>&quot;%1&quot; non può salvare le impostazioni: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not allow printing with these settings.</source>
        <translation>&quot;%1&quot; non consente di stampare il lavoro con queste impostazioni.</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>Impossibile usare il bundle &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>its library contains no panels</source>
        <translation>la sua libreria non contiene pannelli</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>è fatto per la versione %1 dell&apos;interfaccia e questo programma ha la %2</translation>
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
        <source>Cannot find the panel bundle; searched %1</source>
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
    <name>host::panels::PanelGuard</name>
    <message>
        <source>an error occurred in &quot;%1&quot;</source>
        <translation>si è verificato un errore in «%1»</translation>
    </message>
    <message>
        <source>an error occurred in &quot;%1&quot;: %2</source>
        <translation>si è verificato un errore in «%1»: %2</translation>
    </message>
</context>
<context>
    <name>host::printer::Constraints</name>
    <message>
        <source>&quot;%1: %2&quot;</source>
        <translation>&quot;%1: %2&quot;</translation>
    </message>
    <message>
        <source>This printer does not support %1.</source>
        <translation>Questa stampante non consente %1.</translation>
    </message>
    <message>
        <source>%1 and %2 conflict.</source>
        <translation>%1 e %2 si escludono a vicenda.</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>impostare &quot;%1&quot; su &quot;%2&quot;</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>Impossibile aprire il file PPD &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, the maximum for a PPD file</source>
        <translation>supera %1 MB, più di qualsiasi descrizione di stampante</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be decompressed</source>
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
        <source>it has %1 statements; the maximum is %2</source>
        <translation>contiene %1 istruzioni; il massimo è %2</translation>
    </message>
    <message>
        <source>it has %1 &quot;%2&quot; statements; the maximum is %3</source>
        <translation>contiene %1 istruzioni &quot;%2&quot;; il massimo è %3</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>finisce a metà di un valore; il file è incompleto</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdOptions</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation>Controllo stampante</translation>
    </message>
</context>
<context>
    <name>host::setup::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation>Lavoro &quot;%1&quot; per &quot;%2&quot; su %3
</translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation>Opzioni che vengono inviate:
</translation>
    </message>
</context>
<context>
    <name>host::setup::JobSummary</name>
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
        <source>all</source>
        <translation>tutte</translation>
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
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>ultima pagina per prima</translation>
    </message>
    <message>
        <source>Page set</source>
        <translation>Di queste</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>le pagine dispari</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>le pagine pari</translation>
    </message>
</context>
<context>
    <name>host::setup::PanelSource</name>
    <message>
        <source>it could not create its panel</source>
        <translation>non ha potuto creare il suo pannello</translation>
    </message>
    <message>
        <source>its panel cannot be shown: its layout file cannot be used</source>
        <translation>il suo pannello non può essere mostrato: il file di layout non è utilizzabile</translation>
    </message>
    <message>
        <source>The panel bundle &quot;%1&quot; does not control %2: another panel or the dialog does, or its description does not list it.</source>
        <translation>Il bundle di pannelli «%1» non controlla %2: lo fa un altro pannello o la finestra, oppure la sua descrizione non lo elenca.</translation>
    </message>
    <message>
        <source>the program ended or was stopped during its &quot;%1&quot; on %2</source>
        <translation>il programma è terminato o è stato fermato durante «%1» il %2</translation>
    </message>
</context>
<context>
    <name>host::setup::Preflight</name>
    <message>
        <source>Page %1 is larger than the label and is printed at %2 % of its size.</source>
        <translation>La pagina %1 è più grande dell’etichetta e viene stampata al %2 % delle sue dimensioni.</translation>
    </message>
    <message>
        <source>Pages %1 are larger than the label and are printed smaller, at %2 % or more.</source>
        <translation>Le pagine %1 sono più grandi dell’etichetta e vengono stampate ridotte, al %2 % o più.</translation>
    </message>
    <message>
        <source>Page %1 has content where the printer cannot print.</source>
        <translation>La pagina %1 ha contenuto dove la stampante non può stampare.</translation>
    </message>
    <message>
        <source>Pages %1 have content where the printer cannot print.</source>
        <translation>Le pagine %1 hanno contenuto dove la stampante non può stampare.</translation>
    </message>
    <message>
        <source>Page %1 is blank.</source>
        <translation>La pagina %1 è vuota.</translation>
    </message>
    <message>
        <source>Pages %1 are blank.</source>
        <translation>Le pagine %1 sono vuote.</translation>
    </message>
    <message>
        <source>The last label is a piece of its own.</source>
        <translation>L’ultima etichetta è un pezzo a sé.</translation>
    </message>
    <message>
        <source>The job needs %1 m of tape.</source>
        <translation>Il lavoro richiede %1 m di nastro.</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>Usa «%1»</translation>
    </message>
    <message>
        <source>Leave out blank pages</source>
        <translation>Ometti le pagine vuote</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>Impossibile disegnare la pagina %1 e stampare il lavoro: %2.</translation>
    </message>
    <message>
        <source>Pages %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>Impossibile disegnare le pagine %1 e stampare il lavoro: %2.</translation>
    </message>
    <message>
        <source>Leave out pages that cannot be drawn</source>
        <translation>Ometti le pagine che non si possono disegnare</translation>
    </message>
    <message>
        <source>The labels are printed mirrored, which is readable only through transparent tape.</source>
        <translation>Le etichette vengono stampate a specchio, leggibili solo attraverso un nastro trasparente.</translation>
    </message>
    <message>
        <source>Turn pages to fit</source>
        <translation>Ruota le pagine per adattarle</translation>
    </message>
    <message>
        <source>Page %1 is printed smaller than in the orientation that fits.</source>
        <translation>La pagina %1 viene stampata più piccola che con l&apos;orientamento adatto.</translation>
    </message>
    <message>
        <source>Pages %1 are printed smaller than in the orientation that fits.</source>
        <translation>Le pagine %1 vengono stampate più piccole che con l&apos;orientamento adatto.</translation>
    </message>
</context>
<context>
    <name>host::setup::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; with this paper and the other cut options; &quot;%3&quot; is used instead.</source>
        <translation>«%1» non può essere «%2» con questa carta e le altre opzioni di taglio, e viene stampato come «%3».</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;, which is your default (lpoptions).</source>
        <translation>La stampante &quot;%1&quot; non ha la carta &quot;%2&quot;, che è il predefinito personale (lpoptions).</translation>
    </message>
</context>
<context>
    <name>host::strip::CutPlan</name>
    <message>
        <source>Labels: %1 · Tape: %2</source>
        <translation>Etichette: %1 · Nastro: %2</translation>
    </message>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>Nessun taglio completo: le etichette escono in un&apos;unica striscia.</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>Taglio completo dopo l&apos;ultima etichetta.</translation>
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
        <source>measuring…</source>
        <comment>a length</comment>
        <translation>misurazione…</translation>
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
        <source>Half cut between the labels of a piece.</source>
        <translation>Mezzo taglio tra le etichette di un pezzo.</translation>
    </message>
    <message>
        <source>Cut marks are printed where there is no full cut.</source>
        <translation>Segni stampati dove non si taglia.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job continues there without a margin.</source>
        <translation>La fine resta nella stampante; il lavoro seguente continua da lì senza margine.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is removed.</source>
        <translation>Il nastro vuoto prima e dopo ogni etichetta viene omesso.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>Le etichette sono speculari.</translation>
    </message>
    <message>
        <source>Cutting is not known: the printer&apos;s description does not say whether it cuts the labels.</source>
        <translation>Il taglio non è noto: la descrizione della stampante non dice se taglia le etichette.</translation>
    </message>
    <message>
        <source>Full cuts after the labels %1.</source>
        <translation>Tagli completi dopo le etichette %1.</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>lavoro seguente</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 su %2, %3</translation>
    </message>
</context>
<context>
    <name>host::strip::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>the folder cannot be created: %1</source>
        <translation>impossibile creare la cartella: %1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>Impossibile scrivere &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>platform::files::OutputFile</name>
    <message>
        <source>it is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>è un collegamento simbolico</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>è un socket</translation>
    </message>
    <message>
        <source>it is a block device</source>
        <translation>è un dispositivo a blocchi</translation>
    </message>
    <message>
        <source>no program reads from it</source>
        <translation>nessuno sta leggendo da lì</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>Provare &quot;kvprint --help&quot;.</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation>Uso: kvprint [OPZIONE]... [--] [DOCUMENTO]...
     kvprint -i [CODA-]LAVORO [OPZIONE]...
     kvprint --list | --summary | --dry-run [OPZIONE]... [--] [DOCUMENTO]...
</translation>
    </message>
    <message>
        <source>Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages and cuts shows the label strip as it will come out of the printer. Without a display, the documents are printed immediately. &quot;-&quot; or no document means standard input.</source>
        <translation>Stampa documenti su stampanti di etichette, con una finestra per carta, pagine e tagli che mostra la striscia di etichette come uscirà. Senza uno schermo stampa subito. PDF, PNG, JPEG e SVG; &quot;-&quot; o niente è lo standard input.</translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation>Opzioni:
</translation>
    </message>
    <message>
        <source>Ends the options; all following arguments are documents.</source>
        <translation>Termina le opzioni: ciò che segue sono documenti.</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;</source>
        <translation>L&apos;opzione &quot;%1&quot; non esiste</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not accept a value</source>
        <translation>L&apos;opzione &quot;%1&quot; non accetta valori</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires a value: %2</source>
        <translation>L&apos;opzione &quot;%1&quot; richiede un valore: %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; applies to the virtual printer and requires &quot;--ppd&quot;</source>
        <translation>L&apos;opzione &quot;%1&quot; riguarda la stampante virtuale e richiede &quot;--ppd&quot;</translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; applies to a job that was already sent and requires &quot;-i&quot;</source>
        <translation>-H: &quot;%1&quot; riguarda un lavoro già inviato e richiede &quot;-i&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not accept documents, but &quot;%2&quot; is specified</source>
        <translation>&quot;%1&quot; non accetta documenti ed è stato indicato &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation>Lo standard input (&quot;-&quot;) può essere stampato una volta sola</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; cannot be combined</source>
        <translation>L&apos;opzione &quot;%1&quot; non è compatibile con &quot;%2&quot;</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires one of: %2</source>
        <translation>L&apos;opzione &quot;%1&quot; è ammessa solo insieme a una di queste: %2</translation>
    </message>
    <message>
        <source>No document is specified; name a file, or &quot;-&quot; for standard input</source>
        <translation>Nessun documento indicato; indicare un file, o &quot;-&quot; per immetterlo da tastiera</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>il valore è vuoto</translation>
    </message>
    <message>
        <source>Invalid time &quot;%1&quot;; use HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation>&quot;%1&quot; non è un&apos;ora di stampa; scrivere HH:MM o HH:MM:SS (UTC), o una di queste parole: %2</translation>
    </message>
    <message>
        <source>Invalid value &quot;%1&quot;; use one of: %2</source>
        <translation>&quot;%1&quot; non è possibile; deve essere uno di questi valori: %2</translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation>non indica alcuna carta</translation>
    </message>
    <message>
        <source>Invalid number of copies &quot;%1&quot;; use 1 to %2</source>
        <translation>&quot;%1&quot; non è un numero di copie; deve essere da 1 a %2</translation>
    </message>
    <message>
        <source>Invalid priority &quot;%1&quot;; use 1 (last) to 100 (first)</source>
        <translation>&quot;%1&quot; non è una priorità; deve essere da 1 (ultimo) a 100 (primo)</translation>
    </message>
    <message>
        <source>Missing queue in &quot;%1&quot;; use QUEUE or QUEUE/INSTANCE</source>
        <translation>&quot;%1&quot; non indica alcuna coda; scrivere CODA o CODA/ISTANZA</translation>
    </message>
    <message>
        <source>Invalid job &quot;%1&quot;; use its number, or QUEUE-NUMBER as in the request id</source>
        <translation>&quot;%1&quot; non è un lavoro; scrivere il suo numero, o CODA-NUMERO come mostrato all&apos;invio</translation>
    </message>
    <message>
        <source>Missing option in &quot;%1&quot;; use NAME=VALUE</source>
        <translation>&quot;%1&quot; non indica alcuna opzione; scrivere NOME=VALORE</translation>
    </message>
    <message>
        <source>The queue to print on, with an instance if needed. Default: the default queue.</source>
        <translation>La coda su cui stampare, con un insieme di opzioni con nome. Senza questa opzione, la coda predefinita.</translation>
    </message>
    <message>
        <source>The print server.</source>
        <translation>Il server di stampa.</translation>
    </message>
    <message>
        <source>The user name for the print server.</source>
        <translation>L&apos;utente per cui si stampa.</translation>
    </message>
    <message>
        <source>Encrypts the connection to the print server.</source>
        <translation>Cifra la connessione al server di stampa.</translation>
    </message>
    <message>
        <source>The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes.</source>
        <translation>Il nome della carta nel PPD, o Custom.LARGHEZZAxLUNGHEZZAmm se la stampante accetta dimensioni libere.</translation>
    </message>
    <message>
        <source>The number of copies.</source>
        <translation>Il numero di copie.</translation>
    </message>
    <message>
        <source>The pages to print, as in 1-3,5,8-.</source>
        <translation>Le pagine da stampare, per esempio 1-3,5,8-.</translation>
    </message>
    <message>
        <source>An option of the PPD or of the print server. Several options are separated by blanks or given one by one.</source>
        <translation>Un&apos;opzione del PPD o del server di stampa; più d&apos;una insieme, separate da spazi, o una alla volta.</translation>
    </message>
    <message>
        <source>The job&apos;s name in the queue.</source>
        <translation>Il nome del lavoro nella coda.</translation>
    </message>
    <message>
        <source>The job&apos;s priority, from 1 to 100 (first).</source>
        <translation>La priorità del lavoro, da 1 a 100 (primo).</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and restart for a job that was already sent.</source>
        <translation>Quando stampare: hold, immediate, HH:MM (UTC), night, weekend e altri; per un lavoro già inviato anche resume e restart.</translation>
    </message>
    <message>
        <source>Sends a mail when the job is finished; implies -s.</source>
        <translation>Invia un messaggio di posta alla fine del lavoro; comprende -s.</translation>
    </message>
    <message>
        <source>Does not print the request id.</source>
        <translation>Non mostra il numero del lavoro.</translation>
    </message>
    <message>
        <source>Ignored, for compatibility with lp: documents are always copied.</source>
        <translation>Ammessa per compatibilità con lp: i documenti vengono sempre copiati.</translation>
    </message>
    <message>
        <source>Changes a job that was already sent.</source>
        <translation>Modifica un lavoro già inviato.</translation>
    </message>
    <message>
        <source>Prints without the dialog, with the settings that it would show.</source>
        <translation>Stampa subito, con le impostazioni con cui si aprirebbe la finestra.</translation>
    </message>
    <message>
        <source>Lists the queues and their states.</source>
        <translation>Elenca le code e il loro stato.</translation>
    </message>
    <message>
        <source>Writes the settings that the dialog would show, without printing.</source>
        <translation>Mostra le impostazioni con cui si aprirebbe la finestra e non stampa nulla.</translation>
    </message>
    <message>
        <source>Prepares the job and writes what would be sent, without sending it.</source>
        <translation>Fa tutto tranne inviare e mostra ciò che verrebbe inviato.</translation>
    </message>
    <message>
        <source>Writes the output as JSON.</source>
        <translation>Lo mostra come JSON.</translation>
    </message>
    <message>
        <source>Sends the job even with conflicts, or with choices that the printer does not have.</source>
        <translation>Invia anche ciò che la stampante non ha e ciò che è incompatibile.</translation>
    </message>
    <message>
        <source>Saves a screenshot of the dialog as a PNG file.</source>
        <translation>Salva un&apos;immagine della finestra, così come si apre, in un file PNG.</translation>
    </message>
    <message>
        <source>Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue.</source>
        <translation>Un file PPD, non compresso o gzip: stampa su una stampante virtuale invece che su una coda.</translation>
    </message>
    <message>
        <source>The folder for strip.pdf and job.json of the virtual printer; created if it does not exist. Default: a new folder among the user&apos;s data.</source>
        <translation>La cartella per strip.pdf e job.json della stampante virtuale, creata se non esiste. Senza questa opzione, una nuova cartella tra i dati dell&apos;utente.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported; documents are sent as PDF</source>
        <translation>&quot;%1&quot; non è possibile; i documenti vengono inviati come PDF</translation>
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
        <translation>Stato di uscita:
  0  stampato, o mostrato ciò che è stato chiesto
  1  qualcosa non si è potuto aprire, usare, inviare o scrivere; nulla è stato
     stampato, a meno che lo standard error dica che il lavoro è stato inviato
     comunque
  2  la riga di comando non è stata compresa
  3  stampato, ma senza il pannello delle opzioni di taglio
  4  annullato nella finestra
  129, 130, 143  interrotto da un segnale prima dell&apos;invio del lavoro
</translation>
    </message>
    <message>
        <source>Cancels a job that an interrupted program left on a print server.</source>
        <translation>Ritira un lavoro che un programma interrotto ha lasciato su un server di stampa.</translation>
    </message>
    <message>
        <source>Releases such a job; it may be incomplete.</source>
        <translation>Stampa ciò che il server di stampa ha di tale lavoro, forse non tutti i documenti.</translation>
    </message>
    <message>
        <source>A panel bundle, or a folder with bundles, to use instead of the installed ones.</source>
        <translation>Un bundle di pannelli, o una cartella con bundle, da usare al posto di quelli installati.</translation>
    </message>
    <message>
        <source>Loads panels again that have ended or blocked the program before.</source>
        <translation>Carica di nuovo i pannelli che prima hanno terminato o bloccato il programma.</translation>
    </message>
    <message>
        <source>Invalid scaling &quot;%1&quot;; use auto, fit, fill or none</source>
        <translation>Scala «%1» non valida; usare auto, fit, fill o none</translation>
    </message>
    <message>
        <source>The kernel has no Landlock: the processes that read documents can read other files.</source>
        <translation>Il kernel non ha Landlock: i processi che leggono i documenti possono leggere altri file.</translation>
    </message>
    <message>
        <source>The kernel has no seccomp: the processes that read documents can use the network and start other processes.</source>
        <translation>Il kernel non ha seccomp: i processi che leggono i documenti possono usare la rete e avviare altri processi.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::Console</name>
    <message>
        <source>The job was sent nevertheless, as %1-%2.</source>
        <translation>Il lavoro è stato inviato comunque, come %1-%2.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation>(predefinita)</translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation>Classe composta da: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destinations</source>
        <translation>Il server di stampa &quot;%1&quot; non ha alcuna destinazione su cui stampare</translation>
    </message>
    <message>
        <source>To resolve the conflict: %1</source>
        <translation>Soluzione possibile: %1</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no default destination; specify one with &quot;-d&quot;</source>
        <translation>Il server di stampa &quot;%1&quot; non ha una destinazione predefinita; indicarne una con &quot;-d&quot;</translation>
    </message>
    <message>
        <source>Stopped by a signal; nothing was printed.</source>
        <translation>Interrotto da un segnale; non è stato stampato nulla.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::LeftJobsRun</name>
    <message>
        <source>&quot;kvprint --cancel-left %1&quot; cancels it, &quot;kvprint --release-left %1&quot; releases it.</source>
        <translation>&quot;kvprint --cancel-left %1&quot; lo ritira, &quot;kvprint --release-left %1&quot; stampa ciò che il server ne ha.</translation>
    </message>
    <message>
        <source>Jobs &quot;%1&quot; are left on several print servers; specify one of: %2</source>
        <translation>Sono rimasti lavori &quot;%1&quot; su più server di stampa; indicare uno di questi: %2</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are no such jobs</source>
        <translation>Non c’è alcun lavoro &quot;%1&quot; lasciato da un programma interrotto; non ne è rimasto nessuno</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are these: %2</source>
        <translation>Non c’è alcun lavoro &quot;%1&quot; lasciato da un programma interrotto; sono rimasti questi: %2</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>Il file PPD &quot;%1&quot; non ha la carta &quot;%2&quot;; ha: %3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; defines no paper</source>
        <translation>Il file PPD &quot;%1&quot; non indica alcuna carta</translation>
    </message>
    <message>
        <source>The label strip was written to:</source>
        <translation>La striscia di etichette è in:</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::StandardStreams</name>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>Impossibile scrivere sullo standard output: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalPassword</name>
    <message>
        <source>Password for the document on standard input:</source>
        <translation>Password del documento sullo standard input:</translation>
    </message>
    <message>
        <source>Password for the document &quot;%1&quot;:</source>
        <translation>Password del documento &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>La password è errata.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalTrust</name>
    <message>
        <source>Type &quot;%1&quot; to continue:</source>
        <translation>Digitare &quot;%1&quot; per continuare:</translation>
    </message>
</context>
</TS>
