<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>dialog::job::DestinationChooser</name>
    <message>
        <source>Class of printers: %1</source>
        <translation>打印机类：%1</translation>
    </message>
    <message>
        <source>P&amp;rinter</source>
        <translation>打印机(&amp;R)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>There is no such printer.</source>
        <translation>没有此打印机。</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>正在等待打印服务器响应…</translation>
    </message>
    <message>
        <source>Last known state: %1</source>
        <translation>上次状态：%1</translation>
    </message>
    <message>
        <source>The print server does not respond. Last known state: %1</source>
        <translation>打印服务器没有响应。上次状态：%1</translation>
    </message>
    <message>
        <source>The print server does not respond.</source>
        <translation>打印服务器没有响应。</translation>
    </message>
    <message>
        <source>The print server requires a password.</source>
        <translation>打印服务器要求密码。</translation>
    </message>
    <message>
        <source>The print server requires a password. Last known state: %1</source>
        <translation>打印服务器要求密码。上次状态：%1</translation>
    </message>
    <message>
        <source>The print server is not trusted.</source>
        <translation>打印服务器不受信任。</translation>
    </message>
    <message>
        <source>The print server is not trusted. Last known state: %1</source>
        <translation>打印服务器不受信任。上次：%1</translation>
    </message>
</context>
<context>
    <name>dialog::job::DocumentPasswordDialog</name>
    <message>
        <source>Password for the document</source>
        <translation>文档密码</translation>
    </message>
    <message>
        <source>The document on standard input is encrypted.</source>
        <translation>标准输入中的文档已加密。</translation>
    </message>
    <message>
        <source>The document &quot;%1&quot; is encrypted.</source>
        <translation>文档“%1”已加密。</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>密码错误。</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>密码(&amp;P)</translation>
    </message>
</context>
<context>
    <name>dialog::job::ErrorBanner</name>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobPage</name>
    <message>
        <source>Print time</source>
        <translation>打印时刻</translation>
    </message>
    <message>
        <source>Queue default</source>
        <translation>按队列设置</translation>
    </message>
    <message>
        <source>From 1 to 100; jobs with a higher priority are printed before others</source>
        <translation>1 到 100；优先级较高的作业先打印</translation>
    </message>
    <message>
        <source>Job &amp;name</source>
        <translation>作业名称(&amp;N)</translation>
    </message>
    <message>
        <source>Orienta&amp;tion</source>
        <translation>方向(&amp;I)</translation>
    </message>
    <message>
        <source>When to pr&amp;int</source>
        <translation>打印时间(&amp;T)</translation>
    </message>
    <message>
        <source>Priorit&amp;y</source>
        <translation>优先级(&amp;Y)</translation>
    </message>
    <message>
        <source>Printer default</source>
        <translation>按打印机设置</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Reverse landscape</source>
        <translation>反向横向</translation>
    </message>
    <message>
        <source>Reverse portrait</source>
        <translation>反向纵向</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>手动释放时</translation>
    </message>
    <message>
        <source>At a specific time</source>
        <translation>指定时刻</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>白天</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>傍晚</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜间</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>第二班</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>第三班</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>周末</translation>
    </message>
    <message>
        <source>Page si&amp;ze</source>
        <translation>页面大小(&amp;Z)</translation>
    </message>
    <message>
        <source>Shrink pages larger than the label</source>
        <translation>缩小比标签大的页面</translation>
    </message>
    <message>
        <source>Fit to the printable area</source>
        <translation>适合可打印区域</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>填满标签</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>实际大小</translation>
    </message>
</context>
<context>
    <name>dialog::job::JobWindow</name>
    <message>
        <source>The job was sent.</source>
        <translation>作业已发送。</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>作业 %1：%2</translation>
    </message>
    <message>
        <source>Cancel the &amp;job</source>
        <translation>取消作业(&amp;J)</translation>
    </message>
</context>
<context>
    <name>dialog::job::LeftJobBanner</name>
    <message>
        <source>Dismiss</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Cancel the job</source>
        <translation>撤回作业</translation>
    </message>
    <message>
        <source>Release the job</source>
        <translation>释放作业</translation>
    </message>
</context>
<context>
    <name>dialog::job::PageOptions</name>
    <message>
        <source>Set &amp;by set</source>
        <translation>逐份打印(&amp;B)</translation>
    </message>
    <message>
        <source>All pages once, then all pages again; otherwise all copies of a page together</source>
        <translation>先打印全部页面一遍，再重复；否则同一页的所有副本连续打印</translation>
    </message>
    <message>
        <source>all, or ranges: 1-3, 5</source>
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
        <source>Reverse order</source>
        <translation>从最后一页开始</translation>
    </message>
