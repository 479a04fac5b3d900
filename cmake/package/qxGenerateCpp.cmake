# Code of object models as a library. docs/cmake.md tells what each argument does.
#
#   qx_generate_cpp(TARGET name [TYPE STATIC|SHARED|OBJECT] | OUT_VAR variable
#       MODELS file... [PROJECT file] [NAME name] [SELECT pattern...] [PREFIX text] [NAMESPACE name]
#       [INCLUDE_DIR name] [SETTINGS key=value...] [SCRIPTS name...] [TEMPLATE_DIRS directory...]
#       [TOOLKIT target] [OUT_DIR directory] [DEPENDS file...|target...]
#       [DIS] [EXAMPLES] [WERROR] [WITH_MANAGEMENT])
#
# When cmake runs, qxgen lists what it is going to write: the sources of the library. What decides on that list are
# configure dependencies, so a build runs cmake again ahead of anything else when one of them has changed. When the
# build runs, a single command writes the files. Its output is a stamp; the files themselves are by-products, since
# qxgen leaves alone those that do not change, and a build tool that takes a file for an output would compile it for a
# stamp that is newer. The order between the command and all that includes the headers comes from a target of its own.
#
# A target has a private directory, <name>_qxgen below the current binary directory:
#
#   arguments           what both runs of qxgen are asked for, one argument a line: no shell comes to see it
#   list, list.json     the files that were listed, and what they depend on
#   stamp, depfile      of the run that writes
#   generated           the files, if OUT_DIR names no other directory

# The functions below are steps of qx_generate_cpp(), in their order, and read its variables: qx_TARGET and the other
# arguments, qx_id, the name that it has among targets, and those that an earlier step has set.

function(_qx_fail text)
    message(FATAL_ERROR "qx_generate_cpp(${qx_id}): ${text}")
endfunction()

function(_qx_write_if_different file text)
    set(present)
    if(EXISTS "${file}")
        file(READ "${file}" present)
    endif()
    if(NOT "x${present}" STREQUAL "x${text}" OR NOT EXISTS "${file}")
        file(WRITE "${file}" "${text}")
    endif()
endfunction()

function(_qx_check_arguments)
    if(qx_UNPARSED_ARGUMENTS)
        _qx_fail("there is no argument ${qx_UNPARSED_ARGUMENTS}.")
    endif()
    if(qx_KEYWORDS_MISSING_VALUES)
        _qx_fail("no value stands behind ${qx_KEYWORDS_MISSING_VALUES}.")
    endif()
    if("${qx_TARGET}" STREQUAL "" AND "${qx_OUT_VAR}" STREQUAL "" OR qx_TARGET AND qx_OUT_VAR)
        _qx_fail("one of TARGET and OUT_VAR has to be given.")
    endif()
    if(qx_OUT_VAR AND (qx_TYPE OR qx_TOOLKIT))
        _qx_fail("OUT_VAR makes no library, so TYPE and TOOLKIT have no meaning.")
    endif()
    if(NOT qx_MODELS AND NOT qx_PROJECT)
        _qx_fail("no model is given: name files behind MODELS, or a project that names them behind PROJECT.")
    endif()
    if(qx_TYPE AND NOT qx_TYPE MATCHES "^(STATIC|SHARED|OBJECT)$")
        _qx_fail("TYPE is STATIC, SHARED or OBJECT, not ${qx_TYPE}.")
    endif()
    if(WIN32 AND qx_TYPE STREQUAL "SHARED")
        _qx_fail("a DLL is built by the generated project files; TYPE SHARED is for other systems.")
    endif()
    if(TARGET "${qx_id}")
        _qx_fail("there is a target of this name already.")
    endif()
    if("${ARGN}" MATCHES "\n")
        _qx_fail("an argument has a line feed in it.")
    endif()
    if("${qx_NAME}" MATCHES "[][;]")
        _qx_fail("NAME becomes part of the names of files, in which CMake takes no brackets and no semicolon.")
    endif()
endfunction()

