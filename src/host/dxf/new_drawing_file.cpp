// The empty drawing, as groups code=value. Besides what every reader needs (tables with their standard
// records, the two spaces with their layouts, the root dictionary) it holds nothing.

#include "host/dxf/new_drawing_file.h"

#include <string_view>

#include "host/drawing/tags.h"

namespace zwt {
namespace {

// The handles of model space's record and of the first that is free stand in host/drawing/new_drawing.h as
// well.
constexpr std::string_view kGroups =
    "0=SECTION|2=HEADER|"
    "9=$ACADVER|1=AC1021|"
    "9=$DWGCODEPAGE|3=ANSI_936|"
    "9=$INSBASE|10=0.0|20=0.0|30=0.0|"
    "9=$EXTMIN|10=0.0|20=0.0|30=0.0|"
    "9=$EXTMAX|10=42000.0|20=29700.0|30=0.0|"
    "9=$LIMMIN|10=0.0|20=0.0|"
    "9=$LIMMAX|10=42000.0|20=29700.0|"
    "9=$LTSCALE|40=100.0|"
    "9=$TEXTSIZE|40=350.0|"
    "9=$TEXTSTYLE|7=Standard|"
    "9=$CLAYER|8=0|"
    "9=$DIMSCALE|40=100.0|"
    "9=$LUNITS|70=2|"
    "9=$LUPREC|70=2|"
    "9=$HANDSEED|5=40|"
    "9=$INSUNITS|70=4|"
    "9=$MEASUREMENT|70=1|"
    "0=ENDSEC|"
    "0=SECTION|2=CLASSES|"
    "0=ENDSEC|"
    "0=SECTION|2=TABLES|"
    "0=TABLE|2=VPORT|5=8|330=0|100=AcDbSymbolTable|70=1|"
    "0=VPORT|5=29|330=8|100=AcDbSymbolTableRecord|100=AcDbViewportTableRecord|2=*Active|70=0|10=0.0|"
    "20=0.0|11=1.0|21=1.0|12=21000.0|22=14850.0|13=0.0|23=0.0|14=100.0|24=100.0|15=100.0|25=100.0|"
    "16=0.0|26=0.0|36=1.0|17=0.0|27=0.0|37=0.0|40=29700.0|41=1.5|42=50.0|43=0.0|44=0.0|50=0.0|51=0.0|"
    "71=0|72=1000|73=1|74=3|75=0|76=0|77=0|78=0|"
    "0=ENDTAB|"
    "0=TABLE|2=LTYPE|5=5|330=0|100=AcDbSymbolTable|70=3|"
    "0=LTYPE|5=14|330=5|100=AcDbSymbolTableRecord|100=AcDbLinetypeTableRecord|2=ByBlock|70=0|3=|72=65|"
    "73=0|40=0.0|"
    "0=LTYPE|5=15|330=5|100=AcDbSymbolTableRecord|100=AcDbLinetypeTableRecord|2=ByLayer|70=0|3=|72=65|"
    "73=0|40=0.0|"
    "0=LTYPE|5=16|330=5|100=AcDbSymbolTableRecord|100=AcDbLinetypeTableRecord|2=Continuous|70=0|"
    "3=Solid line|72=65|73=0|40=0.0|"
    "0=ENDTAB|"
    "0=TABLE|2=LAYER|5=2|330=0|100=AcDbSymbolTable|70=1|"
    "0=LAYER|5=10|330=2|100=AcDbSymbolTableRecord|100=AcDbLayerTableRecord|2=0|70=0|62=7|6=Continuous|"
    "370=-3|390=F|"
    "0=ENDTAB|"
    "0=TABLE|2=STYLE|5=3|330=0|100=AcDbSymbolTable|70=1|"
    "0=STYLE|5=11|330=3|100=AcDbSymbolTableRecord|100=AcDbTextStyleTableRecord|2=Standard|70=0|40=0.0|"
    "41=1.0|50=0.0|71=0|42=2.5|3=txt|4=|"
    "0=ENDTAB|"
    "0=TABLE|2=VIEW|5=6|330=0|100=AcDbSymbolTable|70=0|"
    "0=ENDTAB|"
    "0=TABLE|2=UCS|5=7|330=0|100=AcDbSymbolTable|70=0|"
    "0=ENDTAB|"
    "0=TABLE|2=APPID|5=9|330=0|100=AcDbSymbolTable|70=1|"
    "0=APPID|5=12|330=9|100=AcDbSymbolTableRecord|100=AcDbRegAppTableRecord|2=ACAD|70=0|"
    "0=ENDTAB|"
    "0=TABLE|2=DIMSTYLE|5=A|330=0|100=AcDbSymbolTable|70=1|100=AcDbDimStyleTable|71=0|"
    "0=DIMSTYLE|105=27|330=A|100=AcDbSymbolTableRecord|100=AcDbDimStyleTableRecord|2=Standard|70=0|"
    "340=11|"
    "0=ENDTAB|"
    "0=TABLE|2=BLOCK_RECORD|5=1|330=0|100=AcDbSymbolTable|70=2|"
    "0=BLOCK_RECORD|5=1F|330=1|100=AcDbSymbolTableRecord|100=AcDbBlockTableRecord|2=*Model_Space|"
    "340=22|70=4|280=1|281=0|"
    "0=BLOCK_RECORD|5=1B|330=1|100=AcDbSymbolTableRecord|100=AcDbBlockTableRecord|2=*Paper_Space|"
    "340=1E|70=4|280=1|281=0|"
    "0=ENDTAB|"
    "0=ENDSEC|"
    "0=SECTION|2=BLOCKS|"
    "0=BLOCK|5=20|330=1F|100=AcDbEntity|8=0|100=AcDbBlockBegin|2=*Model_Space|70=0|10=0.0|20=0.0|"
    "30=0.0|3=*Model_Space|1=|"
    "0=ENDBLK|5=21|330=1F|100=AcDbEntity|8=0|100=AcDbBlockEnd|"
    "0=BLOCK|5=1C|330=1B|100=AcDbEntity|67=1|8=0|100=AcDbBlockBegin|2=*Paper_Space|70=0|10=0.0|20=0.0|"
    "30=0.0|3=*Paper_Space|1=|"
    "0=ENDBLK|5=1D|330=1B|100=AcDbEntity|67=1|8=0|100=AcDbBlockEnd|"
    "0=ENDSEC|"
    "0=SECTION|2=ENTITIES|"
    "0=ENDSEC|"
    "0=SECTION|2=OBJECTS|"
    "0=DICTIONARY|5=C|330=0|100=AcDbDictionary|281=1|3=ACAD_GROUP|350=D|3=ACAD_LAYOUT|350=1A|"
    "3=ACAD_PLOTSTYLENAME|350=E|"
    "0=DICTIONARY|5=D|330=C|100=AcDbDictionary|281=1|"
    "0=DICTIONARY|5=1A|330=C|100=AcDbDictionary|281=1|3=Model|350=22|3=Layout1|350=1E|"
    "0=ACDBDICTIONARYWDFLT|5=E|330=C|100=AcDbDictionary|281=1|3=Normal|350=F|"
    "100=AcDbDictionaryWithDefault|340=F|"
    "0=ACDBPLACEHOLDER|5=F|330=E|"
    "0=LAYOUT|5=1E|330=1A|100=AcDbPlotSettings|1=|2=none_device|4=|6=|40=7.5|41=7.5|42=7.5|43=7.5|"
    "44=420.0|45=297.0|46=0.0|47=0.0|48=0.0|49=0.0|140=0.0|141=0.0|142=1.0|143=100.0|70=688|72=1|73=0|"
    "74=5|7=|75=16|147=0.01|148=0.0|149=0.0|100=AcDbLayout|1=Layout1|70=1|71=1|10=0.0|20=0.0|11=420.0|"
    "21=297.0|12=0.0|22=0.0|32=0.0|14=0.0|24=0.0|34=0.0|15=0.0|25=0.0|35=0.0|146=0.0|13=0.0|23=0.0|"
    "33=0.0|16=1.0|26=0.0|36=0.0|17=0.0|27=1.0|37=0.0|76=0|330=1B|"
    "0=LAYOUT|5=22|330=1A|100=AcDbPlotSettings|1=|2=none_device|4=|6=|40=7.5|41=7.5|42=7.5|43=7.5|"
    "44=420.0|45=297.0|46=0.0|47=0.0|48=0.0|49=0.0|140=0.0|141=0.0|142=1.0|143=100.0|70=1712|72=1|73=0|"
    "74=5|7=|75=16|147=0.01|148=0.0|149=0.0|100=AcDbLayout|1=Model|70=1|71=0|10=0.0|20=0.0|11=420.0|"
    "21=297.0|12=0.0|22=0.0|32=0.0|14=0.0|24=0.0|34=0.0|15=0.0|25=0.0|35=0.0|146=0.0|13=0.0|23=0.0|"
    "33=0.0|16=1.0|26=0.0|36=0.0|17=0.0|27=1.0|37=0.0|76=0|330=1F|"
    "0=ENDSEC|"
    "0=EOF|";

}  // namespace

std::string NewDrawingFile() {
  TagWriter writer("\n");
  for (std::string_view rest = kGroups; !rest.empty();) {
    const std::string_view group = rest.substr(0, rest.find('|'));
    rest.remove_prefix(group.size() + 1);
    const std::size_t equals = group.find('=');
    std::int64_t code = 0;
    ParseInteger(group.substr(0, equals), code);
    writer.Text(static_cast<std::int32_t>(code), group.substr(equals + 1));
  }
  return writer.Take();
}

}  // namespace zwt
