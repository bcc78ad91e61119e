<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>STEXT_TAB1</source>
        <translation>Print Settings</translation>
    </message>
    <message>
        <source>STEXT_TAB2</source>
        <translation>Advanced Settings</translation>
    </message>
    <message>
        <source>RS_Density</source>
        <translation>Print Density:</translation>
    </message>
    <message>
        <source>RS_Speed</source>
        <translation>Print Speed:</translation>
    </message>
    <message>
        <source>RS_Media</source>
        <translation>Paper Type:</translation>
    </message>
    <message>
        <source>RS_FormFeedMode</source>
        <translation>Form Feed:</translation>
    </message>
    <message>
        <source>RS_PaperFeed</source>
        <translation>Paper Feed:</translation>
    </message>
    <message>
        <source>HC_Halftone</source>
        <translation>Halftone:</translation>
    </message>
    <message>
        <source>HC_Option</source>
        <translation>Options:</translation>
    </message>
    <message>
        <source>RS_Perforated</source>
        <translation>Perforated Paper</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint</source>
        <translation>Roll Printer Case</translation>
    </message>
    <message>
        <source>RS_Density_home</source>
        <translation>Use Printer Setting</translation>
    </message>
    <message>
        <source>RS_Density_0</source>
        <translation>Level 0 (Lightest)</translation>
    </message>
    <message>
        <source>RS_Density_10</source>
        <translation>Level 10 (Darkest)</translation>
    </message>
    <message>
        <source>RS_Density_1</source>
        <translation>Level 1</translation>
    </message>
    <message>
        <source>RS_Density_2</source>
        <translation>Level 2</translation>
    </message>
    <message>
        <source>RS_Density_3</source>
        <translation>Level 3</translation>
    </message>
    <message>
        <source>RS_Density_4</source>
        <translation>Level 4</translation>
    </message>
    <message>
        <source>RS_Density_5</source>
        <translation>Level 5</translation>
    </message>
    <message>
        <source>RS_Density_6</source>
        <translation>Level 6</translation>
    </message>
    <message>
        <source>RS_Density_7</source>
        <translation>Level 7</translation>
    </message>
    <message>
        <source>RS_Density_8</source>
        <translation>Level 8</translation>
    </message>
    <message>
        <source>RS_Density_9</source>
        <translation>Level 9</translation>
    </message>
    <message>
        <source>RS_Speed_home</source>
        <translation>Use Printer Setting</translation>
    </message>
    <message>
        <source>RS_Speed_0</source>
        <translation>Slow</translation>
    </message>
    <message>
        <source>RS_Speed_1</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>RS_Speed_2</source>
        <translation>Fast</translation>
    </message>
    <message>
        <source>RS_Speed_3</source>
        <translation>Fastest</translation>
    </message>
    <message>
        <source>RS_Media_Thermal</source>
        <translation>Thermal Paper</translation>
    </message>
    <message>
        <source>RS_Media_ThermalCopy</source>
        <translation>Thermal Copy Paper</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_NO</source>
        <translation>No Form Feed</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_FIX</source>
        <translation>Fixed Page Length</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_END</source>
        <translation>End of Page</translation>
    </message>
    <message>
        <source>RS_FormFeedMode_RET</source>
        <translation>Retract Paper</translation>
    </message>
    <message>
        <source>RS_PaperFeed_NO</source>
        <translation>None</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1/2</source>
        <translation>1/2 inch</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1</source>
        <translation>1 inch</translation>
    </message>
    <message>
        <source>RS_PaperFeed_1-1/2</source>
        <translation>1-1/2 inch</translation>
    </message>
    <message>
        <source>RS_PaperFeed_2</source>
        <translation>2 inch</translation>
    </message>
    <message>
        <source>RS_Perforated_ON</source>
        <translation>On</translation>
    </message>
    <message>
        <source>RS_Perforated_OFF</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_DEFAULT</source>
        <translation>Printer Default</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_OFF</source>
        <translation>Not Used</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ON</source>
        <translation>Used</translation>
    </message>
    <message>
        <source>HC_STitle_RollPrint_ONWithoutAntiCurl</source>
        <translation>Used, without Anti-Curl</translation>
    </message>
    <message>
        <source>HC_Binary</source>
        <translation>Binary</translation>
    </message>
    <message>
        <source>HC_Dither</source>
        <translation>Dither</translation>
    </message>
    <message>
        <source>HC_ErrorDiffusion</source>
        <translation>Error Diffusion</translation>
    </message>
    <message>
        <source>HC_Reversal</source>
        <translation>Reverse Black and White</translation>
    </message>
    <message>
        <source>HC_Mirror</source>
        <translation>Mirror Image</translation>
    </message>
    <message>
        <source>HC_BiDiPrint</source>
        <translation>Bi-directional Printing</translation>
    </message>
    <message>
        <source>RS_STitle_Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>RS_STitle_Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>RS_STitle_Density</source>
        <translation>Print Density</translation>
    </message>
    <message>
        <source>RS_STitle_Media</source>
        <translation>Paper Type</translation>
    </message>
    <message>
        <source>RS_STitle_FormFeedMode</source>
        <translation>Form Feed</translation>
    </message>
    <message>
        <source>RS_STitle_PaperFeed</source>
        <translation>Paper Feed</translation>
    </message>
    <message>
        <source>RS_STitle_Perforated</source>
        <translation>Perforated Paper</translation>
    </message>
    <message>
        <source>HC_STitle_Halftone</source>
        <translation>Halftone</translation>
    </message>
    <message>
        <source>HC_STitle_Reversal</source>
        <translation>Reverse Black and White</translation>
    </message>
    <message>
        <source>HC_STitle_Mirror</source>
        <translation>Mirror Image</translation>
    </message>
    <message>
        <source>HC_STitle_BiDiPrint</source>
        <translation>Bi-directional Printing</translation>
    </message>
    <message>
        <source>RS_STitle_No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>RS_STitle_Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Unsupported Size Title</source>
        <translation>The paper feed amount is out of range.</translation>
    </message>
    <message>
        <source>Unsupported Size MSG1</source>
        <translation>Enter a whole number from 1 to 51 mm, without a leading zero.</translation>
    </message>
    <message>
        <source>Unsupported Size MSG2</source>
        <translation>Enter a value from 0.1 to 2.0 inches, with one decimal.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Unsupported Paper Title</source>
        <translation>This paper size can’t be printed.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG1</source>
        <translation>The paper is outside the sizes that this printer takes. Nothing has been printed.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG2</source>
        <translation>Choose another paper size.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG3</source>
        <translation>Keep a custom size within the printer’s limits.</translation>
    </message>
    <message>
        <source>Unsupported Paper MSG4</source>
        <translation>Check width and height: they are not swapped for you.</translation>
    </message>
    <message>
        <source>AX_PaperFeedStepper</source>
        <translation>Paper feed amount</translation>
    </message>
    <message>
        <source>AX_Increase</source>
        <translation>Increase</translation>
    </message>
    <message>
        <source>AX_Decrease</source>
        <translation>Decrease</translation>
    </message>
    <message>
        <source>AX_HalftonePreview</source>
        <translation>Halftone preview</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_None</source>
        <translation>No sample picture</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Binary</source>
        <translation>A shaded ball in pure black and white, without shades</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Dither</source>
        <translation>A shaded ball whose shades are made of a regular pattern of dots</translation>
    </message>
    <message>
        <source>AX_HalftonePreview_Diffusion</source>
        <translation>A shaded ball whose shades are made of finely scattered dots</translation>
    </message>
    <message>
        <source>Print Density</source>
        <translation>Print Density</translation>
    </message>
    <message>
        <source>Print Density : </source>
        <translation>Print Density:</translation>
    </message>
    <message>
        <source>Print Speed</source>
        <translation>Print Speed</translation>
    </message>
    <message>
        <source>Print Speed : </source>
        <translation>Print Speed:</translation>
    </message>
    <message>
        <source>Paper Type</source>
        <translation>Paper Type</translation>
    </message>
    <message>
        <source>Paper Type : </source>
        <translation>Paper Type:</translation>
    </message>
    <message>
        <source>Form Feed</source>
        <translation>Form Feed</translation>
    </message>
    <message>
        <source>Form Feed : </source>
        <translation>Form Feed:</translation>
    </message>
    <message>
        <source>Paper Feed</source>
        <translation>Paper Feed</translation>
    </message>
    <message>
        <source>Paper Feed : </source>
        <translation>Paper Feed:</translation>
    </message>
    <message>
        <source>Perforated Paper</source>
        <translation>Perforated Paper</translation>
    </message>
    <message>
        <source>Perforated Paper : </source>
        <translation>Perforated Paper:</translation>
    </message>
    <message>
        <source>Halftone</source>
        <translation>Halftone</translation>
    </message>
    <message>
        <source>Halftone : </source>
        <translation>Halftone:</translation>
    </message>
    <message>
        <source>Reverse Black and White</source>
        <translation>Reverse Black and White</translation>
    </message>
    <message>
        <source>Reverse Black and White : </source>
        <translation>Reverse Black and White:</translation>
    </message>
    <message>
        <source>Mirror Image</source>
        <translation>Mirror Image</translation>
    </message>
    <message>
        <source>Mirror Image : </source>
        <translation>Mirror Image:</translation>
    </message>
    <message>
        <source>Bi-directional Printing</source>
        <translation>Bi-directional Printing</translation>
    </message>
    <message>
        <source>Bi-directional Printing : </source>
        <translation>Bi-directional Printing:</translation>
    </message>
    <message>
        <source>Roll Printer Case</source>
        <translation>Roll Printer Case</translation>
    </message>
    <message>
        <source>Roll Printer Case : </source>
        <translation>Roll Printer Case:</translation>
    </message>
    <message>
        <source>Kind of Paper</source>
        <translation>Kind of Paper</translation>
    </message>
    <message>
        <source>Kind of Paper : </source>
        <translation>Kind of Paper:</translation>
    </message>
    <message>
        <source>Use Printer Setting</source>
        <translation>Use Printer Setting</translation>
    </message>
    <message>
        <source>Level 0 (Lightest)</source>
        <translation>Level 0 (Lightest)</translation>
    </message>
    <message>
        <source>Level 10 (Darkest)</source>
        <translation>Level 10 (Darkest)</translation>
    </message>
    <message>
        <source>Thermal Paper</source>
        <translation>Thermal Paper</translation>
    </message>
    <message>
        <source>Thermal Copy Paper</source>
        <translation>Thermal Copy Paper</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binary</translation>
    </message>
    <message>
        <source>Dither</source>
        <translation>Dither</translation>
    </message>
    <message>
        <source>Error Diffusion</source>
        <translation>Error Diffusion</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Slow</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Fast</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>Fastest</translation>
    </message>
    <message>
        <source>No Form Feed</source>
        <translation>No Form Feed</translation>
    </message>
    <message>
        <source>Fixed Page Length</source>
        <translation>Fixed Page Length</translation>
    </message>
    <message>
        <source>End of Page</source>
        <translation>End of Page</translation>
    </message>
    <message>
        <source>Retract Paper</source>
        <translation>Retract Paper</translation>
    </message>
    <message>
        <source>1/2 inch</source>
        <translation>1/2 inch</translation>
    </message>
    <message>
        <source>1 inch</source>
        <translation>1 inch</translation>
    </message>
    <message>
        <source>1-1/2 inch</source>
        <translation>1-1/2 inch</translation>
    </message>
    <message>
        <source>2 inch</source>
        <translation>2 inch</translation>
    </message>
    <message>
        <source>Printer Default</source>
        <translation>Printer Default</translation>
    </message>
    <message>
        <source>Not Used</source>
        <translation>Not Used</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Used</translation>
    </message>
    <message>
        <source>Used, without Anti-Curl</source>
        <translation>Used, without Anti-Curl</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>Cut Sheet</translation>
    </message>
    <message>
        <source>Perforated</source>
        <translation>Perforated</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>Perforated, Retract</source>
        <translation>Perforated, Retract</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>Level 1</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Level 2</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Level 3</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>Level 4</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>Level 5</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>Level 6</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>Level 7</translation>
    </message>
    <message>
        <source>Level 8</source>
        <translation>Level 8</translation>
    </message>
    <message>
        <source>Level 9</source>
        <translation>Level 9</translation>
    </message>
</context>
</TS>