# The path of an input: what stands in the current source directory, else the name, which qxgen looks for.
function(_qx_input_path variable name)
    get_filename_component(path "${name}" ABSOLUTE BASE_DIR "${CMAKE_CURRENT_SOURCE_DIR}")
    if(NOT EXISTS "${path}")
        set(path "${name}")
    endif()
    set(${variable} "${path}" PARENT_SCOPE)
endfunction()

# Puts the lines of the file of arguments into qx_arguments.
function(_qx_collect_arguments)
    set(lines)
    foreach(model IN LISTS qx_MODELS)
        _qx_input_path(path "${model}")
        string(APPEND lines "${path}\n")
    endforeach()
    set(options
        "PROJECT|--project|path" "NAME|--name|text" "PREFIX|--prefix|text" "NAMESPACE|--namespace|text"
        "INCLUDE_DIR|--include-dir|text" "SELECT|--select|text" "SETTINGS|--set|text" "SCRIPTS|--script|path"
        "TEMPLATE_DIRS|--template-dir|path")
    foreach(row IN LISTS options)
        string(REPLACE "|" ";" row "${row}")
        list(GET row 0 keyword)
        list(GET row 1 option)
        list(GET row 2 kind)
        foreach(value IN LISTS qx_${keyword})
            if(kind STREQUAL "path")
                _qx_input_path(value "${value}")
            endif()
            string(APPEND lines "${option}=${value}\n")
        endforeach()
    endforeach()
    if(qx_SCRIPTS)
        string(APPEND lines "--script=cpp\n") # which a named script would stand for
    endif()
    foreach(flag "DIS|--dis" "EXAMPLES|--examples" "WITH_MANAGEMENT|--with-management")
        string(REPLACE "|" ";" flag "${flag}")
        list(GET flag 0 keyword)
        list(GET flag 1 option)
        if(qx_${keyword})
            string(APPEND lines "${option}\n")
        endif()
    endforeach()
    set(qx_arguments "${lines}" PARENT_SCOPE)
endfunction()

# A directory for each target, and never two in one: each would remove the files of the other.
function(_qx_choose_directory)
    set(directory "${qx_private}/generated")
    if(qx_OUT_DIR)
        get_filename_component(directory "${qx_OUT_DIR}" ABSOLUTE BASE_DIR "${CMAKE_CURRENT_BINARY_DIR}")
    endif()
    get_property(taken GLOBAL PROPERTY _qx_output_directories)
    if("${directory}" IN_LIST taken)
        _qx_fail("the directory ${directory} is that of another target.")
    endif()
    set_property(GLOBAL APPEND PROPERTY _qx_output_directories "${directory}")
    set(qx_output "${directory}" PARENT_SCOPE)
endfunction()

# Once more for all that qxgen has to say: what is wrong in a model may stand in warnings ahead of the error. Lines that
# begin with blanks stay as they are in a message.
function(_qx_fail_by_qxgen)
    execute_process(
        COMMAND "${qx_qxgen}" generate "@${qx_private}/arguments" --list
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
        OUTPUT_QUIET ERROR_VARIABLE errors RESULT_VARIABLE code)
    if("${errors}" STREQUAL "")
        set(errors "${qx_qxgen} ends with ${code}.")
    endif()
    string(REGEX REPLACE "\n+$" "" errors "${errors}")
    string(REPLACE "\n" "\n    " errors "${errors}")
    _qx_fail("the models give no list of files:\n    ${errors}")
endfunction()

