<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>dialog::job::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation>Classe d’imprimantes : %1</translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation>Imp&amp;rimante</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation>Cette imprimante n’existe pas.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>Attente de la réponse du serveur d’impression…</translation>
    </message>
    <message>
        <source>Last known state: %1</source>
        <translation>La dernière fois : %1</translation>
    </message>
    <message>
        <source>The print server does not respond. Last known state: %1</source>
        <translation>Le serveur d’impression ne répond pas. La dernière fois : %1</translation>
    </message>
    <message>
        <source>The print server does not respond.</source>
        <translation>Le serveur d’impression ne répond pas.</translation>
    </message>
    <message>
        <source>The print server requires a password.</source>
        <translation>Le serveur d’impression demande un mot de passe.</translation>
    </message>
    <message>
        <source>The print server requires a password. Last known state: %1</source>
        <translation>Le serveur d’impression demande un mot de passe. La dernière fois : %1</translation>
    </message>
    <message>
        <source>The print server is not trusted.</source>
        <translation>Le serveur d’impression n’est pas approuvé.</translation>
    </message>
    <message>
        <source>The print server is not trusted. Last known state: %1</source>
        <translation>Le serveur d’impression n’est pas approuvé. La dernière fois : %1</translation>
    </message>
</context>
<context>
    <name>dialog::job::DocumentPasswordDialog</name>
    <message>
        <source>Password for the document</source>
        <translation>Mot de passe du document</translation>
    </message>
    <message>
        <source>The document on standard input is encrypted.</source>
        <translation>Le document sur l’entrée standard est chiffré.</translation>
    </message>
    <message>
        <source>The document &quot;%1&quot; is encrypted.</source>
        <translation>Le document « %1 » est chiffré.</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Mot de passe</translation>
    </message>
</context>
<context>
    <name>dialog::job::ErrorBanner</name>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobPage</name>
    <message>
        <source>Print time</source>
        <translation>Heure d’impression</translation>
    </message>
    <message>
        <source>Queue default</source>
        <translation>Réglage de la file d’attente</translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation>De 1 à 100 ; les tâches de priorité plus élevée sont imprimées avant les autres</translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation>Nom &amp;de la tâche</translation>
    </message>
    <message>
        <source>Orienta&amp;tion</source>
        <translation>Orie&amp;ntation</translation>
    </message>
    <message>
        <source>When to pr&amp;int</source>
        <translation>&amp;Quand imprimer</translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation>&amp;Priorité</translation>
    </message>
    <message>
        <source>Printer default</source>
        <translation>Réglage de l’imprimante</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>Paysage inversé</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>Portrait inversé</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Quand je libère la tâche</translation>
    </message>
    <message>
        <source>At a specific time</source>
        <translation>À une heure donnée</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Pendant la journée</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>En soirée</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>La nuit</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Pendant la deuxième équipe</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Pendant la troisième équipe</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Le week-end</translation>
    </message>
    <message>
        <source>Page si&amp;ze</source>
        <translation>&amp;Format de la page</translation>
    </message>
    <message>
        <source>Shrink pages larger than the label</source>
        <translation>Réduire les pages plus grandes que l’étiquette</translation>
    </message>
    <message>
        <source>Fit to the printable area</source>
        <translation>Ajuster à la zone imprimable</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Remplir l’étiquette</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobWindow</name>
    <message>
        <source>The job was sent.</source>
        <translation>La tâche est envoyée.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Tâche %1 : %2</translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation>Annuler la &amp;tâche</translation>
    </message>
</context>
<context>
    <name>dialog::job::LeftJobBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Cancel the job</source>
        <translation>Retirer la tâche</translation>
    </message>
    <message>
        <source>Release the job</source>
        <translation>Libérer la tâche</translation>
    </message>
</context>
<context>
    <name>dialog::job::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>Asse&amp;mbler les copies</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Toutes les pages une fois, puis à nouveau ; sinon toutes les copies d’une page ensemble</translation>
    </message>
    <message>
        <source>all, or ranges: 1-3, 5</source>
        <translation>toutes, ou par exemple 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>&amp;Copies</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>Pa&amp;ges</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>Dernière page en premier</translation>
    </message>
</context>
<context>
    <name>dialog::job::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation>Mot de passe du serveur d’impression</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nom d’&amp;utilisateur</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Mot de passe</translation>
    </message>
</context>
<context>
    <name>dialog::job::SendBar</name>
    <message>
        <source>Cancel sending</source>
        <translation>Arrêter l’envoi</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>Envoi de « %1 »</translation>
    </message>
</context>
<context>
    <name>dialog::job::SummaryPage</name>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
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
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyée</translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation>Options de la tâche</translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation>La même tâche en ligne de comman&amp;de</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Copier la commande</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
</context>
<context>
    <name>dialog::job::TrustText</name>
    <message>
        <source>Connection without encryption</source>
        <translation>Connexion non chiffrée</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password, and the connection to it is not encrypted.</source>
        <translation>Le serveur d’impression « %1 » demande un mot de passe et la connexion n’est pas chiffrée.</translation>
    </message>
    <message>
        <source>Others on the network can read the password.</source>
        <translation>D’autres personnes sur le réseau peuvent lire le mot de passe.</translation>
    </message>
    <message>
        <source>Send anyway</source>
        <translation>Envoyer quand même</translation>
    </message>
    <message>
        <source>Certificate of the print server</source>
        <translation>Certificat du serveur d’impression</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2.</source>
        <translation>Le certificat du serveur d’impression « %1 » n’est pas approuvé : %2.</translation>
    </message>
    <message>
        <source>Its SHA-256 fingerprint is:
%1

Trust it only if the server&apos;s administrator confirms this fingerprint. It stays trusted for later connections.</source>
        <translation>Son empreinte SHA-256 est :
%1

Ne l’approuvez que si l’administrateur du serveur indique la même empreinte. Il reste approuvé par la suite.</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>Approuver</translation>
    </message>
</context>
<context>
    <name>dialog::job::VirtualSender</name>
    <message>
        <source>The PPD file defines no paper</source>
        <translation>Le fichier PPD n’indique aucun papier</translation>
    </message>
