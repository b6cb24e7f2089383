<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>dialog::job::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation>Druckerklasse: %1</translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation>Drucke&amp;r</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation>Diesen Drucker gibt es nicht.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>Warten auf die Antwort des Druckservers…</translation>
    </message>
    <message>
        <source>Last known state: %1</source>
        <translation>Zuletzt: %1</translation>
    </message>
    <message>
        <source>The print server does not respond. Last known state: %1</source>
        <translation>Der Druckserver antwortet nicht. Zuletzt: %1</translation>
    </message>
    <message>
        <source>The print server does not respond.</source>
        <translation>Der Druckserver antwortet nicht.</translation>
    </message>
    <message>
        <source>The print server requires a password.</source>
        <translation>Der Druckserver verlangt ein Kennwort.</translation>
    </message>
    <message>
        <source>The print server requires a password. Last known state: %1</source>
        <translation>Der Druckserver verlangt ein Kennwort. Zuletzt: %1</translation>
    </message>
    <message>
        <source>The print server is not trusted.</source>
        <translation>Dem Druckserver wird nicht vertraut.</translation>
    </message>
    <message>
        <source>The print server is not trusted. Last known state: %1</source>
        <translation>Dem Druckserver wird nicht vertraut. Zuletzt: %1</translation>
    </message>
</context>
<context>
    <name>dialog::job::DocumentPasswordDialog</name>
    <message>
        <source>Password for the document</source>
        <translation>Kennwort für das Dokument</translation>
    </message>
    <message>
        <source>The document on standard input is encrypted.</source>
        <translation>Das Dokument auf der Standardeingabe ist verschlüsselt.</translation>
    </message>
    <message>
        <source>The document &quot;%1&quot; is encrypted.</source>
        <translation>Das Dokument „%1“ ist verschlüsselt.</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Das Kennwort ist falsch.</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Kennwort</translation>
    </message>
</context>
<context>
    <name>dialog::job::ErrorBanner</name>
    <message>
        <source>Try again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobPage</name>
    <message>
        <source>Print time</source>
        <translation>Uhrzeit für den Druck</translation>
    </message>
    <message>
        <source>Queue default</source>
        <translation>Vorgabe der Warteschlange</translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation>Von 1 bis 100; Aufträge mit höherer Priorität werden vor anderen gedruckt</translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation>Auftrags&amp;name</translation>
    </message>
    <message>
        <source>Orienta&amp;tion</source>
        <translation>Ausrich&amp;tung</translation>
    </message>
    <message>
        <source>When to pr&amp;int</source>
        <translation>&amp;Zeitpunkt</translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation>&amp;Priorität</translation>
    </message>
    <message>
        <source>Printer default</source>
        <translation>Vorgabe des Druckers</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Umgekehrtes Querformat</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Umgekehrtes Hochformat</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Nach Freigabe</translation>
    </message>
    <message>
        <source>At a specific time</source>
        <translation>Zu einer Uhrzeit</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Tagsüber</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Abends</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Nachts</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>In der zweiten Schicht</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>In der dritten Schicht</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Am Wochenende</translation>
    </message>
    <message>
        <source>Page si&amp;ze</source>
        <translation>Seiten&amp;größe</translation>
    </message>
    <message>
        <source>Shrink pages larger than the label</source>
        <translation>Zu große Seiten verkleinern</translation>
    </message>
    <message>
        <source>Fit to the printable area</source>
        <translation>In den druckbaren Bereich einpassen</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Etikett ausfüllen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tatsächliche Größe</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobWindow</name>
    <message>
        <source>The job was sent.</source>
        <translation>Der Auftrag ist gesendet.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Auftrag %1: %2</translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation>&amp;Auftrag abbrechen</translation>
    </message>
</context>
<context>
    <name>dialog::job::LeftJobBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Cancel the job</source>
        <translation>Auftrag zurücknehmen</translation>
    </message>
    <message>
        <source>Release the job</source>
        <translation>Auftrag freigeben</translation>
    </message>
</context>
<context>
    <name>dialog::job::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>&amp;Satzweise</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Erst alle Seiten einmal, dann alle noch einmal; sonst alle Kopien einer Seite zusammen</translation>
    </message>
    <message>
        <source>all, or ranges: 1-3, 5</source>
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
        <source>Reverse order</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
</context>
<context>
    <name>dialog::job::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation>Kennwort für den Druckserver</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Benutzername</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Kennwort</translation>
    </message>
</context>
<context>
    <name>dialog::job::SendBar</name>
    <message>
        <source>Cancel sending</source>
        <translation>Senden abbrechen</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>„%1“ wird gesendet</translation>
    </message>
</context>
<context>
    <name>dialog::job::SummaryPage</name>
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
    <name>dialog::job::TicketPage</name>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation>Optionen des Auftrags</translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation>Derselbe Auftra&amp;g auf der Befehlszeile</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Ko&amp;pieren</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>dialog::job::TrustText</name>
    <message>
        <source>Connection without encryption</source>
        <translation>Verbindung ohne Verschlüsselung</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password, and the connection to it is not encrypted.</source>
        <translation>Der Druckserver „%1“ verlangt ein Kennwort, und die Verbindung zu ihm ist nicht verschlüsselt.</translation>
    </message>
    <message>
        <source>Others on the network can read the password.</source>
        <translation>Andere im Netzwerk können das Kennwort mitlesen.</translation>
    </message>
    <message>
        <source>Send anyway</source>
        <translation>Trotzdem senden</translation>
    </message>
    <message>
        <source>Certificate of the print server</source>
        <translation>Zertifikat des Druckservers</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2.</source>
        <translation>Dem Zertifikat des Druckservers „%1“ wird nicht vertraut: %2.</translation>
    </message>
    <message>
        <source>Its SHA-256 fingerprint is:
%1

Trust it only if the server&apos;s administrator confirms this fingerprint. It stays trusted for later connections.</source>
        <translation>Sein SHA-256-Fingerabdruck lautet:
%1

Vertrauen Sie ihm nur, wenn der Verwalter des Servers denselben Fingerabdruck nennt. Ihm wird von da an vertraut.</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>Vertrauen</translation>
    </message>
</context>
<context>
    <name>dialog::job::VirtualSender</name>
    <message>
        <source>The PPD file defines no paper</source>
        <translation>Die PPD-Datei nennt kein Papier, auf das gedruckt werden kann</translation>
    </message>
