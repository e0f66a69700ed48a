# Compares what Pexlo.dll exports with what it is meant to: the wizard, the classes of MFC that its header shares with the
# hosts, the code page of their narrow texts, and the functions of the C interface. Members count as their class.
#   cmake -DDLL=... -DHEADER=core/pexlo.h -DOBJDUMP=... -DCXXFILT=... -P CheckExports.cmake

set(intended
    PexloDll_SetAppName CFunWizard
    # What hosts hold, hand over and are handed, and what their own windows are made of.
    CObject CRuntimeClass CException CMemoryException CResourceException AfxThrowMemoryException
    CString CStringArray CDWordArray AfxAllocate AfxReallocate AfxFree
    CCmdTarget CWnd CDialog CStatic CButton CEdit CComboBox CListBox CScrollBar CMenu
    CGdiObject CFont CBrush CPen CDC CClientDC CPaintDC
    AfxGetResourceHandle AfxSetResourceHandle
    # The code page of narrow texts, which their own windows need too, and what makes such texts wide and back.
    AfxGetTextPage AfxSetTextPage CWideBuffer CWideText AfxNarrow)

file(STRINGS ${HEADER} functions REGEX "^ *PEXLO_API .*PEXLO_CALL Pexlo_")
list(TRANSFORM functions REPLACE ".*PEXLO_CALL (Pexlo_[A-Za-z0-9_]+)\\(.*" "\\1")
list(APPEND intended ${functions})

execute_process(COMMAND ${OBJDUMP} -p ${DLL} OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE ".*\\[Ordinal/Name Pointer\\] Table[^\n]*\n" "" headers "${headers}")
string(REGEX REPLACE "\n\n.*" "" headers "${headers}")
string(REGEX MATCHALL "\\[ *[0-9]+\\] [^\n]+" rows "${headers}")
list(TRANSFORM rows REPLACE "\\[ *[0-9]+\\] *" "")
list(LENGTH rows count)
if(count EQUAL 0)
    message(FATAL_ERROR "No exports were read from ${DLL}.")
endif()

set(decorated ${rows})
list(FILTER decorated INCLUDE REGEX "^_?Pexlo.*@")
if(decorated)
    message(FATAL_ERROR "Pexlo.dll exports functions of the C interface under decorated names: ${decorated}")
endif()

string(REPLACE ";" "\n" rows "${rows}")
file(WRITE ${DLL}.exports.txt "${rows}\n")
execute_process(COMMAND ${CXXFILT} --no-strip-underscore INPUT_FILE ${DLL}.exports.txt OUTPUT_VARIABLE names COMMAND_ERROR_IS_FATAL ANY)
string(STRIP "${names}" names)
string(REPLACE "\n" ";" names "${names}")

set(exported)
foreach(name IN LISTS names)
    string(REGEX REPLACE "^(vtable|typeinfo|typeinfo name) for " "" name "${name}")
    string(REGEX REPLACE "(::|\\(|@).*" "" name "${name}")
    list(APPEND exported ${name})
endforeach()
list(REMOVE_DUPLICATES exported)

set(unforeseen ${exported})
list(REMOVE_ITEM unforeseen ${intended})
set(missing ${intended})
list(REMOVE_ITEM missing ${exported})
if(unforeseen OR missing)
    message(FATAL_ERROR "Pexlo.dll exports what it should not: ${unforeseen}\nIt does not export: ${missing}")
endif()
message(STATUS "${count} exports")