</context>
<context>
    <name>dialog::options::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation>non défini</translation>
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
        <translation>L’imprimante ne peut pas faire tout cela à la fois.</translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation>Imprimer quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>dialog::options::CustomValueFields</name>
    <message numerus="yes">
        <source>&quot;%1&quot; needs at least %n character(s). Until then, the previous value is used.</source>
        <translation>
            <numerusform>« %1 » demande au moins %n caractère. D’ici là, le réglage reste tel qu’il était.</numerusform>
            <numerusform>« %1 » demande au moins %n caractères. D’ici là, le réglage reste tel qu’il était.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::options::OptionsPage</name>
    <message>
        <source>Option groups</source>
        <translation>Groupes d’options</translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation>Cette imprimante n’a pas d’autres options.</translation>
    </message>
</context>
<context>
    <name>dialog::paper::CustomPaperFields</name>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest length</comment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>Largeur du papier</translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation>Longueur du papier</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>Longue&amp;ur</translation>
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
        <translation>Chercher un papier</translation>
    </message>
    <message>
        <source>Custom, %1</source>
        <comment>a size</comment>
        <translation>Personnalisé, %1</translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation>Prendre la taille du document : %1</translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation>Une taille personnalisée</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation>%1 de large</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>%1 de large, %2 de long</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Taille personnalisée…</translation>
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
        <translation>po</translation>
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
        <translation>Imprimante : %1</translation>
    </message>
</context>
<context>
    <name>dialog::window::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation>Options, aperçu et résumé</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Ap&amp;erçu de la page</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>Ré&amp;sumé</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>&amp;Tâche</translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation>À en&amp;voyer</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
</context>
<context>
    <name>dialog::window::PagePreview</name>
    <message>
        <source>The page is larger than the label and is shrunk to fit.</source>
        <translation>La page est plus grande que l’étiquette et sera réduite.</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelBanner</name>
    <message>
        <source>The printer&apos;s options are listed on the page &quot;Options&quot;.</source>
        <translation>Les options de l’imprimante se trouvent sur la page « Options ».</translation>
    </message>
    <message>
        <source>Load It Again</source>
        <translation>Recharger</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelPage</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>dialog::window::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The printer has no description (PPD); its papers and cuts are not known.</source>
        <translation>L’imprimante n’a pas de description ; ses papiers et ses coupes ne sont donc pas connus ici.</translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation>Attente de la description de l’imprimante…</translation>
    </message>
    <message>
        <source>No printer is selected.</source>
        <translation>Aucune imprimante n’est choisie.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>Attente de la réponse du serveur d’impression…</translation>
    </message>
    <message>
        <source>The printer&apos;s description is not known.</source>
        <translation>La description de l’imprimante n’est pas connue.</translation>
    </message>
</context>
<context>
    <name>dialog::window::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Bande d’étiquettes</translation>
    </message>