</context>
<context>
    <name>dialog::options::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation>nicht eingestellt</translation>
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
        <translation>Der Drucker kann dies nicht alles zusammen.</translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation>Trotzdem drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>dialog::options::CustomValueFields</name>
    <message numerus="yes">
        <source>&quot;%1&quot; needs at least %n character(s). Until then, the previous value is used.</source>
        <translation>
            <numerusform>„%1“ braucht mindestens %n Zeichen. Bis dahin bleibt die Einstellung, wie sie war.</numerusform>
            <numerusform>„%1“ braucht mindestens %n Zeichen. Bis dahin bleibt die Einstellung, wie sie war.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::options::OptionsPage</name>
    <message>
        <source>Option groups</source>
        <translation>Gruppen von Optionen</translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation>Dieser Drucker hat keine weiteren Optionen.</translation>
    </message>
</context>
<context>
    <name>dialog::paper::CustomPaperFields</name>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest length</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Papierbreite</translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation>Papierlänge</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>Bre&amp;ite</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>&amp;Länge</translation>
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
        <translation>Papiere suchen</translation>
    </message>
    <message>
        <source>Custom, %1</source>
        <comment>a size</comment>
        <translation>Eigene Größe, %1</translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation>Größe des Dokuments nehmen: %1</translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation>Eine eigene Größe</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation>%1 breit</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>%1 breit, %2 lang</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Eigene Größe…</translation>
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
        <translation>Zoll</translation>
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
        <translation>Drucker: %1</translation>
    </message>
</context>
<context>
    <name>dialog::window::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation>Optionen, Vorschau und Übersicht</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Seiten&amp;vorschau</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>Ü&amp;bersicht</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>Au&amp;ftrag</translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation>Z&amp;u senden</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
</context>
<context>
    <name>dialog::window::PagePreview</name>
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
    <name>dialog::window::PanelBanner</name>
    <message>
        <source>The printer&apos;s options are listed on the page &quot;Options&quot;.</source>
        <translation>Die Optionen des Druckers stehen auf der Seite „Optionen“.</translation>
    </message>
    <message>
        <source>Load It Again</source>
        <translation>Wieder laden</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelPage</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>dialog::window::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The printer has no description (PPD); its papers and cuts are not known.</source>
        <translation>Der Drucker hat keine Beschreibung; seine Papiere und Schnitte sind hier deshalb nicht bekannt.</translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation>Warten auf die Beschreibung des Druckers…</translation>
    </message>
    <message>
        <source>No printer is selected.</source>
        <translation>Es ist kein Drucker gewählt.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>Warten auf die Antwort des Druckservers…</translation>
    </message>
    <message>
        <source>The printer&apos;s description is not known.</source>
        <translation>Die Beschreibung des Druckers ist nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>dialog::window::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Etikettenstreifen</translation>
    </message>
