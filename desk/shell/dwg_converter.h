#pragma once

#include <string>

namespace shell {

/// Makes a DXF file of a DWG file with the converter that the machine has: `dwg2dxf`, else ours of tools/dwg
/// where it is installed, else `ODAFileConverter`. A converter that takes more than a minute is ended. Gives
/// the path of a new file that the caller removes. Raises kFileNotFound with a text that says what is missing
/// where there is no converter, kDeviceError where it fails.
std::string convertDwg(const std::string& dwgPath);

}  // namespace shell
