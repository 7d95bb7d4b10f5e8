// While this lives no file grows beyond some bytes: what writes one is cut short and then refused,
// as on a disk that fills.
#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>

namespace zorbin::pruebas {

class DiscoLleno {
 public:
  explicit DiscoLleno(rlim_t bytes) : senal_(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &antes_), 0);
    const struct rlimit corto { bytes, antes_.rlim_max };
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &corto), 0);
  }
  ~DiscoLleno() {
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &antes_), 0);
    std::signal(SIGXFSZ, senal_);
  }
  DiscoLleno(const DiscoLleno&) = delete;
  DiscoLleno& operator=(const DiscoLleno&) = delete;

 private:
  struct rlimit antes_ {};
  void (*senal_)(int);
};

}  // namespace zorbin::pruebas