</context>
<context>
    <name>host::base::OutOfMemory</name>
    <message>
        <source>Out of memory; nothing was printed.</source>
        <translation>Kein Arbeitsspeicher mehr; es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>Out of memory; the job may be incomplete, or left on the print server.</source>
        <translation>Kein Arbeitsspeicher mehr; der Auftrag ist vielleicht unvollständig oder auf dem Druckserver zurückgeblieben.</translation>
    </message>
    <message>
        <source>Out of memory. The job was sent nevertheless.</source>
        <translation>Kein Arbeitsspeicher mehr. Der Auftrag wurde trotzdem gesendet.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation>Der Drucker „%1“ hat keine Option „%2“.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation>Der Drucker „%1“ hat kein Papier „%2“.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation>Die Option „%1“ des Druckers „%2“ hat keine Auswahl „%3“; sie hat: %4</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print on the paper &quot;%2&quot;: its size is %3 × %4 points; width and length must be greater than 0, one of them at most %5 m, the other at most %6 m.</source>
        <translation>Der Drucker „%1“ kann nicht auf das Papier „%2“ drucken: Es ist %3 × %4 Punkt groß; Breite und Länge müssen größer als 0 sein, eine von beiden höchstens %5 m, die andere höchstens %6 m.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation>Das Dokument „%1“ lässt sich nicht lesen: %2</translation>
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
        <source>it has become shorter while it was read</source>
        <translation>die Datei wurde kürzer, während sie gelesen wurde</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>die Datei wurde seit dem Öffnen verändert; öffnen Sie sie noch einmal</translation>
    </message>
    <message>
        <source>it has changed while it was read</source>
        <translation>sie hat sich verändert, während sie gelesen wurde</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobChange</name>
    <message>
        <source>It is printed again, but held. %1</source>
        <translation>Er soll neu gedruckt werden, wird aber zurückgehalten. %1</translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation>Auftrag %1 wurde nicht geändert. %2</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Kein Druckserver kann die Auswahl „%1“ der Option „%2“ weitergeben.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobFate</name>
    <message>
        <source>%1 A job &quot;%2&quot; without documents may be left in the queue &quot;%3&quot; of the print server &quot;%4&quot;; it prints nothing.</source>
        <translation>%1 In der Warteschlange „%3“ des Druckservers „%4“ kann ein Auftrag „%2“ ohne Dokumente zurückgeblieben sein; davon wird nichts gedruckt.</translation>
    </message>
    <message>
        <source>%1 The print server &quot;%2&quot; has all documents of job %3-%4, but did not report whether it released the job: it is printed, or it is still held. Check the queue before you print again.</source>
        <translation>%1 Der Druckserver „%2“ hat alle Dokumente des Auftrags %3-%4 und hat nicht gemeldet, ob er ihn freigibt: Der Auftrag wird gedruckt, oder er wird zurückgehalten und nicht gedruckt. Sehen Sie in die Warteschlange, bevor Sie noch einmal drucken.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 on the print server &quot;%4&quot; may have been printed; check the queue before you print again.</source>
        <translation>%1 Auftrag %2-%3 auf dem Druckserver „%4“ kann gedruckt worden sein; sehen Sie in die Warteschlange, bevor Sie noch einmal drucken.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; it is held on the print server &quot;%4&quot; and is not printed unless it is released.</source>
        <translation>%1 Auftrag %2-%3 ließ sich nicht zurücknehmen; er wird auf dem Druckserver „%4“ zurückgehalten und nicht gedruckt, solange er nicht freigegeben wird.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; check the queue before you print again.</source>
        <translation>%1 Auftrag %2-%3 ließ sich nicht zurücknehmen; sehen Sie in die Warteschlange, bevor Sie noch einmal drucken.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3: %4</source>
        <translation>%1 Auftrag %2-%3: %4</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobJournal</name>
    <message>
        <source>The record &quot;%1&quot; of an interrupted job was damaged and has been removed. Check your queues for a held job.</source>
        <translation>Die Aufzeichnung „%1“ eines Auftrags, der gesendet wurde, ist beschädigt und wurde entfernt; sehen Sie in Ihren Warteschlangen nach, ob ein Auftrag zurückgeblieben ist.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation>Vorgabe des Druckers</translation>
    </message>
    <message>
        <source>queue default</source>
        <translation>Vorgabe der Warteschlange</translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation>Ihre Vorgabe (lpoptions)</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>Voreinstellung</translation>
    </message>
    <message>
        <source>cut options</source>
        <translation>Schneideoptionen</translation>
    </message>
    <message>
        <source>set by you</source>
        <translation>von Ihnen gewählt</translation>
    </message>
    <message>
        <source>page layout</source>
        <translation>Seitenlayout</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobSettings</name>
    <message>
        <source>Cannot print the job: it has more than %1 labels</source>
        <translation>So viele Etiketten auf einmal gehen nicht: Ein Auftrag hat höchstens %1</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation>Zurückgehalten bis zur Freigabe.</translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation>Zurückgehalten bis %1.</translation>
    </message>
    <message>
        <source>Waiting in the queue.</source>
        <translation>Wartet, bis er an der Reihe ist.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Wird gedruckt.</translation>
    </message>
    <message>
        <source>Stopped; it continues when the printer is ready.</source>
        <translation>Angehalten; es geht weiter, wenn der Drucker wieder bereit ist.</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Aborted by the print server.</source>
        <translation>Vom Druckserver aufgegeben.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Gedruckt.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>Der Server meldet: %1</translation>
    </message>
    <message>
        <source>The job is finished; the print server keeps no record of it.</source>
        <translation>Der Auftrag ist zu Ende; der Druckserver behält nichts davon.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobUpload</name>
    <message>
        <source>There is no document to print.</source>
        <translation>Es gibt kein Dokument zu drucken.</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Kein Druckserver kann die Auswahl „%1“ der Option „%2“ weitergeben.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; did not receive all of &quot;%2&quot;.</source>
        <translation>Der Druckserver „%1“ hat „%2“ nicht ganz angenommen.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LeftJob</name>
    <message>
        <source>The print server &quot;%1&quot; no longer has the job &quot;%2&quot; in the queue &quot;%3&quot;, or the job is finished.</source>
        <translation>Der Druckserver „%1“ hat keinen Auftrag „%2“ in der Warteschlange „%3“ mehr, oder er ist beendet.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is not held: %4</source>
        <translation>Auftrag %1-%2 auf dem Druckserver „%3“ wird nicht zurückgehalten: %4</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is released.</source>
        <translation>Auftrag %1-%2 auf dem Druckserver „%3“ ist freigegeben.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is canceled.</source>
        <translation>Auftrag %1-%2 auf dem Druckserver „%3“ ist zurückgenommen.</translation>
    </message>
    <message>
        <source>An interrupted program may have left job %1 (&quot;%2&quot;) on the print server &quot;%3&quot;; the job may be incomplete.</source>
        <translation>Ein Programm, das beim Drucken beendet wurde, hat vielleicht Auftrag %1 („%2“) auf dem Druckserver „%3“ zurückgelassen, möglicherweise ohne alle Dokumente.</translation>
    </message>
    <message>
        <source>An interrupted program may have left a job &quot;%1&quot; without documents in the queue &quot;%2&quot; of the print server &quot;%3&quot;.</source>
        <translation>Ein Programm, das beim Drucken beendet wurde, hat vielleicht einen Auftrag „%1“ ohne Dokumente in der Warteschlange „%2“ des Druckservers „%3“ zurückgelassen.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LpCommand</name>
    <message>
        <source>lp cannot express these options: %1</source>
        <translation>lp kann diese Optionen nicht so angeben, wie sie gesendet werden: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::DiscoveredQueue</name>
    <message>
        <source>The print server &quot;%1&quot; cannot reach the printer &quot;%2&quot;.</source>
        <translation>Der Druckserver „%1“ kann den Drucker „%2“ nicht erreichen.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer on the network.</source>
        <translation>Der Drucker „%1“ ist nicht mehr im Netz.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation>Der Druckserver „%1“ hat keine Warteschlange oder Klasse „%2“.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueText</name>
    <message>
        <source>The printer needs labels or tape.</source>
        <translation>Der Drucker wartet auf Etiketten oder Band.</translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation>Etiketten oder Band haben sich gestaut.</translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation>Die Etikettenrolle oder das Band ist fast aufgebraucht.</translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation>Die Etikettenrolle oder das Band ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The printer is pausing.</source>
        <translation>Der Drucker wird gleich angehalten.</translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation>Die Warteschlange ist angehalten; Aufträge warten.</translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation>Der Drucker ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Verbindung zum Drucker wird hergestellt.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>Der Drucker antwortet nicht.</translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation>Der Drucker hält an.</translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation>Einige Drucker der Klasse sind angehalten.</translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation>Der Toner ist fast aufgebraucht.</translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation>Der Toner ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation>Der Druckserver hat keinen Platz mehr.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation>Die Abdeckung des Druckers ist offen.</translation>
    </message>
    <message>
        <source>An interlock of the printer is open.</source>
        <translation>Eine Verriegelung des Druckers ist offen.</translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation>Die Klappe des Druckers ist offen.</translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation>Die Kassette oder der Rollenhalter fehlt.</translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation>Das Ausgabefach fehlt.</translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation>Das Ausgabefach ist fast voll.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>Das Ausgabefach ist voll.</translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation>Tinte oder Farbband ist fast aufgebraucht.</translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation>Tinte oder Farbband ist aufgebraucht.</translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation>Der Abfallbehälter ist fast voll.</translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation>Der Abfallbehälter ist voll.</translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation>Der Drucker ist zu heiß.</translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation>Der Drucker wärmt sich auf.</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>Der Drucker ist offline.</translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation>Neue Aufträge werden zurückgehalten.</translation>
    </message>
    <message>
        <source>The printer was deactivated by its administrator.</source>
        <translation>Der Drucker ist vom Verwalter abgeschaltet.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is missing.</source>
        <translation>Ein Teil des Druckertreibers fehlt.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is not installed securely.</source>
        <translation>Ein Teil des Druckertreibers ist nicht sicher installiert.</translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation>Warten, bis der Drucker den Auftrag beendet hat.</translation>
    </message>
    <message>
        <source>The printer does not conform to its protocol.</source>
        <translation>Der Drucker hält sich nicht an sein Protokoll.</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Bereit.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Druckt.</translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation>Im Netzwerk gefunden.</translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation>Zustand unbekannt.</translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation>Die Warteschlange nimmt keine Aufträge an.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>Der Server meldet: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::server::CupsConnection</name>
    <message>
        <source>Canceled on request.</source>
        <translation>Auf Wunsch abgebrochen.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not respond.</source>
        <translation>Der Druckserver „%1“ antwortet nicht.</translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation>Keine Verbindung zum Druckserver „%1“: %2</translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; was lost.</source>
        <translation>Die Verbindung zum Druckserver „%1“ ist abgebrochen.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; reports: %2</source>
        <translation>Der Druckserver „%1“ meldet: %2</translation>
    </message>
    <message>
        <source>Cannot fetch &quot;%2&quot; from the print server &quot;%1&quot;: %3</source>
        <translation>Der Druckserver „%1“ liefert „%2“ nicht: %3</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>die Datei ist größer als %1 MB</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>die Verbindung brach mittendrin ab</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;, and none was entered.</source>
        <translation>Der Druckserver „%1“ verlangt ein Kennwort für den Benutzer „%2“, und es wurde keines angegeben.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no certificate.</source>
        <translation>Der Druckserver „%1“ hat kein Zertifikat.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not the one that is trusted for this host. The trusted one has the SHA-256 fingerprint %2, the server&apos;s has %3. The server&apos;s certificate may have been replaced, another print server may run on the same host, or someone may be intercepting the connection. If the server&apos;s administrator confirms the fingerprint, remove the file &quot;%4&quot; and try again.</source>
        <translation>Das Zertifikat des Druckservers „%1“ ist nicht das, dem für diesen Rechner vertraut wird. Das vertraute hat den SHA-256-Fingerabdruck %2, das des Servers %3. Möglicherweise wurde das Zertifikat des Servers ersetzt, auf demselben Rechner läuft ein weiterer Druckserver, oder jemand fängt die Verbindung ab. Wenn der Verwalter des Servers den Fingerabdruck bestätigt, löschen Sie die Datei „%4“ und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; with the SHA-256 fingerprint %2 cannot be trusted: %3</source>
        <translation>Dem Zertifikat des Druckservers „%1“ mit dem SHA-256-Fingerabdruck %2 darf nicht vertraut werden: %3</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2. Its SHA-256 fingerprint is %3. Compare it with the fingerprint that the server&apos;s administrator gives you, and confirm it in the dialog or on a terminal.</source>
        <translation>Dem Zertifikat des Druckservers „%1“ wird nicht vertraut: %2. Sein SHA-256-Fingerabdruck ist %3. Vergleichen Sie ihn mit dem, den der Verwalter des Servers nennt, und bestätigen Sie ihn, wenn Sie gefragt werden, im Fenster oder auf einem Terminal.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Der Benutzername oder das Kennwort ist falsch.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;. None was sent, because the connection is not encrypted and others could read it. Encrypt the connection (-E), or confirm the question in the dialog or on a terminal.</source>
        <translation>Der Druckserver „%1“ verlangt ein Kennwort für den Benutzer „%2“. Es wurde keines gesendet, weil die Verbindung nicht verschlüsselt ist und andere es mitlesen könnten. Verschlüsseln Sie die Verbindung (-E), oder bestätigen Sie es, wenn Sie gefragt werden, im Fenster oder auf einem Terminal.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not accept the password of the user &quot;%2&quot;.</source>
        <translation>Der Druckserver „%1“ nimmt das Kennwort des Benutzers „%2“ nicht an.</translation>
    </message>
