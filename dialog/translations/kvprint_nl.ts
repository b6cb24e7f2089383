<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>dialog::job::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation>Printerklasse: %1</translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation>P&amp;rinter</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation>Die printer bestaat niet.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>Wachten op antwoord van de printserver…</translation>
    </message>
    <message>
        <source>Last known state: %1</source>
        <translation>De vorige keer: %1</translation>
    </message>
    <message>
        <source>The print server does not respond. Last known state: %1</source>
        <translation>De printserver antwoordt niet. De vorige keer: %1</translation>
    </message>
    <message>
        <source>The print server does not respond.</source>
        <translation>De printserver antwoordt niet.</translation>
    </message>
    <message>
        <source>The print server requires a password.</source>
        <translation>De printserver vraagt een wachtwoord.</translation>
    </message>
    <message>
        <source>The print server requires a password. Last known state: %1</source>
        <translation>De printserver vraagt een wachtwoord. De vorige keer: %1</translation>
    </message>
    <message>
        <source>The print server is not trusted.</source>
        <translation>De printserver wordt niet vertrouwd.</translation>
    </message>
    <message>
        <source>The print server is not trusted. Last known state: %1</source>
        <translation>De printserver wordt niet vertrouwd. De vorige keer: %1</translation>
    </message>
</context>
<context>
    <name>dialog::job::DocumentPasswordDialog</name>
    <message>
        <source>Password for the document</source>
        <translation>Wachtwoord voor het document</translation>
    </message>
    <message>
        <source>The document on standard input is encrypted.</source>
        <translation>Het document op de standaardinvoer is versleuteld.</translation>
    </message>
    <message>
        <source>The document &quot;%1&quot; is encrypted.</source>
        <translation>Het document &quot;%1&quot; is versleuteld.</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Het wachtwoord is onjuist.</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Wachtwoord</translation>
    </message>
</context>
<context>
    <name>dialog::job::ErrorBanner</name>
    <message>
        <source>Try again</source>
        <translation>Opnieuw proberen</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobPage</name>
    <message>
        <source>Print time</source>
        <translation>Tijdstip van afdrukken</translation>
    </message>
    <message>
        <source>Queue default</source>
        <translation>Standaard van de wachtrij</translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation>Van 1 tot 100; taken met een hogere prioriteit worden vóór andere afgedrukt</translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation>Taak&amp;naam</translation>
    </message>
    <message>
        <source>Orienta&amp;tion</source>
        <translation>Afdr&amp;ukstand</translation>
    </message>
    <message>
        <source>When to pr&amp;int</source>
        <translation>&amp;Wanneer</translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation>Pr&amp;ioriteit</translation>
    </message>
    <message>
        <source>Printer default</source>
        <translation>Standaard van de printer</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Staand</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Liggend</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Liggend omgekeerd</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Staand omgekeerd</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Als ik de taak vrijgeef</translation>
    </message>
    <message>
        <source>At a specific time</source>
        <translation>Op een tijdstip</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Overdag</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>&apos;s Avonds</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>&apos;s Nachts</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Tijdens de tweede dienst</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Tijdens de derde dienst</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>In het weekend</translation>
    </message>
    <message>
        <source>Page si&amp;ze</source>
        <translation>&amp;Paginagrootte</translation>
    </message>
    <message>
        <source>Shrink pages larger than the label</source>
        <translation>Pagina’s die groter zijn dan het label verkleinen</translation>
    </message>
    <message>
        <source>Fit to the printable area</source>
        <translation>Aan afdrukgebied aanpassen</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Label vullen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Werkelijke grootte</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobWindow</name>
    <message>
        <source>The job was sent.</source>
        <translation>De taak is verzonden.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 op %2</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Taak %1: %2</translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation>&amp;Taak annuleren</translation>
    </message>
</context>
<context>
    <name>dialog::job::LeftJobBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Verbergen</translation>
    </message>
    <message>
        <source>Cancel the job</source>
        <translation>Taak terugnemen</translation>
    </message>
    <message>
        <source>Release the job</source>
        <translation>Taak vrijgeven</translation>
    </message>
</context>
<context>
    <name>dialog::job::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>Per se&amp;t</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Eerst alle pagina&apos;s één keer, dan opnieuw; anders alle exemplaren van een pagina bij elkaar</translation>
    </message>
    <message>
        <source>all, or ranges: 1-3, 5</source>
        <translation>alle, of bijv. 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Exemplaren</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>Pa&amp;gina&apos;s</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>Laatste pagina eerst</translation>
    </message>
</context>
<context>
    <name>dialog::job::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation>Wachtwoord voor de printserver</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Gebruikersnaam</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Wachtwoord</translation>
    </message>
</context>
<context>
    <name>dialog::job::SendBar</name>
    <message>
        <source>Cancel sending</source>
        <translation>Verzenden stoppen</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>&quot;%1&quot; wordt verzonden</translation>
    </message>
</context>
<context>
    <name>dialog::job::SummaryPage</name>
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
    <name>dialog::job::TicketPage</name>
    <message>
        <source>Option</source>
        <translation>Optie</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Herkomst</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Verzonden</translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation>Opties van de taak</translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation>Dezelfde taak op de o&amp;pdrachtregel</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Kop&amp;iëren</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>De opdracht kopiëren</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nee</translation>
    </message>
</context>
<context>
    <name>dialog::job::TrustText</name>
    <message>
        <source>Connection without encryption</source>
        <translation>Verbinding zonder versleuteling</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password, and the connection to it is not encrypted.</source>
        <translation>De printserver &quot;%1&quot; vraagt een wachtwoord en de verbinding is niet versleuteld.</translation>
    </message>
    <message>
        <source>Others on the network can read the password.</source>
        <translation>Anderen op het netwerk kunnen het wachtwoord lezen.</translation>
    </message>
    <message>
        <source>Send anyway</source>
        <translation>Toch verzenden</translation>
    </message>
    <message>
        <source>Certificate of the print server</source>
        <translation>Certificaat van de printserver</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2.</source>
        <translation>Het certificaat van de printserver &quot;%1&quot; wordt niet vertrouwd: %2.</translation>
    </message>
    <message>
        <source>Its SHA-256 fingerprint is:
%1

Trust it only if the server&apos;s administrator confirms this fingerprint. It stays trusted for later connections.</source>
        <translation>De SHA-256-vingerafdruk is:
%1

