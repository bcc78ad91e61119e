<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>STEXT_TAB1</source>
        <translation>印刷設定</translation>
    </message>
    <message>
        <source>STEXT_TAB2</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>RS_Density</source>
        <translation>印刷濃度：</translation>
    </message>
    <message>
        <source>RS_Speed</source>
        <translation>印刷速度：</translation>
    </message>
    <message>
        <source>RS_Media</source>
        <translation>用紙の種類：</translation>
    </message>
    <message>
        <source>RS_FormFeedMode</source>
        <translation>改ページ：</translation>
    </message>
    <message>
        <source>RS_PaperFeed</source>
        <translation>紙送り量：</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <translation>ハーフトーン：</translation>
    </message>
    <message>
        <source>HC_Option</source>
        <translation>オプション：</translation>
    </message>
    <message>
        <source>RS_Perforated</source>
        <translation>ミシン目用紙</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint</source>
        <translation>ロール紙ケース</translation>
    </message>
    <message>
        <source>RS_Density_home</source>
        <translation>プリンターの設定を使用</translation>
    </message>
    <message>
        <source>RS_Density_0</source>
        <translation>レベル 0（最も薄い）</translation>
    </message>
    <message>
        <source>RS_Density_10</source>
        <translation>レベル 10（最も濃い）</translation>
    </message>
    <message>
        <source>RS_Density_1</source>
        <translation>レベル 1</translation>
    </message>
    <message>
        <source>RS_Density_2</source>
        <translation>レベル 2</translation>
    </message>
    <message>
        <source>RS_Density_3</source>
        <translation>レベル 3</translation>
    </message>
    <message>
        <source>RS_Density_4</source>
        <translation>レベル 4</translation>
    </message>
    <message>
        <source>RS_Density_5</source>
        <translation>レベル 5</translation>
    </message>
    <message>
        <source>RS_Density_6</source>
        <translation>レベル 6</translation>
    </message>
    <message>
        <source>RS_Density_7</source>
        <translation>レベル 7</translation>
    </message>
    <message>
        <source>RS_Density_8</source>
        <translation>レベル 8</translation>
    </message>
    <message>
        <source>RS_Density_9</source>
        <translation>レベル 9</translation>
    </message>
    <message>
        <source>RS_Speed_home</source>
        <translation>プリンターの設定を使用</translation>
    </message>
    <message>
        <source>RS_Speed_0</source>
        <translation>低速</translation>
    </message>
    <message>
        <source>RS_Speed_1</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>RS_Speed_2</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>RS_Speed_3</source>
        <translation>最高速</translation>
    </message>
    <message>
        <source>RS_Media_Thermal</source>
        <translation>感熱紙</translation>
    </message>
    <message>
        <source>RS_Media_ThermalCopy</source>
        <translation>感熱複写紙</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_NO</source>
        <translation>改ページなし</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_FIX</source>
        <translation>固定ページ長</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_END</source>
        <translation>ページの終わり</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_RET</source>
        <translation>用紙を引き戻す</translation>
    </message>
    <message>
        <source>RS_PaperFeed_NO</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1/2</source>
        <translation>1/2 インチ</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1</source>
        <translation>1 インチ</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1-1/2</source>
        <translation>1-1/2 インチ</translation>
    </message>
    <message>
        <source>RS_PaperFeed_2</source>
        <translation>2 インチ</translation>
    </message>
    <message>
        <source>RS_Perforated_ON</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>RS_Perforated_OFF</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_DEFAULT</source>
        <translation>プリンターの既定</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_OFF</source>
        <translation>使用しない</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ON</source>
        <translation>使用する</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ONWithoutAntiCurl</source>
        <translation>使用する（カール補正なし）</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <translation>2 値</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <translation>ディザ</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <translation>誤差拡散</translation>
    </message>
    <message>
        <source>HC_Reversal</source>
        <translation>白黒反転</translation>
    </message>
    <message>
        <source>HC_Mirror</source>
        <translation>鏡像印刷</translation>
    </message>
    <message>
        <source>HC_BiDiPrint</source>
        <translation>双方向印刷</translation>
    </message>
    <message>
        <source>RS_STitle_Model</source>
        <translation>機種</translation>
    </message>
    <message>
        <source>RS_STitle_Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>RS_STitle_Density</source>
        <translation>印刷濃度</translation>
    </message>
    <message>
        <source>RS_STitle_Media</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>RS_STitle_FormFeedMode</source>
        <translation>改ページ</translation>
    </message>
    <message>
        <source>RS_STitle_PaperFeed</source>
        <translation>紙送り量</translation>
    </message>
    <message>
        <source>RS_STitle_Perforated</source>
        <translation>ミシン目用紙</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <translation>ハーフトーン</translation>
    </message>
    <message>
        <source>HC_STitle_Reversal</source>
        <translation>白黒反転</translation>
    </message>
    <message>
        <source>HC_STitle_Mirror</source>
        <translation>鏡像印刷</translation>
    </message>
    <message>
        <source>HC_STitle_BiDiPrint</source>
        <translation>双方向印刷</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Unsupported Size Title</source>
        <translation>紙送り量が範囲外です。</translation>
    </message>
    <message>
        <source>Unsupported Size MSG1</source>
        <translation>1 ～ 51 mm の整数を、先頭に 0 を付けずに入力してください。</translation>
    </message>
    <message>
        <source>Unsupported Size MSG2</source>
        <translation>0.1 ～ 2.0 インチの値を、小数点以下 1 桁で入力してください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>この用紙サイズには印刷できません。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>用紙サイズがこのプリンターの対応範囲外です。印刷は行われていません。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>別の用紙サイズを選択してください。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>カスタムサイズはプリンターの範囲内にしてください。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>幅と高さを確認してください。自動では入れ替わりません。</translation>
    </message>
    <message>
        <source>AX_PaperFeedStepper</source>
        <translation>紙送り量</translation>
    </message>
    <message>
        <source>AX_Increase</source>
        <translation>増やす</translation>
    </message>
    <message>
        <source>AX_Decrease</source>
        <translation>減らす</translation>
    </message>
    <message>
        <source>AX_HalftonePreview</source>
        <translation>ハーフトーンのプレビュー</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_None</source>
        <translation>サンプル画像はありません</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Binary</source>
        <translation>階調のない、白と黒だけで描かれた球</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Dither</source>
        <translation>規則的な点の並びで階調を表した球</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Diffusion</source>
        <translation>細かく散らした点で階調を表した球</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>印刷濃度</translation>
    </message>
    <message>
        <source>Print Density : </source>
        <translation>印刷濃度：</translation>
    </message>
    <message>
        <source>Print Speed</source>
        <translation>印刷速度</translation>
    </message>
    <message>
        <source>Print Speed : </source>
        <translation>印刷速度：</translation>
    </message>
    <message>
        <source>Paper Type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Paper Type : </source>
        <translation>用紙の種類：</translation>
    </message>
    <message>
        <source>Form Feed</source>
        <translation>改ページ</translation>
    </message>
    <message>
        <source>Form Feed : </source>
        <translation>改ページ：</translation>
    </message>
    <message>
        <source>Paper Feed</source>
        <translation>紙送り量</translation>
    </message>
    <message>
        <source>Paper Feed : </source>
        <translation>紙送り量：</translation>
    </message>
    <message>
        <source>Perforated Paper</source>
        <translation>ミシン目用紙</translation>
    </message>
    <message>
        <source>Perforated Paper : </source>
        <translation>ミシン目用紙：</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>ハーフトーン</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <translation>ハーフトーン：</translation>
    </message>
    <message>
        <source>Reverse Black and White</source>
        <translation>白黒反転</translation>
    </message>
    <message>
        <source>Reverse Black and White : </source>
        <translation>白黒反転：</translation>
    </message>
    <message>
        <source>Mirror Image</source>
        <translation>鏡像印刷</translation>
    </message>
    <message>
        <source>Mirror Image : </source>
        <translation>鏡像印刷：</translation>
    </message>
    <message>
        <source>Bi-directional Printing</source>
        <translation>双方向印刷</translation>
    </message>
    <message>
        <source>Bi-directional Printing : </source>
        <translation>双方向印刷：</translation>
    </message>
    <message>
        <source>Roll Printer Case</source>
        <translation>ロール紙ケース</translation>
    </message>
    <message>
        <source>Roll Printer Case : </source>
        <translation>ロール紙ケース：</translation>
    </message>
    <message>
        <source>Kind of Paper</source>
        <translation>用紙の区分</translation>
    </message>
    <message>
        <source>Kind of Paper : </source>
        <translation>用紙の区分：</translation>
    </message>
    <message>
        <source>Use Printer Setting</source>
        <translation>プリンターの設定を使用</translation>
    </message>
    <message>
        <source>Level 0 (Lightest)</source>
        <translation>レベル 0（最も薄い）</translation>
    </message>
    <message>
        <source>Level 10 (Darkest)</source>
        <translation>レベル 10（最も濃い）</translation>
    </message>
    <message>
        <source>Thermal Paper</source>
        <translation>感熱紙</translation>
    </message>
    <message>
        <source>Thermal Copy Paper</source>
        <translation>感熱複写紙</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>2 値</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>ディザ</translation>
    </message>
    <message>
        <source>Error Diffusion</source>
        <translation>誤差拡散</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>低速</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>最高速</translation>
    </message>
    <message>
        <source>No Form Feed</source>
        <translation>改ページなし</translation>
    </message>
    <message>
        <source>Fixed Page Length</source>
        <translation>固定ページ長</translation>
    </message>
    <message>
        <source>End of Page</source>
        <translation>ページの終わり</translation>
    </message>
    <message>
        <source>Retract Paper</source>
        <translation>用紙を引き戻す</translation>
    </message>
    <message>
        <source>1/2 inch</source>
        <translation>1/2 インチ</translation>
    </message>
    <message>
        <source>1 inch</source>
        <translation>1 インチ</translation>
    </message>
    <message>
        <source>1-1/2 inch</source>
        <translation>1-1/2 インチ</translation>
    </message>
    <message>
        <source>2 inch</source>
        <translation>2 インチ</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>プリンターの既定</translation>
    </message>
    <message>
        <source>Not Used</source>
        <translation>使用しない</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用する</translation>
    </message>
    <message>
        <source>Used, without Anti-Curl</source>
        <translation>使用する（カール補正なし）</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>カット紙</translation>
    </message>
    <message>
        <source>Perforated</source>
        <translation>ミシン目</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール紙</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>連続紙</translation>
    </message>
    <message>
        <source>Perforated, Retract</source>
        <translation>ミシン目、引き戻し</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>レベル 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>レベル 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>レベル 3</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>レベル 4</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>レベル 5</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>レベル 6</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>レベル 7</translation>
    </message>
    <message>
        <source>Level 8</source>
        <translation>レベル 8</translation>
    </message>
    <message>
        <source>Level 9</source>
        <translation>レベル 9</translation>
    </message>
</context>
</TS>
