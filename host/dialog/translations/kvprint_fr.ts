<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Aucune imprimante indiquée : il manque --ppd FICHIER</translation>
    </message>
    <message>
        <source>No document was named</source>
        <translation>Aucun document indiqué</translation>
    </message>
    <message>
        <source>Only one document can be printed at a time, and %1 were named</source>
        <translation>Un seul document peut être imprimé à la fois, et %1 ont été indiqués</translation>
    </message>
    <message>
        <source>Try "kvprint --help".</source>
        <translation>Essayez « kvprint --help ».</translation>
    </message>
</context>
<context>
    <name>dialog::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>Asse&amp;mbler les copies</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Toutes les pages une fois, puis à nouveau ; sinon toutes les copies d’une page ensemble</translation>
    </message>
    <message>
        <source>all, or for example 1-3, 5</source>
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
        <source>Cannot print so many labels at once: a job has at most %1</source>
        <translation>Impossible d’imprimer autant d’étiquettes à la fois : une tâche en a au plus %1</translation>
    </message>
    <message>
        <source>all</source>
        <translation>toutes</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
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
    <name>dialog::PaperChooser</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>%1 de large, %2 de long</translation>
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
        <translation>Chercher un papier</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>Options, preview and summary</source>
        <translation>Options, aperçu et résumé</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>Imprimante : %1</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>Ré&amp;sumé</translation>
    </message>
    <message>
        <source>"%1" cannot save its settings: %2</source>
        <translation>« %1 » ne peut pas enregistrer ses réglages : %2</translation>
    </message>
    <message>
        <source>"%1" does not let the job be printed with these settings.</source>
        <translation>« %1 » ne permet pas d’imprimer la tâche avec ces réglages.</translation>
    </message>
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
        <source>Page pre&amp;view</source>
        <translation>Ap&amp;erçu de la page</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>dialog::PrintRun</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>The PPD file "%1" has no paper "%2"; it has: %3</source>
        <translation>Le fichier PPD « %1 » n’a pas de papier « %2 » ; il a : %3</translation>
    </message>
    <message>
        <source>The PPD file "%1" names no paper to print on</source>
        <translation>Le fichier PPD « %1 » n’indique aucun papier</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation>Les options de coupe ne peuvent pas être affichées. %1</translation>
    </message>
    <message>
        <source>The panel bundle "%1" could not make its panel</source>
        <translation>Le paquet « %1 » n’a pas pu créer son panneau</translation>
    </message>
    <message>
        <source>The panel of the bundle "%1" cannot be shown: its layout file cannot be used</source>
        <translation>Le panneau du paquet « %1 » ne peut pas être affiché : son fichier de mise en page est inutilisable</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>La bande d’étiquettes se trouve dans :</translation>
    </message>
</context>
<context>
    <name>dialog::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>Bande d’étiquettes</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPage</name>
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
    <name>host::CutPlan</name>
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
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>Étiquettes : %1 · Morceaux : %2 · Ruban : %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>Rien n’est imprimé.</translation>
    </message>
    <message>
        <source>Special tape: the printer cuts nothing.</source>
        <translation>Ruban spécial : l’imprimante ne coupe rien.</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>Demi-coupe entre les étiquettes d’un morceau.</translation>
    </message>
    <message>
        <source>Printed marks where nothing is cut through.</source>
        <translation>Repères imprimés là où rien n’est coupé.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job goes on from it without a margin.</source>
        <translation>La fin reste dans l’imprimante ; la tâche suivante continue sans marge.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is left out.</source>
        <translation>Le ruban vide avant et après chaque étiquette est supprimé.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>Les étiquettes sont en miroir.</translation>
    </message>
</context>
<context>
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document "%1": %2</source>
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
        <source>it is encrypted; remove its password first</source>
        <translation>il est chiffré ; retirez d’abord son mot de passe</translation>
    </message>
    <message>
        <source>it is encrypted in a way that is not known here</source>
        <translation>il est chiffré d’une manière inconnue</translation>
    </message>
    <message>
        <source>it is no PDF, or a damaged one</source>
        <translation>ce n’est pas un PDF, ou il est endommagé</translation>
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
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle "%1": %2</source>
        <translation>Impossible d’utiliser le paquet « %1 » : %2</translation>
    </message>
    <message>
        <source>its library is no library of panels</source>
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
        <source>Cannot find the panel bundle; looked for %1</source>
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
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file "%1": %2</source>
        <translation>Impossible d’ouvrir le fichier PPD « %1 » : %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer's description</source>
        <translation>il dépasse %1 Mo, plus que toute description d’imprimante</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be unpacked to its end</source>
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
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>il se termine au milieu d’une valeur ; le fichier est incomplet</translation>
    </message>
    <message>
        <source>it ends in the middle of an option; the file is incomplete</source>
        <translation>il se termine au milieu d’une option ; le fichier est incomplet</translation>
    </message>
</context>
<context>
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages "%1": write numbers and ranges such as 1-3, 5</source>
        <translation>Pages « %1 » incompréhensibles : écrivez des nombres et des plages comme 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages "%1": the document's last page is %2</source>
        <translation>Impossible d’imprimer les pages « %1 » : la dernière page du document est %2</translation>
    </message>
</context>
<context>
    <name>host::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>tâche suivante</translation>
    </message>
</context>
<context>
    <name>host::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 sur %2, %3</translation>
    </message>
</context>
<context>
    <name>host::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>impossible de créer le dossier : %1</translation>
    </message>
    <message>
        <source>Cannot write "%1": %2</source>
        <translation>Impossible d’écrire « %1 » : %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
</context>
</TS>
