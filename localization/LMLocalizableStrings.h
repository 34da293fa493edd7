// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QtGlobal>

#include <array>

// Every key of the framework's string tables, marked for lupdate in the one
// context of the tables. `cmake --build <build> --target update_translations`
// brings resources/<code>.lproj/Localizable.ts in line with this list: a key
// added here appears in every table as unfinished, a key removed here leaves
// them. A text the popup shows is looked up by its key, so a key missing from
// this list shows untranslated.
//
// Header only: the manager builds its allKey list from it, and the tests compare
// the tables against it without linking anything.
class LMLocalizableStrings {
public:
    // The context of every message in the tables.
    static constexpr char context[] = "Localizable";

    // The keys whose bound values follow a change of language, in the order their
    // change notices go out. "Audio Interchange File Format" and "Simple Audio
    // File Format" stand here twice on purpose: each gets two notices.
    static constexpr std::array<const char*, 51> boundKeys{
        QT_TRANSLATE_NOOP("Localizable", "Video"),
        QT_TRANSLATE_NOOP("Localizable", "Audio"),
        QT_TRANSLATE_NOOP("Localizable", "Encoder"),
        QT_TRANSLATE_NOOP("Localizable", "Resolution"),
        QT_TRANSLATE_NOOP("Localizable", "FrameRate"),
        QT_TRANSLATE_NOOP("Localizable", "Quality"),
        QT_TRANSLATE_NOOP("Localizable", "Sample Rate"),
        QT_TRANSLATE_NOOP("Localizable", "Channel"),
        QT_TRANSLATE_NOOP("Localizable", "Save as New Preset"),
        QT_TRANSLATE_NOOP("Localizable", "Save"),
        QT_TRANSLATE_NOOP("Localizable", "preset name"),
        QT_TRANSLATE_NOOP("Localizable", "Recent"),
        QT_TRANSLATE_NOOP("Localizable", "Device"),
        QT_TRANSLATE_NOOP("Localizable", "Web Video"),
        QT_TRANSLATE_NOOP("Localizable", "Custom"),
        QT_TRANSLATE_NOOP("Localizable", "Search"),
        QT_TRANSLATE_NOOP("Localizable", "Same as source"),
        QT_TRANSLATE_NOOP("Localizable", "Auto"),
        QT_TRANSLATE_NOOP("Localizable", "High Quality"),
        QT_TRANSLATE_NOOP("Localizable", "Medium Quality"),
        QT_TRANSLATE_NOOP("Localizable", "Low Quality"),
        QT_TRANSLATE_NOOP("Localizable", "Settings"),
        QT_TRANSLATE_NOOP("Localizable", "customSave"),
        QT_TRANSLATE_NOOP("Localizable", "Reset"),
        QT_TRANSLATE_NOOP("Localizable", "Cancel"),
        QT_TRANSLATE_NOOP("Localizable", "High"),
        QT_TRANSLATE_NOOP("Localizable", "Medium"),
        QT_TRANSLATE_NOOP("Localizable", "Low"),
        QT_TRANSLATE_NOOP("Localizable", "Best"),
        QT_TRANSLATE_NOOP("Localizable", "MP4 file format"),
        QT_TRANSLATE_NOOP("Localizable", "MP4 file format with HEVC"),
        QT_TRANSLATE_NOOP("Localizable", "MOV file format with Apple ProRes"),
        QT_TRANSLATE_NOOP("Localizable", "MP4 file format for iTunes"),
        QT_TRANSLATE_NOOP("Localizable", "Matroska file format"),
        QT_TRANSLATE_NOOP("Localizable", "Matroska file format with HEVC"),
        QT_TRANSLATE_NOOP("Localizable", "Audiovisual Media file format"),
        QT_TRANSLATE_NOOP("Localizable", "AVI file format with XVID"),
        QT_TRANSLATE_NOOP("Localizable", "AVI file format with DIVX"),
        QT_TRANSLATE_NOOP("Localizable", "MXF file format with DNxHD"),
        QT_TRANSLATE_NOOP("Localizable", "MXF file format with Apple ProRes"),
        QT_TRANSLATE_NOOP("Localizable", "MPEG File format for VCD"),
        QT_TRANSLATE_NOOP("Localizable", "MPEG file format for SVCD"),
        QT_TRANSLATE_NOOP("Localizable", "MPEG file format for DVD - Video"),
        QT_TRANSLATE_NOOP("Localizable", "3GPP2 file format"),
        QT_TRANSLATE_NOOP("Localizable", "3GPP file format"),
        QT_TRANSLATE_NOOP("Localizable", "Waveform Audio File Format"),
        QT_TRANSLATE_NOOP("Localizable", "Audio Interchange File Format"),
        QT_TRANSLATE_NOOP("Localizable", "Simple Audio File Format"),
        QT_TRANSLATE_NOOP("Localizable", "Audio Interchange File Format"),
        QT_TRANSLATE_NOOP("Localizable", "Simple Audio File Format"),
        QT_TRANSLATE_NOOP("Localizable", "Matroska Audio File Format"),
    };

