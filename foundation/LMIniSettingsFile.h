// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Lumeran {

// One INI settings file as QSettings writes it, read and written line by line.
//
// Written here rather than through QSettings because a settings file is shared
// with the host and with other programs: a line QSettings cannot parse (a stray
// double quote swallows the lines after it, a byte order mark makes its status
// report an error for good) must not make our keys read empty and then be
// written over. Lines are parsed one at a time, every line this class does not
// write is kept as it stands, and writes go through QSettings' own lock file
// ("<file>.lock") and an atomic replace, so QSettings in any process reads
// what is written here and never half of it.
class LMIniSettingsFile {
public:
    using Values = std::map<std::string, std::string>;
    using Update = std::function<std::optional<Values>(const Values& current)>;

    // Settings files hold the host's settings and both lists; anything larger is
    // not one and is left alone.
    static constexpr std::int64_t MaxFileSize = std::int64_t(1) << 30;

    explicit LMIniSettingsFile(std::string path);

    const std::string& Path() const { return m_path; }

    // The value of key, the last line that sets it (as QSettings reads it); the
    // file is read again when it changed on disk.
    std::optional<std::string> Value(const std::string& key);
    // Earlier lines that set key too, which nobody reads any more; oldest first.
    std::vector<std::string> ShadowedValues(const std::string& key);

    // Under the file's lock: reads the file as it is now, hands update the current
    // values of keys (absent keys left out), and writes the values update returns
    // in place of theirs. Nothing is written when update returns nothing. False,
    // with *error set, when the file could not be read or written; update's own
    // refusal is not an error and returns false with *error empty.
    bool Write(const std::vector<std::string>& keys, const Update& update, std::string* error);

private:
    struct Entry {
        std::string key;
        std::size_t line = 0;
        // Where the value sits in its line, as written there: it is unescaped only
        // when it is asked for, so reading a file costs no more than splitting it.
        std::size_t valueStart = 0;
        std::size_t valueSize = 0;
    };
    struct Signature {
        std::int64_t modifiedNs = -1;
        std::int64_t size = -1;
        std::uint64_t inode = 0;
        bool operator==(const Signature&) const = default;
    };

    void Refresh();
    bool Read(std::string* error);
    void Parse(const std::string& text);
    std::string ValueOf(const Entry& entry) const;
    void Set(const std::string& key, const std::string& value);
    void RemoveLine(std::size_t line);
    void InsertLines(std::size_t at, std::vector<std::string> lines, Entry added);
    std::size_t InsertionLine(const std::string& section, bool* newSection) const;
    // The values of keys as the file holds them now; absent keys left out.
    Values CurrentValues(const std::vector<std::string>& keys) const;
    // Replaces the file with what this object holds, atomically.
    bool Commit(std::string* error) const;
    // Every line, with the byte order mark and line ends the file had, to fd.
    bool WriteLines(int fd) const;
    Signature Stat() const;

    std::string m_path;
    std::vector<std::string> m_lines;
    std::vector<Entry> m_entries; // in the order of their lines
    bool m_crlf = false;
    bool m_bom = false;
    // The file as this object last read or wrote it: while it is unchanged on
    // disk, what this object holds is what the file holds.
    Signature m_seen;
    std::string m_readError;
};

} // namespace Lumeran
