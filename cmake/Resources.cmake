# The bundle's page resources and the product's data, a rule for each file, so that one changed file renews one copy.

cmake_path(SET ZV_RESOURCES NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../resources)

find_program(ZV_RSVG rsvg-convert)
if(NOT ZV_RSVG)
  message(FATAL_ERROR "rsvg-convert draws the images (package librsvg2-bin)")
endif()

# zv_copy_files(FROM TO LIST PATTERN...): rules that copy the files of the folder FROM to the folder TO, with their
# paths below FROM; the copies' paths are appended to the list LIST.
function(zv_copy_files from to list)
  list(TRANSFORM ARGN PREPEND ${from}/)
  set(copies ${${list}})
  file(GLOB found RELATIVE ${from} CONFIGURE_DEPENDS ${ARGN})
  foreach(file IN LISTS found)
    add_custom_command(OUTPUT ${to}/${file} DEPENDS ${from}/${file} VERBATIM
      COMMAND ${CMAKE_COMMAND} -E copy ${from}/${file} ${to}/${file})
    list(APPEND copies ${to}/${file})
  endforeach()
  set(${list} ${copies} PARENT_SCOPE)
endfunction()

# zv_draw_images(SHEET POINTS TO LIST NAME...): rules that draw the elements with these ids of artwork/SHEET.svg,
# POINTS points square, at the phone's three scales; the images' paths are appended to the list LIST.
function(zv_draw_images sheet points to list)
  set(images ${${list}})
  set(drawing ${ZV_RESOURCES}/artwork/${sheet}.svg)
  set(scales 1 2 3)
  set(suffixes .png @2x.png @3x.png)
  foreach(name IN LISTS ARGN)
    foreach(scale suffix IN ZIP_LISTS scales suffixes)
      math(EXPR pixels "${points} * ${scale}")
      add_custom_command(OUTPUT ${to}/${name}${suffix} DEPENDS ${drawing} VERBATIM
        COMMAND ${ZV_RSVG} --export-id ${name} --width ${pixels} --height ${pixels}
          --output ${to}/${name}${suffix} ${drawing})
      list(APPEND images ${to}/${name}${suffix})
    endforeach()
  endforeach()
  set(${list} ${images} PARENT_SCOPE)
endfunction()

# zv_resources(TARGET BUNDLE PRODUCT): fills the folder BUNDLE with what lies in the bundle beside its executable, and
# PRODUCT with what is installed below /Library/Zelvora.
function(zv_resources target bundle product)
  zv_copy_files(${ZV_RESOURCES} ${bundle} outputs *.plist *.lproj/*.strings)
  zv_copy_files(${ZV_RESOURCES}/product ${product} outputs */*.plist)
  zv_draw_images(rows 29 ${bundle} outputs icon Keypad Recents Filters Area CodeTable Prefixes Codes
    Blacklist Whitelist Priority Exclusion History CallTime MyInfo)
  zv_draw_images(sliders 22 ${bundle} outputs VibrationWeak VibrationStrong TextSmall TextLarge)
  zv_draw_images(bar 24 ${product} outputs tools)
  zv_draw_images(marks 22 ${product} outputs checked notchecked)
  add_custom_target(${target} ALL DEPENDS ${outputs})
endfunction()
