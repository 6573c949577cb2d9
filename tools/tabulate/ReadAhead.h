// ReadAhead: the batches of a CSV reader, of which the next ones are read while one is used.
//
//   ReadAhead batches(reader);
//   while (const RecordBatch* batch = batches.next()) use(*batch);
//
// The first batches are read when they are asked for; only a larger file gets a thread that reads
// ahead, and only where there is more than one processor. Whoever uses it notices no difference:
// batches and failures come in the same order.
// REQUIRES: nobody else uses the reader while a ReadAhead on it lives.

#ifndef OM_TOOLS_TABULATE_READAHEAD_H_
#define OM_TOOLS_TABULATE_READAHEAD_H_

#include <array>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>

#include "tools/tabulate/CsvReader.h"

namespace om::tabulate {

class ReadAhead {
 public:
  static constexpr std::size_t kBatchesWithoutThread = 4;

  explicit ReadAhead(CsvReader& reader, bool mayUseThread = std::thread::hardware_concurrency() > 1)
      : reader_(reader), mayUseThread_(mayUseThread) {}
  ReadAhead(const ReadAhead&) = delete;
  ReadAhead& operator=(const ReadAhead&) = delete;
  ~ReadAhead();

  // The next batch, until the next call; null behind the last one. Throws what the reader throws.
  const RecordBatch* next();

 private:
  static constexpr std::size_t kBatches = 3;

  void run();

  CsvReader& reader_;
  const bool mayUseThread_;
  std::size_t given_ = 0;  // batches, in all

  // Batches go round: the thread fills number `filled_`, the user has number `used_`.
  std::array<RecordBatch, kBatches> batches_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::size_t filled_ = 0;
  std::size_t used_ = 0;
  bool holding_ = false;
  bool ended_ = false;
  bool stopped_ = false;
  std::exception_ptr failure_;
  std::thread thread_;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_READAHEAD_H_
