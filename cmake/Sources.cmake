# Each folder says in its own CMakeLists.txt which of its files go to which library. The ui library
# exists only when the windows are built, so what a folder gives to it is dropped without them.
function(core_sources)
  target_sources(varnhold_core PRIVATE ${ARGN})
endfunction()

function(ui_sources)
  if(TARGET varnhold_ui)
    target_sources(varnhold_ui PRIVATE ${ARGN})
  endif()
endfunction()