Vertrouw het alleen als de beheerder van de server dezelfde vingerafdruk noemt. Het wordt vanaf dan vertrouwd.</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>Vertrouwen</translation>
    </message>
</context>
<context>
    <name>dialog::job::VirtualSender</name>
    <message>
        <source>The PPD file defines no paper</source>
        <translation>Het PPD-bestand noemt geen papier om op af te drukken</translation>
    </message>
</context>
<context>
    <name>dialog::options::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation>niet ingesteld</translation>
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
        <translation>De printer kan dit niet allemaal tegelijk.</translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation>Toch afdrukken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>dialog::options::CustomValueFields</name>
    <message numerus="yes">
        <source>&quot;%1&quot; needs at least %n character(s). Until then, the previous value is used.</source>
        <translation>
            <numerusform>&quot;%1&quot; heeft minstens %n teken nodig. Tot dan blijft de instelling zoals ze was.</numerusform>
            <numerusform>&quot;%1&quot; heeft minstens %n tekens nodig. Tot dan blijft de instelling zoals ze was.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::options::OptionsPage</name>
    <message>
        <source>Option groups</source>
        <translation>Groepen opties</translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation>Deze printer heeft geen andere opties.</translation>
    </message>
</context>
<context>
    <name>dialog::paper::CustomPaperFields</name>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest length</comment>
        <translation>%1 tot %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Papierbreedte</translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation>Papierlengte</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>&amp;Breedte</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>&amp;Lengte</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperChooser</name>
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
    <message>
        <source>Custom, %1</source>
        <comment>a size</comment>
        <translation>Aangepast, %1</translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation>Documentgrootte gebruiken: %1</translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation>Een aangepast formaat</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation>%1 breed</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>%1 breed, %2 lang</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Aangepast formaat…</translation>
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
        <translation>inch</translation>
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
        <translation>Printer: %1</translation>
    </message>
</context>
<context>
    <name>dialog::window::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation>Opties, voorbeeld en samenvatting</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Pagina&amp;voorbeeld</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Samenvatting</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>Taa&amp;k</translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation>Te ver&amp;zenden</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opties</translation>
    </message>
</context>
<context>
    <name>dialog::window::PagePreview</name>
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
    <name>dialog::window::PanelBanner</name>
    <message>
        <source>The printer&apos;s options are listed on the page &quot;Options&quot;.</source>
        <translation>De opties van de printer staan op de pagina ‘Opties’.</translation>
    </message>
    <message>
        <source>Load It Again</source>
        <translation>Opnieuw laden</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelPage</name>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
</context>
<context>
    <name>dialog::window::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 afdrukken</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>The printer has no description (PPD); its papers and cuts are not known.</source>
        <translation>De printer heeft geen beschrijving; het papier en de sneden zijn hier daarom niet bekend.</translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation>Wachten op de beschrijving van de printer…</translation>
    </message>
    <message>
        <source>No printer is selected.</source>
        <translation>Er is geen printer gekozen.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>Wachten op antwoord van de printserver…</translation>
    </message>
    <message>
        <source>The printer&apos;s description is not known.</source>
        <translation>De beschrijving van de printer is niet bekend.</translation>
    </message>
</context>
<context>
    <name>dialog::window::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Labelstrook</translation>
    </message>
