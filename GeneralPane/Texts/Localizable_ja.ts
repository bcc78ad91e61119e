<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>JCL</source>
        <translation>ジョブ制御</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>取り付け可能なオプション</translation>
    </message>
    <message>
        <source>Options Installed</source>
        <translation>取り付けられたオプション</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>取り付けられたオプション</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>The amount is not supported.</source>
        <translation>この値には対応していません。</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>最大%1</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1文字</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1桁</translation>
    </message>
    <message>
        <source>The text is not supported.</source>
        <translation>このテキストには対応していません。</translation>
    </message>
    <message>
        <source>The code is not supported.</source>
        <translation>このコードには対応していません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Media Source</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Output Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>出力モード</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Color Model</source>
        <translation>カラーモデル</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>印刷品質</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>両面</translation>
    </message>
    <message>
        <source>2-Sided Printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>なし (片面)</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>長辺とじ (縦)</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>短辺とじ (横)</translation>
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
        <source>True</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>False</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>プリンターの設定</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>下書き</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高い</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>手差し</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>用紙の向き</translation>
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
        <source>Reverse Landscape</source>
        <translation>横（逆方向）</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>縦（逆方向）</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>白黒2値</translation>
    </message>
</context>
</TS>
