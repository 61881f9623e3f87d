// The sale library carries a copy of the rooms below it, and so does a fuzzer that uses both. They
// are the same code; the sanitizer would stop at the first name that it sees twice. The name is its
// own.
extern "C" const char* __asan_default_options();  // NOLINT(bugprone-reserved-identifier)
const char* __asan_default_options() {            // NOLINT(bugprone-reserved-identifier)
  return "detect_odr_violation=0";
}
