# Zelvora.bundle as it is loaded on Linux: an ELF module beside its resources, flat as on the phone.

add_library(zvpieces STATIC ${ZV_PIECE_SOURCES})
target_include_directories(zvpieces PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(zvpieces PUBLIC zvplatform sqlite3 PRIVATE zv_warnings)

set(ZV_BUNDLE_DIR ${CMAKE_BINARY_DIR}/Zelvora.bundle)
add_library(Zelvora MODULE ${ZV_PAGE_SOURCES} ${ZV_PIECE_SOURCES})
target_include_directories(Zelvora PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(Zelvora PRIVATE zvplatform sqlite3 zv_warnings)
set_target_properties(Zelvora PROPERTIES PREFIX "" SUFFIX "" LIBRARY_OUTPUT_DIRECTORY ${ZV_BUNDLE_DIR})

include(Resources)
set(ZV_PRODUCT_DIR ${CMAKE_BINARY_DIR}/product)
zv_resources(zvresources ${ZV_BUNDLE_DIR} ${ZV_PRODUCT_DIR})
add_dependencies(Zelvora zvresources)
