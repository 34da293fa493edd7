# SPDX-License-Identifier: MIT
# Runs lmformat's list and search commands against a settings file of its own.
#   cmake -DLMFORMAT=<exe> -DCATALOGUE=<formats.json> -DWORK_DIR=<dir> -DSCENARIO=<name>
#         -P LMFormatCliTest.cmake
# Each scenario starts from an empty folder; every run of lmformat is a new
# process, so what one run saved is what the next one reads.

foreach(var LMFORMAT CATALOGUE WORK_DIR SCENARIO)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "${var} is not set")
    endif()
endforeach()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(SETTINGS "${WORK_DIR}/settings.ini")
set(TAB "\t")

# lmformat(<expected exit code> <expected stdout> ARGS...): runs with --settings.
function(lmformat expected_code expected_out)
    execute_process(COMMAND "${LMFORMAT}" --settings "${SETTINGS}" ${ARGN}
                    RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT code STREQUAL expected_code)
        message(FATAL_ERROR "lmformat ${ARGN}: exit ${code}, expected ${expected_code}\n${err}")
    endif()
    if(NOT out STREQUAL expected_out)
        message(FATAL_ERROR "lmformat ${ARGN}: printed\n[${out}]\nexpected\n[${expected_out}]")
    endif()
endfunction()

if(SCENARIO STREQUAL "recent")
    lmformat(0 "" recent list)
    lmformat(0 "" recent push "${CATALOGUE}" "Video/MP4/HD 720p")
    lmformat(0 "MP4 HD 720p${TAB}MP4 file format\n" recent list)
    lmformat(0 "" recent push "${CATALOGUE}" "Audio/FLAC/Lossless")
    lmformat(0 "" recent push "${CATALOGUE}" "Video/MKV/HD 1080p")
    lmformat(0 "MKV HD 1080p${TAB}Matroska file format\nFLAC Lossless${TAB}FLAC file format\nMP4 HD 720p${TAB}MP4 file format\n"
             recent list)
    # Choosing a listed preset again moves it to the front instead of adding it.
    lmformat(0 "" recent push "${CATALOGUE}" "Video/MP4/HD 720p")
    lmformat(0 "MP4 HD 720p${TAB}MP4 file format\nMKV HD 1080p${TAB}Matroska file format\nFLAC Lossless${TAB}FLAC file format\n"
             recent list)
    lmformat(0 "" recent remove "MKV HD 1080p")
    lmformat(0 "MP4 HD 720p${TAB}MP4 file format\nFLAC Lossless${TAB}FLAC file format\n" recent list)
    lmformat(1 "" recent remove "MKV HD 1080p")
    lmformat(1 "" recent push "${CATALOGUE}" "Video/MP4/No such preset")
    lmformat(1 "" recent push "${WORK_DIR}/missing.json" "Video/MP4/HD 720p")
    lmformat(0 "MP4 HD 720p${TAB}MP4 file format\nFLAC Lossless${TAB}FLAC file format\n" recent list)
    # A removal hands the entry's newest-first position to the stored tree, which
    # counts oldest first: removing the older of two entries drops the newer one's
    # node from what is saved, and the next start shows the other entry.
    lmformat(0 "" recent remove "FLAC Lossless")
    lmformat(0 "FLAC Lossless${TAB}FLAC file format\n" recent list)
    lmformat(0 "" recent remove "FLAC Lossless")
    lmformat(0 "" recent list)
elseif(SCENARIO STREQUAL "custom")
    lmformat(0 "" custom list)
    lmformat(0 "" custom add "${CATALOGUE}" "Video/MP4/HD 720p" "Phone copy")
    lmformat(0 "" custom add "${CATALOGUE}" "Audio/FLAC/Lossless" "Archive")
    lmformat(0 "" custom add "${CATALOGUE}" "Video/MP4/HD 1080p" "Big screen")
    lmformat(0 "MP4/Phone copy\nMP4/Big screen\nFLAC/Archive\n" custom list)
    # Custom presets are stored as they are given; nothing merges equal ones.
    lmformat(0 "" custom add "${CATALOGUE}" "Audio/FLAC/Lossless" "Archive")
    lmformat(0 "MP4/Phone copy\nMP4/Big screen\nFLAC/Archive\nFLAC/Archive\n" custom list)
    lmformat(0 "" custom remove MP4 "Phone copy")
    lmformat(0 "MP4/Big screen\nFLAC/Archive\nFLAC/Archive\n" custom list)
    # The last preset of a group takes the group with it.
    lmformat(0 "" custom remove MP4 "Big screen")
    lmformat(0 "FLAC/Archive\nFLAC/Archive\n" custom list)
    lmformat(1 "" custom remove MP4 "Big screen")
    lmformat(1 "" custom remove FLAC "No such preset")
    lmformat(1 "" custom add "${CATALOGUE}" "Audio/FLAC/No such preset" "Name")
    lmformat(0 "FLAC/Archive\nFLAC/Archive\n" custom list)
    # The recent list is a key of its own, untouched by all this.
    lmformat(0 "" recent list)
