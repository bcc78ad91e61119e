<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>STEXT_TAB1</source>
        <translation>打印设置</translation>
    </message>
    <message>
        <source>STEXT_TAB2</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>RS_Density</source>
        <translation>打印浓度：</translation>
    </message>
    <message>
        <source>RS_Speed</source>
        <translation>打印速度：</translation>
    </message>
    <message>
        <source>RS_Media</source>
        <translation>纸张类型：</translation>
    </message>
    <message>
        <source>RS_FormFeedMode</source>
        <translation>换页：</translation>
    </message>
    <message>
        <source>RS_PaperFeed</source>
        <translation>进纸量：</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <translation>半色调：</translation>
    </message>
    <message>
        <source>HC_Option</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>RS_Perforated</source>
        <translation>打孔纸</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint</source>
        <translation>卷纸机壳</translation>
    </message>
    <message>
        <source>RS_Density_home</source>
        <translation>使用打印机设置</translation>
    </message>
    <message>
        <source>RS_Density_0</source>
        <translation>等级 0（最淡）</translation>
    </message>
    <message>
        <source>RS_Density_10</source>
        <translation>等级 10（最浓）</translation>
    </message>
    <message>
        <source>RS_Density_1</source>
        <translation>等级 1</translation>
    </message>
    <message>
        <source>RS_Density_2</source>
        <translation>等级 2</translation>
    </message>
    <message>
        <source>RS_Density_3</source>
        <translation>等级 3</translation>
    </message>
    <message>
        <source>RS_Density_4</source>
        <translation>等级 4</translation>
    </message>
    <message>
        <source>RS_Density_5</source>
        <translation>等级 5</translation>
    </message>
    <message>
        <source>RS_Density_6</source>
        <translation>等级 6</translation>
    </message>
    <message>
        <source>RS_Density_7</source>
        <translation>等级 7</translation>
    </message>
    <message>
        <source>RS_Density_8</source>
        <translation>等级 8</translation>
    </message>
    <message>
        <source>RS_Density_9</source>
        <translation>等级 9</translation>
    </message>
    <message>
        <source>RS_Speed_home</source>
        <translation>使用打印机设置</translation>
    </message>
    <message>
        <source>RS_Speed_0</source>
        <translation>慢速</translation>
    </message>
    <message>
        <source>RS_Speed_1</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>RS_Speed_2</source>
        <translation>快速</translation>
    </message>
    <message>
        <source>RS_Speed_3</source>
        <translation>最快</translation>
    </message>
    <message>
        <source>RS_Media_Thermal</source>
        <translation>热敏纸</translation>
    </message>
    <message>
        <source>RS_Media_ThermalCopy</source>
        <translation>热敏复写纸</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_NO</source>
        <translation>不换页</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_FIX</source>
        <translation>固定页长</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_END</source>
        <translation>页末</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_RET</source>
        <translation>回抽纸张</translation>
    </message>
    <message>
        <source>RS_PaperFeed_NO</source>
        <translation>无</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1/2</source>
        <translation>1/2 英寸</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1</source>
        <translation>1 英寸</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1-1/2</source>
        <translation>1-1/2 英寸</translation>
    </message>
    <message>
        <source>RS_PaperFeed_2</source>
        <translation>2 英寸</translation>
    </message>
    <message>
        <source>RS_Perforated_ON</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>RS_Perforated_OFF</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_DEFAULT</source>
        <translation>打印机默认</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_OFF</source>
        <translation>不使用</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ON</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ONWithoutAntiCurl</source>
        <translation>使用（不展平）</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <translation>二值</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <translation>抖动</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <translation>误差扩散</translation>
    </message>
    <message>
        <source>HC_Reversal</source>
        <translation>黑白反转</translation>
    </message>
    <message>
        <source>HC_Mirror</source>
        <translation>镜像打印</translation>
    </message>
    <message>
        <source>HC_BiDiPrint</source>
        <translation>双向打印</translation>
    </message>
    <message>
        <source>RS_STitle_Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>RS_STitle_Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>RS_STitle_Density</source>
        <translation>打印浓度</translation>
    </message>
    <message>
        <source>RS_STitle_Media</source>
        <translation>纸张类型</translation>
    </message>
    <message>
        <source>RS_STitle_FormFeedMode</source>
        <translation>换页</translation>
    </message>
    <message>
        <source>RS_STitle_PaperFeed</source>
        <translation>进纸量</translation>
    </message>
    <message>
        <source>RS_STitle_Perforated</source>
        <translation>打孔纸</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <translation>半色调</translation>
    </message>
    <message>
        <source>HC_STitle_Reversal</source>
        <translation>黑白反转</translation>
    </message>
    <message>
        <source>HC_STitle_Mirror</source>
        <translation>镜像打印</translation>
    </message>
    <message>
        <source>HC_STitle_BiDiPrint</source>
        <translation>双向打印</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Unsupported Size Title</source>
        <translation>进纸量超出范围。</translation>
    </message>
    <message>
        <source>Unsupported Size MSG1</source>
        <translation>请输入 1 到 51 mm 之间的整数，开头不要加 0。</translation>
    </message>
    <message>
        <source>Unsupported Size MSG2</source>
        <translation>请输入 0.1 到 2.0 英寸之间的数值，保留一位小数。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>无法使用此纸张尺寸打印。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>纸张超出此打印机支持的尺寸范围。未打印任何内容。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>请选择其他纸张尺寸。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>自定义尺寸须在打印机的限制范围内。</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>请检查宽度和高度：它们不会自动互换。</translation>
    </message>
    <message>
        <source>AX_PaperFeedStepper</source>
        <translation>进纸量</translation>
    </message>
    <message>
        <source>AX_Increase</source>
        <translation>增加</translation>
    </message>
    <message>
        <source>AX_Decrease</source>
        <translation>减少</translation>
    </message>
    <message>
        <source>AX_HalftonePreview</source>
        <translation>半色调预览</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_None</source>
        <translation>无示例图片</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Binary</source>
        <translation>纯黑白、没有层次的球体</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Dither</source>
        <translation>用规则点阵表现层次的球体</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Diffusion</source>
        <translation>用细密散布的点表现层次的球体</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>打印浓度</translation>
    </message>
    <message>
        <source>Print Density : </source>
        <translation>打印浓度：</translation>
    </message>
    <message>
        <source>Print Speed</source>
        <translation>打印速度</translation>
    </message>
    <message>
        <source>Print Speed : </source>
        <translation>打印速度：</translation>
    </message>
    <message>
        <source>Paper Type</source>
        <translation>纸张类型</translation>
    </message>
    <message>
        <source>Paper Type : </source>
        <translation>纸张类型：</translation>
    </message>
    <message>
        <source>Form Feed</source>
        <translation>换页</translation>
    </message>
    <message>
        <source>Form Feed : </source>
        <translation>换页：</translation>
    </message>
    <message>
        <source>Paper Feed</source>
        <translation>进纸量</translation>
    </message>
    <message>
        <source>Paper Feed : </source>
        <translation>进纸量：</translation>
    </message>
    <message>
        <source>Perforated Paper</source>
        <translation>打孔纸</translation>
    </message>
    <message>
        <source>Perforated Paper : </source>
        <translation>打孔纸：</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>半色调</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <translation>半色调：</translation>
    </message>
    <message>
        <source>Reverse Black and White</source>
        <translation>黑白反转</translation>
    </message>
    <message>
        <source>Reverse Black and White : </source>
        <translation>黑白反转：</translation>
    </message>
    <message>
        <source>Mirror Image</source>
        <translation>镜像打印</translation>
    </message>
    <message>
        <source>Mirror Image : </source>
        <translation>镜像打印：</translation>
    </message>
    <message>
        <source>Bi-directional Printing</source>
        <translation>双向打印</translation>
    </message>
    <message>
        <source>Bi-directional Printing : </source>
        <translation>双向打印：</translation>
    </message>
    <message>
        <source>Roll Printer Case</source>
        <translation>卷纸机壳</translation>
    </message>
    <message>
        <source>Roll Printer Case : </source>
        <translation>卷纸机壳：</translation>
    </message>
    <message>
        <source>Kind of Paper</source>
        <translation>纸张形式</translation>
    </message>
    <message>
        <source>Kind of Paper : </source>
        <translation>纸张形式：</translation>
    </message>
    <message>
        <source>Use Printer Setting</source>
        <translation>使用打印机设置</translation>
    </message>
    <message>
        <source>Level 0 (Lightest)</source>
        <translation>等级 0（最淡）</translation>
    </message>
    <message>
        <source>Level 10 (Darkest)</source>
        <translation>等级 10（最浓）</translation>
    </message>
    <message>
        <source>Thermal Paper</source>
        <translation>热敏纸</translation>
    </message>
    <message>
        <source>Thermal Copy Paper</source>
        <translation>热敏复写纸</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>二值</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>抖动</translation>
    </message>
    <message>
        <source>Error Diffusion</source>
        <translation>误差扩散</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>慢速</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快速</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>最快</translation>
    </message>
    <message>
        <source>No Form Feed</source>
        <translation>不换页</translation>
    </message>
    <message>
        <source>Fixed Page Length</source>
        <translation>固定页长</translation>
    </message>
    <message>
        <source>End of Page</source>
        <translation>页末</translation>
    </message>
    <message>
        <source>Retract Paper</source>
        <translation>回抽纸张</translation>
    </message>
    <message>
        <source>1/2 inch</source>
        <translation>1/2 英寸</translation>
    </message>
    <message>
        <source>1 inch</source>
        <translation>1 英寸</translation>
    </message>
    <message>
        <source>1-1/2 inch</source>
        <translation>1-1/2 英寸</translation>
    </message>
    <message>
        <source>2 inch</source>
        <translation>2 英寸</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>打印机默认</translation>
    </message>
    <message>
        <source>Not Used</source>
        <translation>不使用</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Used, without Anti-Curl</source>
        <translation>使用（不展平）</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>单页纸</translation>
    </message>
    <message>
        <source>Perforated</source>
        <translation>打孔</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>卷纸</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>连续纸</translation>
    </message>
    <message>
        <source>Perforated, Retract</source>
        <translation>打孔，回抽</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>等级 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>等级 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>等级 3</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>等级 4</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>等级 5</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>等级 6</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>等级 7</translation>
    </message>
    <message>
        <source>Level 8</source>
        <translation>等级 8</translation>
    </message>
    <message>
        <source>Level 9</source>
        <translation>等级 9</translation>
    </message>
</context>
</TS>
