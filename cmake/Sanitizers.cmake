# KELMAR_SANITIZERS is a comma-separated list as the compilers take it: "address,undefined" or "thread".
set(KELMAR_SANITIZERS "" CACHE STRING "Sanitizers to build everything with")

if(KELMAR_SANITIZERS)
  add_compile_options(-fsanitize=${KELMAR_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KELMAR_SANITIZERS})
endif()

if(KELMAR_FUZZERS)
  # The fuzzer needs the explored code to report which branches were taken.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
