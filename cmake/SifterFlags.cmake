# The flags of this project's own code, in one place. Foreign code (GoogleTest) is built without
# them and its headers are system headers.
#
# The presets stay at -O2. At -O3 g++ 12 reports overlapping copies (-Wrestrict) inside its own
# std::string wherever a literal is joined with a temporary, which no code of ours can avoid.
add_library(sifter_flags INTERFACE)
target_compile_options(
  sifter_flags
  INTERFACE $<$<COMPILE_LANGUAGE:CXX>:
            -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Woverloaded-virtual
            -Wcast-qual
            -Wold-style-cast
            -Werror
            >)

# No COM interface has a virtual destructor, and every class that implements one would be told so.
# The portable code is checked by the builds for this machine.
if(NOT WIN32)
  target_compile_options(sifter_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)
endif()
