veldoria_app(replay LINKS veldoria_headless)
