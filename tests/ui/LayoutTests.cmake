# The options dialog, the layout editor and what they are made of.
add_executable(layout_screenshots EXCLUDE_FROM_ALL LayoutScreenshots.cpp)
target_link_libraries(layout_screenshots PRIVATE tunedex_ui tunedex_test_support tunedex_flags Qt6::Test)
