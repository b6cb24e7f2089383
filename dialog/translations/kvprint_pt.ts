<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>dialog::job::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation>Classe de impressoras: %1</translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation>I&amp;mpressora</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation>Essa impressora não existe.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>A aguardar a resposta do servidor de impressão…</translation>
    </message>
    <message>
        <source>Last known state: %1</source>
        <translation>Da última vez: %1</translation>
    </message>
    <message>
        <source>The print server does not respond. Last known state: %1</source>
        <translation>O servidor de impressão não responde. Da última vez: %1</translation>
    </message>
    <message>
        <source>The print server does not respond.</source>
        <translation>O servidor de impressão não responde.</translation>
    </message>
    <message>
        <source>The print server requires a password.</source>
        <translation>O servidor de impressão pede uma palavra-passe.</translation>
    </message>
    <message>
        <source>The print server requires a password. Last known state: %1</source>
        <translation>O servidor de impressão pede uma palavra-passe. Da última vez: %1</translation>
    </message>
    <message>
        <source>The print server is not trusted.</source>
        <translation>O servidor de impressão não é confiável.</translation>
    </message>
    <message>
        <source>The print server is not trusted. Last known state: %1</source>
        <translation>O servidor de impressão não é confiável. Da última vez: %1</translation>
    </message>
</context>
<context>
    <name>dialog::job::DocumentPasswordDialog</name>
    <message>
        <source>Password for the document</source>
        <translation>Palavra-passe do documento</translation>
    </message>
    <message>
        <source>The document on standard input is encrypted.</source>
        <translation>O documento na entrada padrão está cifrado.</translation>
    </message>
    <message>
        <source>The document &quot;%1&quot; is encrypted.</source>
        <translation>O documento &quot;%1&quot; está cifrado.</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>A palavra-passe está errada.</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Palavra-passe</translation>
    </message>
</context>
<context>
    <name>dialog::job::ErrorBanner</name>
    <message>
        <source>Try again</source>
        <translation>Tentar de novo</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobPage</name>
    <message>
        <source>Print time</source>
        <translation>Hora de impressão</translation>
    </message>
    <message>
        <source>Queue default</source>
        <translation>Conforme a fila</translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation>De 1 a 100; os trabalhos com maior prioridade são impressos antes dos outros</translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation>Nome do trabal&amp;ho</translation>
    </message>
    <message>
        <source>Orienta&amp;tion</source>
        <translation>Orie&amp;ntação</translation>
    </message>
    <message>
        <source>When to pr&amp;int</source>
        <translation>&amp;Quando imprimir</translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation>&amp;Prioridade</translation>
    </message>
    <message>
        <source>Printer default</source>
        <translation>Conforme a impressora</translation>
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
        <translation>Agora</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Quando eu o libertar</translation>
    </message>
    <message>
        <source>At a specific time</source>
        <translation>A uma hora determinada</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Durante o dia</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Ao fim do dia</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Durante a noite</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>No segundo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>No terceiro turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>No fim de semana</translation>
    </message>
    <message>
        <source>Page si&amp;ze</source>
        <translation>Tamanho &amp;da página</translation>
    </message>
    <message>
        <source>Shrink pages larger than the label</source>
        <translation>Reduzir páginas maiores que a etiqueta</translation>
    </message>
    <message>
        <source>Fit to the printable area</source>
        <translation>Ajustar à área imprimível</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Preencher a etiqueta</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamanho real</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobWindow</name>
    <message>
        <source>The job was sent.</source>
        <translation>O trabalho foi enviado.</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Trabalho %1: %2</translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation>Cancelar o &amp;trabalho</translation>
    </message>
</context>
<context>
    <name>dialog::job::LeftJobBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>Cancel the job</source>
        <translation>Retirar o trabalho</translation>
    </message>
    <message>
        <source>Release the job</source>
        <translation>Libertar o trabalho</translation>
    </message>
</context>
<context>
    <name>dialog::job::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>Agrupa&amp;r cópias</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>Todas as páginas uma vez e depois outra; caso contrário, todas as cópias de uma página juntas</translation>
    </message>
    <message>
        <source>all, or ranges: 1-3, 5</source>
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
        <source>Reverse order</source>
        <translation>Última página primeiro</translation>
    </message>
</context>
<context>
    <name>dialog::job::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation>Palavra-passe do servidor de impressão</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nome de &amp;utilizador</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Palavra-passe</translation>
    </message>
</context>
<context>
    <name>dialog::job::SendBar</name>
    <message>
        <source>Cancel sending</source>
        <translation>Parar o envio</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>A enviar &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>dialog::job::SummaryPage</name>
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
    <name>dialog::job::TicketPage</name>
    <message>
        <source>Option</source>
        <translation>Opção</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origem</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation>Opções do trabalho</translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation>O mesmo trabalho na li&amp;nha de comandos</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Copiar o comando</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sim</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
</context>
<context>
    <name>dialog::job::TrustText</name>
    <message>
        <source>Connection without encryption</source>
        <translation>Ligação sem encriptação</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password, and the connection to it is not encrypted.</source>
        <translation>O servidor de impressão &quot;%1&quot; pede uma palavra-passe e a ligação não está encriptada.</translation>
    </message>
    <message>
        <source>Others on the network can read the password.</source>
        <translation>Outras pessoas na rede podem ler a palavra-passe.</translation>
    </message>
    <message>
        <source>Send anyway</source>
        <translation>Enviar mesmo assim</translation>
    </message>
    <message>
        <source>Certificate of the print server</source>
        <translation>Certificado do servidor de impressão</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2.</source>
        <translation>O certificado do servidor de impressão &quot;%1&quot; não é confiável: %2.</translation>
    </message>
    <message>
        <source>Its SHA-256 fingerprint is:
%1

Trust it only if the server&apos;s administrator confirms this fingerprint. It stays trusted for later connections.</source>
        <translation>A impressão digital SHA-256 dele é:
%1

