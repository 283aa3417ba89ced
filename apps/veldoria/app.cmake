veldoria_app(veldoria LINKS veldoria_desktop)
