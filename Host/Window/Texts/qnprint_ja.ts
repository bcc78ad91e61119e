<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>foundation::Bundle</name>
    <message>
        <source>%1: not a plug-in bundle (Info.json: %2)</source>
        <translation>%1: プラグインのバンドルではありません（Info.json: %2）</translation>
    </message>
    <message>
        <source>%1/Info.json: names no executable or no principal class</source>
        <translation>%1/Info.json: 実行ファイルまたは主クラスの名前がありません</translation>
    </message>
    <message>
        <source>%1: no such plug-in bundle</source>
        <translation>%1: このプラグインのバンドルはありません</translation>
    </message>
</context>
<context>
    <name>foundation::RegularFile</name>
    <message>
        <source>%1: not a file</source>
        <translation>%1: ファイルではありません</translation>
    </message>
</context>
<context>
    <name>foundation::SystemError</name>
    <message>
        <source>No such file or directory</source>
        <translation>ファイルまたはフォルダーがありません</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセスが許可されていません</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>許可されていない操作です</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>空き容量がありません</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>ディスクの割り当て量を超えました</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>読み取り専用のファイルシステムです</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>ファイル名が長すぎます</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>入出力エラーです</translation>
    </message>
</context>
<context>
    <name>host::ArrangedPages</name>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1：文書が壊れています</translation>
    </message>
    <message>
        <source>%1: there is no room for its pages</source>
        <translation>%1：ページを保存する空き容量がありません</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be put on the paper</source>
        <translation>%1：文書を用紙に配置するのに時間またはメモリがかかりすぎます</translation>
    </message>
    <message>
        <source>%1: can&apos;t be put on the paper: %2 is missing (it is part of qnprint).</source>
        <translation>%1：用紙に配置できません。%2 がありません（qnprint の一部です）。</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1：ページを保存できません：%2</translation>
    </message>
</context>
<context>
    <name>host::Certificate</name>
    <message>
        <source>it was withdrawn</source>
        <translation>失効しています</translation>
    </message>
    <message>
        <source>it is another computer&apos;s</source>
        <translation>別のコンピューターのものです</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>有効期限が切れています</translation>
    </message>
    <message>
        <source>nobody that this computer trusts vouches for it</source>
        <translation>このコンピューターが信頼する発行者のものではありません</translation>
    </message>
    <message>
        <source>it is not valid</source>
        <translation>有効ではありません</translation>
    </message>
    <message>
        <source>the certificate of %1 is not trusted: %2</source>
        <translation>%1 の証明書は信頼されていません：%2</translation>
    </message>
</context>
<context>
    <name>host::Conversation</name>
    <message>
        <source>stopped</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>CUPS サーバーが応答しません</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s answer can&apos;t be read</source>
        <translation>CUPS サーバーの応答を読み取れません</translation>
    </message>
    <message>
        <source>no process can be started: %1</source>
        <translation>プロセスを開始できません: %1</translation>
    </message>
</context>
<context>
    <name>host::CredentialsBox</name>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>ログイン(&amp;L)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>ユーザー名(&amp;U)：</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>ロック解除(&amp;U)</translation>
    </message>
</context>
<context>
    <name>host::CupsSink</name>
    <message>
        <source>cancelled</source>
        <translation>キャンセルしました</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>キャンセルしました。何も印刷されていません</translation>
    </message>
    <message>
        <source>%1: %2; a job may be there, so look before you print again</source>
        <translation>%1: %2。ジョブが残っている可能性があります。再印刷の前に確認してください</translation>
    </message>
    <message>
        <source>%1: %2; job %1-%3 may still be there, so look before you print again</source>
        <translation>%1: %2。ジョブ %1-%3 が残っている可能性があります。再印刷の前に確認してください</translation>
    </message>