</context>
<context>
    <name>host::cups::server::FailureReason</name>
    <message>
        <source>It cannot store the document: the disk is full, or the document is larger than it accepts.</source>
        <translation>Er kann das Dokument nicht speichern: Die Platte ist voll, oder das Dokument ist größer, als er es annimmt.</translation>
    </message>
</context>
<context>
    <name>host::documents::LabelDocument</name>
    <message>
        <source>Cannot open the document &quot;%1&quot;: %2</source>
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
        <source>its encryption is not supported</source>
        <translation>es ist auf unbekannte Weise verschlüsselt</translation>
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
    <message>
        <source>Cannot open the document on standard input: %1</source>
        <translation>Das Dokument von der Standardeingabe lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>the image is damaged</source>
        <translation>es ist ein beschädigtes Bild</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation>es hat %1 × %2 Pixel, mehr als sich drucken lassen</translation>
    </message>
    <message>
        <source>the end of the image is missing</source>
        <translation>es ist ein Bild, dessen Ende fehlt</translation>
    </message>
    <message>
        <source>No document is specified</source>
        <translation>Kein Dokument angegeben</translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation>sie lässt sich nur einmal lesen</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weiteres</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>es ist größer als %1</translation>
    </message>
    <message>
        <source>it is not a PDF, PNG, JPEG or SVG file</source>
        <translation>es ist kein PDF, PNG, JPEG oder SVG</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>die Datei wurde seit dem Öffnen verändert; öffnen Sie sie noch einmal</translation>
    </message>
    <message>
        <source>the PDF is damaged</source>
        <translation>es ist ein beschädigtes PDF</translation>
    </message>
    <message>
        <source>it cannot be stored in &quot;%1&quot;: %2</source>
        <translation>es lässt sich nicht in „%1“ ablegen: %2</translation>
    </message>
    <message>
        <source>the SVG is damaged</source>
        <translation>es ist ein beschädigtes SVG</translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, but other files are not loaded</source>
        <translation>es verweist auf „%1“, und gedruckt wird nur, was im SVG selbst steht</translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation>Zeile %1 des SVG: %2</translation>
    </message>
    <message>
        <source>the SVG is too complex to be drawn</source>
        <translation>es ist ein SVG aus mehr Teilen, als sich zeichnen lassen</translation>
    </message>
    <message>
        <source>it contains a picture that is neither PNG nor JPEG</source>
        <translation>es enthält ein Bild, das weder PNG noch JPEG ist</translation>
    </message>
    <message>
        <source>it contains a damaged picture</source>
        <translation>es enthält ein beschädigtes Bild</translation>
    </message>
    <message>
        <source>its pictures have more pixels than can be printed</source>
        <translation>es enthält Bilder mit mehr Pixeln, als sich drucken lassen</translation>
    </message>
    <message>
        <source>the converter &quot;%1&quot; cannot be started</source>
        <translation>das Programm „%1“, das es umwandelt, lässt sich nicht starten</translation>
    </message>
    <message>
        <source>laying its pages out on labels needs too much memory or time</source>
        <translation>seine Seiten auf Etiketten anzuordnen braucht zu viel Speicher oder Zeit</translation>
    </message>
    <message>
        <source>its pages cannot be laid out on labels; the PDF is damaged</source>
        <translation>seine Seiten lassen sich nicht auf Etiketten anordnen; das PDF ist beschädigt</translation>
    </message>
    <message>
        <source>the program that reads PDFs cannot be started</source>
        <translation>das Programm, das PDFs liest, kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>the program that reads PDFs has crashed</source>
        <translation>das Programm, das PDFs liest, ist abgestürzt</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>das Lesen dauert zu lange</translation>
    </message>
    <message>
        <source>it attempts what no document may do</source>
        <translation>es versucht, was kein Dokument darf</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Speicher reicht nicht aus</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>das Kennwort ist falsch</translation>
    </message>
    <message>
        <source>decrypting it needs too much memory or time</source>
        <translation>das Entschlüsseln benötigt zu viel Speicher oder Zeit</translation>
    </message>
    <message>
        <source>it is encrypted and needs a password</source>
        <translation>es ist verschlüsselt und benötigt ein Kennwort</translation>
    </message>