</context>
<context>
    <name>host::base::OutOfMemory</name>
    <message>
        <source>Out of memory; nothing was printed.</source>
        <translation>Onvoldoende geheugen; er is niets afgedrukt.</translation>
    </message>
    <message>
        <source>Out of memory; the job may be incomplete, or left on the print server.</source>
        <translation>Onvoldoende geheugen; de taak is misschien onvolledig of op de afdrukserver achtergebleven.</translation>
    </message>
    <message>
        <source>Out of memory. The job was sent nevertheless.</source>
        <translation>Onvoldoende geheugen. De taak is toch verzonden.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation>De printer &quot;%1&quot; heeft geen optie &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation>De printer &quot;%1&quot; heeft geen papier &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation>De optie &quot;%1&quot; van de printer &quot;%2&quot; heeft geen keuze &quot;%3&quot;; wel: %4</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print on the paper &quot;%2&quot;: its size is %3 × %4 points; width and length must be greater than 0, one of them at most %5 m, the other at most %6 m.</source>
        <translation>De printer &quot;%1&quot; kan niet op het papier &quot;%2&quot; afdrukken: het formaat is %3 × %4 punten; breedte en lengte moeten groter zijn dan 0, de ene hoogstens %5 m en de andere hoogstens %6 m.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation>Kan het document &quot;%1&quot; niet lezen: %2</translation>
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
        <source>it has become shorter while it was read</source>
        <translation>het is tijdens het lezen korter geworden</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>het bestand is gewijzigd sinds het is geopend; open het opnieuw</translation>
    </message>
    <message>
        <source>it has changed while it was read</source>
        <translation>het is tijdens het lezen gewijzigd</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobChange</name>
    <message>
        <source>It is printed again, but held. %1</source>
        <translation>De taak moet opnieuw worden afgedrukt, maar wordt vastgehouden. %1</translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation>Taak %1 is niet gewijzigd. %2</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Geen printserver kan de keuze &quot;%1&quot; van de optie &quot;%2&quot; doorgeven.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobFate</name>
    <message>
        <source>%1 A job &quot;%2&quot; without documents may be left in the queue &quot;%3&quot; of the print server &quot;%4&quot;; it prints nothing.</source>
        <translation>%1 In de wachtrij &quot;%3&quot; van de printserver &quot;%4&quot; kan een taak &quot;%2&quot; zonder documenten zijn achtergebleven; daarvan wordt niets afgedrukt.</translation>
    </message>
    <message>
        <source>%1 The print server &quot;%2&quot; has all documents of job %3-%4, but did not report whether it released the job: it is printed, or it is still held. Check the queue before you print again.</source>
        <translation>%1 De printserver &quot;%2&quot; heeft alle documenten van taak %3-%4 en heeft niet gemeld of hij de taak vrijgeeft: de taak wordt afgedrukt, of ze wordt vastgehouden en niet afgedrukt. Kijk in de wachtrij voordat u opnieuw afdrukt.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 on the print server &quot;%4&quot; may have been printed; check the queue before you print again.</source>
        <translation>%1 Taak %2-%3 op de printserver &quot;%4&quot; kan afgedrukt zijn; kijk in de wachtrij voordat u opnieuw afdrukt.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; it is held on the print server &quot;%4&quot; and is not printed unless it is released.</source>
        <translation>%1 Taak %2-%3 kon niet worden teruggenomen; de taak wordt op de printserver &quot;%4&quot; vastgehouden en niet afgedrukt zolang ze niet wordt vrijgegeven.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; check the queue before you print again.</source>
        <translation>%1 Taak %2-%3 kon niet worden teruggenomen; kijk in de wachtrij voordat u opnieuw afdrukt.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3: %4</source>
        <translation>%1 Taak %2-%3: %4</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobJournal</name>
    <message>
        <source>The record &quot;%1&quot; of an interrupted job was damaged and has been removed. Check your queues for a held job.</source>
        <translation>Het bestand &quot;%1&quot; over een taak die werd verzonden, is beschadigd en verwijderd; kijk in uw wachtrijen of er een taak is achtergebleven.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation>standaard van de printer</translation>
    </message>
    <message>
        <source>queue default</source>
        <translation>standaard van de wachtrij</translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation>uw standaard (lpoptions)</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>voorinstelling</translation>
    </message>
    <message>
        <source>cut options</source>
        <translation>snijopties</translation>
    </message>
    <message>
        <source>set by you</source>
        <translation>door u ingesteld</translation>
    </message>
    <message>
        <source>page layout</source>
        <translation>pagina-indeling</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobSettings</name>
    <message>
        <source>Cannot print the job: it has more than %1 labels</source>
        <translation>Zoveel labels kunnen niet tegelijk worden afgedrukt: een taak heeft er hoogstens %1</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation>Vastgehouden tot de taak wordt vrijgegeven.</translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation>Vastgehouden tot %1.</translation>
    </message>
    <message>
        <source>Waiting in the queue.</source>
        <translation>Staat in de wachtrij.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Wordt afgedrukt.</translation>
    </message>
    <message>
        <source>Stopped; it continues when the printer is ready.</source>
        <translation>Gestopt; de taak gaat verder als de printer weer gereed is.</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Geannuleerd.</translation>
    </message>
    <message>
        <source>Aborted by the print server.</source>
        <translation>Door de printserver afgebroken.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Afgedrukt.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>De server meldt: %1</translation>
    </message>
    <message>
        <source>The job is finished; the print server keeps no record of it.</source>
        <translation>De taak is klaar; de printserver bewaart er niets van.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobUpload</name>
    <message>
        <source>There is no document to print.</source>
        <translation>Er is geen document om af te drukken.</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Geen printserver kan de keuze &quot;%1&quot; van de optie &quot;%2&quot; doorgeven.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; did not receive all of &quot;%2&quot;.</source>
        <translation>De printserver &quot;%1&quot; heeft &quot;%2&quot; niet helemaal aangenomen.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LeftJob</name>
    <message>
        <source>The print server &quot;%1&quot; no longer has the job &quot;%2&quot; in the queue &quot;%3&quot;, or the job is finished.</source>
        <translation>De printserver &quot;%1&quot; heeft geen taak &quot;%2&quot; meer in de wachtrij &quot;%3&quot;, of ze is afgelopen.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is not held: %4</source>
        <translation>Taak %1-%2 op de printserver &quot;%3&quot; wordt niet vastgehouden: %4</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is released.</source>
        <translation>Taak %1-%2 op de printserver &quot;%3&quot; is vrijgegeven.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is canceled.</source>
        <translation>Taak %1-%2 op de printserver &quot;%3&quot; is teruggenomen.</translation>
    </message>
    <message>
        <source>An interrupted program may have left job %1 (&quot;%2&quot;) on the print server &quot;%3&quot;; the job may be incomplete.</source>
        <translation>Een programma dat tijdens het afdrukken werd gestopt, heeft misschien taak %1 (&quot;%2&quot;) op de printserver &quot;%3&quot; achtergelaten, mogelijk zonder alle documenten.</translation>
    </message>
    <message>
        <source>An interrupted program may have left a job &quot;%1&quot; without documents in the queue &quot;%2&quot; of the print server &quot;%3&quot;.</source>
        <translation>Een programma dat tijdens het afdrukken werd gestopt, heeft misschien een taak &quot;%1&quot; zonder documenten in de wachtrij &quot;%2&quot; van de printserver &quot;%3&quot; achtergelaten.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LpCommand</name>
    <message>
        <source>lp cannot express these options: %1</source>
        <translation>lp kan deze opties niet opgeven zoals ze worden verzonden: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::DiscoveredQueue</name>
    <message>
        <source>The print server &quot;%1&quot; cannot reach the printer &quot;%2&quot;.</source>
        <translation>De printserver &quot;%1&quot; kan de printer &quot;%2&quot; niet bereiken.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer on the network.</source>
        <translation>De printer &quot;%1&quot; is niet meer op het netwerk.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation>De printserver &quot;%1&quot; heeft geen wachtrij of klasse &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueText</name>
    <message>
        <source>The printer needs labels or tape.</source>
        <translation>De printer wacht op labels of tape.</translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation>Labels of tape zijn vastgelopen.</translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation>De labelrol of tape is bijna op.</translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation>De labelrol of tape is op.</translation>
    </message>
    <message>
        <source>The printer is pausing.</source>
        <translation>De printer wordt zo gepauzeerd.</translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation>De wachtrij is gepauzeerd; taken wachten.</translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation>De printer is uitgeschakeld.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Verbinding met de printer wordt gemaakt.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>De printer reageert niet.</translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation>De printer stopt.</translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation>Enkele printers van de klasse zijn gestopt.</translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation>De toner is bijna op.</translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation>De toner is op.</translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation>De printserver heeft geen ruimte meer.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation>De klep van de printer staat open.</translation>
    </message>
    <message>
        <source>An interlock of the printer is open.</source>
        <translation>Een vergrendeling van de printer staat open.</translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation>De deur van de printer staat open.</translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation>De cassette of rolhouder ontbreekt.</translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation>De uitvoerlade ontbreekt.</translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation>De uitvoerlade is bijna vol.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>De uitvoerlade is vol.</translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation>De inkt of het lint is bijna op.</translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation>De inkt of het lint is op.</translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation>De afvalbak is bijna vol.</translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation>De afvalbak is vol.</translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation>De printer is te heet.</translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation>De printer warmt op.</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>De printer is offline.</translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation>Nieuwe taken worden vastgehouden.</translation>
    </message>
    <message>
        <source>The printer was deactivated by its administrator.</source>
        <translation>De printer is door de beheerder uitgeschakeld.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is missing.</source>
        <translation>Een deel van het printerstuurprogramma ontbreekt.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is not installed securely.</source>
        <translation>Een deel van het printerstuurprogramma is niet veilig geïnstalleerd.</translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation>Wachten tot de printer de taak heeft voltooid.</translation>
    </message>
    <message>
        <source>The printer does not conform to its protocol.</source>
        <translation>De printer houdt zich niet aan zijn protocol.</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Gereed.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Bezig met afdrukken.</translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation>Op het netwerk gevonden.</translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation>Toestand onbekend.</translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation>De wachtrij accepteert geen taken.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>De server meldt: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::server::CupsConnection</name>
    <message>
        <source>Canceled on request.</source>
        <translation>Op verzoek afgebroken.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not respond.</source>
        <translation>De printserver &quot;%1&quot; antwoordt niet.</translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation>Kan geen verbinding maken met de printserver &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; was lost.</source>
        <translation>De verbinding met de printserver &quot;%1&quot; is verbroken.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; reports: %2</source>
        <translation>De printserver &quot;%1&quot; meldt: %2</translation>
    </message>
    <message>
        <source>Cannot fetch &quot;%2&quot; from the print server &quot;%1&quot;: %3</source>
        <translation>De printserver &quot;%1&quot; levert &quot;%2&quot; niet: %3</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>het bestand is groter dan %1 MB</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>de verbinding werd halverwege verbroken</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;, and none was entered.</source>
        <translation>De printserver &quot;%1&quot; vraagt een wachtwoord voor de gebruiker &quot;%2&quot;, maar er is geen opgegeven.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no certificate.</source>
        <translation>De printserver &quot;%1&quot; heeft geen certificaat.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not the one that is trusted for this host. The trusted one has the SHA-256 fingerprint %2, the server&apos;s has %3. The server&apos;s certificate may have been replaced, another print server may run on the same host, or someone may be intercepting the connection. If the server&apos;s administrator confirms the fingerprint, remove the file &quot;%4&quot; and try again.</source>
        <translation>Het certificaat van de printserver &quot;%1&quot; is niet het certificaat dat voor deze host wordt vertrouwd. Het vertrouwde heeft de SHA-256-vingerafdruk %2, dat van de server heeft %3. Mogelijk is het certificaat van de server vervangen, draait er een andere printserver op dezelfde host of onderschept iemand de verbinding. Als de beheerder van de server de vingerafdruk bevestigt, verwijder dan het bestand &quot;%4&quot; en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; with the SHA-256 fingerprint %2 cannot be trusted: %3</source>
        <translation>Het certificaat van de printserver &quot;%1&quot; met de SHA-256-vingerafdruk %2 mag niet worden vertrouwd: %3</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2. Its SHA-256 fingerprint is %3. Compare it with the fingerprint that the server&apos;s administrator gives you, and confirm it in the dialog or on a terminal.</source>
        <translation>Het certificaat van de printserver &quot;%1&quot; wordt niet vertrouwd: %2. De SHA-256-vingerafdruk is %3. Vergelijk die met de vingerafdruk die de beheerder van de server noemt en bevestig die wanneer erom wordt gevraagd, in het venster of op een terminal.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;. None was sent, because the connection is not encrypted and others could read it. Encrypt the connection (-E), or confirm the question in the dialog or on a terminal.</source>
        <translation>De printserver &quot;%1&quot; vraagt een wachtwoord voor de gebruiker &quot;%2&quot;. Er is er geen verzonden, omdat de verbinding niet is versleuteld en anderen het zouden kunnen lezen. Versleutel de verbinding (-E) of bevestig het wanneer erom wordt gevraagd, in het venster of op een terminal.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not accept the password of the user &quot;%2&quot;.</source>
        <translation>De printserver &quot;%1&quot; accepteert het wachtwoord van de gebruiker &quot;%2&quot; niet.</translation>
    </message>
