<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>host::DialogSession</name>
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
        <source>De&amp;lete Preset</source>
        <translation>プリセットを削除(&amp;L)</translation>
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
        <source>The plug-in has no settings for this printer. It is printed with the driver's defaults.</source>
        <translation>プラグインにこのプリンターの設定はありません。ドライバーの既定値で印刷します。</translation>
    </message>
    <message>
        <source>No driver describes this printer: it has general settings only.</source>
        <translation>このプリンターにはドライバーがありません。一般的な設定だけが使えます。</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>既定値</translation>
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
        <source>Save as Preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>“%1” was deleted.</source>
        <translation>「%1」を削除しました。</translation>
    </message>
    <message>
        <source>“%1” are no pages. Write single pages and ranges, such as 1-3,5.</source>
        <translation>「%1」はページを表していません。ページ番号か範囲（例：1-3,5）を入力してください。</translation>
    </message>
    <message>
        <source>There is no document to print.</source>
        <translation>印刷する文書がありません。</translation>
    </message>
</context>
<context>
    <name>host::JobSink</name>
    <message>
        <source>no such queue</source>
        <translation>キューがありません</translation>
    </message>
    <message>
        <source>%1: the printer's description has changed meanwhile; nothing was printed</source>
        <translation>%1：プリンターの記述が変わったため、印刷しませんでした</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>%1; job %2-%3 may still be there, so look before you print again</source>
        <translation>%1。ジョブ %2-%3 が残っているかもしれません。もう一度印刷する前に確かめてください</translation>
    </message>
    <message>
        <source>can't be made</source>
        <translation>作成できません</translation>
    </message>
    <message>
        <source>can't be written</source>
        <translation>書き込めません</translation>
    </message>
    <message>
        <source>too many jobs of this name</source>
        <translation>同じ名前のジョブが多すぎます</translation>
    </message>
    <message>
        <source>%1: can't be read any more</source>
        <translation>%1：もう読み込めません</translation>
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
        <source>Paper width</source>
        <translation>用紙の幅</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>用紙の高さ</translation>
    </message>
    <message>
        <source>Custom size…</source>
        <translation>ユーザー定義サイズ…</translation>
    </message>
</context>
<context>
    <name>host::QueueSupply</name>
    <message>
        <source>Looking for the printer…</source>
        <translation>プリンターを探しています…</translation>
    </message>
    <message>
        <source>The CUPS server does not answer.</source>
        <translation>CUPS サーバーが応答しません。</translation>
    </message>
    <message>
        <source>The printer's description has changed on the server. Please look over the settings.</source>
        <translation>サーバー上のプリンターの記述が変わりました。設定を確かめてください。</translation>
    </message>
    <message>
        <source>There is no panel “%1”.</source>
        <translation>「%1」というパネルはありません。</translation>
    </message>
</context>
<context>
    <name>host::SavedOptions</name>
    <message>
        <source>“%1”: a name is one word without slashes and quotation marks</source>
        <translation>「%1」：名前は一語で、スラッシュと引用符は使えません</translation>
    </message>
    <message>
        <source>%1: can't be written just now</source>
        <translation>%1：今は書き込めません</translation>
    </message>
    <message>
        <source>%1: can't be read</source>
        <translation>%1：読み込めません</translation>
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
</context>
<context>
    <name>host::SummaryView</name>
    <message>
        <source>Summary of the settings</source>
        <translation>設定の一覧</translation>
    </message>
</context>
</TS>