</context>
<context>
    <name>host::documents::PrintOrder</name>
    <message>
        <source>Invalid page range &quot;%1&quot;: use numbers and ranges such as 1-3, 5</source>
        <translation>Die Seiten „%1“ sind nicht verständlich: Schreiben Sie Zahlen und Bereiche wie 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>Die Seiten „%1“ lassen sich nicht drucken: Die letzte Seite des Dokuments ist %2</translation>
    </message>
    <message>
        <source>Nothing to print: no page of the document is selected</source>
        <translation>Es würde nichts gedruckt: Keine Seite des Dokuments ist gewählt</translation>
    </message>
</context>
<context>
    <name>host::labels::LabelDrawing</name>
    <message>
        <source>Page %1 cannot be drawn</source>
        <translation>Seite %1 kann nicht dargestellt werden</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleCatalog</name>
    <message>
        <source>The panel bundle &quot;%1&quot; is not used: %2.</source>
        <translation>Das Bundle „%1“ wird nicht verwendet: %2.</translation>
    </message>
    <message>
        <source>The panel bundles in &quot;%1&quot; are not used: %2.</source>
        <translation>Die Bundles in „%1“ werden nicht verwendet: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>den Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>es ist kein Ordner</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleFolders</name>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>„%1“ lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>„%1“ gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>other users can write to &quot;%1&quot;; &quot;chmod go-w&quot; prevents it</source>
        <translation>andere Benutzer können in „%1“ schreiben; „chmod go-w“ verhindert es</translation>
    </message>
</context>
<context>
    <name>host::panels::HostedPanel</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation>„%1“ kann die Einstellungen nicht speichern: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not allow printing with these settings.</source>
        <translation>„%1“ lässt den Auftrag mit diesen Einstellungen nicht drucken.</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>Das Bundle „%1“ lässt sich nicht verwenden: %2</translation>
    </message>
    <message>
        <source>its library contains no panels</source>
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
        <source>Cannot find the panel bundle; searched %1</source>
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
    <name>host::panels::PanelGuard</name>
    <message>
        <source>an error occurred in &quot;%1&quot;</source>
        <translation>in „%1“ ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>an error occurred in &quot;%1&quot;: %2</source>
        <translation>in „%1“ ist ein Fehler aufgetreten: %2</translation>
    </message>
</context>
<context>
    <name>host::printer::Constraints</name>
    <message>
        <source>&quot;%1: %2&quot;</source>
        <translation>„%1: %2“</translation>
    </message>
    <message>
        <source>This printer does not support %1.</source>
        <translation>Dieser Drucker beherrscht %1 nicht.</translation>
    </message>
    <message>
        <source>%1 and %2 conflict.</source>
        <translation>%1 und %2 schließen einander aus.</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>„%1“ auf „%2“ setzen</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>Die PPD-Datei „%1“ lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, the maximum for a PPD file</source>
        <translation>sie ist größer als %1 MB, mehr als jede Druckerbeschreibung</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be decompressed</source>
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
        <source>it has %1 statements; the maximum is %2</source>
        <translation>die Datei hat %1 Anweisungen; höchstens %2 sind möglich</translation>
    </message>
    <message>
        <source>it has %1 &quot;%2&quot; statements; the maximum is %3</source>
        <translation>die Datei hat %1 Anweisungen „%2“; höchstens %3 sind möglich</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>sie endet mitten in einem Wert; die Datei ist unvollständig</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdOptions</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation>Druckersteuerung</translation>
    </message>
</context>
<context>
    <name>host::setup::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation>Auftrag „%1“ für „%2“ auf %3
</translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation>Gesendete Optionen:
</translation>
    </message>
</context>
<context>
    <name>host::setup::JobSummary</name>
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
        <source>all</source>
        <translation>alle</translation>
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
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>letzte Seite zuerst</translation>
    </message>
    <message>
        <source>Page set</source>
        <translation>Davon</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>die ungeraden Seiten</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>die geraden Seiten</translation>
    </message>
</context>
<context>
    <name>host::setup::PanelSource</name>
    <message>
        <source>it could not create its panel</source>
        <translation>es konnte seine Seite nicht anlegen</translation>
    </message>
    <message>
        <source>its panel cannot be shown: its layout file cannot be used</source>
        <translation>seine Seite kann nicht gezeigt werden: Ihre Layoutdatei ist unbrauchbar</translation>
    </message>
    <message>
        <source>The panel bundle &quot;%1&quot; does not control %2: another panel or the dialog does, or its description does not list it.</source>
        <translation>Das Bundle „%1“ stellt %2 nicht ein: Das tut ein anderes Bundle oder der Dialog, oder seine Beschreibung führt es nicht auf.</translation>
    </message>
    <message>
        <source>the program ended or was stopped during its &quot;%1&quot; on %2</source>
        <translation>das Programm ist am %2 während „%1“ abgestürzt oder angehalten worden</translation>
    </message>