</context>
<context>
    <name>host::cups::server::FailureReason</name>
    <message>
        <source>It cannot store the document: the disk is full, or the document is larger than it accepts.</source>
        <translation>Hij kan het document niet opslaan: de schijf is vol, of het document is groter dan hij accepteert.</translation>
    </message>
</context>
<context>
    <name>host::documents::LabelDocument</name>
    <message>
        <source>Cannot open the document &quot;%1&quot;: %2</source>
        <translation>Kan het document &quot;%1&quot; niet openen: %2</translation>
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
        <source>its encryption is not supported</source>
        <translation>het is op een onbekende manier versleuteld</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>het heeft geen pagina&apos;s</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>pagina %1 heeft geen oppervlak</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>pagina %1 is langer dan %2 m</translation>
    </message>
    <message>
        <source>Cannot open the document on standard input: %1</source>
        <translation>Kan het document van de standaardinvoer niet openen: %1</translation>
    </message>
    <message>
        <source>the image is damaged</source>
        <translation>het is een beschadigde afbeelding</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation>het heeft %1 × %2 pixels, meer dan kan worden afgedrukt</translation>
    </message>
    <message>
        <source>the end of the image is missing</source>
        <translation>het is een afbeelding waarvan het einde ontbreekt</translation>
    </message>
    <message>
        <source>No document is specified</source>
        <translation>Er is geen document opgegeven</translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation>die kan maar één keer worden gelezen</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>standaardinvoer</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 en nog %n</numerusform>
            <numerusform>%1 en nog %n</numerusform>
        </translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>het is groter dan %1</translation>
    </message>
    <message>
        <source>it is not a PDF, PNG, JPEG or SVG file</source>
        <translation>het is geen PDF, PNG, JPEG of SVG</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>het bestand is gewijzigd sinds het is geopend; open het opnieuw</translation>
    </message>
    <message>
        <source>the PDF is damaged</source>
        <translation>het is een beschadigde PDF</translation>
    </message>
    <message>
        <source>it cannot be stored in &quot;%1&quot;: %2</source>
        <translation>het kan niet in &quot;%1&quot; worden bewaard: %2</translation>
    </message>
    <message>
        <source>the SVG is damaged</source>
        <translation>het is een beschadigde SVG</translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, but other files are not loaded</source>
        <translation>het verwijst naar &quot;%1&quot;, en alleen wat in de SVG zelf staat wordt afgedrukt</translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation>regel %1 van de SVG: %2</translation>
    </message>
    <message>
        <source>the SVG is too complex to be drawn</source>
        <translation>het is een SVG met meer onderdelen dan kunnen worden getekend</translation>
    </message>
    <message>
        <source>it contains a picture that is neither PNG nor JPEG</source>
        <translation>het bevat een afbeelding die geen PNG of JPEG is</translation>
    </message>
    <message>
        <source>it contains a damaged picture</source>
        <translation>het bevat een beschadigde afbeelding</translation>
    </message>
    <message>
        <source>its pictures have more pixels than can be printed</source>
        <translation>het bevat afbeeldingen met meer pixels dan kunnen worden afgedrukt</translation>
    </message>
    <message>
        <source>the converter &quot;%1&quot; cannot be started</source>
        <translation>het programma “%1”, dat het omzet, kan niet worden gestart</translation>
    </message>
    <message>
        <source>laying its pages out on labels needs too much memory or time</source>
        <translation>de pagina’s op labels plaatsen kost te veel geheugen of tijd</translation>
    </message>
    <message>
        <source>its pages cannot be laid out on labels; the PDF is damaged</source>
        <translation>de pagina’s kunnen niet op labels worden geplaatst; de pdf is beschadigd</translation>
    </message>
    <message>
        <source>the program that reads PDFs cannot be started</source>
        <translation>het programma dat PDF&apos;s leest, kan niet worden gestart</translation>
    </message>
    <message>
        <source>the program that reads PDFs has crashed</source>
        <translation>het programma dat PDF&apos;s leest, is vastgelopen</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>het lezen duurt te lang</translation>
    </message>
    <message>
        <source>it attempts what no document may do</source>
        <translation>het probeert wat geen document mag doen</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>er is niet genoeg geheugen</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>het wachtwoord is onjuist</translation>
    </message>
    <message>
        <source>decrypting it needs too much memory or time</source>
        <translation>het ontsleutelen kost te veel geheugen of tijd</translation>
    </message>
    <message>
        <source>it is encrypted and needs a password</source>
        <translation>het is versleuteld en vereist een wachtwoord</translation>
    </message>