Confie nele somente se o administrador do servidor informar a mesma impressão digital. A partir de então, ele é confiável.</translation>
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
        <translation>O ficheiro PPD não indica nenhum papel</translation>
    </message>
</context>
<context>
    <name>dialog::options::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation>não definido</translation>
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
        <translation>A impressora não consegue fazer tudo isto em conjunto.</translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation>Imprimir mesmo assim</translation>
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
            <numerusform>&quot;%1&quot; precisa de, pelo menos, %n carácter. Até lá, a definição fica como estava.</numerusform>
            <numerusform>&quot;%1&quot; precisa de, pelo menos, %n caracteres. Até lá, a definição fica como estava.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::options::OptionsPage</name>
    <message>
        <source>Option groups</source>
        <translation>Grupos de opções</translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation>Esta impressora não tem outras opções.</translation>
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
        <translation>Largura do papel</translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation>Comprimento do papel</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>&amp;Largura</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>Comprimen&amp;to</translation>
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
        <translation>Procurar papéis</translation>
    </message>
    <message>
        <source>Custom, %1</source>
        <comment>a size</comment>
        <translation>Personalizado, %1</translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation>Usar o tamanho do documento: %1</translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation>Um tamanho personalizado</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation>%1 de largura</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>%1 de largura, %2 de comprimento</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>Tamanho personalizado…</translation>
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
        <translation>pol.</translation>
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
        <translation>Impressora: %1</translation>
    </message>
</context>
<context>
    <name>dialog::window::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation>Opções, pré-visualização e resumo</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>Pré-&amp;visualização</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>Re&amp;sumo</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>Tra&amp;balho</translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation>O que s&amp;erá enviado</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opções</translation>
    </message>