</context>
<context>
    <name>host::base::OutOfMemory</name>
    <message>
        <source>Out of memory; nothing was printed.</source>
        <translation>Mémoire épuisée ; rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>Out of memory; the job may be incomplete, or left on the print server.</source>
        <translation>Mémoire épuisée ; la tâche est peut-être incomplète, ou restée sur le serveur d’impression.</translation>
    </message>
    <message>
        <source>Out of memory. The job was sent nevertheless.</source>
        <translation>Mémoire épuisée. La tâche a tout de même été envoyée.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation>L’imprimante « %1 » n’a pas d’option « %2 ».</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation>L’imprimante « %1 » n’a pas de papier « %2 ».</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation>L’option « %1 » de l’imprimante « %2 » n’a pas de choix « %3 » ; elle a : %4</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print on the paper &quot;%2&quot;: its size is %3 × %4 points; width and length must be greater than 0, one of them at most %5 m, the other at most %6 m.</source>
        <translation>L’imprimante « %1 » ne peut pas imprimer sur le papier « %2 » : sa taille est de %3 × %4 points ; la largeur et la longueur doivent être supérieures à 0 ; l’une ne doit pas dépasser %5 m et l’autre %6 m.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation>Impossible de lire le document « %1 » : %2</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it has become shorter while it was read</source>
        <translation>il a raccourci pendant la lecture</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>le fichier a changé depuis son ouverture ; ouvrez-le à nouveau</translation>
    </message>
    <message>
        <source>it has changed while it was read</source>
        <translation>il a changé pendant la lecture</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobChange</name>
    <message>
        <source>It is printed again, but held. %1</source>
        <translation>Elle doit être réimprimée, mais est retenue. %1</translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation>La tâche %1 n’a pas été modifiée. %2</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Aucun serveur d’impression ne peut transmettre le choix « %1 » de l’option « %2 ».</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobFate</name>
    <message>
        <source>%1 A job &quot;%2&quot; without documents may be left in the queue &quot;%3&quot; of the print server &quot;%4&quot;; it prints nothing.</source>
        <translation>%1 Une tâche « %2 » sans documents est peut-être restée dans la file d’attente « %3 » du serveur d’impression « %4 » ; rien n’en est imprimé.</translation>
    </message>
    <message>
        <source>%1 The print server &quot;%2&quot; has all documents of job %3-%4, but did not report whether it released the job: it is printed, or it is still held. Check the queue before you print again.</source>
        <translation>%1 Le serveur d’impression « %2 » a tous les documents de la tâche %3-%4 et n’a pas indiqué s’il la libère : la tâche est imprimée, ou elle est retenue et n’est pas imprimée. Regardez la file d’attente avant d’imprimer à nouveau.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 on the print server &quot;%4&quot; may have been printed; check the queue before you print again.</source>
        <translation>%1 La tâche %2-%3 du serveur d’impression « %4 » a peut-être été imprimée ; regardez la file d’attente avant d’imprimer à nouveau.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; it is held on the print server &quot;%4&quot; and is not printed unless it is released.</source>
        <translation>%1 La tâche %2-%3 n’a pas pu être retirée ; elle est retenue sur le serveur d’impression « %4 » et n’est pas imprimée tant qu’elle n’est pas libérée.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; check the queue before you print again.</source>
        <translation>%1 La tâche %2-%3 n’a pas pu être retirée ; regardez la file d’attente avant d’imprimer à nouveau.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3: %4</source>
        <translation>%1 Tâche %2-%3 : %4</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobJournal</name>
    <message>
        <source>The record &quot;%1&quot; of an interrupted job was damaged and has been removed. Check your queues for a held job.</source>
        <translation>L’enregistrement « %1 » d’une tâche en cours d’envoi est endommagé et a été supprimé ; vérifiez dans vos files d’attente si une tâche est restée.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation>défaut de l’imprimante</translation>
    </message>
    <message>
        <source>queue default</source>
        <translation>défaut de la file d’attente</translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation>votre défaut (lpoptions)</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>préréglage</translation>
    </message>
    <message>
        <source>cut options</source>
        <translation>options de coupe</translation>
    </message>
    <message>
        <source>set by you</source>
        <translation>réglé par vous</translation>
    </message>
    <message>
        <source>page layout</source>
        <translation>mise en page</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobSettings</name>
    <message>
        <source>Cannot print the job: it has more than %1 labels</source>
        <translation>Impossible d’imprimer autant d’étiquettes à la fois : une tâche en a au plus %1</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation>Retenue jusqu’à sa libération.</translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation>Retenue jusqu’à %1.</translation>
    </message>
    <message>
        <source>Waiting in the queue.</source>
        <translation>En attente de son tour.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Impression en cours.</translation>
    </message>
    <message>
        <source>Stopped; it continues when the printer is ready.</source>
        <translation>Arrêtée ; elle reprend quand l’imprimante est de nouveau prête.</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Annulée.</translation>
    </message>
    <message>
        <source>Aborted by the print server.</source>
        <translation>Abandonnée par le serveur d’impression.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Imprimée.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>Le serveur indique : %1</translation>
    </message>
    <message>
        <source>The job is finished; the print server keeps no record of it.</source>
        <translation>La tâche est terminée ; le serveur d’impression n’en garde pas trace.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobUpload</name>
    <message>
        <source>There is no document to print.</source>
        <translation>Il n’y a aucun document à imprimer.</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Aucun serveur d’impression ne peut transmettre le choix « %1 » de l’option « %2 ».</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; did not receive all of &quot;%2&quot;.</source>
        <translation>Le serveur d’impression « %1 » n’a pas accepté la totalité de « %2 ».</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LeftJob</name>
    <message>
        <source>The print server &quot;%1&quot; no longer has the job &quot;%2&quot; in the queue &quot;%3&quot;, or the job is finished.</source>
        <translation>Le serveur d’impression « %1 » n’a plus de tâche « %2 » dans la file d’attente « %3 », ou elle est terminée.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is not held: %4</source>
        <translation>La tâche %1-%2 du serveur d’impression « %3 » n’est pas retenue : %4</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is released.</source>
        <translation>La tâche %1-%2 du serveur d’impression « %3 » est libérée.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is canceled.</source>
        <translation>La tâche %1-%2 du serveur d’impression « %3 » est retirée.</translation>
    </message>
    <message>
        <source>An interrupted program may have left job %1 (&quot;%2&quot;) on the print server &quot;%3&quot;; the job may be incomplete.</source>
        <translation>Un programme arrêté pendant l’impression a peut-être laissé la tâche %1 (« %2 ») sur le serveur d’impression « %3 », peut-être sans tous ses documents.</translation>
    </message>
    <message>
        <source>An interrupted program may have left a job &quot;%1&quot; without documents in the queue &quot;%2&quot; of the print server &quot;%3&quot;.</source>
        <translation>Un programme arrêté pendant l’impression a peut-être laissé une tâche « %1 » sans documents dans la file d’attente « %2 » du serveur d’impression « %3 ».</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LpCommand</name>
    <message>
        <source>lp cannot express these options: %1</source>
        <translation>lp ne peut pas exprimer ces options telles qu’elles sont envoyées : %1</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::DiscoveredQueue</name>
    <message>
        <source>The print server &quot;%1&quot; cannot reach the printer &quot;%2&quot;.</source>
        <translation>Le serveur d’impression « %1 » ne peut pas joindre l’imprimante « %2 ».</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer on the network.</source>
        <translation>L’imprimante « %1 » n’est plus sur le réseau.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation>Le serveur d’impression « %1 » n’a pas de file d’attente ou de classe « %2 ».</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueText</name>
    <message>
        <source>The printer needs labels or tape.</source>
        <translation>L’imprimante attend des étiquettes ou du ruban.</translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation>Des étiquettes ou du ruban sont coincés.</translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation>Le rouleau d’étiquettes ou le ruban est presque épuisé.</translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation>Le rouleau d’étiquettes ou le ruban est épuisé.</translation>
    </message>
    <message>
        <source>The printer is pausing.</source>
        <translation>L’imprimante va être mise en pause.</translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation>La file d’attente est en pause ; les tâches attendent.</translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation>L’imprimante est éteinte.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>Connexion à l’imprimante en cours.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>L’imprimante ne répond pas.</translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation>L’imprimante s’arrête.</translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation>Certaines imprimantes de la classe sont arrêtées.</translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation>Le toner est presque épuisé.</translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation>Le toner est épuisé.</translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation>Le serveur d’impression n’a plus d’espace.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation>Le capot de l’imprimante est ouvert.</translation>
    </message>
    <message>
        <source>An interlock of the printer is open.</source>
        <translation>Un verrou de l’imprimante est ouvert.</translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation>La porte de l’imprimante est ouverte.</translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation>La cassette ou le support de rouleau manque.</translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation>Le bac de sortie manque.</translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation>Le bac de sortie est presque plein.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>Le bac de sortie est plein.</translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation>L’encre ou le ruban encreur est presque épuisé.</translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation>L’encre ou le ruban encreur est épuisé.</translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation>Le bac de récupération est presque plein.</translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation>Le bac de récupération est plein.</translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation>L’imprimante est trop chaude.</translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation>L’imprimante préchauffe.</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>L’imprimante est hors ligne.</translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation>Les nouvelles tâches sont retenues.</translation>
    </message>
    <message>
        <source>The printer was deactivated by its administrator.</source>
        <translation>L’imprimante est désactivée par son administrateur.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is missing.</source>
        <translation>Une partie du pilote de l’imprimante manque.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is not installed securely.</source>
        <translation>Une partie du pilote de l’imprimante n’est pas installée de façon sûre.</translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation>Attente de la fin de la tâche par l’imprimante.</translation>
    </message>
    <message>
        <source>The printer does not conform to its protocol.</source>
        <translation>L’imprimante ne respecte pas son protocole.</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Prête.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>Impression en cours.</translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation>Trouvée sur le réseau.</translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation>État inconnu.</translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation>La file d’attente n’accepte pas de tâches.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>Le serveur indique : %1</translation>
    </message>
