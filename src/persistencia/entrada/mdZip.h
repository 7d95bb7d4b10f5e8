// Parts of a compressed file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace zorbin {

/// A compressed file in memory or on the disk, open for reading.
class Zip {
 public:
  /// @throws ErrorEntrada for what is none, or has more parts than a workbook needs
  explicit Zip(std::string_view bytes);
  explicit Zip(const std::filesystem::path& fichero);
  ~Zip();
  Zip(const Zip&) = delete;
  Zip& operator=(const Zip&) = delete;

  bool Tiene(const std::string& parte) const;
  /// Bytes of a part. What it says of its own size is not believed.
  /// @throws ErrorEntrada where it is damaged, not there, or larger than `maximo`
  std::string Lee(const std::string& parte, std::size_t maximo);
  /// Hands over a part block by block. @throws ErrorEntrada as Lee
  void Recorre(const std::string& parte, const std::function<void(std::string_view)>& toma);

 private:
  struct Abierto;
  std::unique_ptr<Abierto> z_;
};

/// Hands over a part of a file on the disk. @throws ErrorEntrada
void LeeParte(const std::filesystem::path& fichero, const std::string& parte,
              const std::function<void(std::string_view)>& toma);

}  // namespace zorbin
