<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>dialog::job::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation>プリンタークラス: %1</translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation>プリンター(&amp;R)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation>プリンターがありません。</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>プリントサーバーの応答を待っています…</translation>
    </message>
    <message>
        <source>Last known state: %1</source>
        <translation>前回: %1</translation>
    </message>
    <message>
        <source>The print server does not respond. Last known state: %1</source>
        <translation>プリントサーバーが応答しません。前回: %1</translation>
    </message>
    <message>
        <source>The print server does not respond.</source>
        <translation>プリントサーバーが応答しません。</translation>
    </message>
    <message>
        <source>The print server requires a password.</source>
        <translation>プリントサーバーがパスワードを求めています。</translation>
    </message>
    <message>
        <source>The print server requires a password. Last known state: %1</source>
        <translation>プリントサーバーがパスワードを求めています。前回: %1</translation>
    </message>
    <message>
        <source>The print server is not trusted.</source>
        <translation>プリントサーバーは信頼されていません。</translation>
    </message>
    <message>
        <source>The print server is not trusted. Last known state: %1</source>
        <translation>プリントサーバーは信頼されていません。前回: %1</translation>
    </message>
</context>
<context>
    <name>dialog::job::DocumentPasswordDialog</name>
    <message>
        <source>Password for the document</source>
        <translation>文書のパスワード</translation>
    </message>
    <message>
        <source>The document on standard input is encrypted.</source>
        <translation>標準入力の文書は暗号化されています。</translation>
    </message>
    <message>
        <source>The document &quot;%1&quot; is encrypted.</source>
        <translation>文書「%1」は暗号化されています。</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>パスワードが違います。</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>パスワード(&amp;P)</translation>
    </message>
</context>
<context>
    <name>dialog::job::ErrorBanner</name>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobPage</name>
    <message>
        <source>Print time</source>
        <translation>印刷する時刻</translation>
    </message>
    <message>
        <source>Queue default</source>
        <translation>キューの設定に従う</translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation>1 から 100 まで。優先度の高いジョブが先に印刷されます</translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation>ジョブ名(&amp;N)</translation>
    </message>
    <message>
        <source>Orienta&amp;tion</source>
        <translation>印刷の向き(&amp;T)</translation>
    </message>
    <message>
        <source>When to pr&amp;int</source>
        <translation>印刷のタイミング(&amp;I)</translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation>優先度(&amp;Y)</translation>
    </message>
    <message>
        <source>Printer default</source>
        <translation>プリンターの設定に従う</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>横 (逆向き)</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>縦 (逆向き)</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>今すぐ</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>保留を解除したとき</translation>
    </message>
    <message>
        <source>At a specific time</source>
        <translation>時刻を指定</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>日中</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>夕方</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>第 2 シフト</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>第 3 シフト</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>Page si&amp;ze</source>
        <translation>ページサイズ(&amp;Z)</translation>
    </message>
    <message>
        <source>Shrink pages larger than the label</source>
        <translation>ラベルより大きいページを縮小</translation>
    </message>
    <message>
        <source>Fit to the printable area</source>
        <translation>印刷可能領域に合わせる</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>ラベル全体に拡大</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobWindow</name>
    <message>
        <source>The job was sent.</source>
        <translation>ジョブを送信しました。</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>ジョブ %1: %2</translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation>ジョブをキャンセル(&amp;J)</translation>
    </message>
</context>
<context>
    <name>dialog::job::LeftJobBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancel the job</source>
        <translation>ジョブを取り消す</translation>
    </message>
    <message>
        <source>Release the job</source>
        <translation>ジョブの保留を解除</translation>
    </message>
</context>
<context>
    <name>dialog::job::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>部単位で印刷(&amp;B)</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>全ページを 1 部ずつ繰り返します。オフの場合は同じページの複製をまとめて印刷します</translation>
    </message>
    <message>
        <source>all, or ranges: 1-3, 5</source>
        <translation>すべて、または例 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>部数(&amp;C)</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>ページ(&amp;G)</translation>
    </message>
    <message>
        <source>Reverse order</source>
        <translation>最後のページから</translation>
    </message>
