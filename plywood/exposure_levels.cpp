#include "plywood/panel_kinds.h"
#include "plywood/reference.h"

namespace lignara {

PlyPanelKind ExposureLevels() {
  PlyPanelKind kind = ReferencePanel(
      "Level", {{"Exterior",
                 {"Panels have a fully waterproof bond and are",
                  "designed for applications subject to permanent",
                  "exposure to the weather or to moisture."}},
                {"Exposure 1",
                 {"Panels have a fully waterproof bond and are",
                  "designed for applications where long construction",
                  "delays may be expected prior to providing",
                  "protection, or where high moisture conditions may",
                  "be encountered in service. Exposure level 1",
                  "panels are made with the same exterior adhesives",
                  "used in Exterior panels. However, because other",
                  "compositional factors may affect bond performance,",
                  "only Exterior panels should be used for permanent", "exposure to the weather."}},
                {"Exposure 2",
                 {"Panels (identified as interor type with ",
                  "intermediate glue under PS 1) are intended for",
                  "protection construction applications where only",
                  "moderate delays in providing protection from", "moisture may be expected."}},
                {"Interior",
                 {"Panels which lack further glueline information in",
                  "their trademarks are manufactured with interior glue",
                  "and are intended for interior applications only."}}});
  kind.opener = "&Exposure Ratings...";
  kind.caption = "Exposure Levels";
  kind.title = "EXPOSURE LEVEL";
  return kind;
}

}  // namespace lignara
