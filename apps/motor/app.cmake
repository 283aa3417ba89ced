veldoria_app(motor LINKS veldoria_motor_session veldoria_motor_drawing veldoria_motor_language Qt6::Gui)

# It tells how it is used, and is content; without a screen or a session it says nothing but what it was asked for.
add_test(NAME motor_usage
         COMMAND bash -c "usage=$(\"$0\" --help 2>/dev/null) && [[ $usage == 'motor FILE.wor '*'motor --parse '* ]]"
                 "$<TARGET_FILE:motor>")
add_test(NAME motor_without_a_session
         COMMAND bash -c "[ \"$(\"$0\" \"$1\" eval 1+1 2>&1)\" = 'eval 1+1 = 2' ]" "$<TARGET_FILE:motor>"
                 "${CMAKE_SOURCE_DIR}/tests/scenarios/tiny/Tablas/Estadisticas/Estadisticas.wor")
add_test(NAME motor_passed_over
         COMMAND bash -c "[[ $(\"$0\" --parse --passed \"$1\") == \"$1: \"+([0-9])' statements'*':26:40: passed over: set map ... partialsegments' ]]"
                 "$<TARGET_FILE:motor>"
                 "${CMAKE_SOURCE_DIR}/tests/scenarios/tiny/Tablas/Tematicos/1999/Ambos sexos/Ñorga/Población.wor")
foreach(name IN ITEMS XDG_RUNTIME_DIR DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM)
  list(APPEND unset "${name}=unset:")
endforeach()
set_tests_properties(motor_without_a_session PROPERTIES ENVIRONMENT_MODIFICATION "${unset}")
