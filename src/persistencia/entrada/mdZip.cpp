#include "persistencia/entrada/mdZip.h"

#include <zip.h>

#include "base/textos.h"
#include "persistencia/entrada/mdCuadro.h"

namespace zorbin {

namespace {

constexpr zip_int64_t kMaxPartes = 2'000;
constexpr std::size_t kBloque = 256 * 1024;  // bytes

struct CierraParte {
  void operator()(zip_file_t* f) const { zip_fclose(f); }
};

}  // namespace

struct Zip::Abierto {
  zip_t* zip = nullptr;
};

Zip::Zip(std::string_view bytes) : z_(std::make_unique<Abierto>()) {
  auto* fuente = zip_source_buffer_create(bytes.data(), bytes.size(), 0, nullptr);
  if (fuente != nullptr) z_->zip = zip_open_from_source(fuente, ZIP_RDONLY, nullptr);
  if (z_->zip == nullptr) {
    zip_source_free(fuente);
    throw ErrorEntrada({txt::EntNoEsLibro, {}});
  }
  if (zip_get_num_entries(z_->zip, 0) > kMaxPartes) {
    zip_discard(z_->zip);
    throw ErrorEntrada({txt::EntNoEsLibro, {}});
  }
}

Zip::Zip(const std::filesystem::path& fichero) : z_(std::make_unique<Abierto>()) {
  z_->zip = zip_open(fichero.c_str(), ZIP_RDONLY, nullptr);
  if (z_->zip == nullptr) throw ErrorEntrada({txt::EntNoEsLibro, {}});
}

Zip::~Zip() {
  zip_discard(z_->zip);
}

bool Zip::Tiene(const std::string& parte) const {
  return zip_name_locate(z_->zip, parte.c_str(), 0) >= 0;
}

void Zip::Recorre(const std::string& parte, const std::function<void(std::string_view)>& toma) {
  const std::unique_ptr<zip_file_t, CierraParte> f(zip_fopen(z_->zip, parte.c_str(), 0));
  if (f == nullptr) throw ErrorEntrada({txt::EntParteRota, {Visto(parte)}});
  std::string bloque(kBloque, '\0');
  while (true) {
    const auto n = zip_fread(f.get(), bloque.data(), bloque.size());
    if (n < 0) throw ErrorEntrada({txt::EntParteRota, {Visto(parte)}});
    if (n == 0) return;
    toma({bloque.data(), static_cast<std::size_t>(n)});
  }
}

std::string Zip::Lee(const std::string& parte, std::size_t maximo) {
  std::string todo;
  Recorre(parte, [&](std::string_view bytes) {
    if (todo.size() + bytes.size() > maximo) {
      throw ErrorEntrada({txt::EntParteEnorme, {Visto(parte), std::to_string(maximo >> 20)}});
    }
    todo += bytes;
  });
  return todo;
}

void LeeParte(const std::filesystem::path& fichero, const std::string& parte,
              const std::function<void(std::string_view)>& toma) {
  Zip(fichero).Recorre(parte, toma);
}

}  // namespace zorbin
