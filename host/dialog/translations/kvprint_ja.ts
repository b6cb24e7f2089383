<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
        <translation>プリンターが指定されていません: --ppd FILE が必要です</translation>
    </message>
    <message>
        <source>No document was named</source>
        <translation>文書が指定されていません</translation>
    </message>
    <message>
        <source>Only one document can be printed at a time, and %1 were named</source>
        <translation>一度に印刷できる文書は 1 つです (%1 個指定されました)</translation>
    </message>
    <message>
        <source>Try "kvprint --help".</source>
        <translation>「kvprint --help」をお試しください。</translation>
    </message>
</context>
<context>
    <name>dialog::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>部単位で印刷(&amp;B)</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>全ページを 1 部ずつ繰り返します。オフの場合は同じページの複製をまとめて印刷します</translation>
    </message>
    <message>
        <source>all, or for example 1-3, 5</source>
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
        <source>Cannot print so many labels at once: a job has at most %1</source>
        <translation>一度に印刷できるラベルは %1 枚までです</translation>
    </message>
    <message>
        <source>all</source>
        <translation>すべて</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
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
    <name>dialog::PaperChooser</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>幅 %1、長さ %2</translation>
    </message>
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
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 の印刷</translation>
    </message>
    <message>
        <source>Options, preview and summary</source>
        <translation>オプション、プレビュー、概要</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>プリンター: %1</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>概要(&amp;S)</translation>
    </message>
    <message>
        <source>"%1" cannot save its settings: %2</source>
        <translation>「%1」の設定を保存できません: %2</translation>
    </message>
    <message>
        <source>"%1" does not let the job be printed with these settings.</source>
        <translation>「%1」はこの設定での印刷を許可していません。</translation>
    </message>
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
        <source>Page pre&amp;view</source>
        <translation>ページのプレビュー(&amp;V)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>dialog::PrintRun</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 ほか %2 件</translation>
    </message>
    <message>
        <source>The PPD file "%1" has no paper "%2"; it has: %3</source>
        <translation>PPD ファイル「%1」に用紙「%2」はありません。使える用紙: %3</translation>
    </message>
    <message>
        <source>The PPD file "%1" names no paper to print on</source>
        <translation>PPD ファイル「%1」に用紙がありません</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation>カットのオプションを表示できません。%1</translation>
    </message>
    <message>
        <source>The panel bundle "%1" could not make its panel</source>
        <translation>バンドル「%1」はパネルを作成できませんでした</translation>
    </message>
    <message>
        <source>The panel of the bundle "%1" cannot be shown: its layout file cannot be used</source>
        <translation>バンドル「%1」のパネルを表示できません: レイアウトファイルが使えません</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>ラベルの帯の保存先:</translation>
    </message>
</context>
<context>
    <name>dialog::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>ラベルの帯</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPage</name>
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
    <name>host::CutPlan</name>
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
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>ラベル: %1 · 切り離し片: %2 · テープ: %3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>何も印刷されません。</translation>
    </message>
    <message>
        <source>Special tape: the printer cuts nothing.</source>
        <translation>特殊テープ: プリンターはカットしません。</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>同じ片のラベルの間はハーフカット。</translation>
    </message>
    <message>
        <source>Printed marks where nothing is cut through.</source>
        <translation>フルカットしない境目に印を印刷。</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job goes on from it without a margin.</source>
        <translation>終端はプリンターに残り、次の印刷は余白なしで続きます。</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is left out.</source>
        <translation>ラベル前後の空白を省きます。</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>ラベルは鏡像になります。</translation>
    </message>
</context>
<context>
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document "%1": %2</source>
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
        <source>it is encrypted; remove its password first</source>
        <translation>暗号化されています。先にパスワードを解除してください</translation>
    </message>
    <message>
        <source>it is encrypted in a way that is not known here</source>
        <translation>未知の方式で暗号化されています</translation>
    </message>
    <message>
        <source>it is no PDF, or a damaged one</source>
        <translation>PDF ではないか、壊れています</translation>
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
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle "%1": %2</source>
        <translation>バンドル「%1」を使えません: %2</translation>
    </message>
    <message>
        <source>its library is no library of panels</source>
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
        <source>Cannot find the panel bundle; looked for %1</source>
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
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file "%1": %2</source>
        <translation>PPD ファイル「%1」を開けません: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer's description</source>
        <translation>%1 MB を超えており、プリンターの記述としては大きすぎます</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be unpacked to its end</source>
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
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>値の途中で終わっています。ファイルが不完全です</translation>
    </message>
    <message>
        <source>it ends in the middle of an option; the file is incomplete</source>
        <translation>オプションの途中で終わっています。ファイルが不完全です</translation>
    </message>
</context>
<context>
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages "%1": write numbers and ranges such as 1-3, 5</source>
        <translation>ページ「%1」を理解できません: 1-3, 5 のように入力してください</translation>
    </message>
    <message>
        <source>Cannot print the pages "%1": the document's last page is %2</source>
        <translation>ページ「%1」を印刷できません: 最後のページは %2 です</translation>
    </message>
</context>
<context>
    <name>host::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>次の印刷</translation>
    </message>
</context>
<context>
    <name>host::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1 (%2、%3)</translation>
    </message>
</context>
<context>
    <name>host::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>フォルダーを作成できません: %1</translation>
    </message>
    <message>
        <source>Cannot write "%1": %2</source>
        <translation>「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
</context>
</TS>
