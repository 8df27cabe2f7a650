#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "beam/beam_window.h"
#include "beam/load_picture.h"

namespace lignara {
namespace {

constexpr const char* kLengthQuestion =
    "If you change this value, you will loose all your load input! Continue ?";

/// Each change of the text, by whomever, is a change of the length.
void SetLengthText(BeamWindow& window, const std::string& text) {
  window.length = text;
  EditLength(window);
}

}  // namespace

bool EnterLength(BeamWindow& window, Platform& platform) {
  if (window.beam.loadCount > 0) {
    if (!platform.AskYesNo("Caution", kLengthQuestion)) {
      SetLengthText(window, FormatNumber(window.beam.spanLength, "0.00"));
      return false;
    }
    RemoveAllLoads(window);
  }
  SetLengthText(window, "");
  return true;
}

void EditLength(BeamWindow& window) {
  window.beam.spanLength = ReadNumber(window.length);
  ShowLoadPicture(window);
}

Number UnbracedLength(const BeamWindow& window) {
  const Number typed = ReadNumber(window.unbraced);
  return typed > 0 ? typed : Number(window.beam.spanLength);
}

}  // namespace lignara