# Asks qxgen for the names of all outputs, and makes what they depend on dependencies of the configuration.
function(_qx_list_outputs)
    _qx_write_if_different("${qx_private}/arguments" "${qx_arguments}")
    execute_process(
        COMMAND "${qx_qxgen}" generate "@${qx_private}/arguments" --list --quiet "--report=${qx_private}/list.json"
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
        OUTPUT_VARIABLE list ERROR_QUIET RESULT_VARIABLE code)
    if(NOT code EQUAL 0)
        _qx_fail_by_qxgen()
    endif()
    _qx_write_if_different("${qx_private}/list" "${list}")
    string(REGEX REPLACE "\n$" "" list "${list}")
    string(REPLACE "\n" ";" list "${list}")
    set(qx_files ${list} PARENT_SCOPE)

    set(inputs "${qx_qxgen}")
    file(READ "${qx_private}/list.json" report)
    string(JSON listed GET "${report}" inputs)
    string(JSON count LENGTH "${listed}")
    if(count GREATER 0)
        math(EXPR last "${count} - 1")
        foreach(index RANGE ${last})
            string(JSON path GET "${listed}" ${index} path)
            list(APPEND inputs "${path}")
        endforeach()
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${inputs} ${qx_directories})
endfunction()

# The directories of own templates: a file that is put there changes their times.
function(_qx_find_template_directories)
    set(directories)
    foreach(name IN LISTS qx_TEMPLATE_DIRS)
        _qx_input_path(path "${name}")
        file(GLOB_RECURSE entries LIST_DIRECTORIES true "${path}/*")
        foreach(entry IN LISTS path entries)
            if(IS_DIRECTORY "${entry}")
                list(APPEND directories "${entry}")
            endif()
        endforeach()
    endforeach()
    set(qx_directories ${directories} PARENT_SCOPE)
endfunction()

# The command that writes the files, and the target that carries it out.
function(_qx_add_command)
    set(werror)
    if(qx_WERROR)
        set(werror --werror)
    endif()
    list(TRANSFORM qx_files PREPEND "${qx_output}/" OUTPUT_VARIABLE paths)
    # Make looks at the stamp alone. Without it, files that somebody has removed are made again.
    foreach(path IN LISTS paths)
        if(NOT EXISTS "${path}")
            file(REMOVE "${qx_private}/stamp")
            break()
        endif()
    endforeach()
    set_source_files_properties(${paths} PROPERTIES GENERATED TRUE SKIP_AUTOGEN TRUE)
    add_custom_command(
        OUTPUT "${qx_private}/stamp"
        BYPRODUCTS ${paths}
        COMMAND "${qx_qxgen}" generate "@${qx_private}/arguments" -o "${qx_output}" --stamp "${qx_private}/stamp"
            --depfile "${qx_private}/depfile" --expect-list "${qx_private}/list" ${werror}
        DEPENDS "${qx_private}/arguments" "${qx_private}/list" "${qx_qxgen}" ${qx_directories} ${qx_DEPENDS}
        DEPFILE "${qx_private}/depfile"
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
        COMMENT "Generating the C++ of ${qx_id}"
        VERBATIM)
    add_custom_target(${qx_id}_qxgen DEPENDS "${qx_private}/stamp")
endfunction()

# The directory of the headers decides on the include path; it may come from a project or a setting, too.
function(_qx_find_include_directories)
    set(directories "${qx_output}")
    foreach(file IN LISTS qx_files)
        if(file MATCHES "^(.+)/dllExport\\.h$")
            list(APPEND directories "${qx_output}/${CMAKE_MATCH_1}")
        endif()
    endforeach()
    set(qx_includes ${directories} PARENT_SCOPE)
endfunction()

# Sorts the sources as the generated makefile does: datatypes and state repositories are for both protocols, others for
# one of them, and the rest chooses by QX_DIS.
function(_qx_sort_sources)
    set(hla)
    set(dis)
    set(has_dis FALSE)
    set(headers)
    foreach(file IN LISTS qx_files)
        if(file MATCHES "^Examples/")
            continue()
        elseif(file MATCHES "\\.h$")
            list(APPEND headers "${qx_output}/${file}")
        elseif(NOT file MATCHES "\\.cxx$")
            continue()
        elseif(file MATCHES "^DataTypes/|StateRepository\\.cxx$" OR NOT file MATCHES "(HLA|DIS|Pdu)\\.cxx$")
            list(APPEND hla "${qx_output}/${file}")
            list(APPEND dis "${qx_output}/${file}")
        elseif(file MATCHES "HLA\\.cxx$")
            list(APPEND hla "${qx_output}/${file}")
        else()
            list(APPEND dis "${qx_output}/${file}")
            set(has_dis TRUE)
        endif()
    endforeach()
    if(NOT has_dis)
        set(dis)
    endif()
    set(qx_headers ${headers} PARENT_SCOPE)
    set(qx_hla_sources ${hla} PARENT_SCOPE)
    set(qx_dis_sources ${dis} PARENT_SCOPE)
