// Preloaded into a command: call number FAIL_AT of a kind fails, counted from 1 from the start of
// main() on, before which nobody could catch anything; a negative number stands for that call and
// all later ones, and 0 for none. FAIL_CALLS is the kind: "memory", "files" (what is written to
// them), "sockets", or "names", which are then not found for a minute. The number of calls is
// written to the file FAIL_COUNT when the process ends.
#include <dlfcn.h>
#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// The C library's own names.
// NOLINTBEGIN(bugprone-reserved-identifier)

extern "C" void *__libc_malloc(std::size_t size);
extern "C" void *__libc_calloc(std::size_t count, std::size_t size);
extern "C" void *__libc_realloc(void *memory, std::size_t size);

namespace {

using Main = int (*)(int, char **, char **);

std::atomic<long> calls{0};
std::atomic<bool> isCounting{false};
Main program = nullptr;

int countingMain(int argc, char **argv, char **environment) {
  isCounting = true;
  return program(argc, argv, environment);
}

/// Counts a call of `kind`, and returns whether it is the one that fails.
bool fails(const char *kind) {
  const char *const wanted = isCounting ? std::getenv("FAIL_CALLS") : nullptr;
  if (!wanted || std::strcmp(wanted, kind) != 0) return false;
  const char *const at = std::getenv("FAIL_AT");
  const long number = at ? std::atol(at) : 0;
  const long call = ++calls;
  return number > 0 ? call == number : number < 0 && call >= -number;
}

bool failsToWrite(const char *kind) {
  if (!fails(kind)) return false;
  errno = ENOSPC;
  return true;
}

bool failsToAllocate() {
  if (!fails("memory")) return false;
  errno = ENOMEM;
  return true;
}

template <class Function>
Function next(Function, const char *name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

[[gnu::destructor]] void tellCount() {
  const char *const path = std::getenv("FAIL_COUNT");
  const long count = calls;
  std::FILE *file = path ? std::fopen(path, "w") : nullptr;
  if (file) std::fprintf(file, "%ld", count);
  if (file) std::fclose(file);
}

}  // namespace

#define EXPORTED extern "C" [[gnu::visibility("default")]]

EXPORTED int __libc_start_main(Main main, int argc, char **argv, void (*init)(), void (*fini)(),
                               void (*loaded)(), void *stack) {
  program = main;
  using Start = int (*)(Main, int, char **, void (*)(), void (*)(), void (*)(), void *);
  return next(Start(), "__libc_start_main")(countingMain, argc, argv, init, fini, loaded, stack);
}

EXPORTED void *malloc(std::size_t size) {
  return failsToAllocate() ? nullptr : __libc_malloc(size);
}

EXPORTED void *calloc(std::size_t count, std::size_t size) {
  return failsToAllocate() ? nullptr : __libc_calloc(count, size);
}

EXPORTED void *realloc(void *memory, std::size_t size) {
  return failsToAllocate() ? nullptr : __libc_realloc(memory, size);
}

EXPORTED int getaddrinfo(const char *name, const char *service, const addrinfo *hints,
                         addrinfo **found) {
  static const auto real = next(&::getaddrinfo, "getaddrinfo");
  if (fails("names")) sleep(60);
  return real(name, service, hints, found);
}

EXPORTED ssize_t write(int file, const void *data, std::size_t size) {
  static const auto real = next(&::write, "write");
  return failsToWrite("files") ? -1 : real(file, data, size);
}

EXPORTED ssize_t send(int socket, const void *data, std::size_t size, int flags) {
  static const auto real = next(&::send, "send");
  return failsToWrite("sockets") ? -1 : real(socket, data, size, flags);
}

EXPORTED std::size_t fwrite(const void *data, std::size_t size, std::size_t count,
                            std::FILE *file) {
  static const auto real = next(&std::fwrite, "fwrite");
  return failsToWrite("files") ? 0 : real(data, size, count, file);
}

EXPORTED int fflush(std::FILE *file) {
  static const auto real = next(&std::fflush, "fflush");
  return failsToWrite("files") ? EOF : real(file);
}

// NOLINTEND(bugprone-reserved-identifier)
