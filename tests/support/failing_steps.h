// Writing to a disk on which one step fails, to see what a save leaves behind.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"

// The real steps, three bytes at a time, one of which fails.
class FailingSteps : public files::WriteSteps {
  public:
    enum Step { opening, writing, secondWrite, flushing, closing, renaming, none };
    FailingSteps(Step failing, int error) : m_failing(failing), m_error(error) {
        files::installWriteSteps(this);
    }
    ~FailingSteps() override { files::installWriteSteps(nullptr); }

    int open(const std::string& path, std::optional<unsigned> permissions,
             int& descriptor) override {
        return m_failing == opening ? m_error : WriteSteps::open(path, permissions, descriptor);
    }
    int write(int descriptor, std::string_view bytes, std::size_t& written) override {
        ++m_writes;
        if (m_failing == writing || (m_failing == secondWrite && m_writes == 2)) return m_error;
        return WriteSteps::write(descriptor, bytes.substr(0, 3), written);
    }
    int flush(int descriptor) override {
        return m_failing == flushing ? m_error : WriteSteps::flush(descriptor);
    }
    int close(int descriptor) override {
        const int error = WriteSteps::close(descriptor);
        return m_failing == closing ? m_error : error;
    }
    int rename(const std::string& from, const std::string& to) override {
        return m_failing == renaming ? m_error : WriteSteps::rename(from, to);
    }
    int renameNew(const std::string& from, const std::string& to) override {
        return m_failing == renaming ? m_error : WriteSteps::renameNew(from, to);
    }

  private:
    Step m_failing;
    int m_error;
    int m_writes = 0;
};