endfunction()

function(_qx_add_library name)
    add_library(${name} ${qx_TYPE} ${ARGN} ${qx_headers})
    add_dependencies(${name} ${qx_id}_qxgen)
    list(TRANSFORM qx_includes REPLACE "(.+)" "$<BUILD_INTERFACE:\\1>" OUTPUT_VARIABLE includes)
    target_include_directories(${name} PUBLIC ${includes})
    target_link_libraries(${name} PUBLIC ${qx_toolkit})
    target_compile_features(${name} PUBLIC cxx_std_11)
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX UNITY_BUILD OFF
        AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
endfunction()

# talk and listen of each class, which are built by a target of their own only.
function(_qx_add_examples)
    set(programs)
    foreach(file IN LISTS qx_files)
        if(file MATCHES "^Examples/([^/]+)/(talk|listen)\\.cxx$")
            set(program ${qx_TARGET}_${CMAKE_MATCH_1}_${CMAKE_MATCH_2})
            add_executable(${program} EXCLUDE_FROM_ALL "${qx_output}/${file}")
            set_target_properties(${program} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF
                OUTPUT_NAME ${CMAKE_MATCH_2} RUNTIME_OUTPUT_DIRECTORY "${qx_private}/examples/${CMAKE_MATCH_1}")
            target_link_libraries(${program} PRIVATE ${qx_TARGET})
            list(APPEND programs ${program})
        endif()
    endforeach()
    if(programs)
        add_custom_target(${qx_TARGET}_examples DEPENDS ${programs})
    endif()
endfunction()

function(qx_generate_cpp)
    set(flags DIS EXAMPLES WERROR WITH_MANAGEMENT)
    set(values TARGET OUT_VAR TYPE PROJECT NAME PREFIX NAMESPACE INCLUDE_DIR TOOLKIT OUT_DIR)
    set(lists MODELS SELECT SETTINGS SCRIPTS TEMPLATE_DIRS DEPENDS)
    cmake_parse_arguments(PARSE_ARGV 0 qx "${flags}" "${values}" "${lists}")
    set(qx_id "${qx_TARGET}${qx_OUT_VAR}")
    _qx_check_arguments("${ARGV}")
    get_target_property(qx_qxgen QuorvexCodeGen::qxgen IMPORTED_LOCATION)
    set(qx_private "${CMAKE_CURRENT_BINARY_DIR}/${qx_id}_qxgen")
    _qx_choose_directory()
    _qx_find_template_directories()
    _qx_collect_arguments()
    _qx_list_outputs()
    _qx_add_command()
    _qx_find_include_directories()
    _qx_sort_sources()
    if(qx_OUT_VAR)
        # The stamp is an output, so that whoever takes the list waits for the headers, too.
        set(${qx_OUT_VAR} ${qx_hla_sources} ${qx_headers} "${qx_private}/stamp" PARENT_SCOPE)
        set(${qx_OUT_VAR}_INCLUDE_DIRS ${qx_includes} PARENT_SCOPE)
        return()
    endif()
    _qx_find_toolkit(qx_toolkit "${qx_TOOLKIT}")
    _qx_add_library(${qx_TARGET} ${qx_hla_sources})
    if(qx_dis_sources)
        _qx_add_library(${qx_TARGET}DIS ${qx_dis_sources})
        target_compile_definitions(${qx_TARGET}DIS PUBLIC QX_DIS)
    endif()
    _qx_add_examples()
endfunction()

function(qx_check_model)
    message(FATAL_ERROR "qx_check_model() adds a test that runs qxgen check, which this version of qxgen does not have. "
        "Leave the call out.")
endfunction()