</context>
<context>
    <name>dialog::job::PasswordDialog</name>
    <message>
        <source>Password for the print server</source>
        <translation>打印服务器密码</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>用户名(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>密码(&amp;P)</translation>
    </message>
</context>
<context>
    <name>dialog::job::SendBar</name>
    <message>
        <source>Cancel sending</source>
        <translation>停止发送</translation>
    </message>
    <message>
        <source>Sending &quot;%1&quot;</source>
        <translation>正在发送“%1”</translation>
    </message>
</context>
<context>
    <name>dialog::job::SummaryPage</name>
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
    <name>dialog::job::TicketPage</name>
    <message>
        <source>Option</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Options of the job</source>
        <translation>作业选项</translation>
    </message>
    <message>
        <source>&amp;The same job on the command line</source>
        <translation>命令行中的同一作业(&amp;T)</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>复制(&amp;Y)</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>复制命令</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>dialog::job::TrustText</name>
    <message>
        <source>Connection without encryption</source>
        <translation>未加密的连接</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password, and the connection to it is not encrypted.</source>
        <translation>打印服务器“%1”需要密码，而与它的连接未加密。</translation>
    </message>
    <message>
        <source>Others on the network can read the password.</source>
        <translation>网络上的其他人可以读取该密码。</translation>
    </message>
    <message>
        <source>Send anyway</source>
        <translation>仍然发送</translation>
    </message>
    <message>
        <source>Certificate of the print server</source>
        <translation>打印服务器的证书</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2.</source>
        <translation>打印服务器“%1”的证书不受信任：%2。</translation>
    </message>
    <message>
        <source>Its SHA-256 fingerprint is:
%1

Trust it only if the server&apos;s administrator confirms this fingerprint. It stays trusted for later connections.</source>
        <translation>其 SHA-256 指纹为：
%1

仅当服务器管理员给出相同的指纹时才信任它。此后它将一直受信任。</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>信任</translation>
    </message>
</context>
<context>
    <name>dialog::job::VirtualSender</name>
    <message>
        <source>The PPD file defines no paper</source>
        <translation>PPD 文件未列出任何纸张</translation>
    </message>
</context>
<context>
    <name>dialog::options::ChoiceControl</name>
    <message>
        <source>not set</source>
        <translation>未设置</translation>
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
        <translation>打印机无法同时执行这些设置。</translation>
    </message>
    <message>
        <source>Print anyway</source>
        <translation>仍然打印</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>dialog::options::CustomValueFields</name>
    <message numerus="yes">
        <source>&quot;%1&quot; needs at least %n character(s). Until then, the previous value is used.</source>
        <translation>
            <numerusform>“%1”至少需要 %n 个字符。在此之前，设置保持原样。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>dialog::options::OptionsPage</name>
    <message>
        <source>Option groups</source>
        <translation>选项组</translation>
    </message>
    <message>
        <source>This printer has no other options.</source>
        <translation>此打印机没有其他选项。</translation>
    </message>
</context>
<context>
    <name>dialog::paper::CustomPaperFields</name>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest length</comment>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>纸张宽度</translation>
    </message>
    <message>
        <source>Paper length</source>
        <translation>纸张长度</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>宽度(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Length</source>
        <translation>长度(&amp;L)</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperChooser</name>
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
    <message>
        <source>Custom, %1</source>
        <comment>a size</comment>
        <translation>自定义，%1</translation>
    </message>
    <message>
        <source>Use the document&apos;s size: %1</source>
        <translation>使用文档尺寸：%1</translation>
    </message>
    <message>
        <source>A custom size</source>
        <translation>自定义尺寸</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperGroups</name>
    <message>
        <source>%1 wide</source>
        <comment>papers of that width</comment>
        <translation>宽 %1</translation>
    </message>
</context>
<context>
    <name>dialog::paper::PaperList</name>
    <message>
        <source>%1 wide, %2 long</source>
        <translation>宽 %1，长 %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a paper&apos;s text and its name</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>自定义尺寸…</translation>
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
        <translation>英寸</translation>
    </message>
    <message>
        <source>mm</source>
        <comment>millimetres</comment>
        <translation>毫米</translation>
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
        <translation>打印机：%1</translation>
    </message>
</context>
<context>
    <name>dialog::window::DialogPages</name>
    <message>
        <source>Options, preview and summary</source>
        <translation>选项、预览和摘要</translation>
    </message>
    <message>
        <source>Page pre&amp;view</source>
        <translation>页面预览(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>摘要(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Job</source>
        <translation>作业(&amp;J)</translation>
    </message>
    <message>
        <source>&amp;What will be sent</source>
        <translation>发送内容(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>选项(&amp;O)</translation>
    </message>
</context>
<context>
    <name>dialog::window::PagePreview</name>
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
    <name>dialog::window::PanelBanner</name>
    <message>
        <source>The printer&apos;s options are listed on the page &quot;Options&quot;.</source>
        <translation>打印机的选项列在“选项”页上。</translation>
    </message>
    <message>
        <source>Load It Again</source>
        <translation>重新加载</translation>
    </message>
</context>
<context>
    <name>dialog::window::PanelPage</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>dialog::window::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>打印 %1</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The printer has no description (PPD); its papers and cuts are not known.</source>
        <translation>打印机没有描述文件，因此其纸张和裁切方式未知。</translation>
    </message>
    <message>
        <source>Waiting for the printer&apos;s description…</source>
        <translation>正在等待打印机描述文件…</translation>
    </message>
    <message>
        <source>No printer is selected.</source>
        <translation>未选择打印机。</translation>
    </message>
    <message>
        <source>Waiting for the print server…</source>
        <translation>正在等待打印服务器响应…</translation>
    </message>
    <message>
        <source>The printer&apos;s description is not known.</source>
        <translation>打印机的描述文件未知。</translation>
    </message>
</context>
<context>
    <name>dialog::window::StripPreview</name>
    <message>
        <source>Label strip</source>
        <translation>标签带</translation>
    </message>
</context>
<context>
    <name>host::base::OutOfMemory</name>
    <message>
        <source>Out of memory; nothing was printed.</source>
        <translation>内存不足；未打印任何内容。</translation>
    </message>
    <message>
        <source>Out of memory; the job may be incomplete, or left on the print server.</source>
        <translation>内存不足；作业可能不完整，或遗留在打印服务器上。</translation>
    </message>
    <message>
        <source>Out of memory. The job was sent nevertheless.</source>
        <translation>内存不足。作业仍已发送。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::ChoiceCheck</name>
    <message>
        <source>The printer &quot;%1&quot; has no option &quot;%2&quot;.</source>
        <translation>打印机“%1”没有选项“%2”。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;.</source>
        <translation>打印机“%1”没有纸张“%2”。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; of the printer &quot;%2&quot; has no choice &quot;%3&quot;; it has: %4</source>
        <translation>打印机“%2”的选项“%1”没有选择项“%3”；可用：%4</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot print on the paper &quot;%2&quot;: its size is %3 × %4 points; width and length must be greater than 0, one of them at most %5 m, the other at most %6 m.</source>
        <translation>打印机“%1”无法在纸张“%2”上打印：其尺寸为 %3 × %4 点；宽度和长度必须大于 0，其中一边不超过 %5 米，另一边不超过 %6 米。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::DocumentSource</name>
    <message>
        <source>Cannot read the document &quot;%1&quot;: %2</source>
        <translation>无法读取文档“%1”：%2</translation>
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
        <source>it has become shorter while it was read</source>
        <translation>读取过程中变短了</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>文件打开后已更改；请重新打开</translation>
    </message>
    <message>
        <source>it has changed while it was read</source>
        <translation>读取过程中发生了更改</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobChange</name>
    <message>
        <source>It is printed again, but held. %1</source>
        <translation>作业将重新打印，但已被保留。%1</translation>
    </message>
    <message>
        <source>Job %1 was not changed. %2</source>
        <translation>作业 %1 未更改。%2</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>没有打印服务器能够传递选项“%2”的选择项“%1”。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobFate</name>
    <message>
        <source>%1 A job &quot;%2&quot; without documents may be left in the queue &quot;%3&quot; of the print server &quot;%4&quot;; it prints nothing.</source>
        <translation>%1 打印服务器“%4”的队列“%3”中可能留有一个没有文档的作业“%2”；它不会打印任何内容。</translation>
    </message>
    <message>
        <source>%1 The print server &quot;%2&quot; has all documents of job %3-%4, but did not report whether it released the job: it is printed, or it is still held. Check the queue before you print again.</source>
        <translation>%1 打印服务器“%2”已有作业 %3-%4 的全部文档，但没有说明是否释放它：该作业会打印，或者被保留而不打印。再次打印前请查看队列。</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 on the print server &quot;%4&quot; may have been printed; check the queue before you print again.</source>
        <translation>%1 打印服务器“%4”上的作业 %2-%3 可能已经打印；再次打印前请查看队列。</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; it is held on the print server &quot;%4&quot; and is not printed unless it is released.</source>
        <translation>%1 无法撤回作业 %2-%3；它保留在打印服务器“%4”上，释放之前不会打印。</translation>
    </message>
    <message>
        <source>%1 Job %2-%3 could not be canceled; check the queue before you print again.</source>
        <translation>%1 无法撤回作业 %2-%3；再次打印前请查看队列。</translation>
    </message>
    <message>
        <source>%1 Job %2-%3: %4</source>
        <translation>%1 作业 %2-%3：%4</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobJournal</name>
    <message>
        <source>The record &quot;%1&quot; of an interrupted job was damaged and has been removed. Check your queues for a held job.</source>
        <translation>正在发送的作业的记录“%1”已损坏并被删除；请查看您使用的队列中是否留有作业。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobOptions</name>
    <message>
        <source>printer default</source>
        <translation>打印机默认值</translation>
    </message>
    <message>
        <source>queue default</source>
        <translation>队列默认值</translation>
    </message>
    <message>
        <source>your default (lpoptions)</source>
        <translation>您的默认值 (lpoptions)</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>cut options</source>
        <translation>裁切选项</translation>
    </message>
    <message>
        <source>set by you</source>
        <translation>由您设置</translation>
    </message>
    <message>
        <source>page layout</source>
        <translation>页面布局</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobSettings</name>
    <message>
        <source>Cannot print the job: it has more than %1 labels</source>
        <translation>无法一次打印这么多标签：每个作业最多 %1 张</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobStatus</name>
    <message>
        <source>Held until it is released.</source>
        <translation>已保留，等待释放。</translation>
    </message>
    <message>
        <source>Held until %1.</source>
        <translation>保留至：%1。</translation>
    </message>
    <message>
        <source>Waiting in the queue.</source>
        <translation>正在排队等待。</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>正在打印。</translation>
    </message>
    <message>
        <source>Stopped; it continues when the printer is ready.</source>
        <translation>已停止；打印机再次就绪后继续。</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>Aborted by the print server.</source>
        <translation>已被打印服务器中止。</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>已打印。</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>服务器返回：%1</translation>
    </message>
    <message>
        <source>The job is finished; the print server keeps no record of it.</source>
        <translation>作业已结束；打印服务器不保留其记录。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::JobUpload</name>
    <message>
        <source>There is no document to print.</source>
        <translation>没有要打印的文档。</translation>
    </message>
    <message>
        <source>The choice &quot;%1&quot; of the option &quot;%2&quot; cannot be sent: print servers do not pass it on.</source>
        <translation>没有打印服务器能够传递选项“%2”的选择项“%1”。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; did not receive all of &quot;%2&quot;.</source>
        <translation>打印服务器“%1”没有接收完整的“%2”。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LeftJob</name>
    <message>
        <source>The print server &quot;%1&quot; no longer has the job &quot;%2&quot; in the queue &quot;%3&quot;, or the job is finished.</source>
        <translation>打印服务器“%1”的队列“%3”中已没有作业“%2”，或者它已结束。</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is not held: %4</source>
        <translation>打印服务器“%3”上的作业 %1-%2 未被保留：%4</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is released.</source>
        <translation>打印服务器“%3”上的作业 %1-%2 已释放。</translation>
    </message>
    <message>
        <source>Job %1-%2 on the print server &quot;%3&quot; is canceled.</source>
        <translation>打印服务器“%3”上的作业 %1-%2 已撤回。</translation>
    </message>
    <message>
        <source>An interrupted program may have left job %1 (&quot;%2&quot;) on the print server &quot;%3&quot;; the job may be incomplete.</source>
        <translation>一个在打印时被中止的程序可能在打印服务器“%3”上留下了作业 %1（“%2”），也许缺少部分文档。</translation>
    </message>
    <message>
        <source>An interrupted program may have left a job &quot;%1&quot; without documents in the queue &quot;%2&quot; of the print server &quot;%3&quot;.</source>
        <translation>一个在打印时被中止的程序可能在打印服务器“%3”的队列“%2”中留下了没有文档的作业“%1”。</translation>
    </message>
</context>
<context>
    <name>host::cups::jobs::LpCommand</name>
    <message>
        <source>lp cannot express these options: %1</source>
        <translation>lp 无法按实际发送的形式表示这些选项：%1</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::DiscoveredQueue</name>
    <message>
        <source>The print server &quot;%1&quot; cannot reach the printer &quot;%2&quot;.</source>
        <translation>打印服务器“%1”无法连接到打印机“%2”。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer on the network.</source>
        <translation>打印机“%1”已不在网络上。</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueSession</name>
    <message>
        <source>The print server &quot;%1&quot; has no queue or class &quot;%2&quot;.</source>
        <translation>打印服务器“%1”没有队列或打印机类“%2”。</translation>
    </message>
</context>
<context>
    <name>host::cups::queues::QueueText</name>
    <message>
        <source>The printer needs labels or tape.</source>
        <translation>打印机正在等待标签或标签带。</translation>
    </message>
    <message>
        <source>Labels or tape are jammed.</source>
        <translation>标签或标签带卡住。</translation>
    </message>
    <message>
        <source>The label roll or tape is nearly empty.</source>
        <translation>标签卷或标签带即将用完。</translation>
    </message>
    <message>
        <source>The label roll or tape is empty.</source>
        <translation>标签卷或标签带已用完。</translation>
    </message>
    <message>
        <source>The printer is pausing.</source>
        <translation>打印机即将暂停。</translation>
    </message>
    <message>
        <source>The queue is paused; jobs wait.</source>
        <translation>队列已暂停；作业等待中。</translation>
    </message>
    <message>
        <source>The printer is switched off.</source>
        <translation>打印机已关闭。</translation>
    </message>
    <message>
        <source>Connecting to the printer.</source>
        <translation>正在连接打印机。</translation>
    </message>
    <message>
        <source>The printer does not respond.</source>
        <translation>打印机没有响应。</translation>
    </message>
    <message>
        <source>The printer is stopping.</source>
        <translation>打印机正在停止。</translation>
    </message>
    <message>
        <source>Some printers of the class are stopped.</source>
        <translation>打印机类中的部分打印机已停止。</translation>
    </message>
    <message>
        <source>The toner is nearly used up.</source>
        <translation>墨粉即将用完。</translation>
    </message>
    <message>
        <source>The toner is used up.</source>
        <translation>墨粉已用完。</translation>
    </message>
    <message>
        <source>The print server has no space left.</source>
        <translation>打印服务器空间不足。</translation>
    </message>
    <message>
        <source>The printer&apos;s cover is open.</source>
        <translation>打印机盖已打开。</translation>
    </message>
    <message>
        <source>An interlock of the printer is open.</source>
        <translation>打印机的锁扣未锁好。</translation>
    </message>
    <message>
        <source>The printer&apos;s door is open.</source>
        <translation>打印机门已打开。</translation>
    </message>
    <message>
        <source>The cassette or roll holder is missing.</source>
        <translation>缺少标签带盒或卷筒架。</translation>
    </message>
    <message>
        <source>The output tray is missing.</source>
        <translation>缺少出纸盒。</translation>
    </message>
    <message>
        <source>The output tray is nearly full.</source>
        <translation>出纸盒即将装满。</translation>
    </message>
    <message>
        <source>The output tray is full.</source>
        <translation>出纸盒已满。</translation>
    </message>
    <message>
        <source>Ink or ribbon is nearly used up.</source>
        <translation>墨水或色带即将用完。</translation>
    </message>
    <message>
        <source>Ink or ribbon is used up.</source>
        <translation>墨水或色带已用完。</translation>
    </message>
    <message>
        <source>The waste box is nearly full.</source>
        <translation>废料盒即将装满。</translation>
    </message>
    <message>
        <source>The waste box is full.</source>
        <translation>废料盒已满。</translation>
    </message>
    <message>
        <source>The printer is too hot.</source>
        <translation>打印机过热。</translation>
    </message>
    <message>
        <source>The printer is warming up.</source>
        <translation>打印机正在预热。</translation>
    </message>
    <message>
        <source>The printer is offline.</source>
        <translation>打印机已脱机。</translation>
    </message>
    <message>
        <source>New jobs are held.</source>
        <translation>新作业将被保留。</translation>
    </message>
    <message>
        <source>The printer was deactivated by its administrator.</source>
        <translation>打印机已被管理员停用。</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is missing.</source>
        <translation>打印机驱动程序缺少组件。</translation>
    </message>
    <message>
        <source>A filter of the printer&apos;s driver is not installed securely.</source>
        <translation>打印机驱动程序的某个组件安装不安全。</translation>
    </message>
    <message>
        <source>Waiting for the printer to finish the job.</source>
        <translation>正在等待打印机完成作业。</translation>
    </message>
    <message>
        <source>The printer does not conform to its protocol.</source>
        <translation>打印机未遵循其协议。</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>就绪。</translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation>正在打印。</translation>
    </message>
    <message>
        <source>Found on the network.</source>
        <translation>在网络上找到。</translation>
    </message>
    <message>
        <source>State unknown.</source>
        <translation>状态未知。</translation>
    </message>
    <message>
        <source>The queue accepts no jobs.</source>
        <translation>队列不接受作业。</translation>
    </message>
    <message>
        <source>Server message: %1</source>
        <translation>服务器返回：%1</translation>
    </message>
</context>
<context>
    <name>host::cups::server::CupsConnection</name>
    <message>
        <source>Canceled on request.</source>
        <translation>已按要求中止。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not respond.</source>
        <translation>打印服务器“%1”没有响应。</translation>
    </message>
    <message>
        <source>Cannot connect to the print server &quot;%1&quot;: %2</source>
        <translation>无法连接到打印服务器“%1”：%2</translation>
    </message>
    <message>
        <source>The connection to the print server &quot;%1&quot; was lost.</source>
        <translation>与打印服务器“%1”的连接已中断。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; reports: %2</source>
        <translation>打印服务器“%1”返回：%2</translation>
    </message>
    <message>
        <source>Cannot fetch &quot;%2&quot; from the print server &quot;%1&quot;: %3</source>
        <translation>打印服务器“%1”未提供“%2”：%3</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>大于 %1 MB</translation>
    </message>
    <message>
        <source>the connection was lost</source>
        <translation>连接中途断开</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;, and none was entered.</source>
        <translation>打印服务器“%1”要求用户“%2”的密码，但未提供。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no certificate.</source>
        <translation>打印服务器“%1”没有证书。</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not the one that is trusted for this host. The trusted one has the SHA-256 fingerprint %2, the server&apos;s has %3. The server&apos;s certificate may have been replaced, another print server may run on the same host, or someone may be intercepting the connection. If the server&apos;s administrator confirms the fingerprint, remove the file &quot;%4&quot; and try again.</source>
        <translation>打印服务器“%1”的证书不是此主机受信任的证书。受信任证书的 SHA-256 指纹是 %2，服务器证书的指纹是 %3。服务器的证书可能已被更换，同一主机上可能运行着另一台打印服务器，或者可能有人正在拦截连接。如果服务器管理员确认该指纹，请删除文件“%4”并重试。</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; with the SHA-256 fingerprint %2 cannot be trusted: %3</source>
        <translation>不允许信任打印服务器“%1”的证书（SHA-256 指纹 %2）：%3</translation>
    </message>
    <message>
        <source>The certificate of the print server &quot;%1&quot; is not trusted: %2. Its SHA-256 fingerprint is %3. Compare it with the fingerprint that the server&apos;s administrator gives you, and confirm it in the dialog or on a terminal.</source>
        <translation>打印服务器“%1”的证书不受信任：%2。其 SHA-256 指纹为 %3。请将其与服务器管理员给出的指纹比较，并在窗口或终端中询问时确认。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>用户名或密码错误。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; requires a password for the user &quot;%2&quot;. None was sent, because the connection is not encrypted and others could read it. Encrypt the connection (-E), or confirm the question in the dialog or on a terminal.</source>
        <translation>打印服务器“%1”需要用户“%2”的密码。由于连接未加密，其他人可能读取密码，因此未发送。请加密连接 (-E)，或在窗口或终端中询问时确认。</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; does not accept the password of the user &quot;%2&quot;.</source>
        <translation>打印服务器“%1”不接受用户“%2”的密码。</translation>
    </message>
</context>
<context>
    <name>host::cups::server::FailureReason</name>
    <message>
        <source>It cannot store the document: the disk is full, or the document is larger than it accepts.</source>
        <translation>它无法存储文档：磁盘已满，或者文档超过了它接受的大小。</translation>
    </message>
</context>
<context>
    <name>host::documents::LabelDocument</name>
    <message>
        <source>Cannot open the document &quot;%1&quot;: %2</source>
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
        <source>its encryption is not supported</source>
        <translation>以未知方式加密</translation>
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
    <message>
        <source>Cannot open the document on standard input: %1</source>
        <translation>无法打开标准输入中的文档：%1</translation>
    </message>
    <message>
        <source>the image is damaged</source>
        <translation>图像已损坏</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels, more than can be printed</source>
        <translation>有 %1 × %2 像素，超过可打印的范围</translation>
    </message>
    <message>
        <source>the end of the image is missing</source>
        <translation>图像末尾缺失</translation>
    </message>
    <message>
        <source>No document is specified</source>
        <translation>未指定文档</translation>
    </message>
    <message>
        <source>it can be read only once</source>
        <translation>只能读取一次</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 及另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>it is larger than %1</source>
        <translation>超过 %1</translation>
    </message>
    <message>
        <source>it is not a PDF, PNG, JPEG or SVG file</source>
        <translation>不是 PDF、PNG、JPEG 或 SVG</translation>
    </message>
    <message>
        <source>the file has changed since it was opened; open it again</source>
        <translation>文件打开后已更改；请重新打开</translation>
    </message>
    <message>
        <source>the PDF is damaged</source>
        <translation>PDF 已损坏</translation>
    </message>
    <message>
        <source>it cannot be stored in &quot;%1&quot;: %2</source>
        <translation>无法保存到“%1”：%2</translation>
    </message>
    <message>
        <source>the SVG is damaged</source>
        <translation>SVG 已损坏</translation>
    </message>
    <message>
        <source>it refers to &quot;%1&quot;, but other files are not loaded</source>
        <translation>引用了“%1”，而只打印 SVG 自身包含的内容</translation>
    </message>
    <message>
        <source>line %1 of the SVG: %2</source>
        <translation>SVG 第 %1 行：%2</translation>
    </message>
    <message>
        <source>the SVG is too complex to be drawn</source>
        <translation>SVG 的组成部分过多，无法绘制</translation>
    </message>
    <message>
        <source>it contains a picture that is neither PNG nor JPEG</source>
        <translation>其中的图片既不是 PNG 也不是 JPEG</translation>
    </message>
    <message>
        <source>it contains a damaged picture</source>
        <translation>其中的图片已损坏</translation>
    </message>
    <message>
        <source>its pictures have more pixels than can be printed</source>
        <translation>其中的图片像素过多，无法打印</translation>
    </message>
    <message>
        <source>the converter &quot;%1&quot; cannot be started</source>
        <translation>无法启动转换它的程序“%1”</translation>
    </message>
    <message>
        <source>laying its pages out on labels needs too much memory or time</source>
        <translation>在标签上排列其页面需要过多的内存或时间</translation>
    </message>
    <message>
        <source>its pages cannot be laid out on labels; the PDF is damaged</source>
        <translation>无法在标签上排列其页面；PDF 已损坏</translation>
    </message>
    <message>
        <source>the program that reads PDFs cannot be started</source>
        <translation>无法启动读取 PDF 的程序</translation>
    </message>
    <message>
        <source>the program that reads PDFs has crashed</source>
        <translation>读取 PDF 的程序已崩溃</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>读取时间过长</translation>
    </message>
    <message>
        <source>it attempts what no document may do</source>
        <translation>它尝试了文档不允许进行的操作</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>decrypting it needs too much memory or time</source>
        <translation>解密需要过多内存或时间</translation>
    </message>
    <message>
        <source>it is encrypted and needs a password</source>
        <translation>它已加密，需要密码</translation>
    </message>
</context>
<context>
    <name>host::documents::PrintOrder</name>
    <message>
        <source>Invalid page range &quot;%1&quot;: use numbers and ranges such as 1-3, 5</source>
        <translation>无法理解页面“%1”：请输入数字和范围，例如 1-3, 5</translation>
    </message>
    <message>
        <source>Cannot print the pages &quot;%1&quot;: the document&apos;s last page is %2</source>
        <translation>无法打印页面“%1”：文档最后一页是 %2</translation>
    </message>
    <message>
        <source>Nothing to print: no page of the document is selected</source>
        <translation>不会打印任何内容：未选择文档中的任何页面</translation>
    </message>
</context>
<context>
    <name>host::labels::LabelDrawing</name>
    <message>
        <source>Page %1 cannot be drawn</source>
        <translation>无法绘制第 %1 页</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleCatalog</name>
    <message>
        <source>The panel bundle &quot;%1&quot; is not used: %2.</source>
        <translation>未使用面板包“%1”：%2。</translation>
    </message>
    <message>
        <source>The panel bundles in &quot;%1&quot; are not used: %2.</source>
        <translation>未使用“%1”中的面板包：%2。</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>没有此文件夹</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>不是文件夹</translation>
    </message>
</context>
<context>
    <name>host::panels::BundleFolders</name>
    <message>
        <source>&quot;%1&quot; cannot be read</source>
        <translation>无法读取“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another user</source>
        <translation>“%1”属于其他用户</translation>
    </message>
    <message>
        <source>other users can write to &quot;%1&quot;; &quot;chmod go-w&quot; prevents it</source>
        <translation>其他用户可以写入“%1”；可用“chmod go-w”阻止</translation>
    </message>
</context>
<context>
    <name>host::panels::HostedPanel</name>
    <message>
        <source>&quot;%1&quot; cannot save its settings: %2</source>
        <translation>“%1”无法保存设置：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not allow printing with these settings.</source>
        <translation>“%1”不允许用这些设置打印作业。</translation>
    </message>
</context>
<context>
    <name>host::panels::PanelBundle</name>
    <message>
        <source>Cannot use the panel bundle &quot;%1&quot;: %2</source>
        <translation>无法使用插件包“%1”：%2</translation>
    </message>
    <message>
        <source>its library contains no panels</source>
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
        <source>Cannot find the panel bundle; searched %1</source>
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
    <name>host::panels::PanelGuard</name>
    <message>
        <source>an error occurred in &quot;%1&quot;</source>
        <translation>“%1”中发生错误</translation>
    </message>
    <message>
        <source>an error occurred in &quot;%1&quot;: %2</source>
        <translation>“%1”中发生错误：%2</translation>
    </message>
</context>
<context>
    <name>host::printer::Constraints</name>
    <message>
        <source>&quot;%1: %2&quot;</source>
        <translation>“%1：%2”</translation>
    </message>
    <message>
        <source>This printer does not support %1.</source>
        <translation>此打印机不支持%1。</translation>
    </message>
    <message>
        <source>%1 and %2 conflict.</source>
        <translation>%1 与 %2 不能同时使用。</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>将“%1”设为“%2”</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdFile</name>
    <message>
        <source>Cannot open the PPD file &quot;%1&quot;: %2</source>
        <translation>无法打开 PPD 文件“%1”：%2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>it is larger than %1 MB, the maximum for a PPD file</source>
        <translation>大于 %1 MB，超过任何打印机描述文件</translation>
    </message>
    <message>
        <source>it is damaged or incomplete: it cannot be decompressed</source>
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
        <source>it has %1 statements; the maximum is %2</source>
        <translation>它有 %1 条语句；最多允许 %2 条</translation>
    </message>
    <message>
        <source>it has %1 &quot;%2&quot; statements; the maximum is %3</source>
        <translation>它有 %1 条“%2”语句；最多允许 %3 条</translation>
    </message>
    <message>
        <source>it ends in the middle of a value; the file is incomplete</source>
        <translation>在值的中间结束；文件不完整</translation>
    </message>
</context>
<context>
    <name>host::printer::PpdOptions</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Printer control</source>
        <translation>打印机控制</translation>
    </message>
</context>
<context>
    <name>host::setup::JobReport</name>
    <message>
        <source>Job &quot;%1&quot; for &quot;%2&quot; on %3
</source>
        <translation>作业“%1”，目标“%2”，服务器 %3
</translation>
    </message>
    <message>
        <source>Options that are sent:
</source>
        <translation>发送的选项：
</translation>
    </message>
</context>
<context>
    <name>host::setup::JobSummary</name>
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
        <source>all</source>
        <translation>全部</translation>
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
        <source>Order</source>
        <translation>顺序</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>从最后一页开始</translation>
    </message>
    <message>
        <source>Page set</source>
        <translation>其中</translation>
    </message>
    <message>
        <source>odd pages</source>
        <translation>奇数页</translation>
    </message>
    <message>
        <source>even pages</source>
        <translation>偶数页</translation>
    </message>
</context>
<context>
    <name>host::setup::PanelSource</name>
    <message>
        <source>it could not create its panel</source>
        <translation>无法创建其面板</translation>
    </message>
    <message>
        <source>its panel cannot be shown: its layout file cannot be used</source>
        <translation>无法显示其面板：布局文件无法使用</translation>
    </message>
    <message>
        <source>The panel bundle &quot;%1&quot; does not control %2: another panel or the dialog does, or its description does not list it.</source>
        <translation>面板包“%1”不控制 %2：由其他面板或对话框控制，或其描述中未列出。</translation>
    </message>
    <message>
        <source>the program ended or was stopped during its &quot;%1&quot; on %2</source>
        <translation>程序于 %2 在“%1”期间结束或被停止</translation>
    </message>
</context>
<context>
    <name>host::setup::Preflight</name>
    <message>
        <source>Page %1 is larger than the label and is printed at %2 % of its size.</source>
        <translation>第 %1 页比标签大，将按 %2 % 的大小打印。</translation>
    </message>
    <message>
        <source>Pages %1 are larger than the label and are printed smaller, at %2 % or more.</source>
        <translation>第 %1 页比标签大，将缩小打印（%2 % 或以上）。</translation>
    </message>
    <message>
        <source>Page %1 has content where the printer cannot print.</source>
        <translation>第 %1 页有内容位于打印机无法打印的区域。</translation>
    </message>
    <message>
        <source>Pages %1 have content where the printer cannot print.</source>
        <translation>第 %1 页有内容位于打印机无法打印的区域。</translation>
    </message>
    <message>
        <source>Page %1 is blank.</source>
        <translation>第 %1 页为空白。</translation>
    </message>
    <message>
        <source>Pages %1 are blank.</source>
        <translation>第 %1 页为空白。</translation>
    </message>
    <message>
        <source>The last label is a piece of its own.</source>
        <translation>最后一个标签单独成段。</translation>
    </message>
    <message>
        <source>The job needs %1 m of tape.</source>
        <translation>此作业需要 %1 m 标签带。</translation>
    </message>
    <message>
        <source>Use &quot;%1&quot;</source>
        <translation>使用“%1”</translation>
    </message>
    <message>
        <source>Leave out blank pages</source>
        <translation>跳过空白页</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>无法绘制第 %1 页，因此无法打印此作业：%2。</translation>
    </message>
    <message>
        <source>Pages %1 cannot be drawn, and the job cannot be printed: %2.</source>
        <translation>无法绘制第 %1 页，因此无法打印此作业：%2。</translation>
    </message>
    <message>
        <source>Leave out pages that cannot be drawn</source>
        <translation>略过无法绘制的页面</translation>
    </message>
    <message>
        <source>The labels are printed mirrored, which is readable only through transparent tape.</source>
        <translation>标签以镜像方式打印，只有透过透明胶带才能阅读。</translation>
    </message>
    <message>
        <source>Turn pages to fit</source>
        <translation>将页面旋转到合适方向</translation>
    </message>
    <message>
        <source>Page %1 is printed smaller than in the orientation that fits.</source>
        <translation>第 %1 页的打印尺寸小于合适方向下的尺寸。</translation>
    </message>
    <message>
        <source>Pages %1 are printed smaller than in the orientation that fits.</source>
        <translation>第 %1 页的打印尺寸小于合适方向下的尺寸。</translation>
    </message>
</context>
<context>
    <name>host::setup::PrinterSetup</name>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; with this paper and the other cut options; &quot;%3&quot; is used instead.</source>
        <translation>在此纸张和其他裁切选项下，“%1”不能为“%2”，将按“%3”打印。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no paper &quot;%2&quot;, which is your default (lpoptions).</source>
        <translation>打印机“%1”没有纸张“%2”，而它是您的默认值 (lpoptions)。</translation>
    </message>
</context>
<context>
    <name>host::strip::CutPlan</name>
    <message>
        <source>Labels: %1 · Tape: %2</source>
        <translation>标签：%1 · 用量：%2</translation>
    </message>
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
        <source>measuring…</source>
        <comment>a length</comment>
        <translation>正在测量…</translation>
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
        <source>Half cut between the labels of a piece.</source>
        <translation>同一段内的标签之间半切。</translation>
    </message>
    <message>
        <source>Cut marks are printed where there is no full cut.</source>
        <translation>未切断处打印裁切标记。</translation>
    </message>
    <message>
        <source>The end stays in the printer; the next job continues there without a margin.</source>
        <translation>末端留在打印机中；下一作业无边距接续。</translation>
    </message>
    <message>
        <source>Blank tape before and after each label is removed.</source>
        <translation>省去每张标签前后的空白。</translation>
    </message>
    <message>
        <source>The labels are mirrored.</source>
        <translation>标签镜像打印。</translation>
    </message>
    <message>
        <source>Cutting is not known: the printer&apos;s description does not say whether it cuts the labels.</source>
        <translation>裁切情况未知：打印机的描述没有说明是否裁切标签。</translation>
    </message>
    <message>
        <source>Full cuts after the labels %1.</source>
        <translation>在标签 %1 之后全切。</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPainter</name>
    <message>
        <source>next job</source>
        <translation>下一作业</translation>
    </message>
</context>
<context>
    <name>host::strip::StripPdf</name>
    <message>
        <source>%1 on %2, %3</source>
        <translation>%1，%2，%3</translation>
    </message>
</context>
<context>
    <name>host::strip::VirtualPrinter</name>
    <message>
        <source>it is not a folder</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>the folder cannot be created: %1</source>
        <translation>无法创建文件夹：%1</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
</context>
<context>
    <name>platform::files::OutputFile</name>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
    <message>
        <source>it is a symbolic link</source>
        <translation>它是符号链接</translation>
    </message>
    <message>
        <source>it is a socket</source>
        <translation>它是套接字</translation>
    </message>
    <message>
        <source>it is a block device</source>
        <translation>它是块设备</translation>
    </message>
    <message>
        <source>no program reads from it</source>
        <translation>没有程序在读取</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::CommandLine</name>
    <message>
        <source>Try &quot;kvprint --help&quot;.</source>
        <translation>请尝试“kvprint --help”。</translation>
    </message>
    <message>
        <source>Usage: kvprint [OPTION]... [--] [DOCUMENT]...
       kvprint -i [QUEUE-]JOB [OPTION]...
       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...
</source>
        <translation>用法: kvprint [选项]... [--] [文档]...
      kvprint -i [队列-]作业 [选项]...
      kvprint --list | --summary | --dry-run [选项]... [--] [文档]...
</translation>
    </message>
    <message>
        <source>Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages and cuts shows the label strip as it will come out of the printer. Without a display, the documents are printed immediately. &quot;-&quot; or no document means standard input.</source>
        <translation>在标签打印机上打印文档，并提供选择纸张、页面和裁切的对话框，按实际输出显示标签带。没有显示器时直接打印。支持 PDF、PNG、JPEG 和 SVG；“-”或不指定文档表示标准输入。</translation>
    </message>
    <message>
        <source>Options:
</source>
        <translation>选项：
</translation>
    </message>
    <message>
        <source>Ends the options; all following arguments are documents.</source>
        <translation>选项到此结束：其后均为文档。</translation>
    </message>
    <message>
        <source>Unknown option &quot;%1&quot;</source>
        <translation>没有选项“%1”</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; does not accept a value</source>
        <translation>选项“%1”不带值</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires a value: %2</source>
        <translation>选项“%1”需要一个值：%2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; applies to the virtual printer and requires &quot;--ppd&quot;</source>
        <translation>选项“%1”用于虚拟打印机，需要“--ppd”</translation>
    </message>
    <message>
        <source>-H: &quot;%1&quot; applies to a job that was already sent and requires &quot;-i&quot;</source>
        <translation>-H：“%1”用于已发送的作业，需要“-i”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not accept documents, but &quot;%2&quot; is specified</source>
        <translation>“%1”不接受文档，却指定了“%2”</translation>
    </message>
    <message>
        <source>Standard input (&quot;-&quot;) can be printed only once</source>
        <translation>标准输入（“-”）只能打印一次</translation>
    </message>
    <message>
        <source>The options &quot;%1&quot; and &quot;%2&quot; cannot be combined</source>
        <translation>选项“%1”不能与“%2”一起使用</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; requires one of: %2</source>
        <translation>选项“%1”只能与下列之一一起使用：%2</translation>
    </message>
    <message>
        <source>No document is specified; name a file, or &quot;-&quot; for standard input</source>
        <translation>未指定文档；请指定文件，或用“-”直接输入</translation>
    </message>
    <message>
        <source>the value is empty</source>
        <translation>值为空</translation>
    </message>
    <message>
        <source>Invalid time &quot;%1&quot;; use HH:MM or HH:MM:SS (UTC), or one of: %2</source>
        <translation>“%1”不是打印时间；请输入 HH:MM 或 HH:MM:SS (UTC)，或下列之一：%2</translation>
    </message>
    <message>
        <source>Invalid value &quot;%1&quot;; use one of: %2</source>
        <translation>“%1”不可用；必须是下列之一：%2</translation>
    </message>
    <message>
        <source>it names no paper</source>
        <translation>未指定纸张</translation>
    </message>
    <message>
        <source>Invalid number of copies &quot;%1&quot;; use 1 to %2</source>
        <translation>“%1”不是份数；必须在 1 到 %2 之间</translation>
    </message>
    <message>
        <source>Invalid priority &quot;%1&quot;; use 1 (last) to 100 (first)</source>
        <translation>“%1”不是优先级；必须在 1（最后）到 100（最先）之间</translation>
    </message>
    <message>
        <source>Missing queue in &quot;%1&quot;; use QUEUE or QUEUE/INSTANCE</source>
        <translation>“%1”未指定队列；请输入“队列”或“队列/实例”</translation>
    </message>
    <message>
        <source>Invalid job &quot;%1&quot;; use its number, or QUEUE-NUMBER as in the request id</source>
        <translation>“%1”不是作业；请输入作业编号，或发送时显示的“队列-编号”</translation>
    </message>
    <message>
        <source>Missing option in &quot;%1&quot;; use NAME=VALUE</source>
        <translation>“%1”未指定选项；请输入“名称=值”</translation>
    </message>
    <message>
        <source>The queue to print on, with an instance if needed. Default: the default queue.</source>
        <translation>要使用的打印队列，可带命名的选项集（实例）。省略时使用默认队列。</translation>
    </message>
    <message>
        <source>The print server.</source>
        <translation>打印服务器。</translation>
    </message>
    <message>
        <source>The user name for the print server.</source>
        <translation>以该用户的身份打印。</translation>
    </message>
    <message>
        <source>Encrypts the connection to the print server.</source>
        <translation>加密与打印服务器的连接。</translation>
    </message>
    <message>
        <source>The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes.</source>
        <translation>PPD 中的纸张名称；打印机支持自定义尺寸时，也可用 Custom.宽x长mm。</translation>
    </message>
    <message>
        <source>The number of copies.</source>
        <translation>份数。</translation>
    </message>
    <message>
        <source>The pages to print, as in 1-3,5,8-.</source>
        <translation>要打印的页面，例如 1-3,5,8-。</translation>
    </message>
    <message>
        <source>An option of the PPD or of the print server. Several options are separated by blanks or given one by one.</source>
        <translation>PPD 或打印服务器的选项；可一次给出多个并以空格分隔，也可逐个给出。</translation>
    </message>
    <message>
        <source>The job&apos;s name in the queue.</source>
        <translation>作业在队列中的名称。</translation>
    </message>
    <message>
        <source>The job&apos;s priority, from 1 to 100 (first).</source>
        <translation>作业的优先级，从 1 到 100（最先）。</translation>
    </message>
    <message>
        <source>When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and restart for a job that was already sent.</source>
        <translation>打印时间：hold、immediate、HH:MM (UTC)、night、weekend 等；已发送的作业还可用 resume 和 restart。</translation>
    </message>
    <message>
        <source>Sends a mail when the job is finished; implies -s.</source>
        <translation>作业结束时发送邮件；包含 -s。</translation>
    </message>
    <message>
        <source>Does not print the request id.</source>
        <translation>不显示作业编号。</translation>
    </message>
    <message>
        <source>Ignored, for compatibility with lp: documents are always copied.</source>
        <translation>为兼容 lp 而接受：文档总会被复制。</translation>
    </message>
    <message>
        <source>Changes a job that was already sent.</source>
        <translation>更改已发送的作业。</translation>
    </message>
    <message>
        <source>Prints without the dialog, with the settings that it would show.</source>
        <translation>按对话框打开时的设置直接打印。</translation>
    </message>
    <message>
        <source>Lists the queues and their states.</source>
        <translation>列出队列及其状态。</translation>
    </message>
    <message>
        <source>Writes the settings that the dialog would show, without printing.</source>
        <translation>显示对话框打开时的设置，不打印。</translation>
    </message>
    <message>
        <source>Prepares the job and writes what would be sent, without sending it.</source>
        <translation>执行除发送外的所有步骤，并显示将发送的内容。</translation>
    </message>
    <message>
        <source>Writes the output as JSON.</source>
        <translation>以 JSON 格式显示。</translation>
    </message>
    <message>
        <source>Sends the job even with conflicts, or with choices that the printer does not have.</source>
        <translation>即使打印机没有相应项目或选项冲突，也照样发送。</translation>
    </message>
    <message>
        <source>Saves a screenshot of the dialog as a PNG file.</source>
        <translation>将对话框打开时的图像保存为 PNG 文件。</translation>
    </message>
    <message>
        <source>Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue.</source>
        <translation>PPD 文件（未压缩或 gzip）：在虚拟打印机上打印，而不使用队列。</translation>
    </message>
    <message>
        <source>The folder for strip.pdf and job.json of the virtual printer; created if it does not exist. Default: a new folder among the user&apos;s data.</source>
        <translation>虚拟打印机的 strip.pdf 和 job.json 所在的文件夹，不存在时会创建。省略时使用用户数据中的新文件夹。</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not supported; documents are sent as PDF</source>
        <translation>“%1”不可用；文档以 PDF 格式发送</translation>
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
        <translation>退出状态：
  0  已打印，或已显示所请求的内容
  1  某项无法打开、使用、发送或写入；未打印任何内容，
     除非标准错误输出说明作业仍已发送
  2  无法理解命令行
  3  已打印，但没有裁切选项面板
  4  已在对话框中取消
  129, 130, 143  在作业发送之前被信号中断
</translation>
    </message>
    <message>
        <source>Cancels a job that an interrupted program left on a print server.</source>
        <translation>撤回被中止的程序留在打印服务器上的作业。</translation>
    </message>
    <message>
        <source>Releases such a job; it may be incomplete.</source>
        <translation>打印服务器上已有的此类作业内容，可能不是全部文档。</translation>
    </message>
    <message>
        <source>A panel bundle, or a folder with bundles, to use instead of the installed ones.</source>
        <translation>用来代替已安装面板包的面板包，或包含面板包的文件夹。</translation>
    </message>
    <message>
        <source>Loads panels again that have ended or blocked the program before.</source>
        <translation>重新加载先前使程序结束或停滞的面板。</translation>
    </message>
    <message>
        <source>Invalid scaling &quot;%1&quot;; use auto, fit, fill or none</source>
        <translation>缩放“%1”无效；请使用 auto、fit、fill 或 none</translation>
    </message>
    <message>
        <source>The kernel has no Landlock: the processes that read documents can read other files.</source>
        <translation>内核没有 Landlock：读取文档的进程可以读取其他文件。</translation>
    </message>
    <message>
        <source>The kernel has no seccomp: the processes that read documents can use the network and start other processes.</source>
        <translation>内核没有 seccomp：读取文档的进程可以使用网络并启动其他进程。</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::Console</name>
    <message>
        <source>The job was sent nevertheless, as %1-%2.</source>
        <translation>作业仍已发送，编号为 %1-%2。</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::DestinationReport</name>
    <message>
        <source>(default)</source>
        <translation>(默认)</translation>
    </message>
    <message>
        <source>Class of: %1</source>
        <translation>打印机类，成员：%1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::HeadlessRun</name>
    <message>
        <source>The print server &quot;%1&quot; has no destinations</source>
        <translation>打印服务器“%1”没有可用的打印目标</translation>
    </message>
    <message>
        <source>To resolve the conflict: %1</source>
        <translation>解决办法：%1</translation>
    </message>
    <message>
        <source>The print server &quot;%1&quot; has no default destination; specify one with &quot;-d&quot;</source>
        <translation>打印服务器“%1”没有默认打印目标；请用“-d”指定</translation>
    </message>
    <message>
        <source>Stopped by a signal; nothing was printed.</source>
        <translation>已被信号中断；未打印任何内容。</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::LeftJobsRun</name>
    <message>
        <source>&quot;kvprint --cancel-left %1&quot; cancels it, &quot;kvprint --release-left %1&quot; releases it.</source>
        <translation>“kvprint --cancel-left %1”撤回它，“kvprint --release-left %1”打印服务器上已有的内容。</translation>
    </message>
    <message>
        <source>Jobs &quot;%1&quot; are left on several print servers; specify one of: %2</source>
        <translation>多个打印服务器上留有作业“%1”；请指定其中之一：%2</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are no such jobs</source>
        <translation>没有被中止的程序留下的作业“%1”；没有留下任何作业</translation>
    </message>
    <message>
        <source>No interrupted program left a job &quot;%1&quot;; there are these: %2</source>
        <translation>没有被中止的程序留下的作业“%1”；留下的作业有：%2</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::PrintRun</name>
    <message>
        <source>The PPD file &quot;%1&quot; has no paper &quot;%2&quot;; it has: %3</source>
        <translation>PPD 文件“%1”没有纸张“%2”；可用：%3</translation>
    </message>
    <message>
        <source>The PPD file &quot;%1&quot; defines no paper</source>
        <translation>PPD 文件“%1”未列出任何纸张</translation>
    </message>
    <message>
        <source>The label strip was written to:</source>
        <translation>标签带保存在：</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::StandardStreams</name>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalPassword</name>
    <message>
        <source>Password for the document on standard input:</source>
        <translation>标准输入中文档的密码：</translation>
    </message>
    <message>
        <source>Password for the document &quot;%1&quot;:</source>
        <translation>文档“%1”的密码：</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>密码错误。</translation>
    </message>
</context>
<context>
    <name>programs::kvprint::TerminalTrust</name>
    <message>
        <source>Type &quot;%1&quot; to continue:</source>
        <translation>输入“%1”以继续：</translation>
    </message>
</context>
</TS>
