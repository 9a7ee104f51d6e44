# How a library is linked that must stay although nothing of it is used.
set(CMAKE_CXX_LINK_LIBRARY_USING_zandic_keep
  "LINKER:--push-state,--no-as-needed" "<LINK_ITEM>" "LINKER:--pop-state"
)
set(CMAKE_CXX_LINK_LIBRARY_USING_zandic_keep_SUPPORTED TRUE)
