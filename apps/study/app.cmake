veldoria_app(study LINKS veldoria_study)