</context>
<context>
    <name>host::documents::PrintOrder</name>
    <message>
        <source>Invalid page range &quot;%1&quot;: use numbers and ranges such as 1-3, 5</source>
        <translation>De pagina&apos;s &quot;%1&quot; zijn onbegrijpelijk: schrijf getallen en bereiken zoals 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>Kan de pagina&apos;s &quot;%1&quot; niet afdrukken: de laatste pagina van het document is %2</translation>
    </message>
    <message>
        <source>Nothing to print: no page of the document is selected</source>
        <translation>Er zou niets worden afgedrukt: er is geen pagina van het document gekozen</translation>
    </message>
</context>
<context>
    <name>host::labels::LabelDrawing</name>
    <message>
        <source>Page %1 cannot be drawn</source>
        <translation>Pagina %1 kan niet worden getekend</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleCatalog</name>
    <message>
        <source>The panel bundle &quot;%1&quot; is not used: %2.</source>
        <translation>De paneelbundel ‘%1’ wordt niet gebruikt: %2.</translation>
    </message>
    <message>
        <source>The panel bundles in &quot;%1&quot; are not used: %2.</source>
        <translation>De paneelbundels in ‘%1’ worden niet gebruikt: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>die map bestaat niet</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>het is geen map</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleFolders</name>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>‘%1’ kan niet worden gelezen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>‘%1’ is van een andere gebruiker</translation>
    </message>
    <message>
        <source>other users can write to &quot;%1&quot;; &quot;chmod go-w&quot; prevents it</source>
        <translation>andere gebruikers kunnen in ‘%1’ schrijven; ‘chmod go-w’ voorkomt dat</translation>
    </message>
</context>
<context>
    <name>host::panels::HostedPanel</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation>&quot;%1&quot; kan de instellingen niet opslaan: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not allow printing with these settings.</source>
        <translation>&quot;%1&quot; laat de taak met deze instellingen niet afdrukken.</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>Kan de bundel &quot;%1&quot; niet gebruiken: %2</translation>
    </message>
    <message>
        <source>its library contains no panels</source>
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
        <source>Cannot find the panel bundle; searched %1</source>
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
    <name>host::panels::PanelGuard</name>
    <message>
        <source>an error occurred in &quot;%1&quot;</source>
        <translation>er is een fout opgetreden in ‘%1’</translation>
    </message>
    <message>
        <source>an error occurred in &quot;%1&quot;: %2</source>
        <translation>er is een fout opgetreden in ‘%1’: %2</translation>
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
        <translation>Deze printer kan %1 niet aan.</translation>
    </message>
    <message>
        <source>%1 and %2 conflict.</source>
        <translation>%1 en %2 sluiten elkaar uit.</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>zet &quot;%1&quot; op &quot;%2&quot;</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>Kan het PPD-bestand &quot;%1&quot; niet openen: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>regel %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, the maximum for a PPD file</source>
        <translation>het is groter dan %1 MB, meer dan enige printerbeschrijving</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be decompressed</source>
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
        <source>it has %1 statements; the maximum is %2</source>
        <translation>het bevat %1 instructies; het maximum is %2</translation>
    </message>
    <message>
        <source>it has %1 &quot;%2&quot; statements; the maximum is %3</source>
        <translation>het bevat %1 instructies &quot;%2&quot;; het maximum is %3</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>het eindigt midden in een waarde; het bestand is onvolledig</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdOptions</name>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation>Printerbesturing</translation>
    </message>
</context>
<context>
    <name>host::setup::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation>Taak &quot;%1&quot; voor &quot;%2&quot; op %3
</translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation>Opties die worden verzonden:
</translation>
    </message>
</context>
<context>
    <name>host::setup::JobSummary</name>
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
        <translation>Pagina&apos;s</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
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
        <source>Order</source>
        <translation>Volgorde</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>laatste pagina eerst</translation>
    </message>
    <message>
        <source>Page set</source>
        <translation>Daarvan</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>de oneven pagina’s</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>de even pagina’s</translation>
    </message>