</context>
<context>
    <name>host::cups::server::CupsConnection</name>
    <message>
        <source>Canceled on request.</source>
        <translation>Abandonné à votre demande.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not respond.</source>
        <translation>Le serveur d’impression « %1 » ne répond pas.</translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation>Impossible de se connecter au serveur d’impression « %1 » : %2</translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; was lost.</source>
        <translation>La connexion au serveur d’impression « %1 » a été interrompue.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; reports: %2</source>
        <translation>Le serveur d’impression « %1 » indique : %2</translation>
    </message>
    <message>
        <source>Cannot fetch &quot;%2&quot; from the print server &quot;%1&quot;: %3</source>
        <translation>Le serveur d’impression « %1 » ne fournit pas « %2 » : %3</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>le fichier dépasse %1 Mo</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>la connexion a été interrompue en cours de route</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;, and none was entered.</source>
        <translation>Le serveur d’impression « %1 » demande un mot de passe pour l’utilisateur « %2 », et aucun n’a été donné.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no certificate.</source>
        <translation>Le serveur d’impression « %1 » n’a pas de certificat.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not the one that is trusted for this host. The trusted one has the SHA-256 fingerprint %2, the server&apos;s has %3. The server&apos;s certificate may have been replaced, another print server may run on the same host, or someone may be intercepting the connection. If the server&apos;s administrator confirms the fingerprint, remove the file &quot;%4&quot; and try again.</source>
        <translation>Le certificat du serveur d’impression « %1 » n’est pas celui qui est approuvé pour cet hôte. Celui qui est approuvé a l’empreinte SHA-256 %2, celui du serveur a %3. Le certificat du serveur a peut-être été remplacé, un autre serveur d’impression fonctionne peut-être sur le même hôte, ou quelqu’un intercepte peut-être la connexion. Si l’administrateur du serveur confirme l’empreinte, supprimez le fichier « %4 » et réessayez.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; with the SHA-256 fingerprint %2 cannot be trusted: %3</source>
        <translation>Le certificat du serveur d’impression « %1 » avec l’empreinte SHA-256 %2 ne doit pas être approuvé : %3</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2. Its SHA-256 fingerprint is %3. Compare it with the fingerprint that the server&apos;s administrator gives you, and confirm it in the dialog or on a terminal.</source>
        <translation>Le certificat du serveur d’impression « %1 » n’est pas approuvé : %2. Son empreinte SHA-256 est %3. Comparez-la avec celle qu’indique l’administrateur du serveur et confirmez-la lorsque la question est posée, dans la fenêtre ou sur un terminal.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Le nom d’utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;. None was sent, because the connection is not encrypted and others could read it. Encrypt the connection (-E), or confirm the question in the dialog or on a terminal.</source>
        <translation>Le serveur d’impression « %1 » demande un mot de passe pour l’utilisateur « %2 ». Aucun n’a été envoyé, car la connexion n’est pas chiffrée et d’autres pourraient le lire. Chiffrez la connexion (-E) ou confirmez lorsque la question est posée, dans la fenêtre ou sur un terminal.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not accept the password of the user &quot;%2&quot;.</source>
        <translation>Le serveur d’impression « %1 » n’accepte pas le mot de passe de l’utilisateur « %2 ».</translation>
    </message>
</context>
<context>
    <name>host::cups::server::FailureReason</name>
    <message>
        <source>It cannot store the document: the disk is full, or the document is larger than it accepts.</source>
        <translation>Il ne peut pas enregistrer le document : le disque est plein, ou le document est plus grand que ce qu’il accepte.</translation>
    </message>
</context>
<context>
    <name>host::documents::LabelDocument</name>
    <message>
        <source>Cannot open the document &quot;%1&quot;: %2</source>
        <translation>Impossible d’ouvrir le document « %1 » : %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>its encryption is not supported</source>
        <translation>il est chiffré d’une manière inconnue</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>il n’a pas de pages</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>la page %1 n’a pas de surface</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>la page %1 est plus longue que %2 m</translation>
    </message>
    <message>
        <source>Cannot open the document on standard input: %1</source>
        <translation>Impossible d’ouvrir le document de l’entrée standard : %1</translation>
    </message>
    <message>
        <source>the image is damaged</source>
        <translation>c’est une image endommagée</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation>il a %1 × %2 pixels, plus qu’il n’est possible d’imprimer</translation>
    </message>
    <message>
        <source>the end of the image is missing</source>
        <translation>c’est une image dont la fin manque</translation>
    </message>
    <message>
        <source>No document is specified</source>
        <translation>Aucun document n’est indiqué</translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation>elle ne peut être lue qu’une fois</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrée standard</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>il dépasse %1</translation>
    </message>
    <message>
        <source>it is not a PDF, PNG, JPEG or SVG file</source>
        <translation>ce n’est ni un PDF, ni un PNG, ni un JPEG, ni un SVG</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>le fichier a changé depuis son ouverture ; ouvrez-le à nouveau</translation>
    </message>
    <message>
        <source>the PDF is damaged</source>
        <translation>c’est un PDF endommagé</translation>
    </message>
    <message>
        <source>it cannot be stored in &quot;%1&quot;: %2</source>
        <translation>il ne peut pas être conservé dans « %1 » : %2</translation>
    </message>
    <message>
        <source>the SVG is damaged</source>
        <translation>c’est un SVG endommagé</translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, but other files are not loaded</source>
        <translation>il renvoie à « %1 », et seul le contenu du SVG même est imprimé</translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation>ligne %1 du SVG : %2</translation>
    </message>
    <message>
        <source>the SVG is too complex to be drawn</source>
        <translation>c’est un SVG de plus d’éléments qu’il n’est possible d’en dessiner</translation>
    </message>
    <message>
        <source>it contains a picture that is neither PNG nor JPEG</source>
        <translation>il contient une image qui n’est ni PNG ni JPEG</translation>
    </message>
    <message>
        <source>it contains a damaged picture</source>
        <translation>il contient une image endommagée</translation>
    </message>
    <message>
        <source>its pictures have more pixels than can be printed</source>
        <translation>il contient des images de plus de pixels qu’il n’est possible d’en imprimer</translation>
    </message>
    <message>
        <source>the converter &quot;%1&quot; cannot be started</source>
        <translation>le programme « %1 », qui le convertit, ne peut pas être lancé</translation>
    </message>
    <message>
        <source>laying its pages out on labels needs too much memory or time</source>
        <translation>la disposition de ses pages sur des étiquettes demande trop de mémoire ou de temps</translation>
    </message>
    <message>
        <source>its pages cannot be laid out on labels; the PDF is damaged</source>
        <translation>ses pages ne peuvent pas être disposées sur des étiquettes ; le PDF est endommagé</translation>
    </message>
    <message>
        <source>the program that reads PDFs cannot be started</source>
        <translation>le programme qui lit les PDF ne peut pas être démarré</translation>
    </message>
    <message>
        <source>the program that reads PDFs has crashed</source>
        <translation>le programme qui lit les PDF s’est arrêté brutalement</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>sa lecture prend trop de temps</translation>
    </message>
    <message>
        <source>it attempts what no document may do</source>
        <translation>il tente ce qu’aucun document n’a le droit de faire</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>la mémoire est insuffisante</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>le mot de passe est incorrect</translation>
    </message>
    <message>
        <source>decrypting it needs too much memory or time</source>
        <translation>son déchiffrement demande trop de mémoire ou de temps</translation>
    </message>
    <message>
        <source>it is encrypted and needs a password</source>
        <translation>il est chiffré et demande un mot de passe</translation>
    </message>
