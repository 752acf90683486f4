# The fonts of the game, from Debian's packages: copied into data/fonts, which git ignores, under the names that data and
# code use.

set(PETREL_FONTS_FOLDER "${CMAKE_SOURCE_DIR}/data/fonts")

# petrel_font(NAME PACKAGE FILE): FILE, which PACKAGE installs, as NAME.
function(petrel_font pName pPackage pFile)
    set(file "/usr/share/fonts/${pFile}")
    if(NOT EXISTS "${file}")
        message(FATAL_ERROR "${pName} is ${file} of the package ${pPackage}, which is not installed.")
    endif()
    configure_file("${file}" "${PETREL_FONTS_FOLDER}/${pName}" COPYONLY)
endfunction()

petrel_font(clarendon.ttf fonts-roboto-slab opentype/roboto/slab/RobotoSlab-Regular.otf)
petrel_font(clarendonbold.ttf fonts-roboto-slab opentype/roboto/slab/RobotoSlab-Bold.otf)

# Where a letter is looked for that those lack, in this order.
petrel_font(fallback0.ttf fonts-dejavu-core truetype/dejavu/DejaVuSans.ttf)
petrel_font(fallback1.ttf fonts-lohit-deva truetype/lohit-devanagari/Lohit-Devanagari.ttf)
petrel_font(fallback2.ttf fonts-tlwg-loma-ttf truetype/tlwg/Loma.ttf)
