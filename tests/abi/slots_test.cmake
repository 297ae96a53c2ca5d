# cmake -D CLANGXX= -D TARGET= -D SOURCE_DIR= -D WORK_DIR= -P slots_test.cmake: the virtual functions of
# each class in the exported headers take the slots that slots.txt lists, for the binary interface of
# TARGET. clang computes both interfaces that we ship for, without a header of either system.
cmake_minimum_required(VERSION 3.25)

# The classes that the headers define, and a class derived from each that is polymorphic: its table
# begins with the slots of its base.
file(GLOB_RECURSE headers ${SOURCE_DIR}/include/*.h ${SOURCE_DIR}/core/include/*.h)
list(FILTER headers EXCLUDE REGEX "^${SOURCE_DIR}/include/ext/")
set(probes "#include \"kv_engine.h\"
template <typename Base, bool kPolymorphic> struct Probe { };
template <typename Base> struct Probe<Base, true> : Base { ~Probe() override; };
template <typename Base> Probe<Base, true>::~Probe() {}
")
foreach(header ${headers})
  file(STRINGS ${header} lines REGEX "^(namespace|class|struct|template|})")
  set(scope "")
  set(previous "")
  foreach(line ${lines})
    if(line MATCHES "^namespace ([A-Za-z0-9_]+) {$")
      list(APPEND scope ${CMAKE_MATCH_1})
    elseif(line MATCHES "^}( |$)")
      list(POP_BACK scope)
    elseif(NOT previous MATCHES "^template"
        AND line MATCHES "^(class|struct) (KV_[A-Z]+_API )?([A-Za-z0-9_]+)( :[^;]*)? {")
      list(JOIN scope "::" qualified)
      string(APPEND qualified "::${CMAKE_MATCH_3}")
      string(APPEND probes "template struct Probe<${qualified}, __is_polymorphic(${qualified})>;\n")
    endif()
    set(previous "${line}")
  endforeach()
endforeach()
file(WRITE ${WORK_DIR}/probes.cpp "${probes}")

execute_process(COMMAND ${CLANGXX} --target=${TARGET} -std=c++11 -w -S -o /dev/null
  -Xclang -fdump-vtable-layouts -I${SOURCE_DIR}/include -I${SOURCE_DIR}/core/include
  ${WORK_DIR}/probes.cpp OUTPUT_VARIABLE dump COMMAND_ERROR_IS_FATAL ANY)

# From the dump: classes, and slots_of_<class>. A destructor, which must come first, is one slot here,
# also where it takes two.
string(REPLACE "[" "(" dump "${dump}")
string(REPLACE "]" ")" dump "${dump}")
string(REGEX MATCHALL "[^\n]+" lines "${dump}")
set(classes "")
set(class "")
set(inside FALSE)
foreach(line ${lines})
  if(NOT line MATCHES "^ ")
    string(REGEX MATCH "^V(FT|t)able for (.* in )?'Probe'" inside "${line}")
    set(class "")
  elseif(inside AND line MATCHES "~Probe\\(\\) \\((complete|deleting|scalar deleting)\\)$")
    string(REGEX REPLACE "^.*Probe<([A-Za-z0-9_:]+), true>.*$" "\\1" class "${line}")
    if(NOT line MATCHES "complete")
      list(APPEND classes ${class})
      list(APPEND slots_of_${class} "destructor")
    endif()
  elseif(inside AND line MATCHES "^ +[0-9]+ \\| (.*\\)( const)?)( \\(pure\\))?$"
      AND NOT line MATCHES "offset_to_top")
    string(REGEX REPLACE "^ +[0-9]+ \\| " "" slot "${line}")
    string(REGEX REPLACE " \\(pure\\)$" "" slot "${slot}")
    string(REGEX REPLACE "[A-Za-z0-9_]+::" "" slot "${slot}")
    if(NOT class)
      message(SEND_ERROR "no virtual destructor before: ${line}")
    endif()
    list(APPEND slots_of_${class} "${slot}")
  endif()
endforeach()

# From the list: expected_classes, and expected_of_<class>.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/slots.txt lines REGEX "^[^#]")
set(expected_classes "")
foreach(line ${lines})
  if(line MATCHES "^  slots of (.+)$")
    list(APPEND expected_of_${class} ${expected_of_${CMAKE_MATCH_1}})
  elseif(line MATCHES "^  (.+)$")
    list(APPEND expected_of_${class} "${CMAKE_MATCH_1}")
  else()
    set(class ${line})
    list(APPEND expected_classes ${class})
  endif()
endforeach()

foreach(class ${expected_classes})
  if(NOT class IN_LIST classes)
    message(SEND_ERROR "${class}: listed, but no polymorphic class of the headers")
  endif()
endforeach()
foreach(class ${classes})
  list(JOIN slots_of_${class} "\n  " actual)
  message(STATUS "${class}\n  ${actual}")
  if(NOT class IN_LIST expected_classes)
    message(SEND_ERROR "${class}: polymorphic, but not in slots.txt")
  elseif(NOT "${slots_of_${class}}" STREQUAL "${expected_of_${class}}")
    list(JOIN expected_of_${class} "\n  " expected)
    message(SEND_ERROR "${class}: the slots are\n  ${actual}\nnot\n  ${expected}")
  endif()
endforeach()
list(LENGTH classes count)
if(count EQUAL 0)
  message(SEND_ERROR "no polymorphic class found")
endif()
message(STATUS "${count} polymorphic classes")
