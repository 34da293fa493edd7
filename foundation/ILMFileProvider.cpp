// SPDX-License-Identifier: MIT
#include "ILMFileProvider.h"

#include "ILMJsonValue.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Lumeran {

namespace {

bool Fail(std::string* error, const std::string& message) {
    if (error)
        *error = message;
    return false;
}

bool ReadResource(const std::string& path, std::int64_t maxBytes, std::string* contents,
                  std::string* error) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        return Fail(error, "cannot open " + path + ": " + file.errorString().toStdString());
    if (file.size() > maxBytes)
        return Fail(error, "file too large: " + path);
    const QByteArray bytes = file.readAll();
    contents->assign(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return true;
}

// Closes the descriptor on every way out.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor() {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int Get() const { return m_fd; }

private:
    int m_fd;
};

} // namespace

std::string ILMFileProvider::RemovePathExtension(const std::string& path) {
    const std::size_t slash = path.find_last_of('/');
    const std::size_t nameStart = slash == std::string::npos ? 0 : slash + 1;
    const std::size_t dot = path.find_last_of('.');
    if (dot == std::string::npos || dot <= nameStart)
        return path;
    return path.substr(0, dot);
}

std::string ILMFileProvider::AppendPathExtension(const std::string& path, const std::string& ext) {
    if (ext.empty())
        return path;
    return path + "." + ext;
}

bool ILMFileProvider::ReadRegularFile(const std::string& path, std::int64_t maxBytes,
                                      std::string* contents, std::string* error) {
    if (!contents)
        return Fail(error, "nowhere to read " + path + " into");
    contents->clear();
    if (path.empty())
        return Fail(error, "no file named");
    if (path.front() == ':')
        return ReadResource(path, maxBytes, contents, error);
    // O_NONBLOCK: opening a FIFO must not wait for a writer; the kind of file is
    // then checked on the descriptor itself, so it cannot change in between.
    const Descriptor fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    if (fd.Get() < 0)
        return Fail(error, "cannot open " + path + ": " + std::strerror(errno));
    struct stat info {};
    if (::fstat(fd.Get(), &info) != 0)
        return Fail(error, "cannot examine " + path + ": " + std::strerror(errno));
    if (!S_ISREG(info.st_mode))
        return Fail(error, "not a regular file: " + path);
    if (info.st_size > maxBytes)
        return Fail(error, "file too large: " + path + " (" + std::to_string(info.st_size) +
                               " bytes, at most " + std::to_string(maxBytes) + ")");
    // A little room past the end lets a JSON reader keep the text as it is.
    contents->reserve(static_cast<std::size_t>(info.st_size) + ILMJsonValue::TextPadding);
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t got = ::read(fd.Get(), buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            contents->clear();
            return Fail(error, "cannot read " + path + ": " + std::strerror(errno));
        }
        if (got == 0)
            return true;
        contents->append(buffer, static_cast<std::size_t>(got));
        if (static_cast<std::int64_t>(contents->size()) > maxBytes) {
            contents->clear();
            contents->shrink_to_fit();
            return Fail(error, "file too large: " + path + " (grew past " +
                                   std::to_string(maxBytes) + " bytes while read)");
        }
    }
}

} // namespace Lumeran