</context>
<context>
    <name>host::setup::Preflight</name>
    <message>
        <source>Page %1 is larger than the label and is printed at %2 % of its size.</source>
        <translation>Seite %1 ist größer als das Etikett und wird auf %2 % verkleinert gedruckt.</translation>
    </message>
    <message>
        <source>Pages %1 are larger than the label and are printed smaller, at %2 % or more.</source>
        <translation>Die Seiten %1 sind größer als das Etikett und werden verkleinert gedruckt, auf %2 % oder mehr.</translation>
    </message>
    <message>
        <source>Page %1 has content where the printer cannot print.</source>
        <translation>Seite %1 hat Inhalt, wo der Drucker nicht drucken kann.</translation>
    </message>
    <message>
        <source>Pages %1 have content where the printer cannot print.</source>
        <translation>Die Seiten %1 haben Inhalt, wo der Drucker nicht drucken kann.</translation>
    </message>
    <message>
        <source>Page %1 is blank.</source>
        <translation>Seite %1 ist leer.</translation>
    </message>
    <message>
        <source>Pages %1 are blank.</source>
        <translation>Die Seiten %1 sind leer.</translation>
    </message>
    <message>
        <source>The last label is a piece of its own.</source>
        <translation>Das letzte Etikett ist ein Stück für sich.</translation>
    </message>
    <message>
        <source>The job needs %1 m of tape.</source>
        <translation>Der Auftrag braucht %1 m Band.</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>„%1“ verwenden</translation>
    </message>
    <message>
        <source>Leave out blank pages</source>
        <translation>Leere Seiten weglassen</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>Seite %1 kann nicht dargestellt und der Auftrag nicht gedruckt werden: %2.</translation>
    </message>
    <message>
        <source>Pages %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>Die Seiten %1 können nicht dargestellt und der Auftrag nicht gedruckt werden: %2.</translation>
    </message>
    <message>
        <source>Leave out pages that cannot be drawn</source>
        <translation>Nicht darstellbare Seiten auslassen</translation>
    </message>
    <message>
        <source>The labels are printed mirrored, which is readable only through transparent tape.</source>
        <translation>Die Etiketten werden gespiegelt gedruckt, was nur durch transparentes Band lesbar ist.</translation>
    </message>
    <message>
        <source>Turn pages to fit</source>
        <translation>Seiten passend drehen</translation>
    </message>
    <message>
        <source>Page %1 is printed smaller than in the orientation that fits.</source>
        <translation>Seite %1 wird kleiner gedruckt als in der passenden Ausrichtung.</translation>
    </message>
    <message>
        <source>Pages %1 are printed smaller than in the orientation that fits.</source>
        <translation>Die Seiten %1 werden kleiner gedruckt als in der passenden Ausrichtung.</translation>
    </message>
</context>
<context>
    <name>host::setup::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; with this paper and the other cut options; &quot;%3&quot; is used instead.</source>
        <translation>„%1“ kann mit diesem Papier und den anderen Schneideoptionen nicht „%2“ sein und wird als „%3“ gedruckt.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;, which is your default (lpoptions).</source>
        <translation>Der Drucker „%1“ hat kein Papier „%2“, das Ihre Vorgabe ist (lpoptions).</translation>
    </message>
</context>
<context>
    <name>host::strip::CutPlan</name>
    <message>
        <source>Labels: %1 · Tape: %2</source>
        <translation>Etiketten: %1 · Band: %2</translation>
    </message>
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
        <source>measuring…</source>
        <comment>a length</comment>
        <translation>wird gemessen…</translation>
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
        <source>Half cut between the labels of a piece.</source>
        <translation>Halbschnitt zwischen den Etiketten eines Stücks.</translation>
    </message>
    <message>
        <source>Cut marks are printed where there is no full cut.</source>
        <translation>Gedruckte Marken, wo nicht durchgeschnitten wird.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job continues there without a margin.</source>
        <translation>Das Ende bleibt im Drucker; der nächste Auftrag schließt ohne Rand an.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is removed.</source>
        <translation>Leeres Band vor und nach jedem Etikett entfällt.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>Die Etiketten sind gespiegelt.</translation>
    </message>
    <message>
        <source>Cutting is not known: the printer&apos;s description does not say whether it cuts the labels.</source>
        <translation>Der Schnitt ist nicht bekannt: Die Beschreibung des Druckers sagt nicht, ob er die Etiketten schneidet.</translation>
    </message>
    <message>
        <source>Full cuts after the labels %1.</source>
        <translation>Vollschnitte nach den Etiketten %1.</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>nächster Auftrag</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 auf %2, %3</translation>
    </message>
</context>
<context>
    <name>host::strip::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>es ist kein Ordner</translation>
    </message>
    <message>
        <source>the folder cannot be created: %1</source>
        <translation>der Ordner lässt sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>„%1“ lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>platform::files::OutputFile</name>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>es ist eine symbolische Verknüpfung</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>es ist ein Socket</translation>
    </message>
    <message>
        <source>it is a block device</source>
        <translation>es ist ein Blockgerät</translation>
    </message>
    <message>
        <source>no program reads from it</source>
        <translation>niemand liest davon</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>„kvprint --help“ zeigt die Hilfe.</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation>Aufruf: kvprint [OPTION]... [--] [DOKUMENT]...
        kvprint -i [QUEUE-]JOB [OPTION]...
        kvprint --list | --summary | --dry-run [OPTION]... [--] [DOKUMENT]...
</translation>
    </message>
    <message>
        <source>Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages and cuts shows the label strip as it will come out of the printer. Without a display, the documents are printed immediately. &quot;-&quot; or no document means standard input.</source>
        <translation>Druckt Dokumente auf Etikettendruckern, mit einem Dialog für Papier, Seiten und Schnitte, der den Etikettenstreifen zeigt, wie er herauskommt. Ohne Bildschirm wird sofort gedruckt. PDF, PNG, JPEG und SVG; „-“ oder nichts ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation>Optionen:
