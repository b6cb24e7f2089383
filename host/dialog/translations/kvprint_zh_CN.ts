<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <translation>未指定打印机：缺少 --ppd 文件</translation>
    </message>
    <message>
        <source>No document was named</source>
        <translation>未指定文档</translation>
    </message>
    <message>
        <source>Only one document can be printed at a time, and %1 were named</source>
        <translation>一次只能打印一个文档，但指定了 %1 个</translation>
    </message>
    <message>
        <source>Try "kvprint --help".</source>
        <translation>请尝试“kvprint --help”。</translation>
    </message>
</context>
<context>
    <name>dialog::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>逐份打印(&amp;B)</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>先打印全部页面一遍，再重复；否则同一页的所有副本连续打印</translation>
    </message>
    <message>
        <source>all, or for example 1-3, 5</source>
        <translation>全部，或例如 1-3, 5</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>份数(&amp;C)</translation>
    </message>
    <message>
        <source>Pa&amp;ges</source>
        <translation>页面(&amp;G)</translation>
    </message>
    <message>
        <source>Cannot print so many labels at once: a job has at most %1</source>
        <translation>无法一次打印这么多标签：每个作业最多 %1 张</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
</context>
<context>
    <name>dialog::PagePreview</name>
    <message>
        <source>The page is larger than the label and is shrunk to fit.</source>
        <translation>页面大于标签，将缩小以适合。</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
</context>
<context>
    <name>dialog::PaperChooser</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>宽 %1，长 %2</translation>
    </message>
    <message>
        <source>P&amp;aper</source>
        <translation>纸张(&amp;A)</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Search papers</source>
        <translation>搜索纸张</translation>
    </message>
</context>
<context>
    <name>dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>打印 %1</translation>
    </message>
    <message>
        <source>Options, preview and summary</source>
        <translation>选项、预览和摘要</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Printer: %1</source>
        <translation>打印机：%1</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>摘要(&amp;S)</translation>
    </message>
    <message>
        <source>"%1" cannot save its settings: %2</source>
        <translation>“%1”无法保存设置：%2</translation>
    </message>
    <message>
        <source>"%1" does not let the job be printed with these settings.</source>
        <translation>“%1”不允许用这些设置打印作业。</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Label strip</source>
        <translation>标签带</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>段数</translation>
    </message>
    <message>
        <source>Tape</source>
        <translation>标签带用量</translation>
    </message>
    <message>
        <source>Cuts</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>页面预览(&amp;V)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>dialog::PrintRun</name>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及另外 %2 种</translation>
    </message>
    <message>
        <source>The PPD file "%1" has no paper "%2"; it has: %3</source>
        <translation>PPD 文件“%1”没有纸张“%2”；可用：%3</translation>
    </message>
    <message>
        <source>The PPD file "%1" names no paper to print on</source>
        <translation>PPD 文件“%1”未列出任何纸张</translation>
    </message>
    <message>
        <source>The cut options cannot be shown. %1</source>
        <translation>无法显示裁切选项。%1</translation>
    </message>
    <message>
        <source>The panel bundle "%1" could not make its panel</source>
        <translation>插件包“%1”无法创建面板</translation>
    </message>
    <message>
        <source>The panel of the bundle "%1" cannot be shown: its layout file cannot be used</source>
        <translation>无法显示插件包“%1”的面板：布局文件不可用</translation>
    </message>
    <message>
        <source>The label strip is in:</source>
        <translation>标签带保存在：</translation>
    </message>
</context>
<context>
    <name>dialog::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>标签带</translation>
    </message>
</context>
<context>
    <name>dialog::SummaryPage</name>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
