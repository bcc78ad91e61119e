<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>foundation::Bundle</name>
    <message>
        <source>%1: not a plug-in bundle (Info.json: %2)</source>
        <translation>%1：不是插件包（Info.json：%2）</translation>
    </message>
    <message>
        <source>%1/Info.json: names no executable or no principal class</source>
        <translation>%1/Info.json：未指定可执行文件或主类</translation>
    </message>
    <message>
        <source>%1: no such plug-in bundle</source>
        <translation>%1：没有此插件包</translation>
    </message>
</context>
<context>
    <name>foundation::RegularFile</name>
    <message>
        <source>%1: not a file</source>
        <translation>%1：不是文件</translation>
    </message>
</context>
<context>
    <name>foundation::SystemError</name>
    <message>
        <source>No such file or directory</source>
        <translation>没有此文件或文件夹</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>不允许的操作</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>磁盘空间不足</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>超出磁盘配额</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>文件系统为只读</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>文件名过长</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入输出错误</translation>
    </message>
</context>
<context>
    <name>host::ArrangedPages</name>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1：文档已损坏</translation>
    </message>
    <message>
        <source>%1: there is no room for its pages</source>
        <translation>%1：没有空间存放其页面</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be put on the paper</source>
        <translation>%1：将文档放到纸张上所需的时间或内存过多</translation>
    </message>
    <message>
        <source>%1: can&apos;t be put on the paper: %2 is missing (it is part of qnprint).</source>
        <translation>%1：无法放到纸张上：缺少 %2（它是 qnprint 的一部分）。</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1：无法保存其页面：%2</translation>
    </message>
</context>
<context>
    <name>host::Certificate</name>
    <message>
        <source>it was withdrawn</source>
        <translation>它已被吊销</translation>
    </message>
    <message>
        <source>it is another computer&apos;s</source>
        <translation>它属于另一台计算机</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>它已过期</translation>
    </message>
    <message>
        <source>nobody that this computer trusts vouches for it</source>
        <translation>没有此计算机信任的机构为它担保</translation>
    </message>
    <message>
        <source>it is not valid</source>
        <translation>它无效</translation>
    </message>
    <message>
        <source>the certificate of %1 is not trusted: %2</source>
        <translation>%1 的证书不受信任：%2</translation>
    </message>
</context>
<context>
    <name>host::Conversation</name>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>CUPS 服务器没有响应</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s answer can&apos;t be read</source>
        <translation>无法读取 CUPS 服务器的应答</translation>
    </message>
    <message>
        <source>no process can be started: %1</source>
        <translation>无法启动进程：%1</translation>
    </message>