elseif(SCENARIO STREQUAL "search")
    lmformat(0 "Formats\n  Video\n    HEVC MP4\n      4K 2160p\n  Device\n    Television\n      4K 2160p\n"
             search "${CATALOGUE}" "4k")
    # A matching format node comes whole.
    lmformat(0 "Formats\n  Audio\n    MKA\n      Lossless\n    FLAC\n      Lossless\n      HD 96 kHz\n"
             search "${CATALOGUE}" "flac")
    lmformat(0 "Formats\n" search "${CATALOGUE}" "no such words")
    # An empty text finds nothing to print (passed by hand: list expansion would
    # drop an empty argument).
    execute_process(COMMAND "${LMFORMAT}" --settings "${SETTINGS}" search "${CATALOGUE}" ""
                    RESULT_VARIABLE code OUTPUT_VARIABLE out)
    if(NOT code EQUAL 0 OR NOT out STREQUAL "")
        message(FATAL_ERROR "search with empty text: exit ${code}, [${out}]")
    endif()
    lmformat(1 "" search "${WORK_DIR}/missing.json" "4k")
elseif(SCENARIO STREQUAL "settings")
    # Two settings files, two sets of lists; --settings=FILE works as well.
    lmformat(0 "" recent push "${CATALOGUE}" "Video/MP4/HD 720p")
    execute_process(COMMAND "${LMFORMAT}" "--settings=${WORK_DIR}/other.ini" recent list
                    RESULT_VARIABLE code OUTPUT_VARIABLE out)
    if(NOT code EQUAL 0 OR NOT out STREQUAL "")
        message(FATAL_ERROR "another settings file sees the list: exit ${code}, [${out}]")
    endif()
    execute_process(COMMAND "${LMFORMAT}" "--settings=${SETTINGS}" recent list
                    RESULT_VARIABLE code OUTPUT_VARIABLE out)
    if(NOT code EQUAL 0 OR NOT out STREQUAL "MP4 HD 720p${TAB}MP4 file format\n")
        message(FATAL_ERROR "--settings=FILE does not read the list: exit ${code}, [${out}]")
    endif()
    # The stored value is Base64 text of the list, under its key.
    file(READ "${SETTINGS}" ini)
    if(NOT ini MATCHES "recent_format_preset=\"?[A-Za-z0-9+/]+=*\"?\n")
        message(FATAL_ERROR "unexpected settings file:\n${ini}")
    endif()
    # A value that is not a list reads as an empty one, is put aside, and can
    # then be written over.
    file(WRITE "${SETTINGS}" "[General]\nrecent_format_preset=not base64 at all\n")
    lmformat(0 "" recent list)
    lmformat(0 "" recent push "${CATALOGUE}" "Audio/FLAC/Lossless")
    lmformat(0 "FLAC Lossless${TAB}FLAC file format\n" recent list)
    file(GLOB kept "${SETTINGS}.preset-backups/recent_format_preset/unreadable-*.b64")
    list(LENGTH kept count)
    if(NOT count EQUAL 1)
        message(FATAL_ERROR "the unreadable value was not put aside: ${kept}")
    endif()
    file(READ "${kept}" value)
    if(NOT value STREQUAL "not base64 at all")
        message(FATAL_ERROR "the put-aside value changed: [${value}]")
    endif()
    # Usage errors.
    execute_process(COMMAND "${LMFORMAT}" --settings RESULT_VARIABLE code OUTPUT_QUIET ERROR_QUIET)
    if(NOT code EQUAL 2)
        message(FATAL_ERROR "--settings without a file: exit ${code}, expected 2")
    endif()
    lmformat(1 "" recent)
    lmformat(1 "" custom nonsense)
