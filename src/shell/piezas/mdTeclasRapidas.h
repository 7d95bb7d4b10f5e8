// Keys of the captions, in any language: Alt and the letter underlined.
#pragma once

class QWidget;

namespace zorbin {

/// Gives each caption of a screen (its buttons, and the labels with a field of their own) a letter
/// that no other one has, while there are letters; first the buttons that act, then the options,
/// then the labels, so that a label that changes takes no letter from a button. To be called again
/// whenever a caption changes.
void ReparteTeclas(QWidget& pantalla);

}  // namespace zorbin
