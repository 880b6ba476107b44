# Tests of the options dialog and the layout editor.
set(LAYOUT_TEST_CLASSES OptionsTest EditLayoutTest ColumnsPageTest ThemePanelTest PreviewTest SettingsRoundTripTest
                        LayoutAccessibilityTest ModernOptionsTest Html5LayoutTest)
list(TRANSFORM LAYOUT_TEST_CLASSES APPEND ".cpp" OUTPUT_VARIABLE LAYOUT_TEST_SOURCES)
add_executable(layout_test LayoutTestMain.cpp ${LAYOUT_TEST_SOURCES})
target_link_libraries(layout_test PRIVATE tunedex_ui tunedex_test_support tunedex_flags Qt6::Test)
foreach(CLASS IN LISTS LAYOUT_TEST_CLASSES)
    add_test(NAME layout_test.${CLASS} COMMAND layout_test ${CLASS})
    set_tests_properties(layout_test.${CLASS} PROPERTIES TIMEOUT 300 ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endforeach()
# The same windows on high-resolution screens.
foreach(SCALE 1.5 2)
    add_test(NAME layout_test.LayoutAccessibilityTest.scale${SCALE} COMMAND layout_test LayoutAccessibilityTest)
    set_tests_properties(layout_test.LayoutAccessibilityTest.scale${SCALE} PROPERTIES
        TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${SCALE}")
endforeach()
