<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>FrameRate</source>
        <translation>Frame Rate</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Sample Rate</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Save as New Preset</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Preset name</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recent</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Web Video</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Same as source</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>High Quality</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Medium Quality</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Low Quality</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>customSave</source>
        <translation>Enter a name for the new preset:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Best</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>MP4 file format</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>MP4 file format with HEVC</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>MOV file format with Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>MP4 file format for iTunes</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Matroska file format</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Matroska file format with HEVC</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Audiovisual Media file format</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>AVI file format with XVID</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>AVI file format with DIVX</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>MXF file format with DNxHD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>MXF file format with Apple ProRes</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>MPEG file format for VCD</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>MPEG file format for SVCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>MPEG file format for DVD-Video</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>3GPP2 file format</translation>
    </message>
    <message>
        <source>3GPP file format</source>
        <translation>3GPP file format</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Waveform Audio File Format</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Audio Interchange File Format</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Simple Audio File Format</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Matroska Audio File Format</translation>
    </message>
    <message>
        <source>Smartphone</source>
        <translation>Smartphone</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>Tablet</translation>
    </message>
    <message>
        <source>Television</source>
        <translation>Television</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Game Console</translation>
    </message>
    <message>
        <source>Basic Phone</source>
        <translation>Basic Phone</translation>
    </message>
    <message>
        <source>DVD Player</source>
        <translation>DVD Player</translation>
    </message>
    <message>
        <source>Video Sharing</source>
        <translation>Video Sharing</translation>
    </message>
    <message>
        <source>Social Square</source>
        <translation>Social Square</translation>
    </message>
    <message>
        <source>Vertical Video</source>
        <translation>Vertical Video</translation>
    </message>
    <message>
        <source>WebM file format</source>
        <translation>WebM file format</translation>
    </message>
    <message>
        <source>MP3 file format</source>
        <translation>MP3 file format</translation>
    </message>
    <message>
        <source>M4A file format with AAC</source>
        <translation>M4A file format with AAC</translation>
    </message>
    <message>
        <source>FLAC file format</source>
        <translation>FLAC file format</translation>
    </message>
    <message>
        <source>Square 1080p</source>
        <translation>Square 1080p</translation>
    </message>
    <message>
        <source>Vertical 1080p</source>
        <translation>Vertical 1080p</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Lossless</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>5.1 Surround</source>
        <translation>5.1 Surround</translation>
    </message>
    <message>
        <source>Recent Selection</source>
        <translation>Recent Selection</translation>
    </message>
    <message>
        <source>Custom Preset</source>
        <translation>Custom Preset</translation>
    </message>
    <message>
        <source>MP4 Format</source>
        <translation>MP4 Format</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formats</translation>
    </message>
    <message>
        <source>Default format catalogue</source>
        <translation>Default format catalogue</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Loading formats…</source>
        <translation>Loading formats…</translation>
    </message>
    <message>
        <source>The presets you choose appear here.</source>
        <translation>The presets you choose appear here.</translation>
    </message>
    <message>
        <source>Presets you save with “Save as New Preset” appear here.</source>
        <translation>Presets you save with “Save as New Preset” appear here.</translation>
    </message>
    <message>
        <source>No matching presets</source>
        <translation>No matching presets</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Choose a format</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Names are limited to %1 characters.</source>
        <translation>Names are limited to %1 characters.</translation>
    </message>
    <message>
        <source>Next tab (%1)</source>
        <translation>Next tab (%1)</translation>
    </message>
    <message>
        <source>Previous tab (%1)</source>
        <translation>Previous tab (%1)</translation>
    </message>
    <message>
        <source>Move between tabs (%1)</source>
        <translation>Move between tabs (%1)</translation>
    </message>
    <message>
        <source>Type anywhere to search</source>
        <translation>Type anywhere to search</translation>
    </message>
    <message>
        <source>Move to the list (%1)</source>
        <translation>Move to the list (%1)</translation>
    </message>
    <message>
        <source>Choose the first match (%1)</source>
        <translation>Choose the first match (%1)</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Edit (%1)</translation>
    </message>
    <message>
        <source>Remove (%1)</source>
        <translation>Remove (%1)</translation>
    </message>
    <message>
        <source>Scroll tabs left</source>
        <translation>Scroll tabs left</translation>
    </message>
    <message>
        <source>Scroll tabs right</source>
        <translation>Scroll tabs right</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categories</translation>
    </message>
    <message>
        <source>Recent presets</source>
        <translation>Recent presets</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Presets</translation>
    </message>
    <message>
        <source>Formats of %1</source>
        <translation>Formats of %1</translation>
    </message>
    <message>
        <source>Presets of %1</source>
        <translation>Presets of %1</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Clear search</translation>
    </message>
    <message>
        <source>Show all presets again</source>
        <translation>Show all presets again</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder — try %2</source>
        <translation>This FFmpeg has no %1 encoder — try %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer — try %2</source>
        <translation>This FFmpeg has no %1 muxer — try %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder</source>
        <translation>This FFmpeg has no %1 encoder</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer</source>
        <translation>This FFmpeg has no %1 muxer</translation>
    </message>
    <message>
        <source>≈ %1 per 10 minutes</source>
        <translation>≈ %1 per 10 minutes</translation>
    </message>
    <message>
        <source>%1 per 10 minutes</source>
        <translation>%1 per 10 minutes</translation>
    </message>
    <message>
        <source>Size not known for an automatic codec</source>
        <translation>Size not known for an automatic codec</translation>
    </message>
    <message>
        <source>Manage Presets</source>
        <translation>Manage Presets</translation>
    </message>
    <message>
        <source>Manage Presets…</source>
        <translation>Manage Presets…</translation>
    </message>
    <message>
        <source>Your custom presets, by format</source>
        <translation>Your custom presets, by format</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicate</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Import…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Names already in use on import:</source>
        <translation>Names already in use on import:</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Keep both</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Preset files</source>
        <translation>Preset files</translation>
    </message>
    <message>
        <source>Another preset of this format already has this name.</source>
        <translation>Another preset of this format already has this name.</translation>
    </message>
    <message>
        <source>Imported: %1. Replaced: %2. Skipped: %3.</source>
        <translation>Imported: %1. Replaced: %2. Skipped: %3.</translation>
    </message>
    <message>
        <source>Exported: %1.</source>
        <translation>Exported: %1.</translation>
    </message>
    <message>
        <source>The file could not be imported: %1</source>
        <translation>The file could not be imported: %1</translation>
    </message>
    <message>
        <source>The presets could not be exported: %1</source>
        <translation>The presets could not be exported: %1</translation>
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
        <translation>Sized for a source of %1 at %2 fps with %3 kHz stereo sound where the preset keeps the source's settings.</translation>
    </message>
</context>
</TS>
