// Streams into a part beside one string that takes the same pieces of 64 KiB, 128 MiB to 1 GiB in
// all.
//
//   Stream/OmChart            an image, piece by piece
//   Stream/OmChart_room       XML, with room made for exactly one more piece each time
//   Stream/std_string         append
//
// "copies" is how many times each byte was copied on the whole: once when it came, and again when
// the field moved to larger room. The time for each byte stays the same in a stream that is linear.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "external/cells/OmStringCell.h"
#include "output/OmChart.h"

namespace {

constexpr unsigned kPiece = 64 * 1024;

class Image {
 public:
  void append(const char* data) { chart_.SetImageStream(data, kPiece); }
  const std::string& stored() const { return chart_.GetImageData(); }

 private:
  OmChart chart_{OmStringCell("label"), "", 1};
};

class Xml {
 public:
  void append(const char* data) {
    chart_.SetXmlCompressedLength(static_cast<unsigned>(stored().size()) + kPiece);
    chart_.SetXmlDescription(data, kPiece);
  }
  const std::string& stored() const { return chart_.GetXmlDescription(); }

 private:
  OmChart chart_{OmStringCell("label"), "", 1};
};

class String {
 public:
  void append(const char* data) { bytes_.append(data, kPiece); }
  const std::string& stored() const { return bytes_; }

 private:
  std::string bytes_;
};

template <class Store>
void stream(benchmark::State& state) {
  const auto total = static_cast<std::size_t>(state.range(0)) << 20;
  const std::string piece(kPiece, 'x');
  std::size_t copied = 0;
  for (auto _ : state) {
    Store store;
    copied = 0;
    while (store.stored().size() < total) {
      const char* const place = store.stored().data();
      const std::size_t size = store.stored().size();
      store.append(piece.data());
      copied += kPiece + (store.stored().data() != place ? size : 0);
    }
    benchmark::DoNotOptimize(store.stored().data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(total) * state.iterations());
  state.counters["copies"] = static_cast<double>(copied) / static_cast<double>(total);
}

void sizes(benchmark::internal::Benchmark* row) {
  row->ArgName("MiB")->RangeMultiplier(2)->Range(128, 1024)->Unit(benchmark::kMillisecond);
}

BENCHMARK(stream<Image>)->Name("Stream/OmChart")->Apply(sizes);
BENCHMARK(stream<Xml>)->Name("Stream/OmChart_room")->Apply(sizes);
BENCHMARK(stream<String>)->Name("Stream/std_string")->Apply(sizes);

}  // namespace