</context>
<context>
    <name>host::DialogSession</name>
    <message>
        <source>no plug-in bundle in %1</source>
        <translation>%1 にプラグインのバンドルがありません</translation>
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
        <translation>再試行(&amp;G)</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 の印刷</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>設定パネル</translation>
    </message>
    <message>
        <source>all</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Single pages and ranges, such as 1-3,5</source>
        <translation>ページ番号または範囲（例：1-3,5）</translation>
    </message>
    <message>
        <source>Save as &amp;Defaults</source>
        <translation>既定値として保存(&amp;D)</translation>
    </message>
    <message>
        <source>Save as &amp;Preset…</source>
        <translation>プリセットとして保存(&amp;P)…</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>ページ(&amp;A):</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R):</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>プリセット(&amp;S):</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>用紙(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
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
        <source>Defaults</source>
        <translation>既定値</translation>
    </message>
    <message>
        <source>Paper width</source>
        <translation>用紙の幅</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>用紙の高さ</translation>
    </message>
    <message>
        <source>There is no panel “%1”.</source>
        <translation>「%1」というパネルはありません。</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>送信中</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>ファイルを選択(&amp;F)…</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>概要(&amp;U)</translation>
    </message>
    <message>
        <source>De&amp;lete Preset…</source>
        <translation>プリセットを削除(&amp;L)…</translation>
    </message>
    <message>
        <source>Print %1 and %2 more</source>
        <translation>%1 とほか %2 件を印刷</translation>
    </message>
    <message>
        <source>Choose a file to print, or drop one here.</source>
        <translation>印刷するファイルを選択するか、ここにドロップしてください。</translation>
    </message>
    <message>
        <source>Choose Files to Print</source>
        <translation>印刷するファイルを選択</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（変更あり）</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>プリセットを削除</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>プリセット「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Previe&amp;w</source>
        <translation>プレビュー(&amp;W)</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>how many pages</comment>
        <translation>/ %1</translation>
    </message>
    <message>
        <source>&amp;Other Printers…</source>
        <translation>他のプリンター(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Look at the pages before they are printed</source>
        <translation>印刷する前にページを見る(&amp;L)</translation>
    </message>
</context>
<context>
    <name>host::Document</name>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>%1: the document is empty</source>
        <translation>%1: 文書が空です</translation>
    </message>
    <message>
        <source>the document can&apos;t be read any more</source>
        <translation>文書を読み取れなくなりました</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>%1: can&apos;t be printed as it is; PDF, PostScript, PNG, JPEG, GIF, TIFF and plain text can</source>
        <translation>%1: このままでは印刷できません。PDF、PostScript、PNG、JPEG、GIF、TIFF、プレーンテキストを印刷できます</translation>
    </message>
    <message>
        <source>there is too much of it</source>
        <translation>量が多すぎます</translation>
    </message>
</context>
<context>
    <name>host::DocumentCheck</name>
    <message>
        <source>The document has only one page.</source>
        <translation>文書は 1 ページだけです。</translation>
    </message>
    <message>
        <source>The document has only %1 pages.</source>
        <translation>文書は %1 ページだけです。</translation>
    </message>
    <message>
        <source>The document is %1 %3 wide, the paper %2.</source>
        <translation>文書の幅は %1 %3、用紙の幅は %2 です。</translation>
    </message>
    <message>
        <source>The document is %1 %3 long, the paper %2.</source>
        <translation>文書の長さは %1 %3、用紙の長さは %2 です。</translation>
    </message>
    <message>
        <source>Use %1</source>
        <comment>a paper</comment>
        <translation>%1 を使用</translation>
    </message>
    <message>
        <source>Use %1 × %2 %3</source>
        <comment>width, height, unit</comment>
        <translation>%1 × %2 %3 を使用</translation>
    </message>
    <message>
        <source>Fit to Paper</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>The document is %1 × %2 %3, the paper %4 × %5.</source>
        <comment>width, height, unit, width, height</comment>
        <translation>文書は %1 × %2 %3、用紙は %4 × %5 です。</translation>
    </message>
</context>
<context>
    <name>host::DocumentLock</name>
    <message>
        <source>%1; qpdf, which unlocks it, is missing</source>
        <translation>%1。解除に使う qpdf がありません</translation>
    </message>
    <message>
        <source>%1: stays locked; no password was right</source>
        <translation>%1：保護されたままです。正しいパスワードがありませんでした</translation>
    </message>
</context>
<context>
    <name>host::FolderSink</name>
    <message>
        <source>can&apos;t be made</source>
        <translation>作成できません</translation>
    </message>
    <message>
        <source>can&apos;t be written</source>
        <translation>書き込めません</translation>
    </message>
    <message>
        <source>too many jobs of this name</source>
        <translation>同じ名前のジョブが多すぎます</translation>
    </message>
</context>
<context>
    <name>host::ForApplications</name>
    <message>
        <source>Document</source>
        <comment>a title</comment>
        <translation>文書</translation>
    </message>
</context>
<context>
    <name>host::JobFailedBox</name>
    <message>
        <source>%1 Was Not Printed</source>
        <translation>%1 は印刷されませんでした</translation>
    </message>
    <message>
        <source>A Document Was Not Printed</source>
        <translation>文書が印刷されませんでした</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>再試行(&amp;A)</translation>
    </message>
    <message>
        <source>Another &amp;Printer…</source>
        <translation>別のプリンター(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>PDF として保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>印刷しています…</translation>
    </message>
    <message>
        <source>Save the Document</source>
        <translation>文書を保存</translation>
    </message>
</context>
<context>
    <name>host::JobSink</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1：もう読み込めません</translation>
    </message>
    <message>
        <source>%1: has changed while it was printed</source>
        <translation>%1：印刷中に変更されました</translation>
    </message>
    <message>
        <source>cancelled; nothing was printed</source>
        <translation>キャンセルしました。何も印刷されていません</translation>
    </message>
</context>
<context>
    <name>host::LengthBox</name>
    <message>
        <source>%1 to %2</source>
        <comment>two lengths</comment>
        <translation>%1～%2</translation>
    </message>
</context>
<context>
    <name>host::PDFPages</name>
    <message>
        <source>%1: can&apos;t be read any more</source>
        <translation>%1：もう読み込めません</translation>
    </message>
    <message>
        <source>%1: the image is too large to be laid out</source>
        <translation>%1：画像が大きすぎてレイアウトできません</translation>
    </message>
    <message>
        <source>%1: has changed while it was read</source>
        <translation>%1：読み取り中に変更されました</translation>
    </message>
    <message>
        <source>%1: the image is damaged</source>
        <translation>%1：画像が壊れています</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>キャンセルしました</translation>
    </message>
    <message>
        <source>%1: this kind of image can&apos;t be read; Qt&apos;s further image formats are not installed</source>
        <translation>%1：この種類の画像は読み取れません。Qt の追加画像形式がインストールされていません</translation>
    </message>
    <message>
        <source>%1: can&apos;t be laid out for this paper</source>
        <translation>%1：この用紙にはレイアウトできません</translation>
    </message>
    <message>
        <source>%1: its pages can&apos;t be kept: %2</source>
        <translation>%1：ページを保存できません：%2</translation>
    </message>
    <message>
        <source>%1: the text is too long to be laid out</source>
        <translation>%1：テキストが長すぎてレイアウトできません</translation>
    </message>
</context>
<context>
    <name>host::PPDDocument</name>
    <message>
        <source>%1: not a PPD file (the file is empty)</source>
        <translation>%1：PPD ファイルではありません（ファイルが空です）</translation>
    </message>
    <message>
        <source>%1: not a PPD file (line %2: %3)</source>
        <translation>%1: PPD ファイルではありません（%2 行目: %3）</translation>
    </message>
    <message>
        <source>%1: not opened (%2)</source>
        <translation>%1：開けません（%2）</translation>
    </message>
</context>
<context>
    <name>host::PPDLimits</name>
    <message>
        <source>keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>制約</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>more than %1 %2</source>
        <translation>%2が %1 を超えています</translation>
    </message>
</context>
<context>
    <name>host::PPDProblems</name>
    <message>
        <source>the header of a PPD file is missing</source>
        <translation>PPD ファイルのヘッダーがありません</translation>
    </message>
    <message>
        <source>the asterisk before a keyword is missing</source>
        <translation>キーワードの前のアスタリスクがありません</translation>
    </message>
    <message>
        <source>a value is missing</source>
        <translation>値がありません</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>行が長すぎます</translation>
    </message>
    <message>
        <source>a character that is not allowed</source>
        <translation>使用できない文字があります</translation>
    </message>
    <message>
        <source>a keyword or text that is not allowed</source>
        <translation>使用できないキーワードまたはテキストがあります</translation>
    </message>
    <message>
        <source>a group or an option that is not begun or not ended</source>
        <translation>グループまたはオプションの開始か終了がありません</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>読み取れません</translation>
    </message>
</context>
<context>
    <name>host::PPDTarget</name>
    <message>
        <source>-o %1=%2: the printer has no such choice</source>
        <translation>-o %1=%2: プリンターにこの選択肢はありません</translation>
    </message>
    <message>
        <source>The plug-in has no settings for this printer. It is printed with the driver&apos;s defaults.</source>
        <translation>プラグインにこのプリンターの設定はありません。ドライバーの既定値で印刷します。</translation>
    </message>
    <message>
        <source>%1: no preset “%2”, and no other</source>
        <translation>%1: プリセット「%2」はありません。ほかのプリセットもありません</translation>
    </message>
    <message>
        <source>%1: no preset “%2”; there are: %3</source>
        <translation>%1: プリセット「%2」はありません。あるもの: %3</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option.</source>
        <translation>-o %1=%2: このオプションはプリンターにもサーバーにも知られていません。</translation>
    </message>
    <message>
        <source>-o %1=%2: neither the printer nor the server is known to have this option. Did you mean “%3”?</source>
        <translation>-o %1=%2: このオプションはプリンターにもサーバーにも知られていません。「%3」のことですか？</translation>
    </message>
    <message>
        <source>--output %1: there is no such folder; it will be made.</source>
        <translation>--output %1: このフォルダーはありません。作成されます。</translation>
    </message>
</context>
<context>
    <name>host::PagePreview</name>
    <message>
        <source>The document&apos;s pages will show here.</source>
        <translation>ここに文書のページが表示されます。</translation>
    </message>
    <message>
        <source>The size of the paper is not known.</source>
        <translation>用紙のサイズがわかりません。</translation>
    </message>
</context>
<context>
    <name>host::PageReader</name>
    <message>
        <source>Pages can&apos;t be shown: %1 is missing (it is part of poppler-utils).</source>
        <translation>ページを表示できません。%1 がありません（poppler-utils の一部です）。</translation>
    </message>
    <message>
        <source>%1: the document takes too long, or too much memory, to be read</source>
        <translation>%1：文書を読み取るのに時間またはメモリがかかりすぎます</translation>
    </message>
    <message>
        <source>%1: the document is locked with a password</source>
        <translation>%1：文書はパスワードで保護されています</translation>
    </message>
    <message>
        <source>%1: the document is damaged</source>
        <translation>%1：文書が壊れています</translation>
    </message>
    <message>
        <source>%1: the document has no pages</source>
        <translation>%1：文書にページがありません</translation>
    </message>
    <message>
        <source>%1: page %2 can&apos;t be drawn</source>
        <translation>%1：%2 ページを描画できません</translation>
    </message>
    <message>
        <source>%1: the document has too many pages</source>
        <translation>%1: 文書のページが多すぎます</translation>
    </message>
</context>
<context>
    <name>host::PageView</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
</context>
<context>
    <name>host::PaperChooser</name>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source> in</source>
        <translation> インチ</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>ユーザー定義サイズ…</translation>
    </message>
    <message>
        <source>The printer does not take %1, but %2.</source>
        <comment>a length, and limits</comment>
        <translation>このプリンターで使えるのは %2 です（%1 は使えません）。</translation>
    </message>
</context>
<context>
    <name>host::PictureFile</name>
    <message>
        <source>%1: can&apos;t be written</source>
        <translation>%1：書き込めません</translation>
    </message>
</context>
<context>
    <name>host::PlainTarget</name>
    <message>
        <source>No driver describes this printer: it has general settings only.</source>
        <translation>このプリンターにはドライバーがありません。一般的な設定だけが使えます。</translation>
    </message>
</context>
<context>
    <name>host::PlugIn</name>
    <message>
        <source>%1: made for interface version %2, this dialog has %3</source>
        <translation>%1: インターフェース バージョン %2 用です。このダイアログは %3 です</translation>
    </message>
    <message>
        <source>%1: %2 is not the code of a panel plug-in</source>
        <translation>%1: %2 は設定パネルのプラグインのコードではありません</translation>
    </message>
    <message>
        <source>%1: built for “%2”, this dialog is “%3”</source>
        <translation>%1: 「%2」用に作られています。このダイアログは「%3」です</translation>
    </message>
</context>
<context>
    <name>host::PresetNameBox</name>
    <message>
        <source>Save as Preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換え(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>“%1” is there already; saving replaces it.</source>
        <translation>「%1」はすでにあります。保存すると置き換えられます。</translation>
    </message>
</context>
<context>
    <name>host::PreviewPane</name>
    <message>
        <source>Page before</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>As pr&amp;inted</source>
        <translation>印刷結果(&amp;I)</translation>
    </message>
    <message>
        <source>1:1</source>
        <comment>a dot of the printer as a pixel</comment>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Each dot of the printer as a pixel of the screen</source>
        <translation>プリンターの 1 ドットを画面の 1 ピクセルで表示</translation>
    </message>
    <message>
        <source>In black and white, with what the settings do to the page</source>
        <translation>設定の効果を含めた白黒表示</translation>
    </message>
    <message>
        <source>Size: automatic</source>
        <translation>サイズ: 自動</translation>
    </message>
    <message>
        <source>Size: as it is</source>
        <translation>サイズ: 実際のサイズ</translation>
    </message>
    <message>
        <source>Size: fit to paper</source>
        <translation>サイズ: 用紙に合わせる</translation>
    </message>
    <message>
        <source>Size: fill the paper</source>
        <translation>サイズ: 用紙いっぱい</translation>
    </message>
    <message>
        <source>Size of the pages</source>
        <translation>ページのサイズ</translation>
    </message>
    <message>
        <source>Automatic: pages that are larger than the paper are made smaller</source>
        <translation>自動: 用紙より大きいページは縮小されます</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>%1 / %2 ページ</translation>
    </message>
    <message>
        <source>Not in this picture: %1</source>
        <translation>この画像に反映されない設定: %1</translation>
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
        <translation>プリンターを探しています…</translation>
    </message>
    <message>
        <source>The printer&apos;s description has changed on the server. Please look over the settings.</source>
        <translation>サーバー上のプリンターの記述が変わりました。設定を確かめてください。</translation>
    </message>
    <message>
        <source>%1: the plug-in has no interface for this panel.</source>
        <translation>%1：プラグインにこのパネルの画面がありません。</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1.</source>
        <translation>%1 の既定値として保存しました。</translation>
    </message>
    <message>
        <source>Saved as “%1” for %2.</source>
        <translation>%2 の「%1」として保存しました。</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>「%1」を削除しました。</translation>
    </message>
    <message>
        <source>There is no document to print.</source>
        <translation>印刷する文書がありません。</translation>
    </message>
    <message>
        <source>“%1” are no pages. Write single pages and ranges, such as 1-3,5.</source>
        <translation>「%1」はページを表していません。ページ番号か範囲（例：1-3,5）を入力してください。</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>停止しています…</translation>
    </message>
    <message>
        <source>The print service does not run. Start it (“systemctl start cups”), or ask whoever looks after this computer.</source>
        <translation>印刷サービスが動作していません。開始するか（「systemctl start cups」）、このコンピューターの管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The print service has no printer yet.</source>
        <translation>印刷サービスにはまだプリンターがありません。</translation>
    </message>
    <message>
        <source>Choose a printer.</source>
        <translation>プリンターを選択してください。</translation>
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
        <source>Copies</source>
        <translation>部数</translation>
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
        <source>Cancelled. What is left was not printed.</source>
        <translation>キャンセルしました。残りは印刷されていません。</translation>
    </message>
    <message>
        <source>Saved as your defaults for %1, without the number of copies.</source>
        <translation>%1 の既定値として保存しました（部数は含みません）。</translation>
    </message>
</context>
<context>
    <name>host::PrintTarget</name>
    <message>
        <source>%1: sent to %2</source>
        <translation>%1: %2 に送信しました</translation>
    </message>
    <message>
        <source>%1 waits: %2</source>
        <comment>a document, and why</comment>
        <translation>%1 は待機中です: %2</translation>
    </message>
</context>
<context>
    <name>host::PrintedPages</name>
    <message>
        <source>%1: PostScript can&apos;t be shown before it is printed</source>
        <translation>%1：PostScript は印刷前に表示できません</translation>
    </message>
    <message>
        <source>%1 has only one page, not %2</source>
        <comment>a document, ranges of pages</comment>
        <translation>%1 は 1 ページだけで、%2 はありません</translation>
    </message>
    <message>
        <source>%1 has only %2 pages, not %3</source>
        <comment>a document, a number, ranges of pages</comment>
        <translation>%1 は %2 ページだけで、%3 はありません</translation>
    </message>
    <message>
        <source>The paper is too large to be shown.</source>
        <translation>用紙が大きすぎて表示できません。</translation>
    </message>
    <message>
        <source>%1: page %2 is too large to be shown</source>
        <translation>%1：%2 ページは大きすぎて表示できません</translation>
    </message>
</context>
<context>
    <name>host::Remarks</name>
    <message>
        <source>%1 instead of “%2”, to go with %3.</source>
        <translation>%3に合わせて、「%2」を%1に変えました。</translation>
    </message>
    <message>
        <source>the other choices</source>
        <translation>ほかの設定</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the rules for the paper decide it.</source>
        <translation>%1は保存した値ではありません。用紙の規則で決まります。</translation>
    </message>
    <message>
        <source>%1 is not as it was saved: the printer has no such choice any more.</source>
        <translation>%1は保存した値ではありません。プリンターにその選択肢がもうありません。</translation>
    </message>
    <message>
        <source>%1 comes with: %2.</source>
        <comment>a paper, and choices</comment>
        <translation>%1 に合わせて: %2。</translation>
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
        <translation>「%1」：名前は一語で、スラッシュと引用符は使えません</translation>
    </message>
    <message>
        <source>%1: can&apos;t be written just now</source>
        <translation>%1：今は書き込めません</translation>
    </message>
    <message>
        <source>%1: can&apos;t be read</source>
        <translation>%1：読み込めません</translation>
    </message>
    <message>
        <source>%1: can&apos;t hold a value with a line end</source>
        <translation>%1：改行を含む値は保存できません</translation>
    </message>
    <message>
        <source>%1: has the preset “%2” for all users; it stays</source>
        <translation>%1: プリセット「%2」はすべてのユーザー用で、そのまま残ります</translation>
    </message>
</context>
<context>
    <name>host::ServerConnection</name>
    <message>
        <source>%1: the queue does not take jobs now</source>
        <translation>%1：キューは今ジョブを受け付けません</translation>
    </message>
    <message>
        <source>%1: the queue is stopped; jobs wait until it is started</source>
        <translation>%1：キューは停止中です。ジョブは再開まで待ちます</translation>
    </message>
    <message>
        <source>there is no default queue</source>
        <translation>既定のキューがありません</translation>
    </message>
    <message>
        <source>%1: no such queue</source>
        <translation>%1：キューがありません</translation>
    </message>
    <message>
        <source>no CUPS server answers</source>
        <translation>CUPS サーバーが応答しません</translation>
    </message>
    <message>
        <source>the CUPS server asks for a password</source>
        <translation>CUPS サーバーがパスワードを求めています</translation>
    </message>
    <message>
        <source>the CUPS server does not answer</source>
        <translation>CUPS サーバーが応答しません</translation>
    </message>
    <message>
        <source>the PPD on the server can&apos;t be used: %1</source>
        <translation>サーバーの PPD を使用できません: %1</translation>
    </message>
    <message>
        <source>no such queue</source>
        <translation>キューがありません</translation>
    </message>
    <message>
        <source>the printer&apos;s description has changed meanwhile; nothing was printed</source>
        <translation>プリンターの記述が変更されました。何も印刷されていません</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>the CUPS server refuses it (%1)</source>
        <translation>CUPS サーバーが拒否しました（%1）</translation>
    </message>
    <message>
        <source>the CUPS server gave no proper answer</source>
        <translation>CUPS サーバーから正しい応答がありません</translation>
    </message>
    <message>
        <source>the CUPS server&apos;s file is too large</source>
        <translation>CUPS サーバーのファイルが大きすぎます</translation>
    </message>
    <message>
        <source>the connection to the CUPS server broke</source>
        <translation>CUPS サーバーとの接続が切れました</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>little paper left</source>
        <translation>用紙残りわずか</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>紙詰まり</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>not reachable</source>
        <translation>接続できません</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a state and its reason</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>ジョブを受け付けません</translation>
    </message>
    <message>
        <source>%1 is stopped</source>
        <translation>%1 は停止中</translation>
    </message>
    <message>
        <source>the CUPS server does not accept the user name or the password</source>
        <translation>CUPS サーバーはこのユーザー名またはパスワードを受け付けません</translation>
    </message>
    <message>
        <source>the connection is not encrypted, so others on the network can read the password</source>
        <translation>接続が暗号化されていないため、ネットワーク上の他の人がパスワードを読み取れます</translation>
    </message>
</context>
<context>
    <name>host::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>設定の一覧</translation>
    </message>
</context>
<context>
    <name>host::UnlockedDocument</name>
    <message>
        <source>%1: can&apos;t be unlocked; it is damaged, or too large</source>
        <translation>%1：ロックを解除できません。壊れているか、大きすぎます</translation>
    </message>
    <message>
        <source>%1: can&apos;t be unlocked: %2</source>
        <translation>%1：ロックを解除できません：%2</translation>
    </message>
    <message>
        <source>%1: the password is wrong</source>
        <translation>%1：パスワードが違います</translation>
    </message>
</context>
</TS>
