// Lets malloc answer null for a size that no system can serve when the tests run with a sanitizer,
// as it does without one; the default is to end the process.

extern "C" {
const char* __asan_default_options();
const char* __tsan_default_options();
}

const char* __asan_default_options() { return "allocator_may_return_null=1"; }
const char* __tsan_default_options() { return "allocator_may_return_null=1"; }
