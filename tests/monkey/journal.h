#pragma once

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>
#include <string>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace clinorama::tests {

// What a random user did, from which seed and for how long. When the program dies, the seed and the
// last actions are told; the same seed and number of actions repeat them.
class Journal {
 public:
  // Takes two arguments of the program: for how many seconds it acts, and the seed.
  Journal(int argc, char** argv)
      : seed_(argc > 2 ? std::strtoul(argv[2], nullptr, 10) : std::random_device()()),
        end_(std::chrono::steady_clock::now() +
             std::chrono::seconds(argc > 1 ? std::strtol(argv[1], nullptr, 10) : 10)),
        random_(static_cast<std::mt19937::result_type>(seed_)) {
    current = this;
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(Tell);
#endif
    for (const int signal : {SIGABRT, SIGSEGV}) {
      std::signal(signal, Die);
    }
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    std::printf("seed %lu\n", seed_);
  }

  template <class List>
  auto& OneOf(List& list) {
    return *std::next(std::begin(list), Below(static_cast<int>(std::size(list))));
  }
  // A number from 0 to `count` - 1, each as likely.
  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
  bool OneIn(int count) { return Below(count) == 0; }

  void Note(std::string action) { last_.at(actions_++ % last_.size()) = std::move(action); }
  bool Over() const { return std::chrono::steady_clock::now() >= end_; }

  void TellTotal() const { std::printf("%zu actions, seed %lu\n", actions_, seed_); }

 private:
  static void Die(int signal) {
    std::signal(signal, SIG_DFL);
    Tell();
    std::raise(signal);
  }

  static void Tell() {
    const auto& last = current->last_;
    const std::size_t actions = current->actions_;
    std::fprintf(stderr, "seed %lu, after %zu actions; the last ones were:\n", current->seed_,
                 actions);
    for (std::size_t i = 0; i < last.size(); ++i) {
      std::fprintf(stderr, "  %s\n", last.at((actions + i) % last.size()).c_str());
    }
  }

  static inline Journal* current = nullptr;
  unsigned long seed_;
  std::chrono::steady_clock::time_point end_;
  std::mt19937 random_;
  std::array<std::string, 40> last_;
  std::size_t actions_ = 0;
};

}  // namespace clinorama::tests