</context>
<context>
    <name>dialog::window::PagePreview</name>
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
    <name>dialog::window::PanelBanner</name>
    <message>
        <source>The printer&apos;s options are listed on the page &quot;Options&quot;.</source>
        <translation>As opções da impressora estão na página “Opções”.</translation>
    </message>
    <message>
        <source>Load It Again</source>
        <translation>Carregar de novo</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelPage</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
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
        <translation>A impressora não tem descrição, pelo que os seus papéis e cortes não são conhecidos.</translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation>A aguardar a descrição da impressora…</translation>
    </message>
    <message>
        <source>No printer is selected.</source>
        <translation>Não foi escolhida nenhuma impressora.</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>A aguardar a resposta do servidor de impressão…</translation>
    </message>
    <message>
        <source>The printer&apos;s description is not known.</source>
        <translation>A descrição da impressora não é conhecida.</translation>
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
        <translation>Memória esgotada; nada foi impresso.</translation>
    </message>
    <message>
        <source>Out of memory; the job may be incomplete, or left on the print server.</source>
        <translation>Memória esgotada; o trabalho pode estar incompleto ou ter ficado no servidor de impressão.</translation>
    </message>
    <message>
        <source>Out of memory. The job was sent nevertheless.</source>
        <translation>Memória esgotada. O trabalho foi enviado na mesma.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation>A impressora &quot;%1&quot; não tem a opção &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation>A impressora &quot;%1&quot; não tem o papel &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation>A opção &quot;%1&quot; da impressora &quot;%2&quot; não tem a escolha &quot;%3&quot;; tem: %4</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print on the paper &quot;%2&quot;: its size is %3 × %4 points; width and length must be greater than 0, one of them at most %5 m, the other at most %6 m.</source>
        <translation>A impressora &quot;%1&quot; não pode imprimir no papel &quot;%2&quot;: o tamanho é de %3 × %4 pontos; a largura e o comprimento devem ser maiores que 0, um deles de no máximo %5 m e o outro de no máximo %6 m.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation>Não é possível ler o documento &quot;%1&quot;: %2</translation>
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
        <source>it has become shorter while it was read</source>
        <translation>ficou mais curto enquanto era lido</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>o ficheiro mudou desde que foi aberto; abra-o de novo</translation>
    </message>
    <message>
        <source>it has changed while it was read</source>
        <translation>mudou enquanto era lido</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobChange</name>
    <message>
        <source>It is printed again, but held. %1</source>
        <translation>Vai ser impresso de novo, mas está retido. %1</translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation>O trabalho %1 não foi alterado. %2</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Nenhum servidor de impressão consegue transmitir a escolha &quot;%1&quot; da opção &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobFate</name>
    <message>
        <source>%1 A job &quot;%2&quot; without documents may be left in the queue &quot;%3&quot; of the print server &quot;%4&quot;; it prints nothing.</source>
        <translation>%1 É possível que na fila &quot;%3&quot; do servidor de impressão &quot;%4&quot; tenha ficado um trabalho &quot;%2&quot; sem documentos; nada dele é impresso.</translation>
    </message>
    <message>
        <source>%1 The print server &quot;%2&quot; has all documents of job %3-%4, but did not report whether it released the job: it is printed, or it is still held. Check the queue before you print again.</source>
        <translation>%1 O servidor de impressão &quot;%2&quot; tem todos os documentos do trabalho %3-%4 e não indicou se o liberta: o trabalho é impresso, ou está retido e não é impresso. Verifique a fila antes de voltar a imprimir.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 on the print server &quot;%4&quot; may have been printed; check the queue before you print again.</source>
        <translation>%1 É possível que o trabalho %2-%3 no servidor de impressão &quot;%4&quot; tenha sido impresso; verifique a fila antes de voltar a imprimir.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; it is held on the print server &quot;%4&quot; and is not printed unless it is released.</source>
        <translation>%1 Não foi possível retirar o trabalho %2-%3; está retido no servidor de impressão &quot;%4&quot; e não é impresso enquanto não for libertado.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; check the queue before you print again.</source>
        <translation>%1 Não foi possível retirar o trabalho %2-%3; verifique a fila antes de voltar a imprimir.</translation>
    </message>
    <message>
        <source>%1 Job %2-%3: %4</source>
        <translation>%1 Trabalho %2-%3: %4</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobJournal</name>
    <message>
        <source>The record &quot;%1&quot; of an interrupted job was damaged and has been removed. Check your queues for a held job.</source>
        <translation>O registo &quot;%1&quot; de um trabalho que estava a ser enviado está danificado e foi removido; verifique nas suas filas se ficou algum trabalho.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation>predefinido da impressora</translation>
    </message>
    <message>
        <source>queue default</source>
        <translation>predefinido da fila</translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation>predefinido do utilizador (lpoptions)</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>predefinição</translation>
    </message>
    <message>
        <source>cut options</source>
        <translation>opções de corte</translation>
    </message>
    <message>
        <source>set by you</source>
        <translation>escolhido pelo utilizador</translation>
    </message>
    <message>
        <source>page layout</source>
        <translation>layout da página</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobSettings</name>
    <message>
        <source>Cannot print the job: it has more than %1 labels</source>
        <translation>Não é possível imprimir tantas etiquetas de uma vez: um trabalho tem no máximo %1</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation>Retido até ser libertado.</translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation>Retido até: %1.</translation>
    </message>
    <message>
        <source>Waiting in the queue.</source>
        <translation>A aguardar a sua vez.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>A imprimir.</translation>
    </message>
    <message>
        <source>Stopped; it continues when the printer is ready.</source>
        <translation>Parado; continua quando a impressora estiver de novo pronta.</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Aborted by the print server.</source>
        <translation>Interrompido pelo servidor de impressão.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Impresso.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>O servidor indica: %1</translation>
    </message>
    <message>
        <source>The job is finished; the print server keeps no record of it.</source>
        <translation>O trabalho terminou; o servidor de impressão não guarda registo dele.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobUpload</name>
    <message>
        <source>There is no document to print.</source>
        <translation>Não há nenhum documento para imprimir.</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>Nenhum servidor de impressão consegue transmitir a escolha &quot;%1&quot; da opção &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; did not receive all of &quot;%2&quot;.</source>
        <translation>O servidor de impressão &quot;%1&quot; não aceitou a totalidade de &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LeftJob</name>
    <message>
        <source>The print server &quot;%1&quot; no longer has the job &quot;%2&quot; in the queue &quot;%3&quot;, or the job is finished.</source>
        <translation>O servidor de impressão &quot;%1&quot; já não tem nenhum trabalho &quot;%2&quot; na fila &quot;%3&quot;, ou ele terminou.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is not held: %4</source>
        <translation>O trabalho %1-%2 no servidor de impressão &quot;%3&quot; não está retido: %4</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is released.</source>
        <translation>O trabalho %1-%2 no servidor de impressão &quot;%3&quot; foi libertado.</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is canceled.</source>
        <translation>O trabalho %1-%2 no servidor de impressão &quot;%3&quot; foi retirado.</translation>
    </message>
    <message>
        <source>An interrupted program may have left job %1 (&quot;%2&quot;) on the print server &quot;%3&quot;; the job may be incomplete.</source>
        <translation>Um programa interrompido durante a impressão pode ter deixado o trabalho %1 (&quot;%2&quot;) no servidor de impressão &quot;%3&quot;, talvez sem todos os documentos.</translation>
    </message>
    <message>
        <source>An interrupted program may have left a job &quot;%1&quot; without documents in the queue &quot;%2&quot; of the print server &quot;%3&quot;.</source>
        <translation>Um programa interrompido durante a impressão pode ter deixado um trabalho &quot;%1&quot; sem documentos na fila &quot;%2&quot; do servidor de impressão &quot;%3&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LpCommand</name>
    <message>
        <source>lp cannot express these options: %1</source>
        <translation>lp não consegue exprimir estas opções tal como são enviadas: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::DiscoveredQueue</name>
    <message>
        <source>The print server &quot;%1&quot; cannot reach the printer &quot;%2&quot;.</source>
        <translation>O servidor de impressão &quot;%1&quot; não consegue contactar a impressora &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer on the network.</source>
        <translation>A impressora &quot;%1&quot; já não está na rede.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation>O servidor de impressão &quot;%1&quot; não tem nenhuma fila ou classe &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueText</name>
    <message>
        <source>The printer needs labels or tape.</source>
        <translation>A impressora aguarda etiquetas ou fita.</translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation>Etiquetas ou fita encravadas.</translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation>O rolo de etiquetas ou a fita está quase a acabar.</translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation>O rolo de etiquetas ou a fita acabou.</translation>
    </message>
    <message>
        <source>The printer is pausing.</source>
        <translation>A impressora está prestes a entrar em pausa.</translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation>A fila está em pausa; os trabalhos aguardam.</translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation>A impressora está desligada.</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>A ligar à impressora.</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>A impressora não responde.</translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation>A impressora está a parar.</translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation>Algumas impressoras da classe estão paradas.</translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation>O toner está quase a acabar.</translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation>O toner acabou.</translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation>O servidor de impressão não tem espaço livre.</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation>A tampa da impressora está aberta.</translation>
    </message>
    <message>
        <source>An interlock of the printer is open.</source>
        <translation>Um fecho da impressora está aberto.</translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation>A porta da impressora está aberta.</translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation>Falta a cassete ou o suporte do rolo.</translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation>Falta o tabuleiro de saída.</translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation>O tabuleiro de saída está quase cheio.</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>O tabuleiro de saída está cheio.</translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation>A tinta ou a fita de tinta está quase a acabar.</translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation>A tinta ou a fita de tinta acabou.</translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation>O depósito de resíduos está quase cheio.</translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation>O depósito de resíduos está cheio.</translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation>A impressora está demasiado quente.</translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation>A impressora está a aquecer.</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>A impressora está offline.</translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation>Os novos trabalhos ficam retidos.</translation>
    </message>
    <message>
        <source>The printer was deactivated by its administrator.</source>
        <translation>A impressora foi desativada pelo administrador.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is missing.</source>
        <translation>Falta uma parte do controlador da impressora.</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is not installed securely.</source>
        <translation>Uma parte do controlador da impressora não está instalada de forma segura.</translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation>A aguardar que a impressora termine o trabalho.</translation>
    </message>
    <message>
        <source>The printer does not conform to its protocol.</source>
        <translation>A impressora não cumpre o seu protocolo.</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Pronta.</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>A imprimir.</translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation>Encontrada na rede.</translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation>Estado desconhecido.</translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation>A fila não aceita trabalhos.</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>O servidor indica: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::server::CupsConnection</name>
    <message>
        <source>Canceled on request.</source>
        <translation>Interrompido a pedido.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not respond.</source>
        <translation>O servidor de impressão &quot;%1&quot; não responde.</translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation>Não é possível ligar ao servidor de impressão &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; was lost.</source>
        <translation>A ligação ao servidor de impressão &quot;%1&quot; foi interrompida.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; reports: %2</source>
        <translation>O servidor de impressão &quot;%1&quot; indica: %2</translation>
    </message>
    <message>
        <source>Cannot fetch &quot;%2&quot; from the print server &quot;%1&quot;: %3</source>
        <translation>O servidor de impressão &quot;%1&quot; não fornece &quot;%2&quot;: %3</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>tem mais de %1 MB</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>a ligação foi interrompida a meio</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;, and none was entered.</source>
        <translation>O servidor de impressão &quot;%1&quot; pede uma palavra-passe para o utilizador &quot;%2&quot; e não foi indicada nenhuma.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no certificate.</source>
        <translation>O servidor de impressão &quot;%1&quot; não tem certificado.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not the one that is trusted for this host. The trusted one has the SHA-256 fingerprint %2, the server&apos;s has %3. The server&apos;s certificate may have been replaced, another print server may run on the same host, or someone may be intercepting the connection. If the server&apos;s administrator confirms the fingerprint, remove the file &quot;%4&quot; and try again.</source>
        <translation>O certificado do servidor de impressão &quot;%1&quot; não é aquele em que se confia para este computador. O certificado de confiança tem a impressão digital SHA-256 %2, o do servidor tem %3. O certificado do servidor pode ter sido substituído, pode haver outro servidor de impressão no mesmo computador ou alguém pode estar a intercetar a ligação. Se o administrador do servidor confirmar a impressão digital, remova o ficheiro &quot;%4&quot; e tente novamente.</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; with the SHA-256 fingerprint %2 cannot be trusted: %3</source>
        <translation>Não é permitido confiar no certificado do servidor de impressão &quot;%1&quot; com a impressão digital SHA-256 %2: %3</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2. Its SHA-256 fingerprint is %3. Compare it with the fingerprint that the server&apos;s administrator gives you, and confirm it in the dialog or on a terminal.</source>
        <translation>O certificado do servidor de impressão &quot;%1&quot; não é confiável: %2. A impressão digital SHA-256 é %3. Compare-a com a que o administrador do servidor informa e confirme-a quando for perguntado, na janela ou num terminal.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>O nome de utilizador ou a palavra-passe está incorreto.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;. None was sent, because the connection is not encrypted and others could read it. Encrypt the connection (-E), or confirm the question in the dialog or on a terminal.</source>
        <translation>O servidor de impressão &quot;%1&quot; pede uma palavra-passe para o utilizador &quot;%2&quot;. Nenhuma foi enviada, porque a ligação não está encriptada e outras pessoas poderiam lê-la. Encripte a ligação (-E) ou confirme quando for perguntado, na janela ou num terminal.</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not accept the password of the user &quot;%2&quot;.</source>
        <translation>O servidor de impressão &quot;%1&quot; não aceita a palavra-passe do utilizador &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>host::cups::server::FailureReason</name>
    <message>
        <source>It cannot store the document: the disk is full, or the document is larger than it accepts.</source>
        <translation>Não consegue guardar o documento: o disco está cheio ou o documento é maior do que aceita.</translation>
    </message>
