<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Codificador</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>FrameRate</source>
        <translation>Taxa de quadros</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Salvar como nova predefinição</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nome da predefinição</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recentes</translation>
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
        <translation>Próprios</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Igual ao original</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Alta qualidade</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Qualidade média</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Baixa qualidade</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>customSave</source>
        <translation>Digite um nome para a nova predefinição:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
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
        <translation>Média</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Máxima</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>Formato de arquivo MP4</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>Formato de arquivo MP4 com HEVC</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Formato de arquivo MOV com Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>Formato de arquivo MP4 para iTunes</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Formato de arquivo Matroska</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Formato de arquivo Matroska com HEVC</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Formato de arquivo de mídia audiovisual</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>Formato de arquivo AVI com XVID</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>Formato de arquivo AVI com DIVX</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>Formato de arquivo MXF com DNxHD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Formato de arquivo MXF com Apple ProRes</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>Formato de arquivo MPEG para VCD</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>Formato de arquivo MPEG para SVCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>Formato de arquivo MPEG para DVD-Vídeo</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>Formato de arquivo 3GPP2</translation>
    </message>
    <message>
        <source>3GPP file format</source>
        <translation>Formato de arquivo 3GPP</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Formato de arquivo de áudio Waveform</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Formato de arquivo Audio Interchange</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Formato de arquivo de áudio simples</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Formato de arquivo de áudio Matroska</translation>
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
        <translation>Televisão</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Console de videogame</translation>
    </message>
    <message>
        <source>Basic Phone</source>
        <translation>Celular básico</translation>
    </message>
    <message>
        <source>DVD Player</source>
        <translation>Aparelho de DVD</translation>
    </message>
    <message>
        <source>Video Sharing</source>
        <translation>Compartilhamento de vídeos</translation>
    </message>
    <message>
        <source>Social Square</source>
        <translation>Redes sociais (quadrado)</translation>
    </message>
    <message>
        <source>Vertical Video</source>
        <translation>Vídeo vertical</translation>
    </message>
    <message>
        <source>WebM file format</source>
        <translation>Formato de arquivo WebM</translation>
    </message>
    <message>
        <source>MP3 file format</source>
        <translation>Formato de arquivo MP3</translation>
    </message>
    <message>
        <source>M4A file format with AAC</source>
        <translation>Formato de arquivo M4A com AAC</translation>
    </message>
    <message>
        <source>FLAC file format</source>
        <translation>Formato de arquivo FLAC</translation>
    </message>
    <message>
        <source>Square 1080p</source>
        <translation>Quadrado 1080p</translation>
    </message>
    <message>
        <source>Vertical 1080p</source>
        <translation>Vertical 1080p</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sem perdas</translation>
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
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>Recent Selection</source>
        <translation>Seleção recente</translation>
    </message>
    <message>
        <source>Custom Preset</source>
        <translation>Predefinição personalizada</translation>
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
        <translation>Catálogo de formatos padrão</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Loading formats…</source>
        <translation>Carregando formatos…</translation>
    </message>
    <message>
        <source>The presets you choose appear here.</source>
        <translation>As predefinições que você escolher aparecem aqui.</translation>
    </message>
    <message>
        <source>Presets you save with “Save as New Preset” appear here.</source>
        <translation>As predefinições salvas com “Salvar como nova predefinição” aparecem aqui.</translation>
    </message>
    <message>
        <source>No matching presets</source>
        <translation>Nenhuma predefinição correspondente</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Escolha um formato</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Names are limited to %1 characters.</source>
        <translation>Os nomes são limitados a %1 caracteres.</translation>
    </message>
    <message>
        <source>Next tab (%1)</source>
        <translation>Próxima aba (%1)</translation>
    </message>
    <message>
        <source>Previous tab (%1)</source>
        <translation>Aba anterior (%1)</translation>
    </message>
    <message>
        <source>Move between tabs (%1)</source>
        <translation>Mover entre abas (%1)</translation>
    </message>
    <message>
        <source>Type anywhere to search</source>
        <translation>Digite em qualquer lugar para pesquisar</translation>
    </message>
    <message>
        <source>Move to the list (%1)</source>
        <translation>Ir para a lista (%1)</translation>
    </message>
    <message>
        <source>Choose the first match (%1)</source>
        <translation>Escolher o primeiro resultado (%1)</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Editar (%1)</translation>
    </message>
    <message>
        <source>Remove (%1)</source>
        <translation>Remover (%1)</translation>
    </message>
    <message>
        <source>Scroll tabs left</source>
        <translation>Rolar abas para a esquerda</translation>
    </message>
    <message>
        <source>Scroll tabs right</source>
        <translation>Rolar abas para a direita</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Escolher</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorias</translation>
    </message>
    <message>
        <source>Recent presets</source>
        <translation>Predefinições recentes</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>Formats of %1</source>
        <translation>Formatos de %1</translation>
    </message>
    <message>
        <source>Presets of %1</source>
        <translation>Predefinições de %1</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Limpar pesquisa</translation>
    </message>
    <message>
        <source>Show all presets again</source>
        <translation>Mostrar de novo todas as predefinições</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder — try %2</source>
        <translation>Este FFmpeg não tem o codificador %1 — experimente %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer — try %2</source>
        <translation>Este FFmpeg não tem o multiplexador %1 — experimente %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder</source>
        <translation>Este FFmpeg não tem o codificador %1</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer</source>
        <translation>Este FFmpeg não tem o multiplexador %1</translation>
    </message>
    <message>
        <source>≈ %1 per 10 minutes</source>
        <translation>≈ %1 a cada 10 minutos</translation>
    </message>
    <message>
        <source>%1 per 10 minutes</source>
        <translation>%1 a cada 10 minutos</translation>
    </message>
    <message>
        <source>Size not known for an automatic codec</source>
        <translation>Tamanho desconhecido com um codec automático</translation>
    </message>
    <message>
        <source>Manage Presets</source>
        <translation>Gerenciar predefinições</translation>
    </message>
    <message>
        <source>Manage Presets…</source>
        <translation>Gerenciar predefinições…</translation>
    </message>
    <message>
        <source>Your custom presets, by format</source>
        <translation>Suas predefinições personalizadas, por formato</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mover para cima</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mover para baixo</translation>
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
        <translation>Nomes já em uso ao importar:</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Manter ambos</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Preset files</source>
        <translation>Arquivos de predefinições</translation>
    </message>
    <message>
        <source>Another preset of this format already has this name.</source>
        <translation>Outra predefinição deste formato já tem este nome.</translation>
    </message>
    <message>
        <source>Imported: %1. Replaced: %2. Skipped: %3.</source>
        <translation>Importadas: %1. Substituídas: %2. Ignoradas: %3.</translation>
    </message>
    <message>
        <source>Exported: %1.</source>
        <translation>Exportadas: %1.</translation>
    </message>
    <message>
        <source>The file could not be imported: %1</source>
        <translation>Não foi possível importar o arquivo: %1</translation>
    </message>
    <message>
        <source>The presets could not be exported: %1</source>
        <translation>Não foi possível exportar as predefinições: %1</translation>
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
        <translation>Calculado para uma fonte de %1 a %2 fps com som estéreo de %3 kHz onde a predefinição mantém os valores da fonte.</translation>
    </message>
</context>
</TS>
