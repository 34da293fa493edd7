<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>编码器</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>FrameRate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>采样率</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>声道</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>另存为新预设</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>预设名称</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近使用</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>网络视频</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>与源文件相同</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>高质量</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>中等质量</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>低质量</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>customSave</source>
        <translation>请输入新预设的名称：</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>最佳</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>MP4 文件格式</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>采用 HEVC 编码的 MP4 文件格式</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>采用 Apple ProRes 编码的 MOV 文件格式</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>适用于 iTunes 的 MP4 文件格式</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Matroska 文件格式</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>采用 HEVC 编码的 Matroska 文件格式</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>音视频媒体文件格式</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>采用 XVID 编码的 AVI 文件格式</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>采用 DIVX 编码的 AVI 文件格式</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>采用 DNxHD 编码的 MXF 文件格式</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>采用 Apple ProRes 编码的 MXF 文件格式</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>适用于 VCD 的 MPEG 文件格式</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>适用于 SVCD 的 MPEG 文件格式</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>适用于 DVD-Video 的 MPEG 文件格式</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>3GPP2 文件格式</translation>
    </message>
    <message>
        <source>3GPP file format</source>
        <translation>3GPP 文件格式</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>波形音频文件格式</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>音频交换文件格式</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>简单音频文件格式</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Matroska 音频文件格式</translation>
    </message>
    <message>
        <source>Smartphone</source>
        <translation>智能手机</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>平板电脑</translation>
    </message>
    <message>
        <source>Television</source>
        <translation>电视</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>游戏机</translation>
    </message>
    <message>
        <source>Basic Phone</source>
        <translation>功能手机</translation>
    </message>
    <message>
        <source>DVD Player</source>
        <translation>DVD 播放机</translation>
    </message>
    <message>
        <source>Video Sharing</source>
        <translation>视频分享</translation>
    </message>
    <message>
        <source>Social Square</source>
        <translation>社交方形</translation>
    </message>
    <message>
        <source>Vertical Video</source>
        <translation>竖屏视频</translation>
    </message>
    <message>
        <source>WebM file format</source>
        <translation>WebM 文件格式</translation>
    </message>
    <message>
        <source>MP3 file format</source>
        <translation>MP3 文件格式</translation>
    </message>
    <message>
        <source>M4A file format with AAC</source>
        <translation>采用 AAC 编码的 M4A 文件格式</translation>
    </message>
    <message>
        <source>FLAC file format</source>
        <translation>FLAC 文件格式</translation>
    </message>
    <message>
        <source>Square 1080p</source>
        <translation>方形 1080p</translation>
    </message>
    <message>
        <source>Vertical 1080p</source>
        <translation>竖屏 1080p</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>无损</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>单声道</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>立体声</translation>
    </message>
    <message>
        <source>5.1 Surround</source>
        <translation>5.1 环绕声</translation>
    </message>
    <message>
        <source>Recent Selection</source>
        <translation>最近的选择</translation>
    </message>
    <message>
        <source>Custom Preset</source>
        <translation>自定义预设</translation>
    </message>
    <message>
        <source>MP4 Format</source>
        <translation>MP4 格式</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Default format catalogue</source>
        <translation>默认格式目录</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Loading formats…</source>
        <translation>正在载入格式…</translation>
    </message>
    <message>
        <source>The presets you choose appear here.</source>
        <translation>您选择的预设会显示在这里。</translation>
    </message>
    <message>
        <source>Presets you save with “Save as New Preset” appear here.</source>
        <translation>用“另存为新预设”保存的预设会显示在这里。</translation>
    </message>
    <message>
        <source>No matching presets</source>
        <translation>没有匹配的预设</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>选择格式</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Names are limited to %1 characters.</source>
        <translation>名称最多 %1 个字符。</translation>
    </message>
    <message>
        <source>Next tab (%1)</source>
        <translation>下一个标签页（%1）</translation>
    </message>
    <message>
        <source>Previous tab (%1)</source>
        <translation>上一个标签页（%1）</translation>
    </message>
    <message>
        <source>Move between tabs (%1)</source>
        <translation>在标签页之间移动（%1）</translation>
    </message>
    <message>
        <source>Type anywhere to search</source>
        <translation>在任意位置输入即可搜索</translation>
    </message>
    <message>
        <source>Move to the list (%1)</source>
        <translation>移到列表（%1）</translation>
    </message>
    <message>
        <source>Choose the first match (%1)</source>
        <translation>选择第一个匹配项（%1）</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>编辑（%1）</translation>
    </message>
    <message>
        <source>Remove (%1)</source>
        <translation>移除（%1）</translation>
    </message>
    <message>
        <source>Scroll tabs left</source>
        <translation>向左滚动标签页</translation>
    </message>
    <message>
        <source>Scroll tabs right</source>
        <translation>向右滚动标签页</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Recent presets</source>
        <translation>最近的预设</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Formats of %1</source>
        <translation>%1 的格式</translation>
    </message>
    <message>
        <source>Presets of %1</source>
        <translation>%1 的预设</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Show all presets again</source>
        <translation>重新显示所有预设</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder — try %2</source>
        <translation>此 FFmpeg 没有 %1 编码器 — 请尝试 %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer — try %2</source>
        <translation>此 FFmpeg 没有 %1 复用器 — 请尝试 %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder</source>
        <translation>此 FFmpeg 没有 %1 编码器</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer</source>
        <translation>此 FFmpeg 没有 %1 复用器</translation>
    </message>
    <message>
        <source>≈ %1 per 10 minutes</source>
        <translation>每 10 分钟约 %1</translation>
    </message>
    <message>
        <source>%1 per 10 minutes</source>
        <translation>每 10 分钟 %1</translation>
    </message>
    <message>
        <source>Size not known for an automatic codec</source>
        <translation>自动编解码器无法估算大小</translation>
    </message>
    <message>
        <source>Manage Presets</source>
        <translation>管理预设</translation>
    </message>
    <message>
        <source>Manage Presets…</source>
        <translation>管理预设…</translation>
    </message>
    <message>
        <source>Your custom presets, by format</source>
        <translation>按格式排列的自定义预设</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Names already in use on import:</source>
        <translation>导入时名称已被使用：</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>保留两者</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Preset files</source>
        <translation>预设文件</translation>
    </message>
    <message>
        <source>Another preset of this format already has this name.</source>
        <translation>此格式中已有同名的预设。</translation>
    </message>
    <message>
        <source>Imported: %1. Replaced: %2. Skipped: %3.</source>
        <translation>已导入：%1。已替换：%2。已跳过：%3。</translation>
    </message>
    <message>
        <source>Exported: %1.</source>
        <translation>已导出：%1。</translation>
    </message>
    <message>
        <source>The file could not be imported: %1</source>
        <translation>无法导入该文件：%1</translation>
    </message>
    <message>
        <source>The presets could not be exported: %1</source>
        <translation>无法导出预设：%1</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>Sized for a source of %1 at %2 fps with %3 kHz stereo sound where the preset keeps the source's settings.</source>
        <translation>预设保留源设置的部分，按 %1、%2 fps、%3 kHz 立体声的源计算。</translation>
    </message>
</context>
</TS>