</translation>
    </message>
    <message>
        <source>Ends the options; all following arguments are documents.</source>
        <translation>Beendet die Optionen: Was folgt, sind Dokumente.</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;</source>
        <translation>Die Option „%1“ gibt es nicht</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not accept a value</source>
        <translation>Die Option „%1“ nimmt keinen Wert</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires a value: %2</source>
        <translation>Die Option „%1“ braucht einen Wert: %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; applies to the virtual printer and requires &quot;--ppd&quot;</source>
        <translation>Die Option „%1“ betrifft den virtuellen Drucker und braucht „--ppd“</translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; applies to a job that was already sent and requires &quot;-i&quot;</source>
        <translation>-H: „%1“ betrifft einen früher gesendeten Auftrag und braucht „-i“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not accept documents, but &quot;%2&quot; is specified</source>
        <translation>„%1“ nimmt keine Dokumente, angegeben ist „%2“</translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation>Die Standardeingabe („-“) lässt sich nur einmal drucken</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; cannot be combined</source>
        <translation>Die Option „%1“ verträgt sich nicht mit „%2“</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires one of: %2</source>
        <translation>Die Option „%1“ geht nur zusammen mit einer von: %2</translation>
    </message>
    <message>
        <source>No document is specified; name a file, or &quot;-&quot; for standard input</source>
        <translation>Kein Dokument angegeben; nennen Sie eine Datei oder „-“, um eines einzutippen</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>der Wert ist leer</translation>
    </message>
    <message>
        <source>Invalid time &quot;%1&quot;; use HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation>„%1“ ist kein Zeitpunkt zum Drucken; schreiben Sie HH:MM oder HH:MM:SS (UTC) oder eines von: %2</translation>
    </message>
    <message>
        <source>Invalid value &quot;%1&quot;; use one of: %2</source>
        <translation>„%1“ ist nicht möglich; es muss eines sein von: %2</translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation>kein Papier angegeben</translation>
    </message>
    <message>
        <source>Invalid number of copies &quot;%1&quot;; use 1 to %2</source>
        <translation>„%1“ ist keine Zahl von Kopien; sie muss von 1 bis %2 sein</translation>
    </message>
    <message>
        <source>Invalid priority &quot;%1&quot;; use 1 (last) to 100 (first)</source>
        <translation>„%1“ ist keine Priorität; sie muss von 1 (zuletzt) bis 100 (zuerst) sein</translation>
    </message>
    <message>
        <source>Missing queue in &quot;%1&quot;; use QUEUE or QUEUE/INSTANCE</source>
        <translation>„%1“ nennt keine Warteschlange; schreiben Sie QUEUE oder QUEUE/INSTANCE</translation>
    </message>
    <message>
        <source>Invalid job &quot;%1&quot;; use its number, or QUEUE-NUMBER as in the request id</source>
        <translation>„%1“ ist kein Auftrag; schreiben Sie seine Nummer oder QUEUE-NUMBER, wie beim Senden gemeldet</translation>
    </message>
    <message>
        <source>Missing option in &quot;%1&quot;; use NAME=VALUE</source>
        <translation>„%1“ nennt keine Option; schreiben Sie NAME=VALUE</translation>
    </message>
    <message>
        <source>The queue to print on, with an instance if needed. Default: the default queue.</source>
        <translation>Die Warteschlange, auf der gedruckt wird, mit einem benannten Satz von Optionen. Ohne die Angabe die Standardwarteschlange.</translation>
    </message>
    <message>
        <source>The print server.</source>
        <translation>Der Druckserver.</translation>
    </message>
    <message>
        <source>The user name for the print server.</source>
        <translation>Der Benutzer, für den gedruckt wird.</translation>
    </message>
    <message>
        <source>Encrypts the connection to the print server.</source>
        <translation>Verschlüsselt die Verbindung zum Druckserver.</translation>
    </message>
    <message>
        <source>The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes.</source>
        <translation>Der Name des Papiers in der PPD, oder Custom.BREITExLÄNGEmm, wo der Drucker freie Größen annimmt.</translation>
    </message>
    <message>
        <source>The number of copies.</source>
        <translation>Die Zahl der Kopien.</translation>
    </message>
    <message>
        <source>The pages to print, as in 1-3,5,8-.</source>
        <translation>Die zu druckenden Seiten, zum Beispiel 1-3,5,8-.</translation>
    </message>
    <message>
        <source>An option of the PPD or of the print server. Several options are separated by blanks or given one by one.</source>
        <translation>Eine Option der PPD oder des Druckservers; mehrere auf einmal, durch Leerzeichen getrennt, oder einzeln.</translation>
    </message>
    <message>
        <source>The job&apos;s name in the queue.</source>
        <translation>Der Name des Auftrags in der Warteschlange.</translation>
    </message>
    <message>
        <source>The job&apos;s priority, from 1 to 100 (first).</source>
        <translation>Die Priorität des Auftrags, von 1 bis 100 (zuerst).</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and restart for a job that was already sent.</source>
        <translation>Wann gedruckt wird: hold, immediate, HH:MM (UTC), night, weekend und andere; bei einem früher gesendeten Auftrag auch resume und restart.</translation>
    </message>
    <message>
        <source>Sends a mail when the job is finished; implies -s.</source>
        <translation>Sendet eine E-Mail, wenn der Auftrag beendet ist; schließt -s ein.</translation>
    </message>
    <message>
        <source>Does not print the request id.</source>
        <translation>Meldet die Nummer des Auftrags nicht.</translation>
    </message>
    <message>
        <source>Ignored, for compatibility with lp: documents are always copied.</source>
        <translation>Für lp zugelassen: Dokumente werden immer kopiert.</translation>
    </message>
    <message>
        <source>Changes a job that was already sent.</source>
        <translation>Ändert einen früher gesendeten Auftrag.</translation>
    </message>
    <message>
        <source>Prints without the dialog, with the settings that it would show.</source>
        <translation>Druckt sofort, mit den Einstellungen, mit denen der Dialog geöffnet würde.</translation>
    </message>
    <message>
        <source>Lists the queues and their states.</source>
        <translation>Listet die Warteschlangen und ihren Zustand auf.</translation>
    </message>
    <message>
        <source>Writes the settings that the dialog would show, without printing.</source>
        <translation>Zeigt die Einstellungen, mit denen der Dialog geöffnet würde, und druckt nichts.</translation>
    </message>
    <message>
        <source>Prepares the job and writes what would be sent, without sending it.</source>
        <translation>Tut alles außer dem Senden und zeigt, was gesendet würde.</translation>
    </message>
    <message>
        <source>Writes the output as JSON.</source>
        <translation>Gibt dies als JSON aus.</translation>
    </message>
    <message>
        <source>Sends the job even with conflicts, or with choices that the printer does not have.</source>
        <translation>Sendet auch, was der Drucker nicht hat und was sich nicht miteinander verträgt.</translation>
    </message>
    <message>
        <source>Saves a screenshot of the dialog as a PNG file.</source>
        <translation>Speichert ein Bild des Dialogs, wie er sich öffnet, in einer PNG-Datei.</translation>
    </message>
    <message>
        <source>Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue.</source>
        <translation>Eine PPD-Datei, unkomprimiert oder gzip: druckt auf einem virtuellen Drucker statt auf einer Warteschlange.</translation>
    </message>
    <message>
        <source>The folder for strip.pdf and job.json of the virtual printer; created if it does not exist. Default: a new folder among the user&apos;s data.</source>
        <translation>Der Ordner für strip.pdf und job.json des virtuellen Druckers; er wird angelegt, wenn es ihn nicht gibt. Ohne die Angabe ein neuer Ordner bei den Daten des Benutzers.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported; documents are sent as PDF</source>
        <translation>„%1“ ist nicht möglich; Dokumente werden als PDF gesendet</translation>
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
        <translation>Rückgabewert:
  0  gedruckt, oder das Gewünschte gezeigt
  1  etwas ließ sich nicht öffnen, verwenden, senden oder schreiben;
     nichts wurde gedruckt, es sei denn, die Standardfehlerausgabe sagt,
     dass der Auftrag trotzdem gesendet wurde
  2  die Befehlszeile wurde nicht verstanden
  3  gedruckt, aber ohne die Seite mit den Schneideoptionen
  4  im Dialog abgebrochen
  129, 130, 143  von einem Signal beendet, bevor der Auftrag gesendet war
