// The administrator of a machine may do everything with every file; whoever tests rights is
// somebody else while this lives.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace zorbin::pruebas {

class SinDerechos {
 public:
  SinDerechos() { EXPECT_TRUE(::geteuid() != 0 || ::seteuid(kNadie) == 0); }
  ~SinDerechos() { EXPECT_TRUE(::geteuid() == ::getuid() || ::seteuid(::getuid()) == 0); }
  SinDerechos(const SinDerechos&) = delete;
  SinDerechos& operator=(const SinDerechos&) = delete;

 private:
  static constexpr uid_t kNadie = 65534;
};

}  // namespace zorbin::pruebas
