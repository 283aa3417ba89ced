veldoria_app(veldoria-windows LINKS veldoria_windows)
set_target_properties(veldoria-windows PROPERTIES OUTPUT_NAME Veldoria WIN32_EXECUTABLE ON)
target_link_options(veldoria-windows PRIVATE -municode -s)