</context>
<context>
    <name>host::CredentialsBox</name>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>登录(&amp;L)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>用户名(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>解锁(&amp;U)</translation>
    </message>
</context>
<context>
    <name>host::CupsSink</name>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>已取消；没有打印任何内容</translation>
    </message>
    <message>
        <source>%1: %2; a job may be there, so look before you print again</source>
        <translation>%1：%2；那里可能有作业，再次打印前请先查看</translation>
    </message>
    <message>
        <source>%1: %2; job %1-%3 may still be there, so look before you print again</source>
        <translation>%1：%2；作业 %1-%3 可能仍在那里，再次打印前请先查看</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>no plug-in bundle in %1</source>
        <translation>%1 中没有插件包</translation>
    </message>
</context>
<context>
    <name>host::DialogWindow</name>
    <message>
        <source>Sa&amp;ve</source>
        <translation>保存(&amp;V)</translation>
    </message>
    <message>
        <source>Try A&amp;gain</source>
        <translation>重试(&amp;G)</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>打印 %1</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>设置面板</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Single pages and ranges, such as 1-3,5</source>
        <translation>页码或范围，例如 1-3,5</translation>
    </message>
    <message>
        <source>Save as &amp;Defaults</source>
        <translation>存为默认值(&amp;D)</translation>
    </message>
    <message>
        <source>Save as &amp;Preset…</source>
        <translation>存为预设(&amp;P)…</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>页(&amp;A):</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>打印机(&amp;R):</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>预设(&amp;S):</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>纸张(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>份数(&amp;C):</translation>
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
        <source>Defaults</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>纸张宽度</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>纸张高度</translation>
    </message>
    <message>
        <source>There is no panel “%1”.</source>
        <translation>没有面板“%1”。</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>正在发送</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>选择文件(&amp;F)…</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>摘要(&amp;U)</translation>
    </message>
    <message>
        <source>De&amp;lete Preset…</source>
        <translation>删除预设(&amp;L)…</translation>
    </message>
    <message>
        <source>Print %1 and %2 more</source>
        <translation>打印 %1 及另外 %2 个</translation>
    </message>
    <message>
        <source>Choose a file to print, or drop one here.</source>
        <translation>请选择要打印的文件，或将文件拖放到此处。</translation>
    </message>
    <message>
        <source>Choose Files to Print</source>
        <translation>选择要打印的文件</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已更改）</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>删除预设</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>要删除预设“%1”吗？</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Previe&amp;w</source>
        <translation>预览(&amp;W)</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>how many pages</comment>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>&amp;Other Printers…</source>
        <translation>其他打印机(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Look at the pages before they are printed</source>
        <translation>打印前查看页面(&amp;L)</translation>
    </message>
</context>
<context>
    <name>host::Document</name>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>%1: the document is empty</source>
        <translation>%1：文档为空</translation>
    </message>
    <message>
        <source>the document can&apos;t be read any more</source>
        <translation>无法再读取文档</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>%1: can&apos;t be printed as it is; PDF, PostScript, PNG, JPEG, GIF, TIFF and plain text can</source>
        <translation>%1：无法直接打印；可以打印 PDF、PostScript、PNG、JPEG、GIF、TIFF 和纯文本</translation>
    </message>
    <message>
        <source>there is too much of it</source>
        <translation>内容过多</translation>
    </message>
</context>
<context>
    <name>host::DocumentCheck</name>
    <message>
        <source>The document has only one page.</source>
        <translation>文档只有 1 页。</translation>
    </message>
    <message>
        <source>The document has only %1 pages.</source>
        <translation>文档只有 %1 页。</translation>
    </message>
    <message>
        <source>The document is %1 %3 wide, the paper %2.</source>
        <translation>文档宽 %1 %3，纸张宽 %2。</translation>
    </message>
    <message>
        <source>The document is %1 %3 long, the paper %2.</source>
        <translation>文档长 %1 %3，纸张长 %2。</translation>
    </message>
    <message>
        <source>Use %1</source>
        <comment>a paper</comment>
        <translation>使用 %1</translation>
    </message>
    <message>
        <source>Use %1 × %2 %3</source>
        <comment>width, height, unit</comment>
        <translation>使用 %1 × %2 %3</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>适合纸张</translation>
    </message>
    <message>
        <source>The document is %1 × %2 %3, the paper %4 × %5.</source>
        <comment>width, height, unit, width, height</comment>
        <translation>文档为 %1 × %2 %3，纸张为 %4 × %5。</translation>
    </message>
</context>
<context>
    <name>host::DocumentLock</name>
    <message>
        <source>%1; qpdf, which unlocks it, is missing</source>
        <translation>%1；缺少用于解锁的 qpdf</translation>
    </message>
    <message>
        <source>%1: stays locked; no password was right</source>
        <translation>%1：仍受保护；密码均不正确</translation>
    </message>
</context>
<context>
    <name>host::FolderSink</name>
    <message>
        <source>can&apos;t be made</source>
        <translation>无法创建</translation>
    </message>
    <message>
        <source>can&apos;t be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>too many jobs of this name</source>
        <translation>同名作业过多</translation>
    </message>
</context>
<context>
    <name>host::ForApplications</name>
    <message>
        <source>Document</source>
        <comment>a title</comment>
        <translation>文档</translation>
    </message>
</context>
<context>
    <name>host::JobFailedBox</name>
    <message>
        <source>%1 Was Not Printed</source>
        <translation>%1 未打印</translation>
    </message>
    <message>
        <source>A Document Was Not Printed</source>
        <translation>有文档未打印</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>重试(&amp;A)</translation>
    </message>
    <message>
        <source>Another &amp;Printer…</source>
        <translation>其他打印机(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>另存为 PDF(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>Save the Document</source>
        <translation>保存文档</translation>
    </message>
</context>
<context>
    <name>host::JobSink</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1：无法再读取</translation>
    </message>
    <message>
        <source>%1: has changed while it was printed</source>
        <translation>%1：在打印过程中已更改</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>已取消；没有打印任何内容</translation>
    </message>
</context>
<context>
    <name>host::LengthBox</name>
    <message>
        <source>%1 to %2</source>
        <comment>two lengths</comment>
        <translation>%1 至 %2</translation>
    </message>
</context>
<context>
    <name>host::PDFPages</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1：无法再读取</translation>
    </message>
    <message>
        <source>%1: the image is too large to be laid out</source>
        <translation>%1：图像太大，无法排版</translation>
    </message>
    <message>
        <source>%1: has changed while it was read</source>
        <translation>%1：在读取过程中已更改</translation>
    </message>
    <message>
        <source>%1: the image is damaged</source>
        <translation>%1：图像已损坏</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>%1: this kind of image can&apos;t be read; Qt&apos;s further image formats are not installed</source>
        <translation>%1：无法读取此类图像；未安装 Qt 的附加图像格式</translation>
    </message>
    <message>
        <source>%1: can&apos;t be laid out for this paper</source>
        <translation>%1：无法按此纸张排版</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1：无法保存其页面：%2</translation>
    </message>
    <message>
        <source>%1: the text is too long to be laid out</source>
        <translation>%1：文本太长，无法排版</translation>
    </message>
</context>
<context>
    <name>host::PPDDocument</name>
    <message>
        <source>%1: not a PPD file (the file is empty)</source>
        <translation>%1：不是 PPD 文件（文件为空）</translation>
    </message>
    <message>
        <source>%1: not a PPD file (line %2: %3)</source>
        <translation>%1：不是 PPD 文件（第 %2 行：%3）</translation>
    </message>
    <message>
        <source>%1: not opened (%2)</source>
        <translation>%1：未打开（%2）</translation>
    </message>
</context>
<context>
    <name>host::PPDLimits</name>
    <message>
        <source>keywords</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>纸张尺寸</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>约束</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>more than %1 %2</source>
        <translation>%2超过 %1</translation>
    </message>
</context>
<context>
    <name>host::PPDProblems</name>
    <message>
        <source>the header of a PPD file is missing</source>
        <translation>缺少 PPD 文件头</translation>
    </message>
    <message>
        <source>the asterisk before a keyword is missing</source>
        <translation>关键字前缺少星号</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>缺少值</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>行过长</translation>
    </message>
    <message>
        <source>a character that is not allowed</source>
        <translation>含有不允许的字符</translation>
    </message>
    <message>
        <source>a keyword or text that is not allowed</source>
        <translation>含有不允许的关键字或文本</translation>
    </message>
    <message>
        <source>a group or an option that is not begun or not ended</source>
        <translation>组或选项没有开始或没有结束</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>无法读取</translation>
    </message>
</context>
<context>
    <name>host::PPDTarget</name>
    <message>
        <source>-o %1=%2: the printer has no such choice</source>
        <translation>-o %1=%2：打印机没有此选项</translation>
    </message>
    <message>
        <source>The plug-in has no settings for this printer. It is printed with the driver&apos;s defaults.</source>
        <translation>插件没有此打印机的设置。将使用驱动程序的默认值打印。</translation>
    </message>
    <message>
        <source>%1: no preset “%2”, and no other</source>
        <translation>%1：没有预设“%2”，也没有其他预设</translation>
    </message>
    <message>
        <source>%1: no preset “%2”; there are: %3</source>
        <translation>%1：没有预设“%2”；现有：%3</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option.</source>
        <translation>-o %1=%2：打印机和服务器都不知道此选项。</translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option. Did you mean “%3”?</source>
        <translation>-o %1=%2：打印机和服务器都不知道此选项。您是指“%3”吗？</translation>
    </message>
    <message>
        <source>--output %1: there is no such folder; it will be made.</source>
        <translation>--output %1：没有这个文件夹；将会创建。</translation>
    </message>
</context>
<context>
    <name>host::PagePreview</name>
    <message>
        <source>The document&apos;s pages will show here.</source>
        <translation>文档的页面将显示在这里。</translation>
    </message>
    <message>
        <source>The size of the paper is not known.</source>
        <translation>纸张尺寸未知。</translation>
    </message>
</context>
<context>
    <name>host::PageReader</name>
    <message>
        <source>Pages can&apos;t be shown: %1 is missing (it is part of poppler-utils).</source>
        <translation>无法显示页面：缺少 %1（它是 poppler-utils 的一部分）。</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be read</source>
        <translation>%1：读取文档所需的时间或内存过多</translation>
    </message>
    <message>
        <source>%1: the document is locked with a password</source>
        <translation>%1：文档受密码保护</translation>
    </message>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1：文档已损坏</translation>
    </message>
    <message>
        <source>%1: the document has no pages</source>
        <translation>%1：文档没有页面</translation>
    </message>
    <message>
        <source>%1: page %2 can&apos;t be drawn</source>
        <translation>%1：无法绘制第 %2 页</translation>
    </message>
    <message>
        <source>%1: the document has too many pages</source>
        <translation>%1：文档页数过多</translation>
    </message>
</context>
<context>
    <name>host::PageView</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>host::PaperChooser</name>
    <message>
        <source> mm</source>
        <translation> 毫米</translation>
    </message>
    <message>
        <source> in</source>
        <translation> 英寸</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>自定义尺寸…</translation>
    </message>
    <message>
        <source>The printer does not take %1, but %2.</source>
        <comment>a length, and limits</comment>
        <translation>打印机不接受 %1，而是 %2。</translation>
    </message>
</context>
<context>
    <name>host::PictureFile</name>
    <message>
        <source>%1: can&apos;t be written</source>
        <translation>%1：无法写入</translation>
    </message>
</context>
<context>
    <name>host::PlainTarget</name>
    <message>
        <source>No driver describes this printer: it has general settings only.</source>
        <translation>没有驱动程序描述此打印机：只有常规设置。</translation>
    </message>
</context>
<context>
    <name>host::PlugIn</name>
    <message>
        <source>%1: made for interface version %2, this dialog has %3</source>
        <translation>%1：为接口版本 %2 制作，此对话框的版本为 %3</translation>
    </message>
    <message>
        <source>%1: %2 is not the code of a panel plug-in</source>
        <translation>%1：%2 不是设置面板插件的代码</translation>
    </message>
    <message>
        <source>%1: built for “%2”, this dialog is “%3”</source>
        <translation>%1：为“%2”构建，此对话框为“%3”</translation>
    </message>
</context>
<context>
    <name>host::PresetNameBox</name>
    <message>
        <source>Save as Preset</source>
        <translation>存为预设</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>“%1” is there already; saving replaces it.</source>
        <translation>“%1”已存在；保存会替换它。</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Page before</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>As pr&amp;inted</source>
        <translation>打印效果(&amp;I)</translation>
    </message>
    <message>
        <source>1:1</source>
        <comment>a dot of the printer as a pixel</comment>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Each dot of the printer as a pixel of the screen</source>
        <translation>打印机的每个点对应屏幕的一个像素</translation>
    </message>
    <message>
        <source>In black and white, with what the settings do to the page</source>
        <translation>黑白显示，包含各项设置对页面的影响</translation>
    </message>
    <message>
        <source>Size: automatic</source>
        <translation>大小：自动</translation>
    </message>
    <message>
        <source>Size: as it is</source>
        <translation>大小：实际大小</translation>
    </message>
    <message>
        <source>Size: fit to paper</source>
        <translation>大小：适合纸张</translation>
    </message>
    <message>
        <source>Size: fill the paper</source>
        <translation>大小：充满纸张</translation>
    </message>
    <message>
        <source>Size of the pages</source>
        <translation>页面大小</translation>
    </message>
    <message>
        <source>Automatic: pages that are larger than the paper are made smaller</source>
        <translation>自动：比纸张大的页面会缩小</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Not in this picture: %1</source>
        <translation>此图未反映：%1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>host::PrintDialog</name>
    <message>
        <source>Looking for the printer…</source>
        <translation>正在查找打印机…</translation>
    </message>
    <message>
        <source>The printer&apos;s description has changed on the server. Please look over the settings.</source>
        <translation>服务器上的打印机描述已更改。请检查设置。</translation>
    </message>
    <message>
        <source>%1: the plug-in has no interface for this panel.</source>
        <translation>%1：插件没有此面板的界面。</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1.</source>
        <translation>已存为 %1 的默认值。</translation>
    </message>
    <message>
        <source>Saved as “%1” for %2.</source>
        <translation>已为 %2 存为“%1”。</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>已删除“%1”。</translation>
    </message>
    <message>
        <source>There is no document to print.</source>
        <translation>没有要打印的文档。</translation>
    </message>
    <message>
        <source>“%1” are no pages. Write single pages and ranges, such as 1-3,5.</source>
        <translation>“%1”不是页码。请输入页码或范围，例如 1-3,5。</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>The print service does not run. Start it (“systemctl start cups”), or ask whoever looks after this computer.</source>
        <translation>打印服务没有运行。请启动它（“systemctl start cups”），或询问管理这台计算机的人。</translation>
    </message>
    <message>
        <source>The print service has no printer yet.</source>
        <translation>打印服务还没有打印机。</translation>
    </message>
    <message>
        <source>Choose a printer.</source>
        <translation>请选择打印机。</translation>
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
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页</translation>
    </message>
    <message>
        <source>all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Cancelled. What is left was not printed.</source>
        <translation>已取消。其余部分没有打印。</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1, without the number of copies.</source>
        <translation>已保存为 %1 的默认设置，不含份数。</translation>
    </message>
</context>
<context>
    <name>host::PrintTarget</name>
    <message>
        <source>%1: sent to %2</source>
        <translation>%1：已发送到 %2</translation>
    </message>
    <message>
        <source>%1 waits: %2</source>
        <comment>a document, and why</comment>
        <translation>%1 正在等待：%2</translation>
    </message>
</context>
<context>
    <name>host::PrintedPages</name>
    <message>
        <source>%1: PostScript can&apos;t be shown before it is printed</source>
        <translation>%1：PostScript 在打印前无法显示</translation>
    </message>
    <message>
        <source>%1 has only one page, not %2</source>
        <comment>a document, ranges of pages</comment>
        <translation>%1 只有一页，没有 %2</translation>
    </message>
    <message>
        <source>%1 has only %2 pages, not %3</source>
        <comment>a document, a number, ranges of pages</comment>
        <translation>%1 只有 %2 页，没有 %3</translation>
    </message>
    <message>
        <source>The paper is too large to be shown.</source>
        <translation>纸张太大，无法显示。</translation>
    </message>
    <message>
        <source>%1: page %2 is too large to be shown</source>
        <translation>%1：第 %2 页太大，无法显示</translation>
    </message>
</context>
<context>
    <name>host::Remarks</name>
    <message>
        <source>%1 instead of “%2”, to go with %3.</source>
        <translation>为配合%3，已将“%2”改为%1。</translation>
    </message>
    <message>
        <source>the other choices</source>
        <translation>其他设置</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the rules for the paper decide it.</source>
        <translation>%1与保存时不同：由纸张规则决定。</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the printer has no such choice any more.</source>
        <translation>%1与保存时不同：打印机已没有此选项。</translation>
    </message>
    <message>
        <source>%1 comes with: %2.</source>
        <comment>a paper, and choices</comment>
        <translation>%1 随之设定：%2。</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>host::SavedOptions</name>
    <message>
        <source>“%1”: a name is one word without slashes and quotation marks</source>
        <translation>“%1”：名称须为一个词，不含斜线和引号</translation>
    </message>
    <message>
        <source>%1: can&apos;t be written just now</source>
        <translation>%1：暂时无法写入</translation>
    </message>
    <message>
        <source>%1: can&apos;t be read</source>
        <translation>%1：无法读取</translation>
    </message>
    <message>
        <source>%1: can&apos;t hold a value with a line end</source>
        <translation>%1：不能保存含换行的值</translation>
    </message>
    <message>
        <source>%1: has the preset “%2” for all users; it stays</source>
        <translation>%1：含有供所有用户使用的预设“%2”；它会保留</translation>
    </message>
</context>
<context>
    <name>host::ServerConnection</name>
    <message>
        <source>%1: the queue does not take jobs now</source>
        <translation>%1：队列现在不接受作业</translation>
    </message>
    <message>
        <source>%1: the queue is stopped; jobs wait until it is started</source>
        <translation>%1：队列已停止；作业将等到其重新启动</translation>
    </message>
    <message>
        <source>there is no default queue</source>
        <translation>没有默认队列</translation>
    </message>
    <message>
        <source>%1: no such queue</source>
        <translation>%1：没有此队列</translation>
    </message>
    <message>
        <source>no CUPS server answers</source>
        <translation>没有 CUPS 服务器响应</translation>
    </message>
    <message>
        <source>the CUPS server asks for a password</source>
        <translation>CUPS 服务器要求密码</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>CUPS 服务器没有响应</translation>
    </message>
    <message>
        <source>the PPD on the server can&apos;t be used: %1</source>
        <translation>无法使用服务器上的 PPD：%1</translation>
    </message>
    <message>
        <source>no such queue</source>
        <translation>没有此队列</translation>
    </message>
    <message>
        <source>the printer&apos;s description has changed meanwhile; nothing was printed</source>
        <translation>打印机描述已更改；未打印任何内容</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>the CUPS server refuses it (%1)</source>
        <translation>CUPS 服务器拒绝（%1）</translation>
    </message>
    <message>
        <source>the CUPS server gave no proper answer</source>
        <translation>CUPS 服务器未给出正确的应答</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s file is too large</source>
        <translation>CUPS 服务器的文件过大</translation>
    </message>
    <message>
        <source>the connection to the CUPS server broke</source>
        <translation>与 CUPS 服务器的连接已中断</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>缺纸</translation>
    </message>
    <message>
        <source>little paper left</source>
        <translation>纸张不足</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>卡纸</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>机盖打开</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>无法连接</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a state and its reason</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>不接受作业</translation>
    </message>
    <message>
        <source>%1 is stopped</source>
        <translation>%1 已停止</translation>
    </message>
    <message>
        <source>the CUPS server does not accept the user name or the password</source>
        <translation>CUPS 服务器不接受该用户名或密码</translation>
    </message>
    <message>
        <source>the connection is not encrypted, so others on the network can read the password</source>
        <translation>连接未加密，网络上的其他人可以读到密码</translation>
    </message>
</context>
<context>
    <name>host::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>设置摘要</translation>
    </message>
</context>
<context>
    <name>host::UnlockedDocument</name>
    <message>
        <source>%1: can&apos;t be unlocked; it is damaged, or too large</source>
        <translation>%1：无法解锁；文档已损坏或过大</translation>
    </message>
    <message>
        <source>%1: can&apos;t be unlocked: %2</source>
        <translation>%1：无法解锁：%2</translation>
    </message>
    <message>
        <source>%1: the password is wrong</source>
        <translation>%1：密码错误</translation>
    </message>
</context>
</TS>
