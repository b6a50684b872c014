# Common settings for every seisplot target, and the helper that declares one layer.

add_library(seisplot_options INTERFACE)
add_library(seisplot::options ALIAS seisplot_options)
target_compile_options(seisplot_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align
    -Wunused -Woverloaded-virtual -Wnull-dereference -Wdouble-promotion -Wformat=2
    -Wimplicit-fallthrough
    # Numbers must not change with the CPU: no fused multiply-add behind our back.
    -ffp-contract=off)
if(SEISPLOT_WERROR)
    target_compile_options(seisplot_options INTERFACE -Werror)
endif()
if(SEISPLOT_SANITIZE)
    target_compile_options(seisplot_options INTERFACE
        -fsanitize=${SEISPLOT_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(seisplot_options INTERFACE -fsanitize=${SEISPLOT_SANITIZE})
endif()
if(SEISPLOT_FUZZ)
    # Coverage feedback for libFuzzer from every layer; only the fuzz targets link libFuzzer.
    target_compile_options(seisplot_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# seisplot_add_layer(<name> COMPONENT <component> SOURCES ... HEADERS ... [DEPENDS ...])
# Declares the static library seisplot_<name>, aliased seisplot::<name>, installed with the
# package component <component> (core, draw or ui). Headers are included as
# "<folder>/<Header>.h" from src/ while building and from include/seisplot once installed.
function(seisplot_add_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "COMPONENT"
        "SOURCES;HEADERS;DEPENDS;PRIVATE_DEPENDS")
    if(NOT arg_COMPONENT)
        message(FATAL_ERROR "seisplot_add_layer(${name}): COMPONENT is required")
    endif()
    set(target seisplot_${name})
    add_library(${target} ${arg_SOURCES})
    add_library(seisplot::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name} OUTPUT_NAME seisplot_${name})
    target_sources(${target} PUBLIC
        FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${arg_HEADERS})
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_link_libraries(${target} PUBLIC ${arg_DEPENDS}
        PRIVATE $<BUILD_INTERFACE:seisplot::options> ${arg_PRIVATE_DEPENDS})
    set_property(GLOBAL APPEND PROPERTY SEISPLOT_LAYERS_${arg_COMPONENT} ${target})
endfunction()
