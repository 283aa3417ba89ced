veldoria_app(tour LINKS veldoria_desktop)