</context>
<context>
    <name>host::documents::PrintOrder</name>
    <message>
        <source>Invalid page range &quot;%1&quot;: use numbers and ranges such as 1-3, 5</source>
        <translation>Pages « %1 » incompréhensibles : écrivez des nombres et des plages comme 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>Impossible d’imprimer les pages « %1 » : la dernière page du document est %2</translation>
    </message>
    <message>
        <source>Nothing to print: no page of the document is selected</source>
        <translation>Rien ne serait imprimé : aucune page du document n’est choisie</translation>
    </message>
</context>
<context>
    <name>host::labels::LabelDrawing</name>
    <message>
        <source>Page %1 cannot be drawn</source>
        <translation>La page %1 ne peut pas être affichée</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleCatalog</name>
    <message>
        <source>The panel bundle &quot;%1&quot; is not used: %2.</source>
        <translation>Le paquet de panneaux « %1 » n’est pas utilisé : %2.</translation>
    </message>
    <message>
        <source>The panel bundles in &quot;%1&quot; are not used: %2.</source>
        <translation>Les paquets de panneaux dans « %1 » ne sont pas utilisés : %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleFolders</name>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>« %1 » ne peut pas être lu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>« %1 » appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>other users can write to &quot;%1&quot;; &quot;chmod go-w&quot; prevents it</source>
        <translation>d’autres utilisateurs peuvent écrire dans « %1 » ; « chmod go-w » l’empêche</translation>
    </message>
</context>
<context>
    <name>host::panels::HostedPanel</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation>« %1 » ne peut pas enregistrer ses réglages : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not allow printing with these settings.</source>
        <translation>« %1 » ne permet pas d’imprimer la tâche avec ces réglages.</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>Impossible d’utiliser le paquet « %1 » : %2</translation>
    </message>
    <message>
        <source>its library contains no panels</source>
        <translation>sa bibliothèque ne contient pas de panneaux</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>il est fait pour la version %1 de l’interface, ce programme a la version %2</translation>
    </message>
    <message>
        <source>missing or unreadable: %1</source>
        <translation>manquant ou illisible : %1</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>Cannot find the panel bundle; searched %1</source>
        <translation>Paquet du panneau introuvable ; cherché : %1</translation>
    </message>
    <message>
        <source>it has no library %1</source>
        <translation>il n’a pas de bibliothèque %1</translation>
    </message>
    <message>
        <source>it does not work on this system</source>
        <translation>il ne fonctionne pas sur ce système</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelGuard</name>
    <message>
        <source>an error occurred in &quot;%1&quot;</source>
        <translation>une erreur s’est produite dans « %1 »</translation>
    </message>
    <message>
        <source>an error occurred in &quot;%1&quot;: %2</source>
        <translation>une erreur s’est produite dans « %1 » : %2</translation>
    </message>
</context>
<context>
    <name>host::printer::Constraints</name>
    <message>
        <source>&quot;%1: %2&quot;</source>
        <translation>« %1 : %2 »</translation>
    </message>
    <message>
        <source>This printer does not support %1.</source>
        <translation>Cette imprimante ne permet pas %1.</translation>
    </message>
    <message>
        <source>%1 and %2 conflict.</source>
        <translation>%1 et %2 s’excluent mutuellement.</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>régler « %1 » sur « %2 »</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>Impossible d’ouvrir le fichier PPD « %1 » : %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, the maximum for a PPD file</source>
        <translation>il dépasse %1 Mo, plus que toute description d’imprimante</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be decompressed</source>
        <translation>il est endommagé ou incomplet : impossible de le décompresser jusqu’au bout</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it has %1 statements; the maximum is %2</source>
        <translation>il contient %1 instructions ; le maximum est %2</translation>
    </message>
    <message>
        <source>it has %1 &quot;%2&quot; statements; the maximum is %3</source>
        <translation>il contient %1 instructions « %2 » ; le maximum est %3</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>il se termine au milieu d’une valeur ; le fichier est incomplet</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdOptions</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation>Commande de l’imprimante</translation>
    </message>
</context>
<context>
    <name>host::setup::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation>Tâche « %1 » pour « %2 » sur %3
</translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation>Options envoyées :
</translation>
    </message>
</context>
<context>
    <name>host::setup::JobSummary</name>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>all</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Label strip</source>
        <translation>Bande d’étiquettes</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>Ruban</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation>Coupes</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>dernière page en premier</translation>
    </message>
    <message>
        <source>Page set</source>
        <translation>Parmi celles-ci</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>les pages impaires</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>les pages paires</translation>
    </message>
