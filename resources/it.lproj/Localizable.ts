<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
        <translation>Codificatore</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>FrameRate</source>
        <translation>Frequenza fotogrammi</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frequenza di campionamento</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Salva come nuova preimpostazione</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nome della preimpostazione</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recenti</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Video web</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personali</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Uguale alla sorgente</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Alta qualità</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Qualità media</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Bassa qualità</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>customSave</source>
        <translation>Inserisci un nome per la nuova preimpostazione:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Massima</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>Formato file MP4</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>Formato file MP4 con HEVC</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Formato file MOV con Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>Formato file MP4 per iTunes</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Formato file Matroska</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Formato file Matroska con HEVC</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Formato file multimediale audiovisivo</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>Formato file AVI con XVID</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>Formato file AVI con DIVX</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>Formato file MXF con DNxHD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Formato file MXF con Apple ProRes</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>Formato file MPEG per VCD</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>Formato file MPEG per SVCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>Formato file MPEG per DVD-Video</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>Formato file 3GPP2</translation>
    </message>
    <message>
        <source>3GPP file format</source>
        <translation>Formato file 3GPP</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Formato file audio Waveform</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Formato file Audio Interchange</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Formato file audio semplice</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Formato file audio Matroska</translation>
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
        <translation>Televisore</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Console per videogiochi</translation>
    </message>
    <message>
        <source>Basic Phone</source>
        <translation>Cellulare classico</translation>
    </message>
    <message>
        <source>DVD Player</source>
        <translation>Lettore DVD</translation>
    </message>
    <message>
        <source>Video Sharing</source>
        <translation>Condivisione video</translation>
    </message>
    <message>
        <source>Social Square</source>
        <translation>Social (quadrato)</translation>
    </message>
    <message>
        <source>Vertical Video</source>
        <translation>Video verticale</translation>
    </message>
    <message>
        <source>WebM file format</source>
        <translation>Formato file WebM</translation>
    </message>
    <message>
        <source>MP3 file format</source>
        <translation>Formato file MP3</translation>
    </message>
    <message>
        <source>M4A file format with AAC</source>
        <translation>Formato file M4A con AAC</translation>
    </message>
    <message>
        <source>FLAC file format</source>
        <translation>Formato file FLAC</translation>
    </message>
    <message>
        <source>Square 1080p</source>
        <translation>Quadrato 1080p</translation>
    </message>
    <message>
        <source>Vertical 1080p</source>
        <translation>Verticale 1080p</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Senza perdita</translation>
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
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>Recent Selection</source>
        <translation>Selezione recente</translation>
    </message>
    <message>
        <source>Custom Preset</source>
        <translation>Preimpostazione personalizzata</translation>
    </message>
    <message>
        <source>MP4 Format</source>
        <translation>Formato MP4</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formati</translation>
    </message>
    <message>
        <source>Default format catalogue</source>
        <translation>Catalogo dei formati predefinito</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Loading formats…</source>
        <translation>Caricamento dei formati…</translation>
    </message>
    <message>
        <source>The presets you choose appear here.</source>
        <translation>Qui compaiono le preimpostazioni che scegli.</translation>
    </message>
    <message>
        <source>Presets you save with “Save as New Preset” appear here.</source>
        <translation>Qui compaiono le preimpostazioni salvate con «Salva come nuova preimpostazione».</translation>
    </message>
    <message>
        <source>No matching presets</source>
        <translation>Nessuna preimpostazione corrispondente</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Scegli un formato</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Names are limited to %1 characters.</source>
        <translation>I nomi sono limitati a %1 caratteri.</translation>
    </message>
    <message>
        <source>Next tab (%1)</source>
        <translation>Scheda successiva (%1)</translation>
    </message>
    <message>
        <source>Previous tab (%1)</source>
        <translation>Scheda precedente (%1)</translation>
    </message>
    <message>
        <source>Move between tabs (%1)</source>
        <translation>Spostarsi tra le schede (%1)</translation>
    </message>
    <message>
        <source>Type anywhere to search</source>
        <translation>Digita ovunque per cercare</translation>
    </message>
    <message>
        <source>Move to the list (%1)</source>
        <translation>Vai all’elenco (%1)</translation>
    </message>
    <message>
        <source>Choose the first match (%1)</source>
        <translation>Scegli la prima corrispondenza (%1)</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Modifica (%1)</translation>
    </message>
    <message>
        <source>Remove (%1)</source>
        <translation>Rimuovi (%1)</translation>
    </message>
    <message>
        <source>Scroll tabs left</source>
        <translation>Scorri le schede a sinistra</translation>
    </message>
    <message>
        <source>Scroll tabs right</source>
        <translation>Scorri le schede a destra</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorie</translation>
    </message>
    <message>
        <source>Recent presets</source>
        <translation>Preimpostazioni recenti</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Preimpostazioni</translation>
    </message>
    <message>
        <source>Formats of %1</source>
        <translation>Formati di %1</translation>
    </message>
    <message>
        <source>Presets of %1</source>
        <translation>Preimpostazioni di %1</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Cancella ricerca</translation>
    </message>
    <message>
        <source>Show all presets again</source>
        <translation>Mostra di nuovo tutte le preimpostazioni</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder — try %2</source>
        <translation>Questo FFmpeg non ha l’encoder %1 — prova %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer — try %2</source>
        <translation>Questo FFmpeg non ha il muxer %1 — prova %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder</source>
        <translation>Questo FFmpeg non ha l’encoder %1</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer</source>
        <translation>Questo FFmpeg non ha il muxer %1</translation>
    </message>
    <message>
        <source>≈ %1 per 10 minutes</source>
        <translation>≈ %1 ogni 10 minuti</translation>
    </message>
    <message>
        <source>%1 per 10 minutes</source>
        <translation>%1 ogni 10 minuti</translation>
    </message>
    <message>
        <source>Size not known for an automatic codec</source>
        <translation>Dimensione sconosciuta con un codec automatico</translation>
    </message>
    <message>
        <source>Manage Presets</source>
        <translation>Gestisci preimpostazioni</translation>
    </message>
    <message>
        <source>Manage Presets…</source>
        <translation>Gestisci preimpostazioni…</translation>
    </message>
    <message>
        <source>Your custom presets, by format</source>
        <translation>Le tue preimpostazioni personalizzate, per formato</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplica</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Sposta su</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Sposta giù</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importa…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Names already in use on import:</source>
        <translation>Nomi già in uso durante l’importazione:</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Mantieni entrambi</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Salta</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Preset files</source>
        <translation>File di preimpostazioni</translation>
    </message>
    <message>
        <source>Another preset of this format already has this name.</source>
        <translation>Un’altra preimpostazione di questo formato ha già questo nome.</translation>
    </message>
    <message>
        <source>Imported: %1. Replaced: %2. Skipped: %3.</source>
        <translation>Importate: %1. Sostituite: %2. Saltate: %3.</translation>
    </message>
    <message>
        <source>Exported: %1.</source>
        <translation>Esportate: %1.</translation>
    </message>
    <message>
        <source>The file could not be imported: %1</source>
        <translation>Impossibile importare il file: %1</translation>
    </message>
    <message>
        <source>The presets could not be exported: %1</source>
        <translation>Impossibile esportare le preimpostazioni: %1</translation>
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
        <translation>Calcolato per una sorgente %1 a %2 fps con audio stereo a %3 kHz dove la preimpostazione mantiene i valori della sorgente.</translation>
    </message>
</context>
</TS>
