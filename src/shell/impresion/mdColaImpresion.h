// The queues of the machine (CUPS): a PDF file handed over as a job.
#pragma once

#include <stdexcept>
#include <string>

namespace zorbin {

/// A printer that did not take a job: its name, and why in the words of the system.
class ErrorImpresora : public std::runtime_error {
 public:
  ErrorImpresora(std::string impresora, const std::string& causa)
      : std::runtime_error(causa), impresora_(std::move(impresora)) {}
  const std::string& impresora() const { return impresora_; }

 private:
  std::string impresora_;
};

/// What goes to a printer.
struct TrabajoImpresion {
  std::string impresora;  // as the toolkit names it: queue, or queue/instance
  std::string titulo;
  std::string fichero;  // a PDF
  int copias = 1;
  bool enA4 = true;  // whether the printer has that paper
};

/// Hands a file over to its queue. When this returns the server has all of it and has given the job
/// a number. A server that says nothing for half a minute is given up.
/// @throws ErrorImpresora  the queue is gone, the server is, or dies meanwhile, or refuses
void EntregaACola(const TrabajoImpresion& trabajo);

}  // namespace zorbin