</context>
<context>
    <name>host::setup::PanelSource</name>
    <message>
        <source>it could not create its panel</source>
        <translation>il n’a pas pu créer son panneau</translation>
    </message>
    <message>
        <source>its panel cannot be shown: its layout file cannot be used</source>
        <translation>son panneau ne peut pas être affiché : son fichier de mise en page est inutilisable</translation>
    </message>
    <message>
        <source>The panel bundle &quot;%1&quot; does not control %2: another panel or the dialog does, or its description does not list it.</source>
        <translation>Le paquet de panneaux « %1 » ne gère pas %2 : un autre panneau ou la boîte de dialogue s’en charge, ou sa description ne le cite pas.</translation>
    </message>
    <message>
        <source>the program ended or was stopped during its &quot;%1&quot; on %2</source>
        <translation>le programme s’est terminé ou a été arrêté pendant « %1 » le %2</translation>
    </message>
</context>
<context>
    <name>host::setup::Preflight</name>
    <message>
        <source>Page %1 is larger than the label and is printed at %2 % of its size.</source>
        <translation>La page %1 est plus grande que l’étiquette et est imprimée à %2 % de sa taille.</translation>
    </message>
    <message>
        <source>Pages %1 are larger than the label and are printed smaller, at %2 % or more.</source>
        <translation>Les pages %1 sont plus grandes que l’étiquette et sont imprimées réduites, à %2 % ou plus.</translation>
    </message>
    <message>
        <source>Page %1 has content where the printer cannot print.</source>
        <translation>La page %1 a du contenu là où l’imprimante ne peut pas imprimer.</translation>
    </message>
    <message>
        <source>Pages %1 have content where the printer cannot print.</source>
        <translation>Les pages %1 ont du contenu là où l’imprimante ne peut pas imprimer.</translation>
    </message>
    <message>
        <source>Page %1 is blank.</source>
        <translation>La page %1 est vide.</translation>
    </message>
    <message>
        <source>Pages %1 are blank.</source>
        <translation>Les pages %1 sont vides.</translation>
    </message>
    <message>
        <source>The last label is a piece of its own.</source>
        <translation>La dernière étiquette forme un morceau à elle seule.</translation>
    </message>
    <message>
        <source>The job needs %1 m of tape.</source>
        <translation>La tâche demande %1 m de ruban.</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>Utiliser « %1 »</translation>
    </message>
    <message>
        <source>Leave out blank pages</source>
        <translation>Ignorer les pages vides</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>La page %1 ne peut pas être affichée et la tâche ne peut pas être imprimée : %2.</translation>
    </message>
    <message>
        <source>Pages %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>Les pages %1 ne peuvent pas être affichées et la tâche ne peut pas être imprimée : %2.</translation>
    </message>
    <message>
        <source>Leave out pages that cannot be drawn</source>
        <translation>Omettre les pages qui ne peuvent pas être affichées</translation>
    </message>
    <message>
        <source>The labels are printed mirrored, which is readable only through transparent tape.</source>
        <translation>Les étiquettes sont imprimées en miroir, ce qui n’est lisible qu’à travers un ruban transparent.</translation>
    </message>
    <message>
        <source>Turn pages to fit</source>
        <translation>Tourner les pages pour qu’elles tiennent</translation>
    </message>
    <message>
        <source>Page %1 is printed smaller than in the orientation that fits.</source>
        <translation>La page %1 est imprimée plus petite que dans l’orientation adaptée.</translation>
    </message>
    <message>
        <source>Pages %1 are printed smaller than in the orientation that fits.</source>
        <translation>Les pages %1 sont imprimées plus petites que dans l’orientation adaptée.</translation>
    </message>
</context>
<context>
    <name>host::setup::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; with this paper and the other cut options; &quot;%3&quot; is used instead.</source>
        <translation>« %1 » ne peut pas être « %2 » avec ce papier et les autres options de coupe, et est imprimé comme « %3 ».</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;, which is your default (lpoptions).</source>
        <translation>L’imprimante « %1 » n’a pas de papier « %2 », qui est votre défaut (lpoptions).</translation>
    </message>
</context>
<context>
    <name>host::strip::CutPlan</name>
    <message>
        <source>Labels: %1 · Tape: %2</source>
        <translation>Étiquettes : %1 · Ruban : %2</translation>
    </message>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>Pas de coupe complète : les étiquettes sortent en une seule bande.</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>Coupe complète après la dernière étiquette.</translation>
    </message>
    <message>
        <source>Full cut after every label.</source>
        <translation>Coupe complète après chaque étiquette.</translation>
    </message>
    <message>
        <source>Full cut after every %1 labels.</source>
        <translation>Coupe complète toutes les %1 étiquettes.</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <comment>a length</comment>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>measuring…</source>
        <comment>a length</comment>
        <translation>mesure en cours…</translation>
    </message>
    <message>
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>Étiquettes : %1 · Morceaux : %2 · Ruban : %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>Rien n’est imprimé.</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>Demi-coupe entre les étiquettes d’un morceau.</translation>
    </message>
    <message>
        <source>Cut marks are printed where there is no full cut.</source>
        <translation>Repères imprimés là où rien n’est coupé.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job continues there without a margin.</source>
        <translation>La fin reste dans l’imprimante ; la tâche suivante continue sans marge.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is removed.</source>
        <translation>Le ruban vide avant et après chaque étiquette est supprimé.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>Les étiquettes sont en miroir.</translation>
    </message>
    <message>
        <source>Cutting is not known: the printer&apos;s description does not say whether it cuts the labels.</source>
        <translation>La coupe n’est pas connue : la description de l’imprimante ne dit pas si elle coupe les étiquettes.</translation>
    </message>
    <message>
        <source>Full cuts after the labels %1.</source>
        <translation>Coupes complètes après les étiquettes %1.</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>tâche suivante</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 sur %2, %3</translation>
    </message>
</context>
<context>
    <name>host::strip::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>the folder cannot be created: %1</source>
        <translation>impossible de créer le dossier : %1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>Impossible d’écrire « %1 » : %2</translation>
    </message>
</context>
<context>
    <name>platform::files::OutputFile</name>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>c’est un lien symbolique</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>c’est un socket</translation>
    </message>
    <message>
        <source>it is a block device</source>
        <translation>c’est un périphérique de type bloc</translation>
    </message>
    <message>
        <source>no program reads from it</source>
        <translation>personne n’y lit</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>Essayez « kvprint --help ».</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation>Usage : kvprint [OPTION]... [--] [DOCUMENT]...
        kvprint -i [QUEUE-]JOB [OPTION]...
        kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</translation>
    </message>
    <message>
        <source>Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages and cuts shows the label strip as it will come out of the printer. Without a display, the documents are printed immediately. &quot;-&quot; or no document means standard input.</source>
        <translation>Imprime des documents sur des imprimantes d’étiquettes, avec une boîte de dialogue pour le papier, les pages et les coupes qui montre la bande d’étiquettes telle qu’elle sortira. Sans écran, imprime aussitôt. PDF, PNG, JPEG et SVG&#xa0;; «&#xa0;-&#xa0;» ou rien désigne l’entrée standard.</translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation>Options :
