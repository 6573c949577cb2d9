#include "tools/tabulate/OutputFile.h"

#include <fcntl.h>
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
#include <utility>

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

// For the reason in errno.
Failure failure(const std::string& name) {
  const int reason = errno;
  return dataFailure(printable(name) + ": cannot be written: " + std::strerror(reason));
}

}  // namespace

OutputFile::OutputFile(const std::string& name) : name_(name), place_(name) {
  try {
    open();
  } catch (...) {
    remove();
    throw;
  }
}

OutputFile::~OutputFile() { remove(); }

void OutputFile::open() {
  std::error_code error;
  if (std::filesystem::exists(name_, error)) {
    const std::filesystem::path real = std::filesystem::canonical(name_, error);
    if (!error) place_ = real.string();
    // Who may not write to the file may not replace it either.
    if (access(place_.c_str(), W_OK) != 0) throw failure(name_);
  }
  if (std::filesystem::exists(place_, error) && !std::filesystem::is_regular_file(place_, error)) {
    descriptor_ = ::open(place_.c_str(), O_WRONLY | O_CLOEXEC);
    if (descriptor_ < 0) throw failure(name_);
  } else {
    std::string pattern = place_ + ".tmp-XXXXXX";
    const mode_t mode = modeFor(place_);
    descriptor_ = mkostemp(pattern.data(), O_CLOEXEC);
    if (descriptor_ < 0) throw failure(name_);
    temporary_.swap(pattern);
    remember(temporary_);
    fchmod(descriptor_, mode);
  }
  buffer_.emplace(descriptor_);
  stream_.rdbuf(&*buffer_);
}

void OutputFile::commit() {
  const bool written = buffer_->pubsync() == 0;
  if (!written) throw failure(name_);
  const bool closed = close(std::exchange(descriptor_, -1)) == 0;
  if (!closed) throw failure(name_);
  if (temporary_.empty()) return;
  if (std::rename(temporary_.c_str(), place_.c_str()) != 0) throw failure(name_);
  isUnfinished = 0;
  temporary_.clear();
}

void OutputFile::remove() {
  if (descriptor_ >= 0) close(descriptor_);
  if (temporary_.empty()) return;
  isUnfinished = 0;
  unlink(temporary_.c_str());
}

void OutputFile::removeOnSignals() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, onSignal);
}

}  // namespace om::tabulate
