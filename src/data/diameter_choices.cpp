// Diameters as texts.
#include "data/diameter_choices.h"

#include "data/materials.h"
#include "host/text/number_text.h"

namespace zwt {

std::vector<CString> DiameterTexts(const CString& material) {
  ZcList<int> diameters;
  ZcList<double> inner;
  ZcList<double> outer;
  ZwtGetMaterialParam(material, diameters, inner, outer);
  std::vector<CString> texts;
  for (diameters.MoveToFirst(); !diameters.IsOut(); diameters.MoveToNext()) {
    texts.push_back(ZwtNum2Str(diameters.GetCurData()));
  }
  return texts;
}

}  // namespace zwt
