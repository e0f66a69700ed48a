# Read by cpack: the time of everything in the archive.
set(ENV{TZ} UTC)
if("$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
    # The days since 1970, counted in years that begin in March.
    string(REGEX MATCH "(....)-0?(.+)-0?(.+)" date ${CPACK_PEXLO_DATE})
    math(EXPR month "(${CMAKE_MATCH_2} + 9) % 12")
    math(EXPR year "${CMAKE_MATCH_1} - ${month} / 10")
    math(EXPR days "365 * ${year} + ${year} / 4 - ${year} / 100 + ${year} / 400 + (${month} * 306 + 5) / 10 + ${CMAKE_MATCH_3} - 719469")
    math(EXPR seconds "${days} * 86400")
    set(ENV{SOURCE_DATE_EPOCH} ${seconds})
endif()