    // Keys that are looked up but not bound: the titles and descriptions of the
    // default catalogue and of the lists the data source makes, the option names
    // of the preset editor, and the words of the popup and the editor.
    static constexpr std::array<const char*, 84> otherKeys{
        // Titles and descriptions of the default catalogue.
        QT_TRANSLATE_NOOP("Localizable", "Smartphone"),
        QT_TRANSLATE_NOOP("Localizable", "Tablet"),
        QT_TRANSLATE_NOOP("Localizable", "Television"),
        QT_TRANSLATE_NOOP("Localizable", "Game Console"),
        QT_TRANSLATE_NOOP("Localizable", "Basic Phone"),
        QT_TRANSLATE_NOOP("Localizable", "DVD Player"),
        QT_TRANSLATE_NOOP("Localizable", "Video Sharing"),
        QT_TRANSLATE_NOOP("Localizable", "Social Square"),
        QT_TRANSLATE_NOOP("Localizable", "Vertical Video"),
        QT_TRANSLATE_NOOP("Localizable", "WebM file format"),
        QT_TRANSLATE_NOOP("Localizable", "MP3 file format"),
        QT_TRANSLATE_NOOP("Localizable", "M4A file format with AAC"),
        QT_TRANSLATE_NOOP("Localizable", "FLAC file format"),
        QT_TRANSLATE_NOOP("Localizable", "Square 1080p"),
        QT_TRANSLATE_NOOP("Localizable", "Vertical 1080p"),
        QT_TRANSLATE_NOOP("Localizable", "Lossless"),
        // Option names of the preset editor.
        QT_TRANSLATE_NOOP("Localizable", "Mono"),
        QT_TRANSLATE_NOOP("Localizable", "Stereo"),
        QT_TRANSLATE_NOOP("Localizable", "5.1 Surround"),
        // Descriptions of the recent and custom trees and of the default preset.
        QT_TRANSLATE_NOOP("Localizable", "Recent Selection"),
        QT_TRANSLATE_NOOP("Localizable", "Custom Preset"),
        QT_TRANSLATE_NOOP("Localizable", "MP4 Format"),
        // The root of the default catalogue.
        QT_TRANSLATE_NOOP("Localizable", "Formats"),
        QT_TRANSLATE_NOOP("Localizable", "Default format catalogue"),
        // Words of the popup, its lists and the name prompt.
        QT_TRANSLATE_NOOP("Localizable", "Edit"),
        QT_TRANSLATE_NOOP("Localizable", "Remove"),
        QT_TRANSLATE_NOOP("Localizable", "Loading formats…"),
        QT_TRANSLATE_NOOP("Localizable", "The presets you choose appear here."),
        QT_TRANSLATE_NOOP("Localizable", "Presets you save with “Save as New Preset” appear here."),
        QT_TRANSLATE_NOOP("Localizable", "No matching presets"),
        QT_TRANSLATE_NOOP("Localizable", "Choose a format"),
        QT_TRANSLATE_NOOP("Localizable", "Format"),
        QT_TRANSLATE_NOOP("Localizable", "Names are limited to %1 characters."),
        // Tool tips naming the keys (%1: the keys in the platform's words).
        QT_TRANSLATE_NOOP("Localizable", "Next tab (%1)"),
        QT_TRANSLATE_NOOP("Localizable", "Previous tab (%1)"),
        QT_TRANSLATE_NOOP("Localizable", "Move between tabs (%1)"),
        QT_TRANSLATE_NOOP("Localizable", "Scroll tabs left"),
        QT_TRANSLATE_NOOP("Localizable", "Scroll tabs right"),
        QT_TRANSLATE_NOOP("Localizable", "Type anywhere to search"),
        QT_TRANSLATE_NOOP("Localizable", "Move to the list (%1)"),
        QT_TRANSLATE_NOOP("Localizable", "Choose the first match (%1)"),
        QT_TRANSLATE_NOOP("Localizable", "Edit (%1)"),
        QT_TRANSLATE_NOOP("Localizable", "Remove (%1)"),
        // What screen readers say of the popup's parts and of a row's actions.
        QT_TRANSLATE_NOOP("Localizable", "Choose"),
        QT_TRANSLATE_NOOP("Localizable", "Categories"),
        QT_TRANSLATE_NOOP("Localizable", "Recent presets"),
        QT_TRANSLATE_NOOP("Localizable", "Presets"),
        QT_TRANSLATE_NOOP("Localizable", "Formats of %1"),
        QT_TRANSLATE_NOOP("Localizable", "Presets of %1"),
        QT_TRANSLATE_NOOP("Localizable", "Clear search"),
        QT_TRANSLATE_NOOP("Localizable", "Show all presets again"),
        // Presets the host's FFmpeg cannot run (%1: FFmpeg's name of what it
        // lacks, "libx265"; %2: the format and preset to pick instead).
        QT_TRANSLATE_NOOP("Localizable", "This FFmpeg has no %1 encoder — try %2"),
        QT_TRANSLATE_NOOP("Localizable", "This FFmpeg has no %1 muxer — try %2"),
        QT_TRANSLATE_NOOP("Localizable", "This FFmpeg has no %1 encoder"),
        QT_TRANSLATE_NOOP("Localizable", "This FFmpeg has no %1 muxer"),
        // The editor's size estimate (%1: "45–80 MB" or "14 MB").
        QT_TRANSLATE_NOOP("Localizable", "≈ %1 per 10 minutes"),
        QT_TRANSLATE_NOOP("Localizable", "%1 per 10 minutes"),
        QT_TRANSLATE_NOOP("Localizable", "Size not known for an automatic codec"),
        // Sizes in the language's units (%1: the number, in the language's digits).
        QT_TRANSLATE_NOOP("Localizable", "%1 B"),
        QT_TRANSLATE_NOOP("Localizable", "%1 kB"),
        QT_TRANSLATE_NOOP("Localizable", "%1 MB"),
        QT_TRANSLATE_NOOP("Localizable", "%1 GB"),
        QT_TRANSLATE_NOOP("Localizable", "%1 TB"),
        // %1: "1920x1080"; %2: frames per second; %3: kilohertz.
        QT_TRANSLATE_NOOP("Localizable", "Sized for a source of %1 at %2 fps with %3 kHz stereo "
                                         "sound where the preset keeps the source's settings."),
        // Words of the preset manager.
        QT_TRANSLATE_NOOP("Localizable", "Manage Presets"),
        QT_TRANSLATE_NOOP("Localizable", "Manage Presets…"),
        QT_TRANSLATE_NOOP("Localizable", "Your custom presets, by format"),
        QT_TRANSLATE_NOOP("Localizable", "Rename"),
        QT_TRANSLATE_NOOP("Localizable", "Duplicate"),
        QT_TRANSLATE_NOOP("Localizable", "Move Up"),
        QT_TRANSLATE_NOOP("Localizable", "Move Down"),
        QT_TRANSLATE_NOOP("Localizable", "Import…"),
        QT_TRANSLATE_NOOP("Localizable", "Export…"),
        QT_TRANSLATE_NOOP("Localizable", "Names already in use on import:"),
        QT_TRANSLATE_NOOP("Localizable", "Keep both"),
        QT_TRANSLATE_NOOP("Localizable", "Skip"),
        QT_TRANSLATE_NOOP("Localizable", "Replace"),
        QT_TRANSLATE_NOOP("Localizable", "Close"),
        QT_TRANSLATE_NOOP("Localizable", "Preset files"),
        QT_TRANSLATE_NOOP("Localizable", "Another preset of this format already has this name."),
        QT_TRANSLATE_NOOP("Localizable", "Imported: %1. Replaced: %2. Skipped: %3."),
        QT_TRANSLATE_NOOP("Localizable", "Exported: %1."),
        QT_TRANSLATE_NOOP("Localizable", "The file could not be imported: %1"),
        QT_TRANSLATE_NOOP("Localizable", "The presets could not be exported: %1"),
    };

    // boundKeys as the manager hands them out, duplicates included.
    static QStringList boundKeyList() { return toList(boundKeys); }

    // Every key of the tables once, in the order the tables hold them.
    static QStringList keyList() {
        QStringList keys = toList(boundKeys) + toList(otherKeys);
        keys.removeDuplicates();
        return keys;
    }

private:
    template <std::size_t N>
    static QStringList toList(const std::array<const char*, N>& keys) {
        QStringList list;
        list.reserve(static_cast<qsizetype>(N));
        for (const char* key : keys)
            list << QString::fromUtf8(key);
        return list;
    }
};
