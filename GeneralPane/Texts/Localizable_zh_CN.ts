<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>JCL</source>
        <translation>作业控制</translation>
    </message>
    <message>
        <source>Installable Options</source>
        <translation>可安装选项</translation>
    </message>
    <message>
        <source>Options Installed</source>
        <translation>已安装选项</translation>
    </message>
    <message>
        <source>Installed Options</source>
        <translation>已安装选项</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>The amount is not supported.</source>
        <translation>不支持此数值。</translation>
    </message>
    <message>
        <source>up to %1</source>
        <translation>最多 %1</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 个字符</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 位数字</translation>
    </message>
    <message>
        <source>The text is not supported.</source>
        <translation>不支持此文本。</translation>
    </message>
    <message>
        <source>The code is not supported.</source>
        <translation>不支持此代码。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>纸张类型</translation>
    </message>
    <message>
        <source>Media Source</source>
        <translation>纸张来源</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Output Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Output Mode</source>
        <translation>输出模式</translation>
    </message>
    <message>
        <source>Color Mode</source>
        <translation>颜色模式</translation>
    </message>
    <message>
        <source>Color Model</source>
        <translation>颜色模型</translation>
    </message>
    <message>
        <source>Print Quality</source>
        <translation>打印质量</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>双面</translation>
    </message>
    <message>
        <source>2-Sided Printing</source>
        <translation>双面打印</translation>
    </message>
    <message>
        <source>Double-Sided Printing</source>
        <translation>双面打印</translation>
    </message>
    <message>
        <source>Off (1-Sided)</source>
        <translation>关 (单面)</translation>
    </message>
    <message>
        <source>Long-Edge (Portrait)</source>
        <translation>长边 (纵向)</translation>
    </message>
    <message>
        <source>Short-Edge (Landscape)</source>
        <translation>短边 (横向)</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>True</source>
        <translation>是</translation>
    </message>
    <message>
        <source>False</source>
        <translation>否</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>打印机默认</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>草稿</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Plain Paper</source>
        <translation>普通纸</translation>
    </message>
    <message>
        <source>Manual Feed</source>
        <translation>手动进纸</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
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
        <source>Reverse Landscape</source>
        <translation>反向横向</translation>
    </message>
    <message>
        <source>Reverse Portrait</source>
        <translation>反向纵向</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>黑白</translation>
    </message>
</context>
</TS>