</context>
<context>
    <name>host::setup::PanelSource</name>
    <message>
        <source>it could not create its panel</source>
        <translation>het kon zijn paneel niet maken</translation>
    </message>
    <message>
        <source>its panel cannot be shown: its layout file cannot be used</source>
        <translation>het paneel kan niet worden getoond: het lay-outbestand is onbruikbaar</translation>
    </message>
    <message>
        <source>The panel bundle &quot;%1&quot; does not control %2: another panel or the dialog does, or its description does not list it.</source>
        <translation>De paneelbundel ‘%1’ bestuurt %2 niet: een ander paneel of het dialoogvenster doet dat, of de beschrijving noemt het niet.</translation>
    </message>
    <message>
        <source>the program ended or was stopped during its &quot;%1&quot; on %2</source>
        <translation>het programma is op %2 tijdens ‘%1’ beëindigd of gestopt</translation>
    </message>
</context>
<context>
    <name>host::setup::Preflight</name>
    <message>
        <source>Page %1 is larger than the label and is printed at %2 % of its size.</source>
        <translation>Pagina %1 is groter dan het label en wordt op %2 % van de grootte afgedrukt.</translation>
    </message>
    <message>
        <source>Pages %1 are larger than the label and are printed smaller, at %2 % or more.</source>
        <translation>De pagina’s %1 zijn groter dan het label en worden verkleind afgedrukt, op %2 % of meer.</translation>
    </message>
    <message>
        <source>Page %1 has content where the printer cannot print.</source>
        <translation>Pagina %1 heeft inhoud waar de printer niet kan afdrukken.</translation>
    </message>
    <message>
        <source>Pages %1 have content where the printer cannot print.</source>
        <translation>De pagina’s %1 hebben inhoud waar de printer niet kan afdrukken.</translation>
    </message>
    <message>
        <source>Page %1 is blank.</source>
        <translation>Pagina %1 is leeg.</translation>
    </message>
    <message>
        <source>Pages %1 are blank.</source>
        <translation>De pagina’s %1 zijn leeg.</translation>
    </message>
    <message>
        <source>The last label is a piece of its own.</source>
        <translation>Het laatste label is een stuk op zich.</translation>
    </message>
    <message>
        <source>The job needs %1 m of tape.</source>
        <translation>De taak heeft %1 m tape nodig.</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>‘%1’ gebruiken</translation>
    </message>
    <message>
        <source>Leave out blank pages</source>
        <translation>Lege pagina’s overslaan</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>Pagina %1 kan niet worden getekend en de taak kan niet worden afgedrukt: %2.</translation>
    </message>
    <message>
        <source>Pages %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>Pagina&apos;s %1 kunnen niet worden getekend en de taak kan niet worden afgedrukt: %2.</translation>
    </message>
    <message>
        <source>Leave out pages that cannot be drawn</source>
        <translation>Pagina&apos;s die niet kunnen worden getekend weglaten</translation>
    </message>
    <message>
        <source>The labels are printed mirrored, which is readable only through transparent tape.</source>
        <translation>De labels worden gespiegeld afgedrukt, wat alleen door transparante tape leesbaar is.</translation>
    </message>
    <message>
        <source>Turn pages to fit</source>
        <translation>Pagina&apos;s passend draaien</translation>
    </message>
    <message>
        <source>Page %1 is printed smaller than in the orientation that fits.</source>
        <translation>Pagina %1 wordt kleiner afgedrukt dan in de passende richting.</translation>
    </message>
    <message>
        <source>Pages %1 are printed smaller than in the orientation that fits.</source>
        <translation>Pagina&apos;s %1 worden kleiner afgedrukt dan in de passende richting.</translation>
    </message>
</context>
<context>
    <name>host::setup::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; with this paper and the other cut options; &quot;%3&quot; is used instead.</source>
        <translation>‘%1’ kan met dit papier en de andere snijopties niet ‘%2’ zijn en wordt afgedrukt als ‘%3’.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;, which is your default (lpoptions).</source>
        <translation>De printer &quot;%1&quot; heeft geen papier &quot;%2&quot;, dat uw standaard is (lpoptions).</translation>
    </message>
</context>
<context>
    <name>host::strip::CutPlan</name>
    <message>
        <source>Labels: %1 · Tape: %2</source>
        <translation>Labels: %1 · Tape: %2</translation>
    </message>
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
        <source>measuring…</source>
        <comment>a length</comment>
        <translation>wordt gemeten…</translation>
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
        <source>Half cut between the labels of a piece.</source>
        <translation>Halve snede tussen de labels van een stuk.</translation>
    </message>
    <message>
        <source>Cut marks are printed where there is no full cut.</source>
        <translation>Gedrukte merktekens waar niet wordt doorgesneden.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job continues there without a margin.</source>
        <translation>Het einde blijft in de printer; de volgende taak gaat zonder marge verder.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is removed.</source>
        <translation>Lege tape voor en na elk label vervalt.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>De labels zijn gespiegeld.</translation>
    </message>
    <message>
        <source>Cutting is not known: the printer&apos;s description does not say whether it cuts the labels.</source>
        <translation>De snede is niet bekend: de beschrijving van de printer zegt niet of hij de labels snijdt.</translation>
    </message>
    <message>
        <source>Full cuts after the labels %1.</source>
        <translation>Volledige sneden na de labels %1.</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>volgende taak</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 op %2, %3</translation>
    </message>
</context>
<context>
    <name>host::strip::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>het is geen map</translation>
    </message>
    <message>
        <source>the folder cannot be created: %1</source>
        <translation>de map kan niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>Kan &quot;%1&quot; niet schrijven: %2</translation>
    </message>
</context>
<context>
    <name>platform::files::OutputFile</name>
    <message>
        <source>it is a folder</source>
        <translation>het is een map</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>het is een symbolische koppeling</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>het is een socket</translation>
    </message>
    <message>
        <source>it is a block device</source>
        <translation>het is een blokapparaat</translation>
    </message>
    <message>
        <source>no program reads from it</source>
        <translation>niemand leest eruit</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>Probeer &quot;kvprint --help&quot;.</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation>Gebruik: kvprint [OPTIE]... [--] [DOCUMENT]...
         kvprint -i [QUEUE-]JOB [OPTIE]...
         kvprint --list | --summary | --dry-run [OPTIE]... [--] [DOCUMENT]...
