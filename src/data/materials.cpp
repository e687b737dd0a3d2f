#include "data/materials.h"

#include <algorithm>

#include "data/material_catalogue.h"
#include "host/runtime/main_directory.h"

namespace {

constexpr int kAnswered = 0;
constexpr int kNoAnswer = 1;

const zwt::PipeMaterial* FindMaterial(const CString& name) {
  static zwt::MaterialCatalogue catalogue;
  return catalogue.Find(GetMainDirectory() + zwt::kMaterialsFile, name);
}

}  // namespace

int ZwtGetMaterialParam(const CString& material, ZcList<int>& diameters, ZcList<double>& inner,
                        ZcList<double>& outer) {
  diameters.Reset();
  inner.Reset();
  outer.Reset();
  const zwt::PipeMaterial* const found = FindMaterial(material);
  if (found == nullptr) return kNoAnswer;
  for (const zwt::PipeSize& size : found->sizes) {
    diameters.Append(size.diameter);
    inner.Append(size.inner);
    outer.Append(size.outer);
  }
  return kAnswered;
}

int ZwtGetMaterialParam(const CString& material, double diameter, double& inner, double& outer) {
  const zwt::PipeMaterial* const found = FindMaterial(material);
  if (found == nullptr) return kNoAnswer;
  const auto size = std::find_if(found->sizes.begin(), found->sizes.end(),
                                 [diameter](const zwt::PipeSize& row) { return row.diameter == diameter; });
  if (size == found->sizes.end()) return kNoAnswer;
  inner = size->inner;
  outer = size->outer;
  return kAnswered;
}

int ZwtGetMaterialCoeff(const CString& material, double& coefficient) {
  const zwt::PipeMaterial* const found = FindMaterial(material);
  if (found == nullptr || !found->coefficient) return kNoAnswer;
  coefficient = *found->coefficient;
  return kAnswered;
}

CString ZwtGetMaterialPrefix(const CString& material) {
  const zwt::PipeMaterial* const found = FindMaterial(material);
  return found == nullptr ? CString() : found->prefix;
}
