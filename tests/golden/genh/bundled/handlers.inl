HandlerMeta m(7);

m.add("BitmapTexture")
	.add("color_mult", HandlerTypes::Color);

m.add("CarPaintMaterial")
	.add("base_color", HandlerTypes::Color, 0.4f, 0.02f, 0.02f)
	.add("coat_bump", HandlerTypes::Float, 0.f)
	.add("flake_color", HandlerTypes::Color, 0.5f);

m.add("EmissiveMaterial")
	.add("color", HandlerTypes::Color)
	.add("multiplier", HandlerTypes::Float, 2.5f);

m.add("FalloffTexture")
	.add("color_1", HandlerTypes::Color);

m.add("FogVolume")
	.add("emission", HandlerTypes::Color, 0.f)
	.add("fog_color", HandlerTypes::Color);

m.add("GlassMaterial")
	.add("fog_color", HandlerTypes::Color, 0.9f, 0.95f, 1.f)
	.add("opacity", HandlerTypes::Float)
	.add("refract", HandlerTypes::Color)
	.add("refract_glossiness", HandlerTypes::Duplicate)
	.add("refract_ior", HandlerTypes::Float, 1.5f);

m.add("HostViewport")
	.add("backdrop", HandlerTypes::Color, 0.f);

m.add("MetalMaterial")
	.add("roughness", HandlerTypes::Float, 0.2f);

m.add("MixTexture")
	.add("mix_amount", HandlerTypes::Float, 0.5f);

m.add("NoiseTexture")
	.add("color_1", HandlerTypes::Color, 0.f)
	.add("color_2", HandlerTypes::Color);

m.add("OcclusionTexture")
	.add("radius", HandlerTypes::Float, 0.1f);

m.add("PlasticMaterial")
	.add("bump_amount", HandlerTypes::Float)
	.add("diffuse", HandlerTypes::Color, 0.8f)
	.add("ior", HandlerTypes::Duplicate)
	.add("opacity", HandlerTypes::Float)
	.add("reflect", HandlerTypes::Color, 0.f)
	.add("reflect_glossiness", HandlerTypes::Float, 0.85f);

m.add("SkinMaterial")
	.add("deep_color", HandlerTypes::Color, 0.8f, 0.1f, 0.05f)
	.add("medium_color", HandlerTypes::Color, 0.7f, 0.3f, 0.2f)
	.add("shallow_color", HandlerTypes::Color, 0.5f, 0.4f, 0.3f);

m.add("SkyDomeLight")
	.add("color", HandlerTypes::Color)
	.add("intensity", HandlerTypes::Float);

m.add("SpotLight")
	.add("projector_map", HandlerTypes::Color, 0.5f);

m.add("SunLight")
	.add("intensity_multiplier", HandlerTypes::Float);

m.add("UserDataTexture")
	.add("default_color", HandlerTypes::Duplicate);

m.add("WoodTexture")
	.add("filler_color", HandlerTypes::Color, 0.9f, 0.7f, 0.4f);

return m;
