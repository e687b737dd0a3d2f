// A library for the loading tests: it counts the calls since it was loaded.
namespace {

int calls = 0;

}  // namespace

extern "C" int CountCalls();

int CountCalls() {
  return ++calls;
}