</context>
<context>
    <name>host::documents::LabelDocument</name>
    <message>
        <source>Cannot open the document &quot;%1&quot;: %2</source>
        <translation>Não é possível abrir o documento &quot;%1&quot;: %2</translation>
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
        <source>its encryption is not supported</source>
        <translation>está cifrado de um modo desconhecido</translation>
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
    <message>
        <source>Cannot open the document on standard input: %1</source>
        <translation>Não é possível abrir o documento da entrada padrão: %1</translation>
    </message>
    <message>
        <source>the image is damaged</source>
        <translation>é uma imagem danificada</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation>tem %1 × %2 píxeis, mais do que se pode imprimir</translation>
    </message>
    <message>
        <source>the end of the image is missing</source>
        <translation>é uma imagem a que falta o fim</translation>
    </message>
    <message>
        <source>No document is specified</source>
        <translation>Não é indicado nenhum documento</translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation>só pode ser lido uma vez</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada padrão</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e mais %n</numerusform>
            <numerusform>%1 e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>ultrapassa %1</translation>
    </message>
    <message>
        <source>it is not a PDF, PNG, JPEG or SVG file</source>
        <translation>não é PDF, PNG, JPEG nem SVG</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>o ficheiro mudou desde que foi aberto; abra-o de novo</translation>
    </message>
    <message>
        <source>the PDF is damaged</source>
        <translation>é um PDF danificado</translation>
    </message>
    <message>
        <source>it cannot be stored in &quot;%1&quot;: %2</source>
        <translation>não é possível guardar em &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>the SVG is damaged</source>
        <translation>é um SVG danificado</translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, but other files are not loaded</source>
        <translation>refere-se a &quot;%1&quot;, e só se imprime o que está no próprio SVG</translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation>linha %1 do SVG: %2</translation>
    </message>
    <message>
        <source>the SVG is too complex to be drawn</source>
        <translation>é um SVG com mais partes do que se pode desenhar</translation>
    </message>
    <message>
        <source>it contains a picture that is neither PNG nor JPEG</source>
        <translation>contém uma imagem que não é PNG nem JPEG</translation>
    </message>
    <message>
        <source>it contains a damaged picture</source>
        <translation>contém uma imagem danificada</translation>
    </message>
    <message>
        <source>its pictures have more pixels than can be printed</source>
        <translation>contém imagens com mais píxeis do que se pode imprimir</translation>
    </message>
    <message>
        <source>the converter &quot;%1&quot; cannot be started</source>
        <translation>não é possível iniciar o programa “%1”, que o converte</translation>
    </message>
    <message>
        <source>laying its pages out on labels needs too much memory or time</source>
        <translation>dispor suas páginas em etiquetas exige memória ou tempo demais</translation>
    </message>
    <message>
        <source>its pages cannot be laid out on labels; the PDF is damaged</source>
        <translation>suas páginas não podem ser dispostas em etiquetas; o PDF está danificado</translation>
    </message>
    <message>
        <source>the program that reads PDFs cannot be started</source>
        <translation>o programa que lê os PDF não pode ser iniciado</translation>
    </message>
    <message>
        <source>the program that reads PDFs has crashed</source>
        <translation>o programa que lê os PDF falhou</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>a leitura demora demasiado</translation>
    </message>
    <message>
        <source>it attempts what no document may do</source>
        <translation>tenta fazer o que nenhum documento pode fazer</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>não há memória suficiente</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>a palavra-passe está errada</translation>
    </message>
    <message>
        <source>decrypting it needs too much memory or time</source>
        <translation>a decifragem necessita de demasiada memória ou tempo</translation>
    </message>
    <message>
        <source>it is encrypted and needs a password</source>
        <translation>está cifrado e precisa de uma palavra-passe</translation>
    </message>
