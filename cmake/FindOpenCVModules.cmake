# Finds the OpenCV core and imgproc modules without OpenCV's own package configuration, which
# Debian ships only in the meta package that pulls in every OpenCV module and their dependencies.
# Defines the imported targets OpenCV::core and OpenCV::imgproc.
find_path(OpenCVModules_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4)
find_library(OpenCVModules_core_LIBRARY opencv_core)
find_library(OpenCVModules_imgproc_LIBRARY opencv_imgproc)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCVModules
    REQUIRED_VARS OpenCVModules_INCLUDE_DIR OpenCVModules_core_LIBRARY OpenCVModules_imgproc_LIBRARY)

if(OpenCVModules_FOUND)
    foreach(module core imgproc)
        if(NOT TARGET OpenCV::${module})
            add_library(OpenCV::${module} UNKNOWN IMPORTED)
            set_target_properties(OpenCV::${module} PROPERTIES
                IMPORTED_LOCATION ${OpenCVModules_${module}_LIBRARY}
                INTERFACE_INCLUDE_DIRECTORIES ${OpenCVModules_INCLUDE_DIR})
        endif()
    endforeach()
    set_property(TARGET OpenCV::imgproc APPEND PROPERTY INTERFACE_LINK_LIBRARIES OpenCV::core)
endif()
mark_as_advanced(OpenCVModules_INCLUDE_DIR OpenCVModules_core_LIBRARY OpenCVModules_imgproc_LIBRARY)
