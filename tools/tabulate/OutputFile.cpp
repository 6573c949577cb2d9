#include "tools/tabulate/OutputFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <vector>

#include "tools/tabulate/Failure.h"

namespace om::tabulate {

namespace {

// What a signal has to remove. A handler may use neither strings nor locks.
std::array<char, PATH_MAX> unfinished{};
volatile std::sig_atomic_t isUnfinished = 0;

void onSignal(int signal) {
  if (isUnfinished != 0) unlink(unfinished.data());
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

void remember(const std::string& path) {
  if (path.size() >= unfinished.size()) return;
  std::memcpy(unfinished.data(), path.c_str(), path.size() + 1);
  isUnfinished = 1;
}

// The rights that a new file gets, or those of the one that is replaced.
mode_t modeFor(const std::string& place) {
  struct stat status {};
  if (stat(place.c_str(), &status) == 0) return status.st_mode & 07777;
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

}  // namespace

OutputFile::OutputFile(const std::string& name) : name_(name), place_(name) {
  std::error_code error;
  if (std::filesystem::exists(name, error)) {
    const std::filesystem::path real = std::filesystem::canonical(name, error);
    if (!error) place_ = real.string();
    if (std::filesystem::is_directory(place_, error)) fail(EISDIR);
    if (!std::filesystem::is_regular_file(place_, error)) {
      stream_.open(place_, std::ios::binary);
      if (!stream_) fail(errno);
      return;
    }
    // Who may not write to the file may not replace it either.
    if (access(place_.c_str(), W_OK) != 0) fail(errno);
  }
  std::string pattern = place_ + ".tmp-XXXXXX";
  const int descriptor = mkstemp(pattern.data());
  if (descriptor < 0) fail(errno);
  temporary_ = pattern;
  remember(temporary_);
  fchmod(descriptor, modeFor(place_));
  close(descriptor);
  stream_.open(temporary_, std::ios::binary | std::ios::trunc);
  if (!stream_) fail(errno);
}

OutputFile::~OutputFile() {
  if (temporary_.empty()) return;
  isUnfinished = 0;
  unlink(temporary_.c_str());
}

void OutputFile::commit() {
  errno = 0;
  stream_.close();
  if (!stream_) fail(errno);
  if (temporary_.empty()) return;
  if (std::rename(temporary_.c_str(), place_.c_str()) != 0) fail(errno);
  isUnfinished = 0;
  temporary_.clear();
}

void OutputFile::fail(int reason) const {
  if (!temporary_.empty()) {
    isUnfinished = 0;
    unlink(temporary_.c_str());
  }
  throw dataFailure(printable(name_) + ": cannot be written: " +
                    (reason != 0 ? std::strerror(reason) : "unknown reason"));
}

void OutputFile::removeOnSignals() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, onSignal);
}

}  // namespace om::tabulate