</context>
<context>
    <name>host::documents::PrintOrder</name>
    <message>
        <source>Invalid page range &quot;%1&quot;: use numbers and ranges such as 1-3, 5</source>
        <translation>Não se entendem as páginas &quot;%1&quot;: escreva números e intervalos como 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>Não é possível imprimir as páginas &quot;%1&quot;: a última página do documento é %2</translation>
    </message>
    <message>
        <source>Nothing to print: no page of the document is selected</source>
        <translation>Nada seria impresso: nenhuma página do documento está escolhida</translation>
    </message>
</context>
<context>
    <name>host::labels::LabelDrawing</name>
    <message>
        <source>Page %1 cannot be drawn</source>
        <translation>A página %1 não pode ser desenhada</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleCatalog</name>
    <message>
        <source>The panel bundle &quot;%1&quot; is not used: %2.</source>
        <translation>O pacote de painéis “%1” não é usado: %2.</translation>
    </message>
    <message>
        <source>The panel bundles in &quot;%1&quot; are not used: %2.</source>
        <translation>Os pacotes de painéis em “%1” não são usados: %2.</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>a pasta não existe</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>não é uma pasta</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleFolders</name>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>“%1” não pode ser lido</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>“%1” pertence a outro usuário</translation>
    </message>
    <message>
        <source>other users can write to &quot;%1&quot;; &quot;chmod go-w&quot; prevents it</source>
        <translation>outros usuários podem gravar em “%1”; “chmod go-w” impede isso</translation>
    </message>
</context>
<context>
    <name>host::panels::HostedPanel</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation>&quot;%1&quot; não consegue guardar as definições: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not allow printing with these settings.</source>
        <translation>&quot;%1&quot; não permite imprimir o trabalho com estas definições.</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>Não é possível usar o pacote &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>its library contains no panels</source>
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
        <source>Cannot find the panel bundle; searched %1</source>
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
    <name>host::panels::PanelGuard</name>
    <message>
        <source>an error occurred in &quot;%1&quot;</source>
        <translation>ocorreu um erro em “%1”</translation>
    </message>
    <message>
        <source>an error occurred in &quot;%1&quot;: %2</source>
        <translation>ocorreu um erro em “%1”: %2</translation>
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
        <translation>Esta impressora não permite %1.</translation>
    </message>
    <message>
        <source>%1 and %2 conflict.</source>
        <translation>%1 e %2 excluem-se mutuamente.</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>definir &quot;%1&quot; como &quot;%2&quot;</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>Não é possível abrir o ficheiro PPD &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, the maximum for a PPD file</source>
        <translation>tem mais de %1 MB, mais do que qualquer descrição de impressora</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be decompressed</source>
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
        <source>it has %1 statements; the maximum is %2</source>
        <translation>ele contém %1 instruções; o máximo é %2</translation>
    </message>
    <message>
        <source>it has %1 &quot;%2&quot; statements; the maximum is %3</source>
        <translation>ele contém %1 instruções &quot;%2&quot;; o máximo é %3</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>termina a meio de um valor; o ficheiro está incompleto</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdOptions</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation>Controlo da impressora</translation>
    </message>
</context>
<context>
    <name>host::setup::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation>Trabalho &quot;%1&quot; para &quot;%2&quot; em %3
</translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation>Opções que são enviadas:
</translation>
    </message>
</context>
<context>
    <name>host::setup::JobSummary</name>
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
        <source>all</source>
        <translation>todas</translation>
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
        <source>Order</source>
        <translation>Ordem</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>última página primeiro</translation>
    </message>
    <message>
        <source>Page set</source>
        <translation>Destas</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>as páginas ímpares</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>as páginas pares</translation>
    </message>
</context>
<context>
    <name>host::setup::PanelSource</name>
    <message>
        <source>it could not create its panel</source>
        <translation>não foi possível criar o painel</translation>
    </message>
    <message>
        <source>its panel cannot be shown: its layout file cannot be used</source>
        <translation>o painel não pode ser exibido: o arquivo de layout não pode ser usado</translation>
    </message>
    <message>
        <source>The panel bundle &quot;%1&quot; does not control %2: another panel or the dialog does, or its description does not list it.</source>
        <translation>O pacote de painéis “%1” não controla %2: outro painel ou o diálogo o faz, ou sua descrição não o lista.</translation>
    </message>
    <message>
        <source>the program ended or was stopped during its &quot;%1&quot; on %2</source>
        <translation>o programa terminou ou foi parado durante “%1” em %2</translation>
    </message>