</translation>
    </message>
    <message>
        <source>Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages and cuts shows the label strip as it will come out of the printer. Without a display, the documents are printed immediately. &quot;-&quot; or no document means standard input.</source>
        <translation>Drukt documenten af op labelprinters, met een dialoogvenster voor papier, pagina&apos;s en sneden dat de labelstrook toont zoals die eruit komt. Zonder beeldscherm wordt meteen afgedrukt. PDF, PNG, JPEG en SVG; &quot;-&quot; of niets is de standaardinvoer.</translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation>Opties:
</translation>
    </message>
    <message>
        <source>Ends the options; all following arguments are documents.</source>
        <translation>Beëindigt de opties: wat volgt, zijn documenten.</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;</source>
        <translation>De optie &quot;%1&quot; bestaat niet</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not accept a value</source>
        <translation>De optie &quot;%1&quot; heeft geen waarde</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires a value: %2</source>
        <translation>De optie &quot;%1&quot; heeft een waarde nodig: %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; applies to the virtual printer and requires &quot;--ppd&quot;</source>
        <translation>De optie &quot;%1&quot; betreft de virtuele printer en heeft &quot;--ppd&quot; nodig</translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; applies to a job that was already sent and requires &quot;-i&quot;</source>
        <translation>-H: &quot;%1&quot; betreft een eerder verzonden taak en heeft &quot;-i&quot; nodig</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not accept documents, but &quot;%2&quot; is specified</source>
        <translation>&quot;%1&quot; neemt geen documenten, maar &quot;%2&quot; is opgegeven</translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation>De standaardinvoer (&quot;-&quot;) kan maar één keer worden afgedrukt</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; cannot be combined</source>
        <translation>De optie &quot;%1&quot; gaat niet samen met &quot;%2&quot;</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires one of: %2</source>
        <translation>De optie &quot;%1&quot; kan alleen samen met een van: %2</translation>
    </message>
    <message>
        <source>No document is specified; name a file, or &quot;-&quot; for standard input</source>
        <translation>Geen document opgegeven; noem een bestand, of &quot;-&quot; om er een in te typen</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>de waarde is leeg</translation>
    </message>
    <message>
        <source>Invalid time &quot;%1&quot;; use HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation>&quot;%1&quot; is geen tijdstip om af te drukken; schrijf HH:MM of HH:MM:SS (UTC), of een van: %2</translation>
    </message>
    <message>
        <source>Invalid value &quot;%1&quot;; use one of: %2</source>
        <translation>&quot;%1&quot; is niet mogelijk; het moet een zijn van: %2</translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation>er is geen papier opgegeven</translation>
    </message>
    <message>
        <source>Invalid number of copies &quot;%1&quot;; use 1 to %2</source>
        <translation>&quot;%1&quot; is geen aantal exemplaren; het moet van 1 tot %2 zijn</translation>
    </message>
    <message>
        <source>Invalid priority &quot;%1&quot;; use 1 (last) to 100 (first)</source>
        <translation>&quot;%1&quot; is geen prioriteit; die moet van 1 (laatst) tot 100 (eerst) zijn</translation>
    </message>
    <message>
        <source>Missing queue in &quot;%1&quot;; use QUEUE or QUEUE/INSTANCE</source>
        <translation>&quot;%1&quot; noemt geen wachtrij; schrijf QUEUE of QUEUE/INSTANCE</translation>
    </message>
    <message>
        <source>Invalid job &quot;%1&quot;; use its number, or QUEUE-NUMBER as in the request id</source>
        <translation>&quot;%1&quot; is geen taak; schrijf het nummer, of QUEUE-NUMBER zoals bij het verzenden gemeld</translation>
    </message>
    <message>
        <source>Missing option in &quot;%1&quot;; use NAME=VALUE</source>
        <translation>&quot;%1&quot; noemt geen optie; schrijf NAME=VALUE</translation>
    </message>
    <message>
        <source>The queue to print on, with an instance if needed. Default: the default queue.</source>
        <translation>De wachtrij om op af te drukken, met een benoemde set opties. Zonder deze optie de standaardwachtrij.</translation>
    </message>
    <message>
        <source>The print server.</source>
        <translation>De printserver.</translation>
    </message>
    <message>
        <source>The user name for the print server.</source>
        <translation>De gebruiker voor wie wordt afgedrukt.</translation>
    </message>
    <message>
        <source>Encrypts the connection to the print server.</source>
        <translation>Versleutelt de verbinding met de printserver.</translation>
    </message>
    <message>
        <source>The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes.</source>
        <translation>De naam van het papier in de PPD, of Custom.BREEDTExLENGTEmm waar de printer vrije formaten toelaat.</translation>
    </message>
    <message>
        <source>The number of copies.</source>
        <translation>Het aantal exemplaren.</translation>
    </message>
    <message>
        <source>The pages to print, as in 1-3,5,8-.</source>
        <translation>De pagina&apos;s om af te drukken, bijvoorbeeld 1-3,5,8-.</translation>
    </message>
    <message>
        <source>An option of the PPD or of the print server. Several options are separated by blanks or given one by one.</source>
        <translation>Een optie van de PPD of van de printserver; meerdere tegelijk, met spaties ertussen, of een voor een.</translation>
    </message>
    <message>
        <source>The job&apos;s name in the queue.</source>
        <translation>De naam van de taak in de wachtrij.</translation>
    </message>
    <message>
        <source>The job&apos;s priority, from 1 to 100 (first).</source>
        <translation>De prioriteit van de taak, van 1 tot 100 (eerst).</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and restart for a job that was already sent.</source>
        <translation>Wanneer wordt afgedrukt: hold, immediate, HH:MM (UTC), night, weekend en andere; voor een eerder verzonden taak ook resume en restart.</translation>
    </message>
    <message>
        <source>Sends a mail when the job is finished; implies -s.</source>
        <translation>Stuurt een e-mail als de taak is voltooid; -s hoort daarbij.</translation>
    </message>
    <message>
        <source>Does not print the request id.</source>
        <translation>Meldt het nummer van de taak niet.</translation>
    </message>
    <message>
        <source>Ignored, for compatibility with lp: documents are always copied.</source>
        <translation>Toegelaten omwille van lp: documenten worden altijd gekopieerd.</translation>
    </message>
    <message>
        <source>Changes a job that was already sent.</source>
        <translation>Wijzigt een eerder verzonden taak.</translation>
    </message>
    <message>
        <source>Prints without the dialog, with the settings that it would show.</source>
        <translation>Drukt meteen af, met de instellingen waarmee het dialoogvenster zou openen.</translation>
    </message>
    <message>
        <source>Lists the queues and their states.</source>
        <translation>Toont de wachtrijen en hun toestand.</translation>
    </message>
    <message>
        <source>Writes the settings that the dialog would show, without printing.</source>
        <translation>Toont de instellingen waarmee het dialoogvenster zou openen, en drukt niets af.</translation>
    </message>
    <message>
        <source>Prepares the job and writes what would be sent, without sending it.</source>
        <translation>Doet alles behalve verzenden, en toont wat zou worden verzonden.</translation>
    </message>
    <message>
        <source>Writes the output as JSON.</source>
        <translation>Toont dit als JSON.</translation>
    </message>
    <message>
        <source>Sends the job even with conflicts, or with choices that the printer does not have.</source>
        <translation>Verzendt ook wat de printer niet heeft en wat niet samengaat.</translation>
    </message>
    <message>
        <source>Saves a screenshot of the dialog as a PNG file.</source>
        <translation>Slaat een afbeelding van het dialoogvenster, zoals het opent, op in een PNG-bestand.</translation>
    </message>
    <message>
        <source>Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue.</source>
        <translation>Een PPD-bestand, ongecomprimeerd of gzip: drukt af op een virtuele printer in plaats van op een wachtrij.</translation>
    </message>
    <message>
        <source>The folder for strip.pdf and job.json of the virtual printer; created if it does not exist. Default: a new folder among the user&apos;s data.</source>
        <translation>De map voor strip.pdf en job.json van de virtuele printer; die wordt gemaakt als hij er niet is. Zonder deze optie een nieuwe map bij de gegevens van de gebruiker.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Toont deze hulp.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Toont de versie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported; documents are sent as PDF</source>
        <translation>&quot;%1&quot; is niet mogelijk; documenten worden als PDF verzonden</translation>
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
        <translation>Afsluitstatus:
  0  afgedrukt, of getoond wat gevraagd werd
  1  iets kon niet worden geopend, gebruikt, verzonden of geschreven;
     er is niets afgedrukt, tenzij de standaardfoutuitvoer zegt dat de taak
     toch is verzonden
  2  de opdrachtregel is niet begrepen
  3  afgedrukt, maar zonder het paneel met snijopties
  4  in het dialoogvenster geannuleerd
  129, 130, 143  door een signaal gestopt voordat de taak was verzonden