</translation>
    </message>
    <message>
        <source>Ends the options; all following arguments are documents.</source>
        <translation>Termine les options&#xa0;: ce qui suit est un document.</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;</source>
        <translation>L’option « %1 » n’existe pas</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not accept a value</source>
        <translation>L’option « %1 » ne prend pas de valeur</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires a value: %2</source>
        <translation>L’option « %1 » demande une valeur : %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; applies to the virtual printer and requires &quot;--ppd&quot;</source>
        <translation>L’option « %1 » concerne l’imprimante virtuelle et demande « --ppd »</translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; applies to a job that was already sent and requires &quot;-i&quot;</source>
        <translation>-H : « %1 » concerne une tâche déjà envoyée et demande « -i »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not accept documents, but &quot;%2&quot; is specified</source>
        <translation>« %1 » ne prend pas de document, et « %2 » est indiqué</translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation>L’entrée standard (« - ») ne peut être imprimée qu’une fois</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; cannot be combined</source>
        <translation>L’option « %1 » ne va pas avec « %2 »</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires one of: %2</source>
        <translation>L’option « %1 » ne va qu’avec l’une de : %2</translation>
    </message>
    <message>
        <source>No document is specified; name a file, or &quot;-&quot; for standard input</source>
        <translation>Aucun document indiqué ; indiquez un fichier, ou « - » pour en saisir un</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>la valeur est vide</translation>
    </message>
    <message>
        <source>Invalid time &quot;%1&quot;; use HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation>« %1 » n’est pas un moment d’impression ; écrivez HH:MM ou HH:MM:SS (UTC), ou l’un de : %2</translation>
    </message>
    <message>
        <source>Invalid value &quot;%1&quot;; use one of: %2</source>
        <translation>« %1 » n’est pas possible ; ce doit être l’un de : %2</translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation>aucun papier n’est indiqué</translation>
    </message>
    <message>
        <source>Invalid number of copies &quot;%1&quot;; use 1 to %2</source>
        <translation>« %1 » n’est pas un nombre de copies ; il doit aller de 1 à %2</translation>
    </message>
    <message>
        <source>Invalid priority &quot;%1&quot;; use 1 (last) to 100 (first)</source>
        <translation>« %1 » n’est pas une priorité ; elle doit aller de 1 (dernière) à 100 (première)</translation>
    </message>
    <message>
        <source>Missing queue in &quot;%1&quot;; use QUEUE or QUEUE/INSTANCE</source>
        <translation>« %1 » n’indique aucune file d’attente ; écrivez QUEUE ou QUEUE/INSTANCE</translation>
    </message>
    <message>
        <source>Invalid job &quot;%1&quot;; use its number, or QUEUE-NUMBER as in the request id</source>
        <translation>« %1 » n’est pas une tâche ; écrivez son numéro, ou QUEUE-NUMBER comme annoncé à l’envoi</translation>
    </message>
    <message>
        <source>Missing option in &quot;%1&quot;; use NAME=VALUE</source>
        <translation>« %1 » n’indique aucune option ; écrivez NAME=VALUE</translation>
    </message>
    <message>
        <source>The queue to print on, with an instance if needed. Default: the default queue.</source>
        <translation>La file d’attente où imprimer, avec un jeu d’options nommé. Sans cette option, la file d’attente par défaut.</translation>
    </message>
    <message>
        <source>The print server.</source>
        <translation>Le serveur d’impression.</translation>
    </message>
    <message>
        <source>The user name for the print server.</source>
        <translation>L’utilisateur pour qui l’impression est faite.</translation>
    </message>
    <message>
        <source>Encrypts the connection to the print server.</source>
        <translation>Chiffre la connexion au serveur d’impression.</translation>
    </message>
    <message>
        <source>The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes.</source>
        <translation>Le nom du papier dans le PPD, ou Custom.LARGEURxLONGUEURmm si l’imprimante accepte des tailles libres.</translation>
    </message>
    <message>
        <source>The number of copies.</source>
        <translation>Le nombre de copies.</translation>
    </message>
    <message>
        <source>The pages to print, as in 1-3,5,8-.</source>
        <translation>Les pages à imprimer, par exemple 1-3,5,8-.</translation>
    </message>
    <message>
        <source>An option of the PPD or of the print server. Several options are separated by blanks or given one by one.</source>
        <translation>Une option du PPD ou du serveur d’impression&#xa0;; plusieurs à la fois, séparées par des espaces, ou une par une.</translation>
    </message>
    <message>
        <source>The job&apos;s name in the queue.</source>
        <translation>Le nom de la tâche dans la file d’attente.</translation>
    </message>
    <message>
        <source>The job&apos;s priority, from 1 to 100 (first).</source>
        <translation>La priorité de la tâche, de 1 à 100 (première).</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and restart for a job that was already sent.</source>
        <translation>Quand imprimer&#xa0;: hold, immediate, HH:MM (UTC), night, weekend et d’autres&#xa0;; pour une tâche déjà envoyée, aussi resume et restart.</translation>
    </message>
    <message>
        <source>Sends a mail when the job is finished; implies -s.</source>
        <translation>Envoie un courriel quand la tâche est terminée&#xa0;; inclut -s.</translation>
    </message>
    <message>
        <source>Does not print the request id.</source>
        <translation>N’annonce pas le numéro de la tâche.</translation>
    </message>
    <message>
        <source>Ignored, for compatibility with lp: documents are always copied.</source>
        <translation>Acceptée par compatibilité avec lp&#xa0;: les documents sont toujours copiés.</translation>
    </message>
    <message>
        <source>Changes a job that was already sent.</source>
        <translation>Modifie une tâche déjà envoyée.</translation>
    </message>
    <message>
        <source>Prints without the dialog, with the settings that it would show.</source>
        <translation>Imprime aussitôt, avec les réglages qu’aurait la boîte de dialogue à l’ouverture.</translation>
    </message>
    <message>
        <source>Lists the queues and their states.</source>
        <translation>Liste les files d’attente et leur état.</translation>
    </message>
    <message>
        <source>Writes the settings that the dialog would show, without printing.</source>
        <translation>Affiche les réglages qu’aurait la boîte de dialogue à l’ouverture, et n’imprime rien.</translation>
    </message>
    <message>
        <source>Prepares the job and writes what would be sent, without sending it.</source>
        <translation>Fait tout sauf l’envoi, et affiche ce qui serait envoyé.</translation>
    </message>
    <message>
        <source>Writes the output as JSON.</source>
        <translation>L’affiche en JSON.</translation>
    </message>
    <message>
        <source>Sends the job even with conflicts, or with choices that the printer does not have.</source>
        <translation>Envoie même ce que l’imprimante n’a pas, et ce qui est incompatible.</translation>
    </message>
    <message>
        <source>Saves a screenshot of the dialog as a PNG file.</source>
        <translation>Enregistre une image de la boîte de dialogue, telle qu’elle s’ouvre, dans un fichier PNG.</translation>
    </message>
    <message>
        <source>Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue.</source>
        <translation>Un fichier PPD, non compressé ou gzip&#xa0;: imprime sur une imprimante virtuelle au lieu d’une file d’attente.</translation>
    </message>
    <message>
        <source>The folder for strip.pdf and job.json of the virtual printer; created if it does not exist. Default: a new folder among the user&apos;s data.</source>
        <translation>Le dossier pour les fichiers strip.pdf et job.json de l’imprimante virtuelle, créé s’il n’existe pas. Sans cette option, un nouveau dossier parmi les données de l’utilisateur.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported; documents are sent as PDF</source>
        <translation>« %1 » n’est pas possible ; les documents sont envoyés en PDF</translation>
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
        <translation>Code de retour :
  0  imprimé, ou affiché ce qui était demandé
  1  quelque chose n’a pas pu être ouvert, utilisé, envoyé ou écrit ;
     rien n’a été imprimé, sauf si la sortie d’erreur dit que la tâche a
     tout de même été envoyée
  2  la ligne de commande n’a pas été comprise
  3  imprimé, mais sans le panneau des options de coupe
  4  annulé dans la boîte de dialogue
  129, 130, 143  arrêté par un signal avant l’envoi de la tâche
