#include "tools/tabulate/ReadAhead.h"

namespace om::tabulate {

ReadAhead::~ReadAhead() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    stopped_ = true;
  }
  changed_.notify_all();
  thread_.join();
}

const RecordBatch* ReadAhead::next() {
  if (given_ < kBatchesWithoutThread || !mayUseThread_) {
    if (!reader_.next(batches_[0])) return nullptr;
    ++given_;
    return batches_.data();
  }
  if (!thread_.joinable()) thread_ = std::thread([this] { run(); });

  std::unique_lock lock(mutex_);
  if (holding_) {
    ++used_;
    holding_ = false;
    changed_.notify_all();
  }
  changed_.wait(lock, [this] { return used_ != filled_ || ended_; });
  if (used_ != filled_) {
    holding_ = true;
    return &batches_[used_ % kBatches];
  }
  if (failure_) std::rethrow_exception(failure_);
  return nullptr;
}

void ReadAhead::run() {
  std::unique_lock lock(mutex_);
  while (!stopped_ && !ended_) {
    if (filled_ - used_ == kBatches) {
      changed_.wait(lock);
      continue;
    }
    lock.unlock();
    bool more = false;
    std::exception_ptr failure;
    try {
      more = reader_.next(batches_[filled_ % kBatches]);
    } catch (...) {
      failure = std::current_exception();
    }
    lock.lock();
    if (more) {
      ++filled_;
    } else {
      failure_ = failure;
      ended_ = true;
    }
    changed_.notify_all();
  }
}

}  // namespace om::tabulate
