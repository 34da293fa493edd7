<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encodeur</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>FrameRate</source>
        <translation>Fréquence d’images</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>Enregistrer comme nouveau préréglage</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Vidéo web</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisés</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Identique à la source</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Haute qualité</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>Qualité moyenne</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Basse qualité</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>customSave</source>
        <translation>Saisissez un nom pour le nouveau préréglage&#xa0;:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Optimale</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>Format de fichier MP4</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>Format de fichier MP4 avec HEVC</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Format de fichier MOV avec Apple ProRes</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>Format de fichier MP4 pour iTunes</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Format de fichier Matroska</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>Format de fichier Matroska avec HEVC</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>Format de fichier multimédia audiovisuel</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>Format de fichier AVI avec XVID</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>Format de fichier AVI avec DIVX</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>Format de fichier MXF avec DNxHD</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Format de fichier MXF avec Apple ProRes</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>Format de fichier MPEG pour VCD</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>Format de fichier MPEG pour SVCD</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>Format de fichier MPEG pour DVD-Vidéo</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>Format de fichier 3GPP2</translation>
    </message>
    <message>
        <source>3GPP file format</source>
        <translation>Format de fichier 3GPP</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Format de fichier audio Waveform</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Format de fichier Audio Interchange</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>Format de fichier audio simple</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Format de fichier audio Matroska</translation>
    </message>
    <message>
        <source>Smartphone</source>
        <translation>Smartphone</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>Tablette</translation>
    </message>
    <message>
        <source>Television</source>
        <translation>Téléviseur</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Console de jeu</translation>
    </message>
    <message>
        <source>Basic Phone</source>
        <translation>Téléphone classique</translation>
    </message>
    <message>
        <source>DVD Player</source>
        <translation>Lecteur DVD</translation>
    </message>
    <message>
        <source>Video Sharing</source>
        <translation>Partage de vidéos</translation>
    </message>
    <message>
        <source>Social Square</source>
        <translation>Réseaux sociaux (carré)</translation>
    </message>
    <message>
        <source>Vertical Video</source>
        <translation>Vidéo verticale</translation>
    </message>
    <message>
        <source>WebM file format</source>
        <translation>Format de fichier WebM</translation>
    </message>
    <message>
        <source>MP3 file format</source>
        <translation>Format de fichier MP3</translation>
    </message>
    <message>
        <source>M4A file format with AAC</source>
        <translation>Format de fichier M4A avec AAC</translation>
    </message>
    <message>
        <source>FLAC file format</source>
        <translation>Format de fichier FLAC</translation>
    </message>
    <message>
        <source>Square 1080p</source>
        <translation>Carré 1080p</translation>
    </message>
    <message>
        <source>Vertical 1080p</source>
        <translation>Vertical 1080p</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stéréo</translation>
    </message>
    <message>
        <source>5.1 Surround</source>
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>Recent Selection</source>
        <translation>Sélection récente</translation>
    </message>
    <message>
        <source>Custom Preset</source>
        <translation>Préréglage personnalisé</translation>
    </message>
    <message>
        <source>MP4 Format</source>
        <translation>Format MP4</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formats</translation>
    </message>
    <message>
        <source>Default format catalogue</source>
        <translation>Catalogue de formats par défaut</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Loading formats…</source>
        <translation>Chargement des formats…</translation>
    </message>
    <message>
        <source>The presets you choose appear here.</source>
        <translation>Les préréglages que vous choisissez apparaissent ici.</translation>
    </message>
    <message>
        <source>Presets you save with “Save as New Preset” appear here.</source>
        <translation>Les préréglages enregistrés avec « Enregistrer comme nouveau préréglage » apparaissent ici.</translation>
    </message>
    <message>
        <source>No matching presets</source>
        <translation>Aucun préréglage correspondant</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>Choisissez un format</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Names are limited to %1 characters.</source>
        <translation>Les noms sont limités à %1 caractères.</translation>
    </message>
    <message>
        <source>Next tab (%1)</source>
        <translation>Onglet suivant (%1)</translation>
    </message>
    <message>
        <source>Previous tab (%1)</source>
        <translation>Onglet précédent (%1)</translation>
    </message>
    <message>
        <source>Move between tabs (%1)</source>
        <translation>Passer d’un onglet à l’autre (%1)</translation>
    </message>
    <message>
        <source>Type anywhere to search</source>
        <translation>Tapez n’importe où pour rechercher</translation>
    </message>
    <message>
        <source>Move to the list (%1)</source>
        <translation>Aller à la liste (%1)</translation>
    </message>
    <message>
        <source>Choose the first match (%1)</source>
        <translation>Choisir le premier résultat (%1)</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>Modifier (%1)</translation>
    </message>
    <message>
        <source>Remove (%1)</source>
        <translation>Supprimer (%1)</translation>
    </message>
    <message>
        <source>Scroll tabs left</source>
        <translation>Faire défiler les onglets vers la gauche</translation>
    </message>
    <message>
        <source>Scroll tabs right</source>
        <translation>Faire défiler les onglets vers la droite</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Recent presets</source>
        <translation>Préréglages récents</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>Formats of %1</source>
        <translation>Formats de %1</translation>
    </message>
    <message>
        <source>Presets of %1</source>
        <translation>Préréglages de %1</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Show all presets again</source>
        <translation>Afficher de nouveau tous les préréglages</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder — try %2</source>
        <translation>Ce FFmpeg n’a pas d’encodeur %1 — essayez %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer — try %2</source>
        <translation>Ce FFmpeg n’a pas de multiplexeur %1 — essayez %2</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder</source>
        <translation>Ce FFmpeg n’a pas d’encodeur %1</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer</source>
        <translation>Ce FFmpeg n’a pas de multiplexeur %1</translation>
    </message>
    <message>
        <source>≈ %1 per 10 minutes</source>
        <translation>≈ %1 par 10 minutes</translation>
    </message>
    <message>
        <source>%1 per 10 minutes</source>
        <translation>%1 par 10 minutes</translation>
    </message>
    <message>
        <source>Size not known for an automatic codec</source>
        <translation>Taille inconnue avec un codec automatique</translation>
    </message>
    <message>
        <source>Manage Presets</source>
        <translation>Gérer les préréglages</translation>
    </message>
    <message>
        <source>Manage Presets…</source>
        <translation>Gérer les préréglages…</translation>
    </message>
    <message>
        <source>Your custom presets, by format</source>
        <translation>Vos préréglages personnalisés, par format</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Names already in use on import:</source>
        <translation>Noms déjà utilisés à l’importation :</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Garder les deux</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Preset files</source>
        <translation>Fichiers de préréglages</translation>
    </message>
    <message>
        <source>Another preset of this format already has this name.</source>
        <translation>Un autre préréglage de ce format porte déjà ce nom.</translation>
    </message>
    <message>
        <source>Imported: %1. Replaced: %2. Skipped: %3.</source>
        <translation>Importés : %1. Remplacés : %2. Ignorés : %3.</translation>
    </message>
    <message>
        <source>Exported: %1.</source>
        <translation>Exportés : %1.</translation>
    </message>
    <message>
        <source>The file could not be imported: %1</source>
        <translation>Le fichier n’a pas pu être importé : %1</translation>
    </message>
    <message>
        <source>The presets could not be exported: %1</source>
        <translation>Les préréglages n’ont pas pu être exportés : %1</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 o</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 To</translation>
    </message>
    <message>
        <source>Sized for a source of %1 at %2 fps with %3 kHz stereo sound where the preset keeps the source's settings.</source>
        <translation>Calculé pour une source en %1 à %2 i/s avec un son stéréo à %3 kHz là où le préréglage garde les réglages de la source.</translation>
    </message>
</context>
</TS>
