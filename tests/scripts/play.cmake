# Plays NAME.lig in a fresh copy of the data directory, over which the files of NAME.data are put
# where there is such a folder (those that its file REMOVED names are taken away), and compares:
# standard output, then standard error and the exit status where it is not 0, with NAME.out; each
# file FILE that the script saved with NAME.FILE, where such a file is kept. ACCEPT=1 keeps the new
# results instead.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(GLOB data ${DATA}/*)
file(COPY ${data} DESTINATION ${WORK})
if(IS_DIRECTORY ${SCRIPTS}/${NAME}.data)
  # file(COPY) would pass over a file of the same age, as all are in a fresh clone.
  file(GLOB replacements RELATIVE ${SCRIPTS}/${NAME}.data ${SCRIPTS}/${NAME}.data/*)
  foreach(file ${replacements})
    file(COPY_FILE ${SCRIPTS}/${NAME}.data/${file} ${WORK}/${file})
  endforeach()
  if(EXISTS ${WORK}/REMOVED)
    file(STRINGS ${WORK}/REMOVED removed)
    list(TRANSFORM removed PREPEND ${WORK}/)
    file(REMOVE ${removed})
  endif()
endif()
execute_process(COMMAND ${PROGRAM} --data ${WORK} ${NAME}.lig
                WORKING_DIRECTORY ${SCRIPTS}
                OUTPUT_FILE ${WORK}/transcript ERROR_VARIABLE complaint RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  file(APPEND ${WORK}/transcript "${complaint}exit ${status}\n")
endif()
# Where the copy lies differs from machine to machine.
execute_process(COMMAND sed -i "s|${WORK}|(data folder)|g" ${WORK}/transcript)

file(GLOB kept RELATIVE ${SCRIPTS} ${SCRIPTS}/${NAME}.*)
list(REMOVE_ITEM kept ${NAME}.lig ${NAME}.out ${NAME}.data)
set(pairs "transcript|${NAME}.out")
foreach(file ${kept})
  string(LENGTH ${NAME}. head)
  string(SUBSTRING ${file} ${head} -1 saved)
  list(APPEND pairs "${saved}|${file}")
endforeach()

set(differs FALSE)
foreach(pair ${pairs})
  string(REPLACE "|" ";" pair ${pair})
  list(GET pair 0 now)
  list(GET pair 1 before)
  if(ACCEPT)
    file(COPY_FILE ${WORK}/${now} ${SCRIPTS}/${before})
    continue()
  endif()
  execute_process(COMMAND diff -u ${SCRIPTS}/${before} ${WORK}/${now} RESULT_VARIABLE different)
  if(NOT different EQUAL 0)
    set(differs TRUE)
  endif()
endforeach()
if(differs)
  message(FATAL_ERROR "${NAME}: the script no longer prints what was kept")
endif()