</translation>
    </message>
    <message>
        <source>Cancels a job that an interrupted program left on a print server.</source>
        <translation>Neemt een taak terug die een gestopt programma op een printserver heeft achtergelaten.</translation>
    </message>
    <message>
        <source>Releases such a job; it may be incomplete.</source>
        <translation>Drukt af wat de printserver van zo’n taak heeft, misschien niet alle documenten.</translation>
    </message>
    <message>
        <source>A panel bundle, or a folder with bundles, to use instead of the installed ones.</source>
        <translation>Een paneelbundel, of een map met bundels, in plaats van de geïnstalleerde.</translation>
    </message>
    <message>
        <source>Loads panels again that have ended or blocked the program before.</source>
        <translation>Laadt panelen opnieuw die het programma eerder hebben beëindigd of geblokkeerd.</translation>
    </message>
    <message>
        <source>Invalid scaling &quot;%1&quot;; use auto, fit, fill or none</source>
        <translation>Ongeldige schaal ‘%1’; gebruik auto, fit, fill of none</translation>
    </message>
    <message>
        <source>The kernel has no Landlock: the processes that read documents can read other files.</source>
        <translation>De kernel heeft geen Landlock: de processen die documenten lezen, kunnen andere bestanden lezen.</translation>
    </message>
    <message>
        <source>The kernel has no seccomp: the processes that read documents can use the network and start other processes.</source>
        <translation>De kernel heeft geen seccomp: de processen die documenten lezen, kunnen het netwerk gebruiken en andere processen starten.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::Console</name>
    <message>
        <source>The job was sent nevertheless, as %1-%2.</source>
        <translation>De taak is toch verzonden, als %1-%2.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation>(standaard)</translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation>Klasse van: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destinations</source>
        <translation>De printserver &quot;%1&quot; heeft geen bestemming om op af te drukken</translation>
    </message>
    <message>
        <source>To resolve the conflict: %1</source>
        <translation>Dit zou helpen: %1</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no default destination; specify one with &quot;-d&quot;</source>
        <translation>De printserver &quot;%1&quot; heeft geen standaardbestemming; noem er een met &quot;-d&quot;</translation>
    </message>
    <message>
        <source>Stopped by a signal; nothing was printed.</source>
        <translation>Door een signaal gestopt; er is niets afgedrukt.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::LeftJobsRun</name>
    <message>
        <source>&quot;kvprint --cancel-left %1&quot; cancels it, &quot;kvprint --release-left %1&quot; releases it.</source>
        <translation>&quot;kvprint --cancel-left %1&quot; neemt de taak terug, &quot;kvprint --release-left %1&quot; drukt af wat de server ervan heeft.</translation>
    </message>
    <message>
        <source>Jobs &quot;%1&quot; are left on several print servers; specify one of: %2</source>
        <translation>Taken &quot;%1&quot; zijn op meerdere printservers achtergebleven; noem een van deze: %2</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are no such jobs</source>
        <translation>Er is geen taak &quot;%1&quot; die een gestopt programma heeft achtergelaten; er is geen enkele achtergebleven</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are these: %2</source>
        <translation>Er is geen taak &quot;%1&quot; die een gestopt programma heeft achtergelaten; deze zijn achtergebleven: %2</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>Het PPD-bestand &quot;%1&quot; heeft geen papier &quot;%2&quot;; wel: %3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; defines no paper</source>
        <translation>Het PPD-bestand &quot;%1&quot; noemt geen papier om op af te drukken</translation>
    </message>
    <message>
        <source>The label strip was written to:</source>
        <translation>De labelstrook staat in:</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::StandardStreams</name>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>Kan niet naar de standaarduitvoer schrijven: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalPassword</name>
    <message>
        <source>Password for the document on standard input:</source>
        <translation>Wachtwoord voor het document op de standaardinvoer:</translation>
    </message>
    <message>
        <source>Password for the document &quot;%1&quot;:</source>
        <translation>Wachtwoord voor het document &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Het wachtwoord is onjuist.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalTrust</name>
    <message>
        <source>Type &quot;%1&quot; to continue:</source>
        <translation>Typ &quot;%1&quot; om door te gaan:</translation>
    </message>
</context>
</TS>