</context>
<context>
    <name>host::setup::Preflight</name>
    <message>
        <source>Page %1 is larger than the label and is printed at %2 % of its size.</source>
        <translation>A página %1 é maior que a etiqueta e é impressa com %2 % do tamanho.</translation>
    </message>
    <message>
        <source>Pages %1 are larger than the label and are printed smaller, at %2 % or more.</source>
        <translation>As páginas %1 são maiores que a etiqueta e são impressas reduzidas, com %2 % ou mais.</translation>
    </message>
    <message>
        <source>Page %1 has content where the printer cannot print.</source>
        <translation>A página %1 tem conteúdo onde a impressora não pode imprimir.</translation>
    </message>
    <message>
        <source>Pages %1 have content where the printer cannot print.</source>
        <translation>As páginas %1 têm conteúdo onde a impressora não pode imprimir.</translation>
    </message>
    <message>
        <source>Page %1 is blank.</source>
        <translation>A página %1 está em branco.</translation>
    </message>
    <message>
        <source>Pages %1 are blank.</source>
        <translation>As páginas %1 estão em branco.</translation>
    </message>
    <message>
        <source>The last label is a piece of its own.</source>
        <translation>A última etiqueta é um pedaço separado.</translation>
    </message>
    <message>
        <source>The job needs %1 m of tape.</source>
        <translation>O trabalho precisa de %1 m de fita.</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>Usar “%1”</translation>
    </message>
    <message>
        <source>Leave out blank pages</source>
        <translation>Omitir páginas em branco</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>A página %1 não pode ser desenhada e o trabalho não pode ser impresso: %2.</translation>
    </message>
    <message>
        <source>Pages %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>As páginas %1 não podem ser desenhadas e o trabalho não pode ser impresso: %2.</translation>
    </message>
    <message>
        <source>Leave out pages that cannot be drawn</source>
        <translation>Omitir as páginas que não podem ser desenhadas</translation>
    </message>
    <message>
        <source>The labels are printed mirrored, which is readable only through transparent tape.</source>
        <translation>As etiquetas são impressas em espelho, o que só é legível através de fita transparente.</translation>
    </message>
    <message>
        <source>Turn pages to fit</source>
        <translation>Rodar as páginas para caberem</translation>
    </message>
    <message>
        <source>Page %1 is printed smaller than in the orientation that fits.</source>
        <translation>A página %1 é impressa mais pequena do que na orientação adequada.</translation>
    </message>
    <message>
        <source>Pages %1 are printed smaller than in the orientation that fits.</source>
        <translation>As páginas %1 são impressas mais pequenas do que na orientação adequada.</translation>
    </message>
</context>
<context>
    <name>host::setup::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; with this paper and the other cut options; &quot;%3&quot; is used instead.</source>
        <translation>“%1” não pode ser “%2” com este papel e as demais opções de corte, e é impresso como “%3”.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;, which is your default (lpoptions).</source>
        <translation>A impressora &quot;%1&quot; não tem o papel &quot;%2&quot;, que é o predefinido do utilizador (lpoptions).</translation>
    </message>
</context>
<context>
    <name>host::strip::CutPlan</name>
    <message>
        <source>Labels: %1 · Tape: %2</source>
        <translation>Etiquetas: %1 · Fita: %2</translation>
    </message>
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
        <source>measuring…</source>
        <comment>a length</comment>
        <translation>a medir…</translation>
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
        <source>Half cut between the labels of a piece.</source>
        <translation>Meio corte entre as etiquetas de uma peça.</translation>
    </message>
    <message>
        <source>Cut marks are printed where there is no full cut.</source>
        <translation>Marcas impressas onde não se corta.</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job continues there without a margin.</source>
        <translation>O fim fica na impressora; o trabalho seguinte continua sem margem.</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is removed.</source>
        <translation>A fita em branco antes e depois de cada etiqueta é omitida.</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>As etiquetas são espelhadas.</translation>
    </message>
    <message>
        <source>Cutting is not known: the printer&apos;s description does not say whether it cuts the labels.</source>
        <translation>O corte não é conhecido: a descrição da impressora não diz se ela corta as etiquetas.</translation>
    </message>
    <message>
        <source>Full cuts after the labels %1.</source>
        <translation>Cortes completos após as etiquetas %1.</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>trabalho seguinte</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 em %2, %3</translation>
    </message>
</context>
<context>
    <name>host::strip::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>não é uma pasta</translation>
    </message>
    <message>
        <source>the folder cannot be created: %1</source>
        <translation>não é possível criar a pasta: %1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>Não é possível escrever &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>platform::files::OutputFile</name>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>é uma ligação simbólica</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>é um socket</translation>
    </message>
    <message>
        <source>it is a block device</source>
        <translation>é um dispositivo de bloco</translation>
    </message>
    <message>
        <source>no program reads from it</source>
        <translation>ninguém está a ler daí</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>Experimente &quot;kvprint --help&quot;.</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation>Uso: kvprint [OPÇÃO]... [--] [DOCUMENTO]...
     kvprint -i [FILA-]TRABALHO [OPÇÃO]...
     kvprint --list | --summary | --dry-run [OPÇÃO]... [--] [DOCUMENTO]...
</translation>
    </message>
    <message>
        <source>Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages and cuts shows the label strip as it will come out of the printer. Without a display, the documents are printed immediately. &quot;-&quot; or no document means standard input.</source>
        <translation>Imprime documentos em impressoras de etiquetas, com uma janela para papel, páginas e cortes que mostra a tira de etiquetas tal como vai sair. Sem ecrã imprime de imediato. PDF, PNG, JPEG e SVG; &quot;-&quot; ou nada é a entrada padrão.</translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation>Opções:
</translation>
    </message>
    <message>
        <source>Ends the options; all following arguments are documents.</source>
        <translation>Termina as opções: o que se segue são documentos.</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;</source>
        <translation>A opção &quot;%1&quot; não existe</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not accept a value</source>
        <translation>A opção &quot;%1&quot; não aceita valores</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires a value: %2</source>
        <translation>A opção &quot;%1&quot; precisa de um valor: %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; applies to the virtual printer and requires &quot;--ppd&quot;</source>
        <translation>A opção &quot;%1&quot; é para a impressora virtual e precisa de &quot;--ppd&quot;</translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; applies to a job that was already sent and requires &quot;-i&quot;</source>
        <translation>-H: &quot;%1&quot; refere-se a um trabalho já enviado e precisa de &quot;-i&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not accept documents, but &quot;%2&quot; is specified</source>
        <translation>&quot;%1&quot; não aceita documentos e foi indicado &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation>A entrada padrão (&quot;-&quot;) só pode ser impressa uma vez</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; cannot be combined</source>
        <translation>A opção &quot;%1&quot; não é compatível com &quot;%2&quot;</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires one of: %2</source>
        <translation>A opção &quot;%1&quot; só é aceite em conjunto com uma destas: %2</translation>
    </message>
    <message>
        <source>No document is specified; name a file, or &quot;-&quot; for standard input</source>
        <translation>Não foi indicado nenhum documento; indique um ficheiro, ou &quot;-&quot; para o escrever</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>o valor está vazio</translation>
    </message>
    <message>
        <source>Invalid time &quot;%1&quot;; use HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation>&quot;%1&quot; não é uma hora de impressão; escreva HH:MM ou HH:MM:SS (UTC), ou uma destas palavras: %2</translation>
    </message>
    <message>
        <source>Invalid value &quot;%1&quot;; use one of: %2</source>
        <translation>&quot;%1&quot; não é possível; tem de ser um destes valores: %2</translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation>não indica nenhum papel</translation>
    </message>
    <message>
        <source>Invalid number of copies &quot;%1&quot;; use 1 to %2</source>
        <translation>&quot;%1&quot; não é um número de cópias; tem de estar entre 1 e %2</translation>
    </message>
    <message>
        <source>Invalid priority &quot;%1&quot;; use 1 (last) to 100 (first)</source>
        <translation>&quot;%1&quot; não é uma prioridade; tem de estar entre 1 (último) e 100 (primeiro)</translation>
    </message>
    <message>
        <source>Missing queue in &quot;%1&quot;; use QUEUE or QUEUE/INSTANCE</source>
        <translation>&quot;%1&quot; não indica nenhuma fila; escreva FILA ou FILA/INSTÂNCIA</translation>
    </message>
    <message>
        <source>Invalid job &quot;%1&quot;; use its number, or QUEUE-NUMBER as in the request id</source>
        <translation>&quot;%1&quot; não é um trabalho; escreva o seu número, ou FILA-NÚMERO como foi mostrado ao enviá-lo</translation>
    </message>
    <message>
        <source>Missing option in &quot;%1&quot;; use NAME=VALUE</source>
        <translation>&quot;%1&quot; não indica nenhuma opção; escreva NOME=VALOR</translation>
    </message>
    <message>
        <source>The queue to print on, with an instance if needed. Default: the default queue.</source>
        <translation>A fila onde imprimir, com um conjunto de opções com nome. Sem esta opção, a fila predefinida.</translation>
    </message>
    <message>
        <source>The print server.</source>
        <translation>O servidor de impressão.</translation>
    </message>
    <message>
        <source>The user name for the print server.</source>
        <translation>O utilizador para quem se imprime.</translation>
    </message>
    <message>
        <source>Encrypts the connection to the print server.</source>
        <translation>Cifra a ligação ao servidor de impressão.</translation>
    </message>
    <message>
        <source>The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes.</source>
        <translation>O nome do papel no PPD, ou Custom.LARGURAxCOMPRIMENTOmm se a impressora aceitar tamanhos personalizados.</translation>
    </message>
    <message>
        <source>The number of copies.</source>
        <translation>O número de cópias.</translation>
    </message>
    <message>
        <source>The pages to print, as in 1-3,5,8-.</source>
        <translation>As páginas a imprimir, por exemplo 1-3,5,8-.</translation>
    </message>
    <message>
        <source>An option of the PPD or of the print server. Several options are separated by blanks or given one by one.</source>
        <translation>Uma opção do PPD ou do servidor de impressão; várias de uma vez, separadas por espaços, ou uma a uma.</translation>
    </message>
    <message>
        <source>The job&apos;s name in the queue.</source>
        <translation>O nome do trabalho na fila.</translation>
    </message>
    <message>
        <source>The job&apos;s priority, from 1 to 100 (first).</source>
        <translation>A prioridade do trabalho, de 1 a 100 (primeiro).</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and restart for a job that was already sent.</source>
        <translation>Quando imprimir: hold, immediate, HH:MM (UTC), night, weekend e outros; para um trabalho já enviado, também resume e restart.</translation>
    </message>
    <message>
        <source>Sends a mail when the job is finished; implies -s.</source>
        <translation>Envia uma mensagem de correio quando o trabalho termina; inclui -s.</translation>
    </message>
    <message>
        <source>Does not print the request id.</source>
        <translation>Não mostra o número do trabalho.</translation>
    </message>
    <message>
        <source>Ignored, for compatibility with lp: documents are always copied.</source>
        <translation>Aceite por compatibilidade com o lp: os documentos são sempre copiados.</translation>
    </message>
    <message>
        <source>Changes a job that was already sent.</source>
        <translation>Altera um trabalho já enviado.</translation>
    </message>
    <message>
        <source>Prints without the dialog, with the settings that it would show.</source>
        <translation>Imprime de imediato, com as definições com que a janela abriria.</translation>
    </message>
    <message>
        <source>Lists the queues and their states.</source>
        <translation>Lista as filas e o seu estado.</translation>
    </message>
    <message>
        <source>Writes the settings that the dialog would show, without printing.</source>
        <translation>Mostra as definições com que a janela abriria e não imprime nada.</translation>
    </message>
    <message>
        <source>Prepares the job and writes what would be sent, without sending it.</source>
        <translation>Faz tudo menos enviar e mostra o que seria enviado.</translation>
    </message>
    <message>
        <source>Writes the output as JSON.</source>
        <translation>Mostra-o como JSON.</translation>
    </message>
    <message>
        <source>Sends the job even with conflicts, or with choices that the printer does not have.</source>
        <translation>Envia mesmo o que a impressora não tem e o que é incompatível.</translation>
    </message>
    <message>
        <source>Saves a screenshot of the dialog as a PNG file.</source>
        <translation>Guarda uma imagem da janela, tal como abre, num ficheiro PNG.</translation>
    </message>
    <message>
        <source>Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue.</source>
        <translation>Um ficheiro PPD, não comprimido ou gzip: imprime numa impressora virtual em vez de numa fila.</translation>
    </message>
    <message>
        <source>The folder for strip.pdf and job.json of the virtual printer; created if it does not exist. Default: a new folder among the user&apos;s data.</source>
        <translation>A pasta para strip.pdf e job.json da impressora virtual, criada se não existir. Sem esta opção, uma nova pasta entre os dados do utilizador.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra esta ajuda.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Mostra a versão.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported; documents are sent as PDF</source>
        <translation>&quot;%1&quot; não é possível; os documentos são enviados como PDF</translation>
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
        <translation>Estado de saída:
  0  impresso, ou mostrado o que foi pedido
  1  algo não pôde ser aberto, usado, enviado ou escrito; nada foi impresso,
     a menos que a saída de erros diga que o trabalho foi enviado na mesma
  2  a linha de comandos não foi entendida
  3  impresso, mas sem o painel de opções de corte
  4  cancelado na janela
  129, 130, 143  interrompido por um sinal antes de o trabalho ser enviado