elseif(SCENARIO STREQUAL "safety")
    # Each save keeps the value it replaces; restore puts one back.
    lmformat(0 "" custom add "${CATALOGUE}" "Video/MP4/HD 720p" "One")
    lmformat(0 "" custom add "${CATALOGUE}" "Video/MP4/HD 720p" "Two")
    lmformat(0 "" custom add "${CATALOGUE}" "Video/MP4/HD 720p" "Three")
    execute_process(COMMAND "${LMFORMAT}" --settings "${SETTINGS}" custom backups
                    RESULT_VARIABLE code OUTPUT_VARIABLE out)
    if(NOT code EQUAL 0 OR NOT out MATCHES "^1\t[0-9-]+ [0-9:]+\t2 entries\t[^\n]+\n2\t[0-9-]+ [0-9:]+\t1 entry\t[^\n]+\n$")
        message(FATAL_ERROR "custom backups: exit ${code}, [${out}]")
    endif()
    lmformat(0 "" custom restore 2)
    lmformat(0 "MP4/One\n" custom list)
    lmformat(1 "" custom restore 9)
    lmformat(1 "" custom restore none)
    lmformat(0 "no backups\n" recent backups)
    # A name the stored list could not read back is refused where it is entered.
    string(REPEAT "n" 4097 long_name)
    lmformat(1 "" custom add "${CATALOGUE}" "Video/MP4/HD 720p" "${long_name}")
    lmformat(0 "MP4/One\n" custom list)
    # A store written by a newer version is left alone, and the command says so.
    file(READ "${SETTINGS}" before)
    string(REPLACE "format_preset_store_version=1" "format_preset_store_version=2" newer "${before}")
    file(WRITE "${SETTINGS}" "${newer}")
    execute_process(COMMAND "${LMFORMAT}" --settings "${SETTINGS}" custom add "${CATALOGUE}"
                            "Video/MP4/HD 720p" "Four"
                    RESULT_VARIABLE code ERROR_VARIABLE err OUTPUT_QUIET)
    if(NOT code EQUAL 1 OR NOT err MATCHES "newer version")
        message(FATAL_ERROR "a newer store was written over: exit ${code}, [${err}]")
    endif()
    file(READ "${SETTINGS}" after)
    if(NOT after STREQUAL newer)
        message(FATAL_ERROR "the newer store changed")
    endif()
    # A store that cannot be written: the change is refused with exit 1.
    file(WRITE "${WORK_DIR}/blocked" "a file where a folder should be")
    execute_process(COMMAND "${LMFORMAT}" --settings "${WORK_DIR}/blocked/s.ini" recent push
                            "${CATALOGUE}" "Video/MP4/HD 720p"
                    RESULT_VARIABLE code ERROR_VARIABLE err OUTPUT_QUIET)
    if(NOT code EQUAL 1 OR NOT err MATCHES "recent_format_preset")
        message(FATAL_ERROR "an unwritable store: exit ${code}, [${err}]")
    endif()
