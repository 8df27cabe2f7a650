#include "app/fault.h"
#include "app/number_reader.h"
#include "beam/beam_window.h"
#include "beam/diagrams.h"

namespace lignara {
namespace {

/// A prompt for one of the two accuracies.
struct AccuracyPrompt {
  Float32 SingleSpanBeam::*value;
  const char* usual;
  const char* text;
};

constexpr const char* kAccuracyTitle = "Accuracy";

constexpr AccuracyPrompt kGeneral = {
    &SingleSpanBeam::accuracySteps, "500",
    "Enter accuracy iterations. This value determines the number of cycles the program uses to "
    "obtain shears, moments and deflections. The larger the number the more accurate the answer. "
    "Caution, a large value will slow your machine down."};

constexpr AccuracyPrompt kUniformConversion = {
    &SingleSpanBeam::equivalentLoads, "100",
    "Enter accuracy iterations. This value determines the number of equivalent point loads that "
    "the program uses to convert uniform loads to iterative point loads. The larger the number the "
    "more accurate the answer. Caution, a large value will slow your machine down."};

void Ask(SingleSpanBeam& beam, const AccuracyPrompt& prompt, Platform& platform) {
  const std::string answer =
      platform.PromptText(kAccuracyTitle, prompt.text, prompt.usual).value_or("");
  const Number number = ReadNumber(answer);
  beam.*prompt.value = number > 0 ? number : ReadNumber(prompt.usual);
}

}  // namespace

void AskAccuracy(BeamWindow& window, Platform& platform) {
  const FaultScope faults(platform);
  Ask(window.beam, kGeneral, platform);
  FollowAccuracy(window);
}

void AskUniformConversion(BeamWindow& window, Platform& platform) {
  const FaultScope faults(platform);
  Ask(window.beam, kUniformConversion, platform);
}

}  // namespace lignara