</translation>
    </message>
    <message>
        <source>Cancels a job that an interrupted program left on a print server.</source>
        <translation>Nimmt einen Auftrag zurück, den ein beendetes Programm auf einem Druckserver zurückgelassen hat.</translation>
    </message>
    <message>
        <source>Releases such a job; it may be incomplete.</source>
        <translation>Druckt, was der Druckserver von einem solchen Auftrag hat, vielleicht nicht alle Dokumente.</translation>
    </message>
    <message>
        <source>A panel bundle, or a folder with bundles, to use instead of the installed ones.</source>
        <translation>Ein Bundle mit Seiten des Druckdialogs, oder ein Ordner mit Bundles, statt der installierten.</translation>
    </message>
    <message>
        <source>Loads panels again that have ended or blocked the program before.</source>
        <translation>Lädt Seiten wieder, die das Programm zuvor beendet oder blockiert haben.</translation>
    </message>
    <message>
        <source>Invalid scaling &quot;%1&quot;; use auto, fit, fill or none</source>
        <translation>Ungültige Skalierung „%1“; möglich sind auto, fit, fill und none</translation>
    </message>
    <message>
        <source>The kernel has no Landlock: the processes that read documents can read other files.</source>
        <translation>Der Kernel hat kein Landlock: Die Prozesse, die Dokumente lesen, können andere Dateien lesen.</translation>
    </message>
    <message>
        <source>The kernel has no seccomp: the processes that read documents can use the network and start other processes.</source>
        <translation>Der Kernel hat kein seccomp: Die Prozesse, die Dokumente lesen, können das Netzwerk benutzen und andere Prozesse starten.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::Console</name>
    <message>
        <source>The job was sent nevertheless, as %1-%2.</source>
        <translation>Der Auftrag wurde trotzdem gesendet, als %1-%2.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation>(Standard)</translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation>Klasse aus: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destinations</source>
        <translation>Der Druckserver „%1“ hat kein Ziel, auf dem gedruckt werden kann</translation>
    </message>
    <message>
        <source>To resolve the conflict: %1</source>
        <translation>Abhilfe: %1</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no default destination; specify one with &quot;-d&quot;</source>
        <translation>Auf dem Druckserver „%1“ gibt es kein Standardziel; nennen Sie eines mit „-d“</translation>
    </message>
    <message>
        <source>Stopped by a signal; nothing was printed.</source>
        <translation>Durch ein Signal abgebrochen; es wurde nichts gedruckt.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::LeftJobsRun</name>
    <message>
        <source>&quot;kvprint --cancel-left %1&quot; cancels it, &quot;kvprint --release-left %1&quot; releases it.</source>
        <translation>„kvprint --cancel-left %1“ nimmt ihn zurück, „kvprint --release-left %1“ druckt, was der Server davon hat.</translation>
    </message>
    <message>
        <source>Jobs &quot;%1&quot; are left on several print servers; specify one of: %2</source>
        <translation>Aufträge „%1“ sind auf mehreren Druckservern zurückgeblieben; nennen Sie einen von diesen: %2</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are no such jobs</source>
        <translation>Es gibt keinen Auftrag „%1“, den ein beendetes Programm zurückgelassen hat; es ist keiner zurückgeblieben</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are these: %2</source>
        <translation>Es gibt keinen Auftrag „%1“, den ein beendetes Programm zurückgelassen hat; zurückgeblieben sind: %2</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>Die PPD-Datei „%1“ hat kein Papier „%2“; sie hat: %3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; defines no paper</source>
        <translation>Die PPD-Datei „%1“ nennt kein Papier, auf das gedruckt werden kann</translation>
    </message>
    <message>
        <source>The label strip was written to:</source>
        <translation>Der Etikettenstreifen liegt in:</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::StandardStreams</name>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>Die Standardausgabe lässt sich nicht schreiben: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalPassword</name>
    <message>
        <source>Password for the document on standard input:</source>
        <translation>Kennwort für das Dokument auf der Standardeingabe:</translation>
    </message>
    <message>
        <source>Password for the document &quot;%1&quot;:</source>
        <translation>Kennwort für das Dokument „%1“:</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Das Kennwort ist falsch.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalTrust</name>
    <message>
        <source>Type &quot;%1&quot; to continue:</source>
        <translation>Geben Sie „%1“ ein, um fortzufahren:</translation>
    </message>
</context>
</TS>