</context>
<context>
    <name>host::CutPlan</name>
    <message>
        <source>No full cut: the labels come out as one strip.</source>
        <translation>无全切：标签以一整条输出。</translation>
    </message>
    <message>
        <source>Full cut after the last label.</source>
        <translation>在最后一张标签后全切。</translation>
    </message>
    <message>
        <source>Full cut after every label.</source>
        <translation>每张标签后全切。</translation>
    </message>
    <message>
        <source>Full cut after every %1 labels.</source>
        <translation>每 %1 张标签后全切。</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <comment>a length</comment>
        <translation>%1 毫米</translation>
    </message>
    <message>
        <source>Labels: %1 · Pieces: %2 · Tape: %3</source>
        <translation>标签：%1 · 段数：%2 · 用量：%3</translation>
    </message>
    <message>
        <source>Nothing is printed.</source>
        <translation>不打印任何内容。</translation>
    </message>
    <message>
        <source>Special tape: the printer cuts nothing.</source>
        <translation>特殊标签带：打印机不裁切。</translation>
    </message>
    <message>
        <source>Half cut between the labels of a piece.</source>
        <translation>同一段内的标签之间半切。</translation>
    </message>
    <message>
        <source>Printed marks where nothing is cut through.</source>
        <translation>未切断处打印裁切标记。</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job goes on from it without a margin.</source>
        <translation>末端留在打印机中；下一作业无边距接续。</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is left out.</source>
        <translation>省去每张标签前后的空白。</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>标签镜像打印。</translation>
    </message>
</context>
<context>
    <name>host::LabelDocument</name>
    <message>
        <source>Cannot open the document "%1": %2</source>
        <translation>无法打开文档“%1”：%2</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>it is encrypted; remove its password first</source>
        <translation>已加密；请先移除密码</translation>
    </message>
    <message>
        <source>it is encrypted in a way that is not known here</source>
        <translation>以未知方式加密</translation>
    </message>
    <message>
        <source>it is no PDF, or a damaged one</source>
        <translation>不是 PDF 或已损坏</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>没有页面</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>第 %1 页没有面积</translation>
    </message>
    <message>
        <source>page %1 is longer than %2 m</source>
        <translation>第 %1 页长于 %2 米</translation>
    </message>
</context>
<context>
    <name>host::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle "%1": %2</source>
        <translation>无法使用插件包“%1”：%2</translation>
    </message>
    <message>
        <source>its library is no library of panels</source>
        <translation>其库不是面板库</translation>
    </message>
    <message>
        <source>it was made for version %1 of the panel interface, and this program has version %2</source>
        <translation>适用于接口版本 %1，而本程序为版本 %2</translation>
    </message>
    <message>
        <source>missing or unreadable: %1</source>
        <translation>缺失或无法读取：%1</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>没有此文件夹</translation>
    </message>
    <message>
        <source>Cannot find the panel bundle; looked for %1</source>
        <translation>找不到面板插件包；已查找 %1</translation>
    </message>
    <message>
        <source>it has no library %1</source>
        <translation>缺少库 %1</translation>
    </message>
    <message>
        <source>it does not work on this system</source>
        <translation>无法在此系统上运行</translation>
    </message>
</context>
<context>
    <name>host::PpdFile</name>
    <message>
        <source>Cannot open the PPD file "%1": %2</source>
        <translation>无法打开 PPD 文件“%1”：%2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, more than any printer's description</source>
        <translation>大于 %1 MB，超过任何打印机描述文件</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be unpacked to its end</source>
        <translation>已损坏或不完整：无法完整解压</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>在值的中间结束；文件不完整</translation>
    </message>
    <message>
        <source>it ends in the middle of an option; the file is incomplete</source>
        <translation>在选项的中间结束；文件不完整</translation>
    </message>
</context>
<context>
    <name>host::PrintOrder</name>
    <message>
        <source>Cannot understand the pages "%1": write numbers and ranges such as 1-3, 5</source>
        <translation>无法理解页面“%1”：请输入数字和范围，例如 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages "%1": the document's last page is %2</source>
        <translation>无法打印页面“%1”：文档最后一页是 %2</translation>
    </message>
</context>
<context>
    <name>host::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>下一作业</translation>
    </message>
</context>
<context>
    <name>host::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1，%2，%3</translation>
    </message>
</context>
<context>
    <name>host::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>the folder cannot be made: %1</source>
        <translation>无法创建文件夹：%1</translation>
    </message>
    <message>
        <source>Cannot write "%1": %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
</context>
</TS>