</translation>
    </message>
    <message>
        <source>Cancels a job that an interrupted program left on a print server.</source>
        <translation>Retira um trabalho que um programa interrompido deixou num servidor de impressão.</translation>
    </message>
    <message>
        <source>Releases such a job; it may be incomplete.</source>
        <translation>Imprime o que o servidor de impressão tem desse trabalho, talvez não todos os documentos.</translation>
    </message>
    <message>
        <source>A panel bundle, or a folder with bundles, to use instead of the installed ones.</source>
        <translation>Um pacote de painéis, ou uma pasta com pacotes, em vez dos instalados.</translation>
    </message>
    <message>
        <source>Loads panels again that have ended or blocked the program before.</source>
        <translation>Carrega novamente os painéis que antes encerraram ou bloquearam o programa.</translation>
    </message>
    <message>
        <source>Invalid scaling &quot;%1&quot;; use auto, fit, fill or none</source>
        <translation>Escala “%1” inválida; use auto, fit, fill ou none</translation>
    </message>
    <message>
        <source>The kernel has no Landlock: the processes that read documents can read other files.</source>
        <translation>O núcleo não tem Landlock: os processos que leem documentos podem ler outros ficheiros.</translation>
    </message>
    <message>
        <source>The kernel has no seccomp: the processes that read documents can use the network and start other processes.</source>
        <translation>O núcleo não tem seccomp: os processos que leem documentos podem usar a rede e iniciar outros processos.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::Console</name>
    <message>
        <source>The job was sent nevertheless, as %1-%2.</source>
        <translation>O trabalho foi enviado na mesma, como %1-%2.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation>(predefinida)</translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation>Classe composta por: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destinations</source>
        <translation>O servidor de impressão &quot;%1&quot; não tem nenhum destino onde imprimir</translation>
    </message>
    <message>
        <source>To resolve the conflict: %1</source>
        <translation>Solução possível: %1</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no default destination; specify one with &quot;-d&quot;</source>
        <translation>O servidor de impressão &quot;%1&quot; não tem nenhum destino predefinido; indique um com &quot;-d&quot;</translation>
    </message>
    <message>
        <source>Stopped by a signal; nothing was printed.</source>
        <translation>Interrompido por um sinal; nada foi impresso.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::LeftJobsRun</name>
    <message>
        <source>&quot;kvprint --cancel-left %1&quot; cancels it, &quot;kvprint --release-left %1&quot; releases it.</source>
        <translation>&quot;kvprint --cancel-left %1&quot; retira-o, &quot;kvprint --release-left %1&quot; imprime o que o servidor tem dele.</translation>
    </message>
    <message>
        <source>Jobs &quot;%1&quot; are left on several print servers; specify one of: %2</source>
        <translation>Ficaram trabalhos &quot;%1&quot; em vários servidores de impressão; indique um destes: %2</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are no such jobs</source>
        <translation>Não há nenhum trabalho &quot;%1&quot; deixado por um programa interrompido; não ficou nenhum</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are these: %2</source>
        <translation>Não há nenhum trabalho &quot;%1&quot; deixado por um programa interrompido; ficaram estes: %2</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>O ficheiro PPD &quot;%1&quot; não tem o papel &quot;%2&quot;; tem: %3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; defines no paper</source>
        <translation>O ficheiro PPD &quot;%1&quot; não indica nenhum papel</translation>
    </message>
    <message>
        <source>The label strip was written to:</source>
        <translation>A tira de etiquetas está em:</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::StandardStreams</name>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>Não é possível escrever na saída padrão: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalPassword</name>
    <message>
        <source>Password for the document on standard input:</source>
        <translation>Palavra-passe do documento na entrada padrão:</translation>
    </message>
    <message>
        <source>Password for the document &quot;%1&quot;:</source>
        <translation>Palavra-passe do documento &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>A palavra-passe está errada.</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalTrust</name>
    <message>
        <source>Type &quot;%1&quot; to continue:</source>
        <translation>Escreva &quot;%1&quot; para continuar:</translation>
    </message>
</context>
</TS>
