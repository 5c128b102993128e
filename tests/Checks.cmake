# Checks of the checkout as a whole, and the way from an empty desktop to a saved airport.
set(tools ${CMAKE_SOURCE_DIR}/tools)
add_test(NAME layout COMMAND ${tools}/check-layout ${CMAKE_SOURCE_DIR})
add_test(NAME layout_check_finds_faults COMMAND ${tools}/check-layout-test)
add_test(NAME messages COMMAND ${tools}/check-messages)
add_test(NAME messages_check_finds_faults COMMAND ${tools}/check-messages-test)
add_test(NAME format COMMAND ${tools}/check-format)
add_test(NAME tidy COMMAND ${tools}/check-tidy)
set_tests_properties(
    layout layout_check_finds_faults messages messages_check_finds_faults format PROPERTIES LABELS check)
set_tests_properties(tidy PROPERTIES LABELS tidy TIMEOUT 1800 PROCESSORS 2)

add_test(NAME first_light COMMAND ${CMAKE_SOURCE_DIR}/run --headless)
set_tests_properties(first_light PROPERTIES RUN_SERIAL ON RESOURCE_LOCK desktop TIMEOUT 900 LABELS ui)
