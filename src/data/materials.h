// What the calculations ask about a pipe material by its name. The answers come from the material file of the
// main directory, as it is at the moment of asking. The status of each service is 0 when it has an answer.
#pragma once

#include "frame/containers/zc_list.h"
#include "host/text/wide_text.h"

/// Nominal diameters, calculation inner diameters and outer diameters of a material in mm, in the order of
/// its table; an unknown outer diameter is 0. The lists are emptied first, and stay empty for a material that
/// is not listed.
int ZwtGetMaterialParam(const CString& material, ZcList<int>& diameters, ZcList<double>& inner,
                        ZcList<double>& outer);

/// Inner and outer diameter in mm of one nominal diameter. Both stay as they were for a material that is not
/// listed, or that does not have the diameter.
int ZwtGetMaterialParam(const CString& material, double diameter, double& inner, double& outer);

/// Roughness coefficient C of the Hazen-Williams formula (GB 50015-2003, 3.6.10). It stays as it was for a
/// material that is not listed or, as a drain, has none.
int ZwtGetMaterialCoeff(const CString& material, double& coefficient);

/// The text before the diameter in an annotation, empty for a material that is not listed.
CString ZwtGetMaterialPrefix(const CString& material);

namespace zwt {

/// Below the main directory.
inline constexpr const wchar_t* kMaterialsFile = L"Common2\\ZwtMaterials.xml";

}  // namespace zwt