</context>
<context>
    <name>dialog::job::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation>プリントサーバーのパスワード</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>ユーザー名(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>パスワード(&amp;P)</translation>
    </message>
</context>
<context>
    <name>dialog::job::SendBar</name>
    <message>
        <source>Cancel sending</source>
        <translation>送信を中止</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>「%1」を送信中</translation>
    </message>
</context>
<context>
    <name>dialog::job::SummaryPage</name>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
</context>
<context>
    <name>dialog::job::TicketPage</name>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>設定元</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation>ジョブのオプション</translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation>コマンドラインでの同じジョブ(&amp;T)</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>コピー(&amp;Y)</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>コマンドをコピー</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
</context>
<context>
    <name>dialog::job::TrustText</name>
    <message>
        <source>Connection without encryption</source>
        <translation>暗号化されていない接続</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password, and the connection to it is not encrypted.</source>
        <translation>プリントサーバー「%1」はパスワードを求めていますが、接続が暗号化されていません。</translation>
    </message>
    <message>
        <source>Others on the network can read the password.</source>
        <translation>ネットワーク上の他の人がパスワードを読み取れます。</translation>
    </message>
    <message>
        <source>Send anyway</source>
        <translation>それでも送信</translation>
    </message>
    <message>
        <source>Certificate of the print server</source>
        <translation>プリントサーバーの証明書</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2.</source>
        <translation>プリントサーバー「%1」の証明書は信頼されていません: %2。</translation>
    </message>
    <message>
        <source>Its SHA-256 fingerprint is:
%1

Trust it only if the server&apos;s administrator confirms this fingerprint. It stays trusted for later connections.</source>
        <translation>SHA-256 フィンガープリント:
%1

サーバーの管理者が示すフィンガープリントと同じ場合にのみ信頼してください。以後は信頼されます。</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>信頼する</translation>
    </message>
</context>
<context>
    <name>dialog::job::VirtualSender</name>
    <message>
        <source>The PPD file defines no paper</source>
        <translation>PPD ファイルに用紙がありません</translation>
    </message>
</context>
<context>
    <name>dialog::options::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation>未設定</translation>
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
        <translation>これらの設定をすべて同時に使うことはできません。</translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation>このまま印刷</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>dialog::options::CustomValueFields</name>
    <message numerus="yes">
        <source>&quot;%1&quot; needs at least %n character(s). Until then, the previous value is used.</source>
        <translation>
            <numerusform>「%1」には %n 文字以上が必要です。それまでは元の設定のままです。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::options::OptionsPage</name>
    <message>
        <source>Option groups</source>
        <translation>オプションのグループ</translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation>このプリンターにほかのオプションはありません。</translation>
    </message>
</context>
<context>
    <name>dialog::paper::CustomPaperFields</name>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest length</comment>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>用紙の幅</translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation>用紙の長さ</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>幅(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>長さ(&amp;L)</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperChooser</name>
    <message>
        <source>P&amp;aper</source>
        <translation>用紙(&amp;A)</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Search papers</source>
        <translation>用紙を検索</translation>
    </message>
    <message>
        <source>Custom, %1</source>
        <comment>a size</comment>
        <translation>カスタム、%1</translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation>文書のサイズを使う: %1</translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation>カスタムサイズ</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation>幅 %1</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>幅 %1、長さ %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>カスタムサイズ…</translation>
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
        <translation>インチ</translation>
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
        <translation>プリンター: %1</translation>
    </message>
</context>
<context>
    <name>dialog::window::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation>オプション、プレビュー、概要</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>プレビュー(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>概要(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>ジョブ(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation>送信内容(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>オプション(&amp;O)</translation>
    </message>
</context>
<context>
    <name>dialog::window::PagePreview</name>
    <message>
        <source>The page is larger than the label and is shrunk to fit.</source>
        <translation>ページがラベルより大きいため縮小されます。</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelBanner</name>
    <message>
        <source>The printer&apos;s options are listed on the page &quot;Options&quot;.</source>
        <translation>プリンターのオプションは「オプション」ページにあります。</translation>
    </message>
    <message>
        <source>Load It Again</source>
        <translation>再読み込み</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelPage</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>dialog::window::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 の印刷</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The printer has no description (PPD); its papers and cuts are not known.</source>
        <translation>プリンターの記述がないため、用紙とカットの情報がありません。</translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation>プリンターの記述を待っています…</translation>
    </message>
    <message>
        <source>No printer is selected.</source>
        <translation>プリンターが選択されていません。</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>プリントサーバーの応答を待っています…</translation>
    </message>
    <message>
        <source>The printer&apos;s description is not known.</source>
        <translation>プリンターの記述がわかりません。</translation>
    </message>
</context>
<context>
    <name>dialog::window::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>ラベルの帯</translation>
    </message>
</context>
<context>
    <name>host::base::OutOfMemory</name>
    <message>
        <source>Out of memory; nothing was printed.</source>
        <translation>メモリーが足りません。何も印刷されませんでした。</translation>
    </message>
    <message>
        <source>Out of memory; the job may be incomplete, or left on the print server.</source>
        <translation>メモリーが足りません。ジョブは不完全か、プリントサーバーに残っている可能性があります。</translation>
    </message>
    <message>
        <source>Out of memory. The job was sent nevertheless.</source>
        <translation>メモリーが足りません。ジョブは送信されています。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation>プリンター「%1」にオプション「%2」はありません。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation>プリンター「%1」に用紙「%2」はありません。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation>プリンター「%2」のオプション「%1」に選択肢「%3」はありません。使える選択肢: %4</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print on the paper &quot;%2&quot;: its size is %3 × %4 points; width and length must be greater than 0, one of them at most %5 m, the other at most %6 m.</source>
        <translation>プリンタ「%1」は用紙「%2」に印刷できません。サイズが %3 × %4 ポイントです。幅と長さは 0 より大きく、一方は %5 m 以下、もう一方は %6 m 以下でなければなりません。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation>文書「%1」を読めません: %2</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>it has become shorter while it was read</source>
        <translation>読み込み中に短くなりました</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>開いた後にファイルが変更されました。もう一度開いてください</translation>
    </message>
    <message>
        <source>it has changed while it was read</source>
        <translation>読み込み中に変更されました</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobChange</name>
    <message>
        <source>It is printed again, but held. %1</source>
        <translation>再印刷の対象ですが、保留されています。%1</translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation>ジョブ %1 は変更されませんでした。%2</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>オプション「%2」の選択肢「%1」を伝えられるプリントサーバーはありません。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobFate</name>
    <message>
        <source>%1 A job &quot;%2&quot; without documents may be left in the queue &quot;%3&quot; of the print server &quot;%4&quot;; it prints nothing.</source>
        <translation>%1 プリントサーバー「%4」のキュー「%3」に、文書のないジョブ「%2」が残っている可能性があります。このジョブは印刷されません。</translation>
    </message>
    <message>
        <source>%1 The print server &quot;%2&quot; has all documents of job %3-%4, but did not report whether it released the job: it is printed, or it is still held. Check the queue before you print again.</source>
        <translation>%1 プリントサーバー「%2」はジョブ %3-%4 のすべての文書を受け取りましたが、保留を解除したかどうかを知らせていません。ジョブは印刷されるか、保留されたまま印刷されません。もう一度印刷する前にキューを確認してください。</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 on the print server &quot;%4&quot; may have been printed; check the queue before you print again.</source>
        <translation>%1 プリントサーバー「%4」のジョブ %2-%3 は印刷された可能性があります。もう一度印刷する前にキューを確認してください。</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; it is held on the print server &quot;%4&quot; and is not printed unless it is released.</source>
        <translation>%1 ジョブ %2-%3 を取り消せませんでした。ジョブはプリントサーバー「%4」で保留中で、解除されるまで印刷されません。</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; check the queue before you print again.</source>
        <translation>%1 ジョブ %2-%3 を取り消せませんでした。もう一度印刷する前にキューを確認してください。</translation>
    </message>
    <message>
        <source>%1 Job %2-%3: %4</source>
        <translation>%1 ジョブ %2-%3: %4</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobJournal</name>
    <message>
        <source>The record &quot;%1&quot; of an interrupted job was damaged and has been removed. Check your queues for a held job.</source>
        <translation>送信中だったジョブの記録「%1」は壊れていたため削除されました。使用するキューにジョブが残っていないか確認してください。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>queue default</source>
        <translation>キューの既定値</translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation>ユーザーの既定値 (lpoptions)</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>cut options</source>
        <translation>カットオプション</translation>
    </message>
    <message>
        <source>set by you</source>
        <translation>ユーザーの設定</translation>
    </message>
    <message>
        <source>page layout</source>
        <translation>ページレイアウト</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobSettings</name>
    <message>
        <source>Cannot print the job: it has more than %1 labels</source>
        <translation>一度に印刷できるラベルは %1 枚までです</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation>保留中。解除されるまで待ちます。</translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation>%1 まで保留中。</translation>
    </message>
    <message>
        <source>Waiting in the queue.</source>
        <translation>順番を待っています。</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>印刷中。</translation>
    </message>
    <message>
        <source>Stopped; it continues when the printer is ready.</source>
        <translation>停止中。プリンターの準備ができると再開します。</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>キャンセルされました。</translation>
    </message>
    <message>
        <source>Aborted by the print server.</source>
        <translation>プリントサーバーが中止しました。</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>印刷しました。</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>サーバーからのメッセージ: %1</translation>
    </message>
    <message>
        <source>The job is finished; the print server keeps no record of it.</source>
        <translation>ジョブは終了しました。プリントサーバーに記録は残っていません。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobUpload</name>
    <message>
        <source>There is no document to print.</source>
        <translation>印刷する文書がありません。</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>オプション「%2」の選択肢「%1」を伝えられるプリントサーバーはありません。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; did not receive all of &quot;%2&quot;.</source>
        <translation>プリントサーバー「%1」は「%2」のすべてを受け取りませんでした。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LeftJob</name>
    <message>
        <source>The print server &quot;%1&quot; no longer has the job &quot;%2&quot; in the queue &quot;%3&quot;, or the job is finished.</source>
        <translation>プリントサーバー「%1」のキュー「%3」にジョブ「%2」はもうないか、すでに終了しています。</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is not held: %4</source>
        <translation>プリントサーバー「%3」のジョブ %1-%2 は保留されていません: %4</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is released.</source>
        <translation>プリントサーバー「%3」のジョブ %1-%2 の保留を解除しました。</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is canceled.</source>
        <translation>プリントサーバー「%3」のジョブ %1-%2 を取り消しました。</translation>
    </message>
    <message>
        <source>An interrupted program may have left job %1 (&quot;%2&quot;) on the print server &quot;%3&quot;; the job may be incomplete.</source>
        <translation>印刷中に停止されたプログラムが、プリントサーバー「%3」にジョブ %1（「%2」）を残した可能性があります。すべての文書が届いていないかもしれません。</translation>
    </message>
    <message>
        <source>An interrupted program may have left a job &quot;%1&quot; without documents in the queue &quot;%2&quot; of the print server &quot;%3&quot;.</source>
        <translation>印刷中に停止されたプログラムが、プリントサーバー「%3」のキュー「%2」に文書のないジョブ「%1」を残した可能性があります。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LpCommand</name>
    <message>
        <source>lp cannot express these options: %1</source>
        <translation>lp では次のオプションを送信内容のとおりに指定できません: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::DiscoveredQueue</name>
    <message>
        <source>The print server &quot;%1&quot; cannot reach the printer &quot;%2&quot;.</source>
        <translation>プリントサーバー「%1」はプリンター「%2」に接続できません。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer on the network.</source>
        <translation>プリンター「%1」はネットワーク上に見つからなくなりました。</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation>プリントサーバー「%1」にキューまたはクラス「%2」はありません。</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueText</name>
    <message>
        <source>The printer needs labels or tape.</source>
        <translation>ラベルまたはテープの補給を待っています。</translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation>ラベルまたはテープが詰まっています。</translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation>ラベルロールまたはテープの残りがわずかです。</translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation>ラベルロールまたはテープがなくなりました。</translation>
    </message>
    <message>
        <source>The printer is pausing.</source>
        <translation>プリンターは一時停止するところです。</translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation>キューは一時停止中です。ジョブは待機します。</translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation>プリンターの電源が切れています。</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>プリンターに接続中。</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>プリンターが応答しません。</translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation>プリンターを停止しています。</translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation>クラスの一部のプリンターが停止しています。</translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation>トナーの残りがわずかです。</translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation>トナーがなくなりました。</translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation>プリントサーバーに空き容量がありません。</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation>プリンターのカバーが開いています。</translation>
    </message>
    <message>
        <source>An interlock of the printer is open.</source>
        <translation>プリンターのロックが外れています。</translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation>プリンターのドアが開いています。</translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation>カセットまたはロールホルダーがありません。</translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation>排紙トレイがありません。</translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation>排紙トレイがもうすぐいっぱいです。</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>排紙トレイがいっぱいです。</translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation>インクまたはインクリボンの残りがわずかです。</translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation>インクまたはインクリボンがなくなりました。</translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation>回収ボックスがもうすぐいっぱいです。</translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation>回収ボックスがいっぱいです。</translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation>プリンターが熱くなりすぎています。</translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation>プリンターはウォームアップ中です。</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>プリンターはオフラインです。</translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation>新しいジョブは保留されます。</translation>
    </message>
    <message>
        <source>The printer was deactivated by its administrator.</source>
        <translation>プリンターは管理者によって無効にされています。</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is missing.</source>
        <translation>プリンタードライバーの一部がありません。</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is not installed securely.</source>
        <translation>プリンタードライバーの一部が安全にインストールされていません。</translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation>プリンターがジョブを終えるのを待っています。</translation>
    </message>
    <message>
        <source>The printer does not conform to its protocol.</source>
        <translation>プリンターがプロトコルに従っていません。</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>準備完了。</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>印刷中。</translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation>ネットワークで見つかりました。</translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation>状態は不明です。</translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation>キューはジョブを受け付けていません。</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>サーバーからのメッセージ: %1</translation>
    </message>
</context>
<context>
    <name>host::cups::server::CupsConnection</name>
    <message>
        <source>Canceled on request.</source>
        <translation>要求により中止しました。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not respond.</source>
        <translation>プリントサーバー「%1」が応答しません。</translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation>プリントサーバー「%1」に接続できません: %2</translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; was lost.</source>
        <translation>プリントサーバー「%1」との接続が切れました。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; reports: %2</source>
        <translation>プリントサーバー「%1」からのメッセージ: %2</translation>
    </message>
    <message>
        <source>Cannot fetch &quot;%2&quot; from the print server &quot;%1&quot;: %3</source>
        <translation>プリントサーバー「%1」から「%2」を取得できません: %3</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>%1 MB を超えています</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>途中で接続が切れました</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;, and none was entered.</source>
        <translation>プリントサーバー「%1」はユーザー「%2」のパスワードを求めていますが、入力されていません。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no certificate.</source>
        <translation>プリントサーバー「%1」には証明書がありません。</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not the one that is trusted for this host. The trusted one has the SHA-256 fingerprint %2, the server&apos;s has %3. The server&apos;s certificate may have been replaced, another print server may run on the same host, or someone may be intercepting the connection. If the server&apos;s administrator confirms the fingerprint, remove the file &quot;%4&quot; and try again.</source>
        <translation>プリントサーバー「%1」の証明書は、このホストに対して信頼されている証明書ではありません。信頼されている証明書の SHA-256 フィンガープリントは %2、サーバーのものは %3 です。サーバーの証明書が置き換えられたか、同じホストで別のプリントサーバーが動作しているか、または何者かが接続を傍受している可能性があります。サーバーの管理者がフィンガープリントを確認した場合は、ファイル「%4」を削除してもう一度お試しください。</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; with the SHA-256 fingerprint %2 cannot be trusted: %3</source>
        <translation>プリントサーバー「%1」の証明書 (SHA-256 フィンガープリント %2) は信頼できません: %3</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2. Its SHA-256 fingerprint is %3. Compare it with the fingerprint that the server&apos;s administrator gives you, and confirm it in the dialog or on a terminal.</source>
        <translation>プリントサーバー「%1」の証明書は信頼されていません: %2。SHA-256 フィンガープリントは %3 です。サーバーの管理者が示すものと比べ、ウィンドウまたは端末で確認を求められたときに承認してください。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;. None was sent, because the connection is not encrypted and others could read it. Encrypt the connection (-E), or confirm the question in the dialog or on a terminal.</source>
        <translation>プリントサーバー「%1」はユーザー「%2」のパスワードを求めています。接続が暗号化されておらず、他の人に読み取られるおそれがあるため、送信していません。接続を暗号化する (-E) か、ウィンドウまたは端末で確認を求められたときに承認してください。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not accept the password of the user &quot;%2&quot;.</source>
        <translation>プリントサーバー「%1」はユーザー「%2」のパスワードを受け付けません。</translation>
    </message>
</context>
<context>
    <name>host::cups::server::FailureReason</name>
    <message>
        <source>It cannot store the document: the disk is full, or the document is larger than it accepts.</source>
        <translation>文書を保存できません。ディスクがいっぱいか、文書がサーバーの受け付ける大きさを超えています。</translation>
    </message>
</context>
<context>
    <name>host::documents::LabelDocument</name>
    <message>
        <source>Cannot open the document &quot;%1&quot;: %2</source>
        <translation>文書「%1」を開けません: %2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>its encryption is not supported</source>
        <translation>未知の方式で暗号化されています</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>ページがありません</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>%1 ページに面積がありません</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>%1 ページは %2 m を超えています</translation>
    </message>
    <message>
        <source>Cannot open the document on standard input: %1</source>
        <translation>標準入力の文書を開けません: %1</translation>
    </message>
    <message>
        <source>the image is damaged</source>
        <translation>画像が壊れています</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation>%1 × %2 ピクセルあり、印刷できる大きさを超えています</translation>
    </message>
    <message>
        <source>the end of the image is missing</source>
        <translation>画像の終わりが欠けています</translation>
    </message>
    <message>
        <source>No document is specified</source>
        <translation>文書が指定されていません</translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation>読み込めるのは 1 回だけです</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>%1 を超えています</translation>
    </message>
    <message>
        <source>it is not a PDF, PNG, JPEG or SVG file</source>
        <translation>PDF、PNG、JPEG、SVG のいずれでもありません</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>開いた後にファイルが変更されました。もう一度開いてください</translation>
    </message>
    <message>
        <source>the PDF is damaged</source>
        <translation>PDF が壊れています</translation>
    </message>
    <message>
        <source>it cannot be stored in &quot;%1&quot;: %2</source>
        <translation>「%1」に保存できません: %2</translation>
    </message>
    <message>
        <source>the SVG is damaged</source>
        <translation>SVG が壊れています</translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, but other files are not loaded</source>
        <translation>「%1」を参照していますが、印刷されるのは SVG 自体の内容だけです</translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation>SVG の %1 行目: %2</translation>
    </message>
    <message>
        <source>the SVG is too complex to be drawn</source>
        <translation>SVG の要素が多すぎて描画できません</translation>
    </message>
    <message>
        <source>it contains a picture that is neither PNG nor JPEG</source>
        <translation>PNG でも JPEG でもない画像を含んでいます</translation>
    </message>
    <message>
        <source>it contains a damaged picture</source>
        <translation>壊れた画像を含んでいます</translation>
    </message>
    <message>
        <source>its pictures have more pixels than can be printed</source>
        <translation>印刷できるピクセル数を超える画像を含んでいます</translation>
    </message>
    <message>
        <source>the converter &quot;%1&quot; cannot be started</source>
        <translation>変換するプログラム「%1」を起動できません</translation>
    </message>
    <message>
        <source>laying its pages out on labels needs too much memory or time</source>
        <translation>ページをラベルに配置するには、メモリまたは時間がかかりすぎます</translation>
    </message>
    <message>
        <source>its pages cannot be laid out on labels; the PDF is damaged</source>
        <translation>ページをラベルに配置できません。PDF が破損しています</translation>
    </message>
    <message>
        <source>the program that reads PDFs cannot be started</source>
        <translation>PDF を読み込むプログラムを起動できません</translation>
    </message>
    <message>
        <source>the program that reads PDFs has crashed</source>
        <translation>PDF を読み込むプログラムが異常終了しました</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>読み込みに時間がかかりすぎます</translation>
    </message>
    <message>
        <source>it attempts what no document may do</source>
        <translation>文書に許可されていない動作を試みています</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>パスワードが違います</translation>
    </message>
    <message>
        <source>decrypting it needs too much memory or time</source>
        <translation>復号に必要なメモリまたは時間が多すぎます</translation>
    </message>
    <message>
        <source>it is encrypted and needs a password</source>
        <translation>暗号化されており、パスワードが必要です</translation>
    </message>
</context>
<context>
    <name>host::documents::PrintOrder</name>
    <message>
        <source>Invalid page range &quot;%1&quot;: use numbers and ranges such as 1-3, 5</source>
        <translation>ページ「%1」を理解できません: 1-3, 5 のように入力してください</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>ページ「%1」を印刷できません: 最後のページは %2 です</translation>
    </message>
    <message>
        <source>Nothing to print: no page of the document is selected</source>
        <translation>何も印刷されません。文書のページが選ばれていません</translation>
    </message>
</context>
<context>
    <name>host::labels::LabelDrawing</name>
    <message>
        <source>Page %1 cannot be drawn</source>
        <translation>ページ %1 を描画できません</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleCatalog</name>
    <message>
        <source>The panel bundle &quot;%1&quot; is not used: %2.</source>
        <translation>パネルバンドル「%1」は使用されません: %2。</translation>
    </message>
    <message>
        <source>The panel bundles in &quot;%1&quot; are not used: %2.</source>
        <translation>「%1」のパネルバンドルは使用されません: %2。</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>フォルダーがありません</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleFolders</name>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>「%1」を読み取れません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>「%1」は別のユーザーの所有です</translation>
    </message>
    <message>
        <source>other users can write to &quot;%1&quot;; &quot;chmod go-w&quot; prevents it</source>
        <translation>他のユーザーが「%1」に書き込めます。「chmod go-w」で防げます</translation>
    </message>
</context>
<context>
    <name>host::panels::HostedPanel</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation>「%1」の設定を保存できません: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not allow printing with these settings.</source>
        <translation>「%1」はこの設定での印刷を許可していません。</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>バンドル「%1」を使えません: %2</translation>
    </message>
    <message>
        <source>its library contains no panels</source>
        <translation>パネルのライブラリではありません</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>インターフェースのバージョン %1 用ですが、このプログラムは %2 です</translation>
    </message>
    <message>
        <source>missing or unreadable: %1</source>
        <translation>見つからないか読めません: %1</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>フォルダーがありません</translation>
    </message>
    <message>
        <source>Cannot find the panel bundle; searched %1</source>
        <translation>パネルのバンドルが見つかりません。探した場所: %1</translation>
    </message>
    <message>
        <source>it has no library %1</source>
        <translation>ライブラリ %1 がありません</translation>
    </message>
    <message>
        <source>it does not work on this system</source>
        <translation>このシステムでは動作しません</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelGuard</name>
    <message>
        <source>an error occurred in &quot;%1&quot;</source>
        <translation>「%1」でエラーが発生しました</translation>
    </message>
    <message>
        <source>an error occurred in &quot;%1&quot;: %2</source>
        <translation>「%1」でエラーが発生しました: %2</translation>
    </message>
</context>
<context>
    <name>host::printer::Constraints</name>
    <message>
        <source>&quot;%1: %2&quot;</source>
        <translation>「%1: %2」</translation>
    </message>
    <message>
        <source>This printer does not support %1.</source>
        <translation>このプリンターは%1に対応していません。</translation>
    </message>
    <message>
        <source>%1 and %2 conflict.</source>
        <translation>%1と%2は同時に使えません。</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>「%1」を「%2」にする</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>PPD ファイル「%1」を開けません: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, the maximum for a PPD file</source>
        <translation>%1 MB を超えており、プリンターの記述としては大きすぎます</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be decompressed</source>
        <translation>壊れているか不完全です: 最後まで展開できません</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>it has %1 statements; the maximum is %2</source>
        <translation>命令が %1 個あります。最大は %2 個です</translation>
    </message>
    <message>
        <source>it has %1 &quot;%2&quot; statements; the maximum is %3</source>
        <translation>「%2」の命令が %1 個あります。最大は %3 個です</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>値の途中で終わっています。ファイルが不完全です</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdOptions</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation>プリンター制御</translation>
    </message>
</context>
<context>
    <name>host::setup::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation>ジョブ「%1」、送信先「%2」(%3)
</translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation>送信されるオプション:
</translation>
    </message>
</context>
<context>
    <name>host::setup::JobSummary</name>
    <message>
        <source>Printing</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>all</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Label strip</source>
        <translation>ラベルの帯</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>切り離し片</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>テープ</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>Page set</source>
        <translation>うち印刷する</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>奇数ページ</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>偶数ページ</translation>
    </message>
</context>
<context>
    <name>host::setup::PanelSource</name>
    <message>
        <source>it could not create its panel</source>
        <translation>パネルを作成できませんでした</translation>
    </message>
    <message>
        <source>its panel cannot be shown: its layout file cannot be used</source>
        <translation>パネルを表示できません: レイアウトファイルを使用できません</translation>
    </message>
    <message>
        <source>The panel bundle &quot;%1&quot; does not control %2: another panel or the dialog does, or its description does not list it.</source>
        <translation>パネルバンドル「%1」は %2 を制御しません: 別のパネルかダイアログが制御するか、バンドルの記述にありません。</translation>
    </message>
    <message>
        <source>the program ended or was stopped during its &quot;%1&quot; on %2</source>
        <translation>%2 に「%1」の実行中にプログラムが終了または停止されました</translation>
    </message>
</context>
<context>
    <name>host::setup::Preflight</name>
    <message>
        <source>Page %1 is larger than the label and is printed at %2 % of its size.</source>
        <translation>ページ %1 はラベルより大きいため、%2 % の大きさで印刷されます。</translation>
    </message>
    <message>
        <source>Pages %1 are larger than the label and are printed smaller, at %2 % or more.</source>
        <translation>ページ %1 はラベルより大きいため、縮小して (%2 % 以上で) 印刷されます。</translation>
    </message>
    <message>
        <source>Page %1 has content where the printer cannot print.</source>
        <translation>ページ %1 には、プリンターが印刷できない位置に内容があります。</translation>
    </message>
    <message>
        <source>Pages %1 have content where the printer cannot print.</source>
        <translation>ページ %1 には、プリンターが印刷できない位置に内容があります。</translation>
    </message>
    <message>
        <source>Page %1 is blank.</source>
        <translation>ページ %1 は白紙です。</translation>
    </message>
    <message>
        <source>Pages %1 are blank.</source>
        <translation>ページ %1 は白紙です。</translation>
    </message>
    <message>
        <source>The last label is a piece of its own.</source>
        <translation>最後のラベルは 1 枚だけの切れ端になります。</translation>
    </message>
    <message>
        <source>The job needs %1 m of tape.</source>
        <translation>このジョブには %1 m のテープが必要です。</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>「%1」を使用</translation>
    </message>
    <message>
        <source>Leave out blank pages</source>
        <translation>白紙のページを除く</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>ページ %1 を描画できないため、ジョブを印刷できません: %2。</translation>
    </message>
    <message>
        <source>Pages %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>ページ %1 を描画できないため、ジョブを印刷できません: %2。</translation>
    </message>
    <message>
        <source>Leave out pages that cannot be drawn</source>
        <translation>描画できないページを除外</translation>
    </message>
    <message>
        <source>The labels are printed mirrored, which is readable only through transparent tape.</source>
        <translation>ラベルは左右反転して印刷されます。透明なテープを通してのみ読めます。</translation>
    </message>
    <message>
        <source>Turn pages to fit</source>
        <translation>ページを合う向きに回転</translation>
    </message>
    <message>
        <source>Page %1 is printed smaller than in the orientation that fits.</source>
        <translation>ページ %1 は、合う向きの場合より小さく印刷されます。</translation>
    </message>
    <message>
        <source>Pages %1 are printed smaller than in the orientation that fits.</source>
        <translation>ページ %1 は、合う向きの場合より小さく印刷されます。</translation>
    </message>
</context>
<context>
    <name>host::setup::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; with this paper and the other cut options; &quot;%3&quot; is used instead.</source>
        <translation>この用紙とほかのカットオプションの組み合わせでは「%1」を「%2」にできないため、「%3」として印刷されます。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;, which is your default (lpoptions).</source>
        <translation>プリンター「%1」に、ユーザーの既定値 (lpoptions) である用紙「%2」はありません。</translation>
    </message>
</context>
<context>
    <name>host::strip::CutPlan</name>
    <message>
        <source>Labels: %1 · Tape: %2</source>
        <translation>ラベル: %1 · テープ: %2</translation>
    </message>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>フルカットなし: ラベルは 1 本の帯で出てきます。</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>最後のラベルの後でフルカット。</translation>
    </message>
    <message>
        <source>Full cut after every label.</source>
        <translation>ラベル 1 枚ごとにフルカット。</translation>
    </message>
    <message>
        <source>Full cut after every %1 labels.</source>
        <translation>ラベル %1 枚ごとにフルカット。</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <comment>a length</comment>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>measuring…</source>
        <comment>a length</comment>
        <translation>測定中…</translation>
    </message>
    <message>
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>ラベル: %1 · 切り離し片: %2 · テープ: %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>何も印刷されません。</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>同じ片のラベルの間はハーフカット。</translation>
    </message>
    <message>
        <source>Cut marks are printed where there is no full cut.</source>
        <translation>フルカットしない境目に印を印刷。</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job continues there without a margin.</source>
        <translation>終端はプリンターに残り、次の印刷は余白なしで続きます。</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is removed.</source>
        <translation>ラベル前後の空白を省きます。</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>ラベルは鏡像になります。</translation>
    </message>
    <message>
        <source>Cutting is not known: the printer&apos;s description does not say whether it cuts the labels.</source>
        <translation>カットは不明です: プリンターの記述には、ラベルをカットするかどうかが書かれていません。</translation>
    </message>
    <message>
        <source>Full cuts after the labels %1.</source>
        <translation>ラベル %1 の後でフルカット。</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>次の印刷</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 (%2、%3)</translation>
    </message>
</context>
<context>
    <name>host::strip::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>the folder cannot be created: %1</source>
        <translation>フォルダーを作成できません: %1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>「%1」に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>platform::files::OutputFile</name>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>シンボリックリンクです</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>ソケットです</translation>
    </message>
    <message>
        <source>it is a block device</source>
        <translation>ブロックデバイスです</translation>
    </message>
    <message>
        <source>no program reads from it</source>
        <translation>読み取っているプログラムがありません</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>「kvprint --help」をお試しください。</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation>使い方: kvprint [オプション]... [--] [文書]...
        kvprint -i [QUEUE-]JOB [オプション]...
        kvprint --list | --summary | --dry-run [オプション]... [--] [文書]...
</translation>
    </message>
    <message>
        <source>Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages and cuts shows the label strip as it will come out of the printer. Without a display, the documents are printed immediately. &quot;-&quot; or no document means standard input.</source>
        <translation>ラベルプリンターで文書を印刷します。用紙、ページ、カットを選ぶダイアログに、出てくるとおりのラベルの帯を表示します。画面がない場合はすぐに印刷します。PDF、PNG、JPEG、SVG に対応。「-」または指定なしは標準入力です。</translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation>オプション:
</translation>
    </message>
    <message>
        <source>Ends the options; all following arguments are documents.</source>
        <translation>オプションの終わり。以降はすべて文書です。</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;</source>
        <translation>オプション「%1」はありません</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not accept a value</source>
        <translation>オプション「%1」に値は指定できません</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires a value: %2</source>
        <translation>オプション「%1」には値が必要です: %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; applies to the virtual printer and requires &quot;--ppd&quot;</source>
        <translation>オプション「%1」は仮想プリンター用で、「--ppd」が必要です</translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; applies to a job that was already sent and requires &quot;-i&quot;</source>
        <translation>-H: 「%1」は送信済みのジョブ用で、「-i」が必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not accept documents, but &quot;%2&quot; is specified</source>
        <translation>「%1」に文書は指定できませんが、「%2」が指定されています</translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation>標準入力 (「-」) を印刷できるのは 1 回だけです</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; cannot be combined</source>
        <translation>オプション「%1」と「%2」は同時に指定できません</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires one of: %2</source>
        <translation>オプション「%1」は次のいずれかと一緒に指定してください: %2</translation>
    </message>
    <message>
        <source>No document is specified; name a file, or &quot;-&quot; for standard input</source>
        <translation>文書が指定されていません。ファイル、または入力する場合は「-」を指定してください</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>値が空です</translation>
    </message>
    <message>
        <source>Invalid time &quot;%1&quot;; use HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation>「%1」は印刷時刻として使えません。HH:MM または HH:MM:SS (UTC)、または次のいずれかを指定してください: %2</translation>
    </message>
    <message>
        <source>Invalid value &quot;%1&quot;; use one of: %2</source>
        <translation>「%1」は使えません。次のいずれかを指定してください: %2</translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation>用紙が指定されていません</translation>
    </message>
    <message>
        <source>Invalid number of copies &quot;%1&quot;; use 1 to %2</source>
        <translation>「%1」は部数として使えません。1 から %2 までで指定してください</translation>
    </message>
    <message>
        <source>Invalid priority &quot;%1&quot;; use 1 (last) to 100 (first)</source>
        <translation>「%1」は優先度として使えません。1 (最後) から 100 (最初) までで指定してください</translation>
    </message>
    <message>
        <source>Missing queue in &quot;%1&quot;; use QUEUE or QUEUE/INSTANCE</source>
        <translation>「%1」はキューを指していません。QUEUE または QUEUE/INSTANCE と書いてください</translation>
    </message>
    <message>
        <source>Invalid job &quot;%1&quot;; use its number, or QUEUE-NUMBER as in the request id</source>
        <translation>「%1」はジョブではありません。ジョブ番号、または送信時に表示された QUEUE-NUMBER を指定してください</translation>
    </message>
    <message>
        <source>Missing option in &quot;%1&quot;; use NAME=VALUE</source>
        <translation>「%1」はオプションを指していません。NAME=VALUE と書いてください</translation>
    </message>
    <message>
        <source>The queue to print on, with an instance if needed. Default: the default queue.</source>
        <translation>印刷先のキューと、名前付きのオプションの組。省略すると既定のキュー。</translation>
    </message>
    <message>
        <source>The print server.</source>
        <translation>プリントサーバー。</translation>
    </message>
    <message>
        <source>The user name for the print server.</source>
        <translation>印刷を依頼するユーザー。</translation>
    </message>
    <message>
        <source>Encrypts the connection to the print server.</source>
        <translation>プリントサーバーとの接続を暗号化します。</translation>
    </message>
    <message>
        <source>The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes.</source>
        <translation>PPD での用紙名。カスタムサイズを使えるプリンターでは Custom.幅x長さmm も可。</translation>
    </message>
    <message>
        <source>The number of copies.</source>
        <translation>部数。</translation>
    </message>
    <message>
        <source>The pages to print, as in 1-3,5,8-.</source>
        <translation>印刷するページ。例: 1-3,5,8-</translation>
    </message>
    <message>
        <source>An option of the PPD or of the print server. Several options are separated by blanks or given one by one.</source>
        <translation>PPD またはプリントサーバーのオプション。空白で区切って複数まとめても、1 つずつでも可。</translation>
    </message>
    <message>
        <source>The job&apos;s name in the queue.</source>
        <translation>キューでのジョブ名。</translation>
    </message>
    <message>
        <source>The job&apos;s priority, from 1 to 100 (first).</source>
        <translation>ジョブの優先度。1 から 100 (最初) まで。</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and restart for a job that was already sent.</source>
        <translation>印刷する時刻: hold、immediate、HH:MM (UTC)、night、weekend など。送信済みのジョブには resume と restart も可。</translation>
    </message>
    <message>
        <source>Sends a mail when the job is finished; implies -s.</source>
        <translation>ジョブが終わるとメールを送ります。-s を含みます。</translation>
    </message>
    <message>
        <source>Does not print the request id.</source>
        <translation>ジョブ番号を表示しません。</translation>
    </message>
    <message>
        <source>Ignored, for compatibility with lp: documents are always copied.</source>
        <translation>lp との互換用。文書は常にコピーされます。</translation>
    </message>
    <message>
        <source>Changes a job that was already sent.</source>
        <translation>送信済みのジョブを変更します。</translation>
    </message>
    <message>
        <source>Prints without the dialog, with the settings that it would show.</source>
        <translation>ダイアログを開いたときの設定で、すぐに印刷します。</translation>
    </message>
    <message>
        <source>Lists the queues and their states.</source>
        <translation>キューとその状態を一覧表示します。</translation>
    </message>
    <message>
        <source>Writes the settings that the dialog would show, without printing.</source>
        <translation>ダイアログを開いたときの設定を表示し、何も印刷しません。</translation>
    </message>
    <message>
        <source>Prepares the job and writes what would be sent, without sending it.</source>
        <translation>送信以外のすべてを行い、送信される内容を表示します。</translation>
    </message>
    <message>
        <source>Writes the output as JSON.</source>
        <translation>JSON 形式で表示します。</translation>
    </message>
    <message>
        <source>Sends the job even with conflicts, or with choices that the printer does not have.</source>
        <translation>プリンターにない設定や、両立しない設定でも送信します。</translation>
    </message>
    <message>
        <source>Saves a screenshot of the dialog as a PNG file.</source>
        <translation>開いたときのダイアログの画像を PNG ファイルに保存します。</translation>
    </message>
    <message>
        <source>Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue.</source>
        <translation>PPD ファイル (非圧縮または gzip)。キューの代わりに仮想プリンターで印刷します。</translation>
    </message>
    <message>
        <source>The folder for strip.pdf and job.json of the virtual printer; created if it does not exist. Default: a new folder among the user&apos;s data.</source>
        <translation>仮想プリンターの strip.pdf と job.json を保存するフォルダー。なければ作成します。省略するとユーザーデータ内の新しいフォルダー。</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported; documents are sent as PDF</source>
        <translation>「%1」は使えません。文書は PDF として送信されます</translation>
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
        <translation>終了ステータス:
  0  印刷した、または求められた情報を表示した
  1  開く、使う、送る、書くのいずれかに失敗し、何も印刷されなかった
     (ジョブは送信済みだと標準エラー出力にある場合を除く)
  2  コマンドラインを解釈できなかった
  3  印刷したが、カットオプションのパネルがなかった
  4  ダイアログでキャンセルされた
  129, 130, 143  ジョブの送信前にシグナルで中断された
</translation>
    </message>
    <message>
        <source>Cancels a job that an interrupted program left on a print server.</source>
        <translation>停止されたプログラムがプリントサーバーに残したジョブを取り消します。</translation>
    </message>
    <message>
        <source>Releases such a job; it may be incomplete.</source>
        <translation>プリントサーバーが受け取ったそのようなジョブの内容を印刷します。すべての文書とは限りません。</translation>
    </message>
    <message>
        <source>A panel bundle, or a folder with bundles, to use instead of the installed ones.</source>
        <translation>インストール済みのものの代わりに使うパネルバンドル、またはバンドルのあるフォルダー。</translation>
    </message>
    <message>
        <source>Loads panels again that have ended or blocked the program before.</source>
        <translation>以前にプログラムを終了または停止させたパネルを再び読み込みます。</translation>
    </message>
    <message>
        <source>Invalid scaling &quot;%1&quot;; use auto, fit, fill or none</source>
        <translation>拡大縮小「%1」は無効です。auto、fit、fill、none のいずれかを指定してください</translation>
    </message>
    <message>
        <source>The kernel has no Landlock: the processes that read documents can read other files.</source>
        <translation>カーネルに Landlock がありません: 文書を読み込むプロセスが他のファイルを読むことができます。</translation>
    </message>
    <message>
        <source>The kernel has no seccomp: the processes that read documents can use the network and start other processes.</source>
        <translation>カーネルに seccomp がありません: 文書を読み込むプロセスがネットワークを使用し、他のプロセスを起動できます。</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::Console</name>
    <message>
        <source>The job was sent nevertheless, as %1-%2.</source>
        <translation>ジョブは %1-%2 として送信されています。</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation>(既定)</translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation>クラスの構成: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destinations</source>
        <translation>プリントサーバー「%1」に印刷先がありません</translation>
    </message>
    <message>
        <source>To resolve the conflict: %1</source>
        <translation>解決方法: %1</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no default destination; specify one with &quot;-d&quot;</source>
        <translation>プリントサーバー「%1」に既定の印刷先がありません。「-d」で指定してください</translation>
    </message>
    <message>
        <source>Stopped by a signal; nothing was printed.</source>
        <translation>シグナルで中断されました。何も印刷されていません。</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::LeftJobsRun</name>
    <message>
        <source>&quot;kvprint --cancel-left %1&quot; cancels it, &quot;kvprint --release-left %1&quot; releases it.</source>
        <translation>「kvprint --cancel-left %1」で取り消し、「kvprint --release-left %1」でサーバーにある分を印刷します。</translation>
    </message>
    <message>
        <source>Jobs &quot;%1&quot; are left on several print servers; specify one of: %2</source>
        <translation>ジョブ「%1」が複数のプリントサーバーに残っています。次のいずれかを指定してください: %2</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are no such jobs</source>
        <translation>停止されたプログラムが残したジョブ「%1」はありません。残っているジョブはありません</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are these: %2</source>
        <translation>停止されたプログラムが残したジョブ「%1」はありません。残っているジョブ: %2</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>PPD ファイル「%1」に用紙「%2」はありません。使える用紙: %3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; defines no paper</source>
        <translation>PPD ファイル「%1」に用紙がありません</translation>
    </message>
    <message>
        <source>The label strip was written to:</source>
        <translation>ラベルの帯の保存先:</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::StandardStreams</name>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>標準出力に書き込めません: %1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalPassword</name>
    <message>
        <source>Password for the document on standard input:</source>
        <translation>標準入力の文書のパスワード:</translation>
    </message>
    <message>
        <source>Password for the document &quot;%1&quot;:</source>
        <translation>文書「%1」のパスワード:</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>パスワードが違います。</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalTrust</name>
    <message>
        <source>Type &quot;%1&quot; to continue:</source>
        <translation>続行するには「%1」と入力してください:</translation>
    </message>
</context>
</TS>