</translation>
    </message>
    <message>
        <source>Cancels a job that an interrupted program left on a print server.</source>
        <translation>Retire une tâche qu’un programme arrêté a laissée sur un serveur d’impression.</translation>
    </message>
    <message>
        <source>Releases such a job; it may be incomplete.</source>
        <translation>Imprime ce que le serveur d’impression a d’une telle tâche, peut-être pas tous les documents.</translation>
    </message>
    <message>
        <source>A panel bundle, or a folder with bundles, to use instead of the installed ones.</source>
        <translation>Un paquet de panneaux, ou un dossier de paquets, à utiliser à la place de ceux qui sont installés.</translation>
    </message>
    <message>
        <source>Loads panels again that have ended or blocked the program before.</source>
        <translation>Recharge les panneaux qui ont auparavant arrêté ou bloqué le programme.</translation>
    </message>
    <message>
        <source>Invalid scaling &quot;%1&quot;; use auto, fit, fill or none</source>
        <translation>Mise à l’échelle « %1 » non valide ; utilisez auto, fit, fill ou none</translation>
    </message>
    <message>
        <source>The kernel has no Landlock: the processes that read documents can read other files.</source>
        <translation>Le noyau n’a pas Landlock : les processus qui lisent les documents peuvent lire d’autres fichiers.</translation>
    </message>
    <message>
        <source>The kernel has no seccomp: the processes that read documents can use the network and start other processes.</source>
        <translation>Le noyau n’a pas seccomp : les processus qui lisent les documents peuvent utiliser le réseau et démarrer d’autres processus.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::Console</name>
    <message>
        <source>The job was sent nevertheless, as %1-%2.</source>
        <translation>La tâche a tout de même été envoyée, sous le nom %1-%2.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation>(par défaut)</translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation>Classe de : %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destinations</source>
        <translation>Le serveur d’impression « %1 » n’a aucune destination où imprimer</translation>
    </message>
    <message>
        <source>To resolve the conflict: %1</source>
        <translation>Solution possible : %1</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no default destination; specify one with &quot;-d&quot;</source>
        <translation>Le serveur d’impression « %1 » n’a pas de destination par défaut ; indiquez-en une avec « -d »</translation>
    </message>
    <message>
        <source>Stopped by a signal; nothing was printed.</source>
        <translation>Arrêté par un signal ; rien n’a été imprimé.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::LeftJobsRun</name>
    <message>
        <source>&quot;kvprint --cancel-left %1&quot; cancels it, &quot;kvprint --release-left %1&quot; releases it.</source>
        <translation>« kvprint --cancel-left %1 » la retire, « kvprint --release-left %1 » imprime ce que le serveur en a.</translation>
    </message>
    <message>
        <source>Jobs &quot;%1&quot; are left on several print servers; specify one of: %2</source>
        <translation>Des tâches « %1 » sont restées sur plusieurs serveurs d’impression ; nommez l’une de celles-ci : %2</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are no such jobs</source>
        <translation>Il n’y a pas de tâche « %1 » laissée par un programme arrêté ; aucune n’est restée</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are these: %2</source>
        <translation>Il n’y a pas de tâche « %1 » laissée par un programme arrêté ; celles-ci sont restées : %2</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>Le fichier PPD « %1 » n’a pas de papier « %2 » ; il a : %3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; defines no paper</source>
        <translation>Le fichier PPD « %1 » n’indique aucun papier</translation>
    </message>
    <message>
        <source>The label strip was written to:</source>
        <translation>La bande d’étiquettes se trouve dans :</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::StandardStreams</name>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>Impossible d’écrire sur la sortie standard : %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalPassword</name>
    <message>
        <source>Password for the document on standard input:</source>
        <translation>Mot de passe du document sur l’entrée standard :</translation>
    </message>
    <message>
        <source>Password for the document &quot;%1&quot;:</source>
        <translation>Mot de passe du document « %1 » :</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Le mot de passe est incorrect.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalTrust</name>
    <message>
        <source>Type &quot;%1&quot; to continue:</source>
        <translation>Tapez « %1 » pour continuer :</translation>
    </message>
</context>
</TS>
