# SPDX-License-Identifier: GPL-3.0-or-later
# The libraries that Debian 12 provides. Each is included by exactly one folder of src/.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Widgets Svg Network PrintSupport)
find_package(PkgConfig REQUIRED)
pkg_check_modules(vips REQUIRED IMPORTED_TARGET vips-cpp>=8.14)
pkg_check_modules(heif REQUIRED IMPORTED_TARGET libheif>=1.15)
pkg_check_modules(jpeg REQUIRED IMPORTED_TARGET libjpeg>=2.1)
pkg_check_modules(exiv2 REQUIRED IMPORTED_TARGET exiv2>=0.27)
pkg_check_modules(lcms2 REQUIRED IMPORTED_TARGET lcms2>=2.14)
pkg_check_modules(sqlite3 REQUIRED IMPORTED_TARGET sqlite3>=3.40)
find_package(ZLIB REQUIRED)
find_path(zint_headers zint.h REQUIRED)
find_library(zint_library zint REQUIRED)
add_library(zint UNKNOWN IMPORTED)
set_target_properties(
  zint PROPERTIES IMPORTED_LOCATION "${zint_library}" INTERFACE_INCLUDE_DIRECTORIES "${zint_headers}"
)
# The face detector as a static library: the shared one brings a large model with it that nothing here uses.
find_path(dlib_headers dlib/image_processing/frontal_face_detector.h REQUIRED)
find_library(dlib_library libdlib.a REQUIRED)
find_package(LAPACK REQUIRED)
add_library(dlib STATIC IMPORTED)
set_target_properties(
  dlib PROPERTIES IMPORTED_LOCATION "${dlib_library}" INTERFACE_LINK_LIBRARIES "LAPACK::LAPACK"
                  INTERFACE_INCLUDE_DIRECTORIES "${dlib_headers}"
)
