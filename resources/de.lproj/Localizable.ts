<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>FrameRate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Als neue Voreinstellung speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Name der Voreinstellung</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Webvideo</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Wie Quelle</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Hohe Qualität</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Mittlere Qualität</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Niedrige Qualität</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>customSave</source>
        <translation>Geben Sie einen Namen für die neue Voreinstellung ein:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>MP4-Dateiformat</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>MP4-Dateiformat mit HEVC</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>MOV-Dateiformat mit Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>MP4-Dateiformat für iTunes</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Matroska-Dateiformat</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Matroska-Dateiformat mit HEVC</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Audiovisuelles Mediendateiformat</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>AVI-Dateiformat mit XVID</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>AVI-Dateiformat mit DIVX</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>MXF-Dateiformat mit DNxHD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>MXF-Dateiformat mit Apple ProRes</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>MPEG-Dateiformat für VCD</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>MPEG-Dateiformat für SVCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>MPEG-Dateiformat für DVD-Video</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>3GPP2-Dateiformat</translation>
    </message>
    <message>
        <source>3GPP file format</source>
        <translation>3GPP-Dateiformat</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Waveform-Audio-Dateiformat</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Audio-Interchange-Dateiformat</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Einfaches Audio-Dateiformat</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Matroska-Audio-Dateiformat</translation>
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
        <translation>Fernseher</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Spielkonsole</translation>
    </message>
    <message>
        <source>Basic Phone</source>
        <translation>Einfaches Handy</translation>
    </message>
    <message>
        <source>DVD Player</source>
        <translation>DVD-Player</translation>
    </message>
    <message>
        <source>Video Sharing</source>
        <translation>Videoportale</translation>
    </message>
    <message>
        <source>Social Square</source>
        <translation>Soziale Medien (quadratisch)</translation>
    </message>
    <message>
        <source>Vertical Video</source>
        <translation>Hochformat-Video</translation>
    </message>
    <message>
        <source>WebM file format</source>
        <translation>WebM-Dateiformat</translation>
    </message>
    <message>
        <source>MP3 file format</source>
        <translation>MP3-Dateiformat</translation>
    </message>
    <message>
        <source>M4A file format with AAC</source>
        <translation>M4A-Dateiformat mit AAC</translation>
    </message>
    <message>
        <source>FLAC file format</source>
        <translation>FLAC-Dateiformat</translation>
    </message>
    <message>
        <source>Square 1080p</source>
        <translation>Quadratisch 1080p</translation>
    </message>
    <message>
        <source>Vertical 1080p</source>
        <translation>Hochformat 1080p</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
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
        <translation>5.1-Surround</translation>
    </message>
    <message>
        <source>Recent Selection</source>
        <translation>Zuletzt ausgewählt</translation>
    </message>
    <message>
        <source>Custom Preset</source>
        <translation>Eigene Voreinstellung</translation>
    </message>
    <message>
        <source>MP4 Format</source>
        <translation>MP4-Format</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formate</translation>
    </message>
    <message>
        <source>Default format catalogue</source>
        <translation>Standard-Formatkatalog</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Loading formats…</source>
        <translation>Formate werden geladen …</translation>
    </message>
    <message>
        <source>The presets you choose appear here.</source>
        <translation>Hier erscheinen die Voreinstellungen, die Sie wählen.</translation>
    </message>
    <message>
        <source>Presets you save with “Save as New Preset” appear here.</source>
        <translation>Hier erscheinen Voreinstellungen, die Sie mit „Als neue Voreinstellung speichern“ sichern.</translation>
    </message>
    <message>
        <source>No matching presets</source>
        <translation>Keine passenden Voreinstellungen</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Format auswählen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Names are limited to %1 characters.</source>
        <translation>Namen sind auf %1 Zeichen begrenzt.</translation>
    </message>
    <message>
        <source>Next tab (%1)</source>
        <translation>Nächster Tab (%1)</translation>
    </message>
    <message>
        <source>Previous tab (%1)</source>
        <translation>Vorheriger Tab (%1)</translation>
    </message>
    <message>
        <source>Move between tabs (%1)</source>
        <translation>Zwischen Tabs wechseln (%1)</translation>
    </message>
    <message>
        <source>Type anywhere to search</source>
        <translation>Einfach lostippen, um zu suchen</translation>
    </message>
    <message>
        <source>Move to the list (%1)</source>
        <translation>Zur Liste wechseln (%1)</translation>
    </message>
    <message>
        <source>Choose the first match (%1)</source>
        <translation>Ersten Treffer wählen (%1)</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Bearbeiten (%1)</translation>
    </message>
    <message>
        <source>Remove (%1)</source>
        <translation>Entfernen (%1)</translation>
    </message>
    <message>
        <source>Scroll tabs left</source>
        <translation>Tabs nach links blättern</translation>
    </message>
    <message>
        <source>Scroll tabs right</source>
        <translation>Tabs nach rechts blättern</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Recent presets</source>
        <translation>Zuletzt gewählte Voreinstellungen</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Voreinstellungen</translation>
    </message>
    <message>
        <source>Formats of %1</source>
        <translation>Formate unter %1</translation>
    </message>
    <message>
        <source>Presets of %1</source>
        <translation>Voreinstellungen für %1</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Show all presets again</source>
        <translation>Wieder alle Voreinstellungen zeigen</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder — try %2</source>
        <translation>Diesem FFmpeg fehlt der Encoder %1 — versuchen Sie %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer — try %2</source>
        <translation>Diesem FFmpeg fehlt der Muxer %1 — versuchen Sie %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder</source>
        <translation>Diesem FFmpeg fehlt der Encoder %1</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer</source>
        <translation>Diesem FFmpeg fehlt der Muxer %1</translation>
    </message>
    <message>
        <source>≈ %1 per 10 minutes</source>
        <translation>≈ %1 pro 10 Minuten</translation>
    </message>
    <message>
        <source>%1 per 10 minutes</source>
        <translation>%1 pro 10 Minuten</translation>
    </message>
    <message>
        <source>Size not known for an automatic codec</source>
        <translation>Größe bei automatischem Codec unbekannt</translation>
    </message>
    <message>
        <source>Manage Presets</source>
        <translation>Voreinstellungen verwalten</translation>
    </message>
    <message>
        <source>Manage Presets…</source>
        <translation>Voreinstellungen verwalten …</translation>
    </message>
    <message>
        <source>Your custom presets, by format</source>
        <translation>Ihre eigenen Voreinstellungen, nach Format</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Names already in use on import:</source>
        <translation>Beim Import bereits vergebene Namen:</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Preset files</source>
        <translation>Voreinstellungsdateien</translation>
    </message>
    <message>
        <source>Another preset of this format already has this name.</source>
        <translation>Eine andere Voreinstellung dieses Formats hat diesen Namen bereits.</translation>
    </message>
    <message>
        <source>Imported: %1. Replaced: %2. Skipped: %3.</source>
        <translation>Importiert: %1. Ersetzt: %2. Übersprungen: %3.</translation>
    </message>
    <message>
        <source>Exported: %1.</source>
        <translation>Exportiert: %1.</translation>
    </message>
    <message>
        <source>The file could not be imported: %1</source>
        <translation>Die Datei konnte nicht importiert werden: %1</translation>
    </message>
    <message>
        <source>The presets could not be exported: %1</source>
        <translation>Die Voreinstellungen konnten nicht exportiert werden: %1</translation>
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
        <translation>Berechnet für eine Quelle mit %1 bei %2 fps und %3 kHz Stereoton, wo die Voreinstellung die Werte der Quelle beibehält.</translation>
    </message>
</context>
</TS>