elseif(SCENARIO STREQUAL "presets")
    # Presets exported from one settings file come back in another alike: the same
    # names in the same order, each with the same ffmpeg options.
    lmformat(0 "" custom add "${CATALOGUE}" "Video/MP4/HD 1080p" "Big screen")
    lmformat(0 "" custom add "${CATALOGUE}" "Audio/FLAC/Lossless" "Archive")
    lmformat(0 "MP4/Small HEVC\n" custom from-args "Small HEVC" --
             -c:v libx265 -crf 28 -c:a aac -b:a 128k -f mp4)
    lmformat(0 "MP4/Big screen (2)\n" custom duplicate MP4 "Big screen")
    lmformat(0 "" custom move MP4 "Small HEVC" up)
    lmformat(0 "" custom move MP4 "Small HEVC" up)
    lmformat(1 "" custom move MP4 "Small HEVC" up)
    lmformat(0 "" custom rename MP4 "Big screen (2)" "Second screen")
    lmformat(1 "" custom rename MP4 "Second screen" "Big screen")
    set(listed "MP4/Small HEVC\nMP4/Big screen\nMP4/Second screen\nFLAC/Archive\n")
    lmformat(0 "${listed}" custom list)
    set(names "MP4|Small HEVC" "MP4|Big screen" "MP4|Second screen" "FLAC|Archive")
    set(options "")
    foreach(name IN LISTS names)
        string(REPLACE "|" ";" parts "${name}")
        execute_process(COMMAND "${LMFORMAT}" --settings "${SETTINGS}" custom ffmpeg ${parts}
                        RESULT_VARIABLE code OUTPUT_VARIABLE out)
        if(NOT code EQUAL 0 OR out STREQUAL "")
            message(FATAL_ERROR "custom ffmpeg ${parts}: exit ${code}")
        endif()
        list(APPEND options "${out}")
    endforeach()
    # The pasted line comes back with every option it asked for.
    list(GET options 0 hevc)
    foreach(part "-c:v libx265 " "-crf 28 " "-c:a aac " "-b:a 128k " "-f mp4")
        string(FIND "${hevc}" "${part}" at)
        if(at EQUAL -1)
            message(FATAL_ERROR "custom ffmpeg of the pasted line lacks ${part}: ${hevc}")
        endif()
    endforeach()
    lmformat(0 "exported 4 presets to ${WORK_DIR}/mine.json\n" custom export "${WORK_DIR}/mine.json")
    set(first "${SETTINGS}")
    set(SETTINGS "${WORK_DIR}/other.ini")
    lmformat(0 "" custom list)
    lmformat(0 "imported 4 presets\n" custom import "${WORK_DIR}/mine.json")
    lmformat(0 "${listed}" custom list)
    set(index 0)
    foreach(name IN LISTS names)
        string(REPLACE "|" ";" parts "${name}")
        execute_process(COMMAND "${LMFORMAT}" --settings "${SETTINGS}" custom ffmpeg ${parts}
                        RESULT_VARIABLE code OUTPUT_VARIABLE out)
        list(GET options ${index} expected)
        if(NOT code EQUAL 0 OR NOT out STREQUAL expected)
            message(FATAL_ERROR "custom ffmpeg ${parts} after import: [${out}], expected [${expected}]")
        endif()
        math(EXPR index "${index} + 1")
    endforeach()
    # Each clash policy, importing the file again.
    lmformat(0 "imported 0 presets; left out 4 presets whose name was taken\n"
             custom import "${WORK_DIR}/mine.json" --on-clash skip)
    lmformat(0 "imported 0 presets; replaced the settings of 4 presets\n"
             custom import "${WORK_DIR}/mine.json" --on-clash replace)
    lmformat(0 "${listed}" custom list)
    lmformat(0 "exported 2 presets to ${WORK_DIR}/two.json\n"
             custom export "${WORK_DIR}/two.json" "MP4/Big screen" "FLAC/Archive")
    lmformat(0 "imported 2 presets, 2 of them under a new name\n"
             custom import "${WORK_DIR}/two.json" --on-clash rename)
    lmformat(0 "MP4/Small HEVC\nMP4/Big screen\nMP4/Second screen\nMP4/Big screen (2)\nFLAC/Archive\nFLAC/Archive (2)\n"
             custom list)
    # Bad files change nothing and say why.
    file(WRITE "${WORK_DIR}/bad.json" "{\"format\": \"lmformat-presets\", \"version\": 1, \"presets\": [")
    execute_process(COMMAND "${LMFORMAT}" --settings "${SETTINGS}" custom import "${WORK_DIR}/bad.json"
                    RESULT_VARIABLE code ERROR_VARIABLE err OUTPUT_QUIET)
    if(NOT code EQUAL 1 OR NOT err MATCHES "not valid JSON")
        message(FATAL_ERROR "a file cut short: exit ${code}, [${err}]")
    endif()
    lmformat(1 "" custom import "${WORK_DIR}/mine.json" --on-clash sometimes)
    lmformat(1 "" custom export "${WORK_DIR}/none.json" "MP4/No such preset")
    lmformat(1 "" custom ffmpeg MP4 "No such preset")
    lmformat(1 "" custom from-args "Name" -c:v libx264)
    lmformat(0 "MP4/Small HEVC\nMP4/Big screen\nMP4/Second screen\nMP4/Big screen (2)\nFLAC/Archive\nFLAC/Archive (2)\n"
             custom list)
    # The first settings file still holds its own list.
    set(SETTINGS "${first}")
    lmformat(0 "${listed}" custom list)
else()
    message(FATAL_ERROR "unknown scenario ${SCENARIO}")
endif()
