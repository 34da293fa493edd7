<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Codificador</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>FrameRate</source>
        <translation>Velocidad de fotogramas</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Frecuencia de muestreo</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Guardar como nuevo preajuste</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nombre del preajuste</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Vídeo web</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Propios</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Igual que el original</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Alta calidad</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Calidad media</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Baja calidad</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>customSave</source>
        <translation>Introduce un nombre para el nuevo preajuste:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Baja</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Máxima</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>Formato de archivo MP4</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>Formato de archivo MP4 con HEVC</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Formato de archivo MOV con Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>Formato de archivo MP4 para iTunes</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Formato de archivo Matroska</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Formato de archivo Matroska con HEVC</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Formato de archivo multimedia audiovisual</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>Formato de archivo AVI con XVID</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>Formato de archivo AVI con DIVX</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>Formato de archivo MXF con DNxHD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Formato de archivo MXF con Apple ProRes</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>Formato de archivo MPEG para VCD</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>Formato de archivo MPEG para SVCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>Formato de archivo MPEG para DVD-Vídeo</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>Formato de archivo 3GPP2</translation>
    </message>
    <message>
        <source>3GPP file format</source>
        <translation>Formato de archivo 3GPP</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Formato de archivo de audio Waveform</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Formato de archivo Audio Interchange</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Formato de archivo de audio simple</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Formato de archivo de audio Matroska</translation>
    </message>
    <message>
        <source>Smartphone</source>
        <translation>Smartphone</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>Tableta</translation>
    </message>
    <message>
        <source>Television</source>
        <translation>Televisor</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Videoconsola</translation>
    </message>
    <message>
        <source>Basic Phone</source>
        <translation>Teléfono básico</translation>
    </message>
    <message>
        <source>DVD Player</source>
        <translation>Reproductor de DVD</translation>
    </message>
    <message>
        <source>Video Sharing</source>
        <translation>Compartir vídeos</translation>
    </message>
    <message>
        <source>Social Square</source>
        <translation>Redes sociales (cuadrado)</translation>
    </message>
    <message>
        <source>Vertical Video</source>
        <translation>Vídeo vertical</translation>
    </message>
    <message>
        <source>WebM file format</source>
        <translation>Formato de archivo WebM</translation>
    </message>
    <message>
        <source>MP3 file format</source>
        <translation>Formato de archivo MP3</translation>
    </message>
    <message>
        <source>M4A file format with AAC</source>
        <translation>Formato de archivo M4A con AAC</translation>
    </message>
    <message>
        <source>FLAC file format</source>
        <translation>Formato de archivo FLAC</translation>
    </message>
    <message>
        <source>Square 1080p</source>
        <translation>Cuadrado 1080p</translation>
    </message>
    <message>
        <source>Vertical 1080p</source>
        <translation>Vertical 1080p</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sin pérdida</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Estéreo</translation>
    </message>
    <message>
        <source>5.1 Surround</source>
        <translation>Envolvente 5.1</translation>
    </message>
    <message>
        <source>Recent Selection</source>
        <translation>Selección reciente</translation>
    </message>
    <message>
        <source>Custom Preset</source>
        <translation>Preajuste personalizado</translation>
    </message>
    <message>
        <source>MP4 Format</source>
        <translation>Formato MP4</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formatos</translation>
    </message>
    <message>
        <source>Default format catalogue</source>
        <translation>Catálogo de formatos predeterminado</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Loading formats…</source>
        <translation>Cargando formatos…</translation>
    </message>
    <message>
        <source>The presets you choose appear here.</source>
        <translation>Aquí aparecen los preajustes que elija.</translation>
    </message>
    <message>
        <source>Presets you save with “Save as New Preset” appear here.</source>
        <translation>Aquí aparecen los preajustes que guarde con «Guardar como nuevo preajuste».</translation>
    </message>
    <message>
        <source>No matching presets</source>
        <translation>No hay preajustes que coincidan</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Elige un formato</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Names are limited to %1 characters.</source>
        <translation>Los nombres están limitados a %1 caracteres.</translation>
    </message>
    <message>
        <source>Next tab (%1)</source>
        <translation>Pestaña siguiente (%1)</translation>
    </message>
    <message>
        <source>Previous tab (%1)</source>
        <translation>Pestaña anterior (%1)</translation>
    </message>
    <message>
        <source>Move between tabs (%1)</source>
        <translation>Moverse entre pestañas (%1)</translation>
    </message>
    <message>
        <source>Type anywhere to search</source>
        <translation>Escribe en cualquier lugar para buscar</translation>
    </message>
    <message>
        <source>Move to the list (%1)</source>
        <translation>Ir a la lista (%1)</translation>
    </message>
    <message>
        <source>Choose the first match (%1)</source>
        <translation>Elegir la primera coincidencia (%1)</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Editar (%1)</translation>
    </message>
    <message>
        <source>Remove (%1)</source>
        <translation>Eliminar (%1)</translation>
    </message>
    <message>
        <source>Scroll tabs left</source>
        <translation>Desplazar pestañas a la izquierda</translation>
    </message>
    <message>
        <source>Scroll tabs right</source>
        <translation>Desplazar pestañas a la derecha</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Recent presets</source>
        <translation>Ajustes recientes</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Formats of %1</source>
        <translation>Formatos de %1</translation>
    </message>
    <message>
        <source>Presets of %1</source>
        <translation>Ajustes de %1</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Borrar búsqueda</translation>
    </message>
    <message>
        <source>Show all presets again</source>
        <translation>Volver a mostrar todos los ajustes</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder — try %2</source>
        <translation>Este FFmpeg no tiene el codificador %1 — prueba %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer — try %2</source>
        <translation>Este FFmpeg no tiene el multiplexor %1 — prueba %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder</source>
        <translation>Este FFmpeg no tiene el codificador %1</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer</source>
        <translation>Este FFmpeg no tiene el multiplexor %1</translation>
    </message>
    <message>
        <source>≈ %1 per 10 minutes</source>
        <translation>≈ %1 cada 10 minutos</translation>
    </message>
    <message>
        <source>%1 per 10 minutes</source>
        <translation>%1 cada 10 minutos</translation>
    </message>
    <message>
        <source>Size not known for an automatic codec</source>
        <translation>Tamaño desconocido con un códec automático</translation>
    </message>
    <message>
        <source>Manage Presets</source>
        <translation>Administrar preajustes</translation>
    </message>
    <message>
        <source>Manage Presets…</source>
        <translation>Administrar preajustes…</translation>
    </message>
    <message>
        <source>Your custom presets, by format</source>
        <translation>Sus preajustes personalizados, por formato</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Names already in use on import:</source>
        <translation>Nombres ya en uso al importar:</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Conservar ambos</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Preset files</source>
        <translation>Archivos de preajustes</translation>
    </message>
    <message>
        <source>Another preset of this format already has this name.</source>
        <translation>Otro preajuste de este formato ya tiene este nombre.</translation>
    </message>
    <message>
        <source>Imported: %1. Replaced: %2. Skipped: %3.</source>
        <translation>Importados: %1. Reemplazados: %2. Omitidos: %3.</translation>
    </message>
    <message>
        <source>Exported: %1.</source>
        <translation>Exportados: %1.</translation>
    </message>
    <message>
        <source>The file could not be imported: %1</source>
        <translation>No se pudo importar el archivo: %1</translation>
    </message>
    <message>
        <source>The presets could not be exported: %1</source>
        <translation>No se pudieron exportar los preajustes: %1</translation>
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
        <translation>Calculado para una fuente de %1 a %2 fps con sonido estéreo de %3 kHz donde el ajuste conserva los valores de la fuente.</translation>
    </message>
</context>
</TS>
