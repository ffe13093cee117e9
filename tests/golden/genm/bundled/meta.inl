//unique value arrays
static constexpr float clr0[] = { 0.f, 0.f, 0.f};
static constexpr float clr1[] = { 1.f, 0.96f, 0.9f};
static constexpr float clr10[] = { 1.f, 1.f, 1.f, 0.5f, 0.5f, 0.5f};
static constexpr float clr11[] = { 1.f, 0.98f, 0.95f};
static constexpr float clr12[] = { 0.95f, 0.96f, 0.97f};
static constexpr float clr13[] = { 1.34f, 0.96f, 0.64f, 7.45f, 6.25f, 5.28f};
static constexpr float clr14[] = { 1.f, 0.8f, 0.5f};
static constexpr float clr15[] = { 1.f, 0.5f, 0.25f};
static constexpr float clr16[] = { 0.8f, 0.1f, 0.05f};
static constexpr float clr17[] = { 0.7f, 0.3f, 0.2f};
static constexpr float clr18[] = { 0.5f, 0.4f, 0.3f};
static constexpr float clr19[] = { 1.f, 0.95f, 0.9f};
static constexpr float clr2[] = { 1.f, 1.f, 1.f};
static constexpr float clr20[] = { 0.9f, 0.7f, 0.4f};
static constexpr float clr21[] = { 0.1f, 0.05f, 0.02f};
static constexpr float clr22[] = { 0.3f, 0.15f, 0.05f};
static constexpr float clr3[] = { 0.4f, 0.02f, 0.02f};
static constexpr float clr4[] = { 0.5f, 0.2f, 0.2f};
static constexpr float clr5[] = { 0.5f, 0.5f, 0.5f};
static constexpr float clr6[] = { 1.f, 0.5f, 0.f};
static constexpr float clr7[] = { 0.2f, 0.1f, 0.05f};
static constexpr float clr8[] = { 0.4f, 0.25f, 0.1f};
static constexpr float clr9[] = { 0.25f, 0.25f, 0.25f};
static constexpr float aclr0[] = { 1.f, 1.f, 1.f, 1.f};
static constexpr float aclr1[] = { 0.f, 0.f, 0.f, 0.f};
static constexpr float aclr10[] = { 0.2f, 0.2f, 0.2f, 1.f};
static constexpr float aclr2[] = { 0.f, 0.f, 0.f, 1.f};
static constexpr float aclr3[] = { 0.25f, 0.25f, 0.25f, 1.f};
static constexpr float aclr4[] = { 0.5f, 0.5f, 0.5f, 1.f};
static constexpr float aclr5[] = { 0.9f, 0.95f, 1.f, 1.f};
static constexpr float aclr6[] = { 0.f, 0.f, 0.f, 1.f, 1.f, 1.f, 1.f, 1.f};
static constexpr float aclr7[] = { 1.f, 0.5f, 0.25f, 1.f};
static constexpr float aclr8[] = { 0.1f, 0.1f, 0.1f, 1.f};
static constexpr float aclr9[] = { 0.8f, 0.8f, 0.8f, 1.f};
static constexpr float vec0[] = { 1.f, 1.f, 1.f};
static constexpr float vec1[] = { 0.f, 0.f, 0.f};
static constexpr float vec2[] = { 0.f, 0.f, 1.f};
static constexpr float vec3[] = { 10.f, 10.f, 10.f};
static constexpr float vec4[] = { 0.f, 0.f, -1.f};
static constexpr float trans0[] = { 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.f};
static constexpr float trans1[] = { 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 100.f};
static constexpr float trans2[] = { 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.f, 1.f, 10.f, 20.f, 30.f};
static constexpr float flt0[] = { 2.f, 2.f};
static constexpr float flt1[] = { 0.f, 0.5f, 1.f};
static constexpr float flt10[] = { 0.1f, 0.f};
static constexpr float flt2[] = { 1.f, 0.5f, 0.1f};
static constexpr float flt3[] = { 0.01f};
static constexpr float flt4[] = { 10.f, 100.f, 1000.f};
static constexpr float flt5[] = { 0.5f, 0.25f};
static constexpr float flt6[] = { 380.f, 550.5f, 1.23457e+08f};
static constexpr float flt7[] = { 0.1f, 0.1f};
static constexpr float flt8[] = { 1.f, 0.5f, 0.25f, 1e-07f};
static constexpr float flt9[] = { 0.9f, 1.1f};
static constexpr float matr0[] = { 1.f, 0.f, 0.f, 0.f, 0.f, -1.f, 0.f, 1.f, 0.f};
static constexpr float matr1[] = { 1.f, 0.f, 0.f, 0.f, 1.f, 0.f, 0.f, 0.f, 1.f};
static constexpr float matr2[] = { 0.f, 1.f, 0.f, 1.f, 0.f, 0.f, 0.f, 0.f, 1.f};
static constexpr int inte0[] = { 1, 1, 1};
static constexpr int inte1[] = { 16, -1, 2147483648, -2147483648};
static constexpr int inte2[] = { 3, 1, 4, 1, 5};
static constexpr int inte3[] = { 1, 2, 4, 8};
static constexpr int inte4[] = { 1, 0, 1};
static constexpr int inte5[] = { 255, 128, 0};

Meta m(7);

m.add("AmbientLight", "light")
	.add("color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("gi_min_distance", "float", 0, 0.f)
	.add("occlusion_mode", "integer", 0, 0);

m.add("AreaLight", "light")
	.add("color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr1)
	.add("color_tex", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("cutoff_threshold", "float", 0, 0.001f)
	.add("directional", "float", 0, 0.f)
	.add("double_sided", "bool", 0, 0)
	.add("enabled", "bool", 0, 1)
	.add("intensity", "float", 0, 30.f)
	.add("intensity_tex", "float texture", 0, 1.f)
	.add("invisible", "bool", 0, 0)
	.add("light_links", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("shape", "integer", 0, 0)
	.add("u_size", "float", 0, 1.f)
	.add("units", "integer", 0, 0)
	.add("v_size", "float", 0, 1.f);

m.add("AtmosphereVolume", "volumetric")
	.add("affect_background", "bool", 0, 1)
	.add("horizon_blend", "float", 0, 0.5f)
	.add("transmission_distance", "float", 0, 1000.f);

m.add("BitmapTexture", "texture")
	.add("bitmap", "plugin", 0, "")
	.add("color_mult", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("color_mult_color", "acolor", 1, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("color_mult_res_mult", "float", 1, 1.f)
	.add("color_mult_tex", "texture", 1, "")
	.add("color_mult_tex_mult", "float", 1, 1.f)
	.add("color_mult_tex_on", "bool", 1, 1)
	.add("color_offset", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr1)
	.add("default_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr2)
	.add("invert", "bool", 0, 0)
	.add("invert_alpha", "bool", 0, 1)
	.add("texture_multiplier_mode", "integer", 1, 1)
	.add("tile_u", "integer", 0, 0)
	.add("tile_v", "integer", 0, 0)
	.add("uv_tiles", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_LIST);

m.add("CarPaintMaterial", "material")
	.add("base_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr3)
	.add("base_color_color", "acolor", 1, "")
	.add("base_color_res_mult", "float", 1, 1.f)
	.add("base_color_tex", "texture", 1, "")
	.add("base_color_tex_mult", "float", 1, 1.f)
	.add("base_color_tex_on", "bool", 1, 1)
	.add("base_glossiness", "float", 0, 0.6f)
	.add("base_reflection", "float", 0, 0.5f)
	.add("base_tex", "texture", 0, "")
	.add("coat_bump", "float texture", 0, 0.f)
	.add("coat_bump_float", "float", 1, 0.f)
	.add("coat_bump_res_mult", "float", 1, 1.f)
	.add("coat_bump_tex", "texture", 1, "")
	.add("coat_bump_tex_mult", "float", 1, 1.f)
	.add("coat_bump_tex_on", "bool", 1, 1)
	.add("coat_color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("coat_strength", "float", 0, 0.05f)
	.add("flake_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr4)
	.add("flake_color_color", "acolor", 1, "")
	.add("flake_color_res_mult", "float", 1, 1.f)
	.add("flake_color_tex", "texture", 1, "")
	.add("flake_color_tex_mult", "float", 1, 1.f)
	.add("flake_color_tex_on", "bool", 1, 1)
	.add("flake_density", "float", 0, 0.5f)
	.add("flake_map_size", "integer", 0, 1024)
	.add("flake_size", "float", 0, 0.5f)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("ChannelUvw", "uvw")
	.add("Uvw_Channel", "integer", 0, 1)
	.add("coverage", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec0)
	.add("crop_u", "integer", 0, 0)
	.add("uvw_transform", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans0)
	.add("wrap_u", "bool", 0, 1)
	.add("wrap_v", "bool", 0, 1);

m.add("CheckerTexture", "texture")
	.add("black_tex", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr2)
	.add("contrast", "float", 0, 1.f)
	.add("tile_uv", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt0)
	.add("uvw_generator", "plugin", 0, "")
	.add("white_tex", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2);

m.add("ClipperNode", "node")
	.add("affect_light", "bool", 0, 1)
	.add("clip_lights", "bool", 0, 1)
	.add("enabled", "bool", 0, 1)
	.add("exclusion_mode", "integer", 0, 0)
	.add("exclusion_nodes", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("material", "plugin", 0, "")
	.add("use_object_material", "bool", 0, 0);

m.add("CoatBrdf", "BRDF")
	.add("absorption", "acolor", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr3)
	.add("ior", "float", 0, 1.5f)
	.add("thickness", "float", 0, 0.01f)
	.add("tint", "acolor", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0);

m.add("ColorChannel", "render_channel")
	.add("alias", "integer", 0, 101)
	.add("color_mapping", "bool", 0, 1)
	.add("consider_for_aa", "bool", 0, 0)
	.add("denoise", "bool", 0, 0)
	.add("filtering", "bool", 0, 1)
	.add("name", "string", 0, "color");

m.add("ColorMappingSettings", "settings")
	.add("adaptation_only", "integer", 0, 0)
	.add("affect_background", "bool", 0, 1)
	.add("bright_multiplier", "float", 0, 1.f)
	.add("clamp_level", "float", 0, 1.f)
	.add("dark_multiplier", "float", 0, 1.f)
	.add("gamma", "float", 0, 1.f)
	.add("linear_workflow", "bool", 0, 0)
	.add("mapping_type", "integer", 0, 0)
	.add("subpixel_mapping", "bool", 0, 0);

m.add("DenoiserChannel", "render_channel")
	.add("engine", "integer", 0, 0)
	.add("name", "string", 0, "denoiser")
	.add("preset", "integer", 0, 1)
	.add("radius", "float", 0, 10.f)
	.add("strength", "float", 0, 1.f);

m.add("DepthChannel", "render_channel")
	.add("black_depth", "float", 0, 0.f)
	.add("clamp", "bool", 0, 1)
	.add("filtering", "bool", 0, 1)
	.add("invert", "bool", 0, 0)
	.add("name", "string", 0, "depth")
	.add("white_depth", "float", 0, 1000.f);

m.add("DiffuseBrdf", "BRDF")
	.add("color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr5)
	.add("color_tex", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr4)
	.add("roughness", "float texture", 0, 0.f)
	.add("transparency", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("transparency_tex", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("use_irradiance", "bool", 0, 1);

m.add("DisplacedMesh", "geometry")
	.add("displacement_amount", "float", 0, 1.f)
	.add("displacement_shift", "float", 0, 0.f)
	.add("displacement_tex", "texture", 0, "")
	.add("edge_length", "float", 0, 4.f)
	.add("max_subdivs", "integer", 0, 256)
	.add("mesh", "plugin", 0, "")
	.add("vector_displacement", "integer", 0, 0)
	.add("water_level", "float", 0, -1e+30f);

m.add("EmissiveMaterial", "material")
	.add("color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("color_color", "acolor", 1, "")
	.add("color_res_mult", "float", 1, 1.f)
	.add("color_tex", "texture", 1, "")
	.add("color_tex_mult", "float", 1, 1.f)
	.add("color_tex_on", "bool", 1, 1)
	.add("compensate_exposure", "bool", 0, 0)
	.add("emit_on_back_side", "bool", 0, 0)
	.add("multiplier", "float texture", 0, 1.f)
	.add("multiplier_float", "float", 1, 2.5f)
	.add("multiplier_res_mult", "float", 1, 1.f)
	.add("multiplier_tex", "texture", 1, "")
	.add("multiplier_tex_mult", "float", 1, 1.f)
	.add("multiplier_tex_on", "bool", 1, 1)
	.add("opacity", "float texture", 0, 1.f);

m.add("EnvironmentSettings", "settings")
	.add("background_color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("background_tex", "texture", 0, "")
	.add("background_tex_mult", "float", 0, 1.f)
	.add("environment_volumes", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("gi_color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("gi_tex", "texture", 0, "")
	.add("gi_tex_mult", "float", 0, 1.f)
	.add("reflect_tex", "texture", 0, "")
	.add("refract_tex", "texture", 0, "")
	.add("refract_tex_mult", "float", 0, 1.5f);

m.add("EnvironmentUvw", "uvw")
	.add("ground_on", "bool", 0, 0)
	.add("ground_radius", "float", 0, 1000.f)
	.add("mapping_type", "string", 0, "spherical")
	.add("uvw_matrix", "matrix", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_SINGLE, matr0)
	.add("window_origin", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec1);

m.add("ExtraTextureChannel", "render_channel")
	.add("affect_matte_objects", "bool", 0, 1)
	.add("name", "string", 0, "extra_tex")
	.add("subdivs", "integer", 0, 1)
	.add("texmap", "texture", 0, "");

m.add("FalloffTexture", "texture")
	.add("blend_curve", "vector texture", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("color_1", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("color_1_color", "acolor", 1, "")
	.add("color_1_res_mult", "float", 1, 1.f)
	.add("color_1_tex", "texture", 1, "")
	.add("color_1_tex_mult", "float", 1, 1.f)
	.add("color_1_tex_on", "bool", 1, 1)
	.add("color_2", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("direction_type", "integer", 0, 0)
	.add("distance_far", "float", 0, 100.f)
	.add("distance_near", "float", 0, 0.f)
	.add("fresnel_ior", "float", 0, 1.6f)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("FileBitmap", "bitmap")
	.add("allow_negative_colors", "bool", 0, 0)
	.add("color_space", "string", 0, "scene_linear")
	.add("file", "string", 6, "textures/default.png")
	.add("filter_blur", "float", 0, 1.f)
	.add("frame_number", "integer", 0, 0)
	.add("gamma", "float", 0, 1.f)
	.add("load_file", "bool", 0, 1)
	.add("transfer_function", "integer", 0, 2);

m.add("FogVolume", "volumetric")
	.add("density_tex", "float texture", 0, 1.f)
	.add("emission", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("emission_color", "acolor", 1, "")
	.add("emission_mult", "float", 0, 1.f)
	.add("emission_res_mult", "float", 1, 1.f)
	.add("emission_tex", "texture", 1, "")
	.add("emission_tex_mult", "float", 1, 1.f)
	.add("emission_tex_on", "bool", 1, 1)
	.add("fog_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("fog_color_color", "acolor", 1, "")
	.add("fog_color_res_mult", "float", 1, 1.f)
	.add("fog_color_tex", "texture", 1, "")
	.add("fog_color_tex_mult", "float", 1, 1.f)
	.add("fog_color_tex_on", "bool", 1, 1)
	.add("fog_distance", "float", 0, 1.f)
	.add("fog_height", "float", 0, 0.f)
	.add("gizmos", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("max_steps", "integer", 0, 1000)
	.add("scatter_gi", "bool", 0, 0)
	.add("step_size", "float", 0, 1.f)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("FrameStamp", "")
	.add("font_color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("text", "string", 0, "%frame");

m.add("GlassMaterial", "material")
	.add("affect_alpha", "integer", 0, 0)
	.add("affect_shadows", "bool", 0, 1)
	.add("diffuse", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr2)
	.add("dispersion", "float", 0, 50.f)
	.add("dispersion_on", "bool", 0, 0)
	.add("fog_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("fog_color_color", "acolor", 1, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr5)
	.add("fog_color_res_mult", "float", 1, 1.f)
	.add("fog_color_tex", "texture", 1, "")
	.add("fog_color_tex_mult", "float", 1, 1.f)
	.add("fog_color_tex_on", "bool", 1, 1)
	.add("fog_depth", "float", 0, 1.f)
	.add("opacity", "float texture", 0, 1.f)
	.add("opacity_float", "float", 1, 1.f)
	.add("opacity_tex", "texture", 1, "")
	.add("opacity_tex_mult", "float", 1, 1.f)
	.add("opacity_tex_on", "bool", 1, 1)
	.add("refract", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("refract_color", "acolor", 1, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("refract_depth", "integer", 0, 5)
	.add("refract_glossiness", "float texture", 0, 1.f)
	.add("refract_glossiness_duplicate", "plugin", 1, "")
	.add("refract_glossiness_duplicate_output", "integer", 1, 0)
	.add("refract_ior", "float texture", 0, 1.5f)
	.add("refract_ior_float", "float", 1, 1.5f)
	.add("refract_ior_res_mult", "float", 1, 1.f)
	.add("refract_ior_tex", "texture", 1, "")
	.add("refract_ior_tex_mult", "float", 1, 1.f)
	.add("refract_ior_tex_on", "bool", 1, 1)
	.add("refract_res_mult", "float", 1, 1.f)
	.add("refract_tex", "texture", 1, "")
	.add("refract_tex_mult", "float", 1, 1.f)
	.add("refract_tex_on", "bool", 1, 1)
	.add("texture_multiplier_mode", "integer", 1, 1)
	.add("thin_walled", "bool", 0, 0);

m.add("GlobalIlluminationSettings", "settings")
	.add("ao_amount", "float", 0, 0.8f)
	.add("ao_on", "bool", 0, 0)
	.add("ao_radius", "float", 0, 0.1f)
	.add("contrast", "float", 0, 1.f)
	.add("on", "bool", 0, 0)
	.add("primary_engine", "integer", 0, 2)
	.add("primary_multiplier", "float", 0, 1.f)
	.add("reflect_caustics", "bool", 0, 0)
	.add("refract_caustics", "bool", 0, 1)
	.add("saturation", "float", 0, 1.f)
	.add("secondary_engine", "integer", 0, 3)
	.add("secondary_multiplier", "float", 0, 1.f);

m.add("GradientTexture", "texture")
	.add("colors", "acolor", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_LIST, aclr6)
	.add("filter_type", "integer", 0, 3)
	.add("gradient_position", "float texture", 0, 0.f)
	.add("gradient_type", "integer", 0, 0)
	.add("interpolations", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST, inte0)
	.add("positions", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt1)
	.add("texture_map", "texture", 0, "");

m.add("GridVolume", "volumetric")
	.add("cache_path", "string", 6, "$CACHE/smoke_####.grid")
	.add("channel_names", "string", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("channel_scales", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt2)
	.add("density", "float texture", 0, 1.f)
	.add("emission_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr6)
	.add("step_percent", "float", 0, 100.f)
	.add("velocity_scale", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec0);

m.add("HairBrdf", "BRDF")
	.add("glint_strength", "float", 0, 0.3f)
	.add("opacity", "float texture", 0, 1.f)
	.add("primary_shift", "float", 0, 0.05f)
	.add("root_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr7)
	.add("secondary_shift", "float", 0, -0.1f)
	.add("tip_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr8);

m.add("HairGeometry", "geometry")
	.add("colors", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST)
	.add("hair_vertices", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST)
	.add("min_pixel_width", "float", 0, 0.8f)
	.add("num_hair_vertices", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("opacity", "float", 0, 1.f)
	.add("strand_ids", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("widths", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt3);

m.add("HostProxyObject", "geometry")
	.add("file", "string", 6, "")
	.add("lod_distances", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt4)
	.add("pivot", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec1)
	.add("placement", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans0)
	.add("size", "float", 0, 1.f);

m.add("HostViewport", "settings")
	.add("backdrop", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr0)
	.add("backdrop_color", "acolor", 1, "")
	.add("backdrop_res_mult", "float", 1, 1.f)
	.add("backdrop_tex", "texture", 1, "")
	.add("backdrop_tex_mult", "float", 1, 1.f)
	.add("backdrop_tex_on", "bool", 1, 1)
	.add("grid_color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr9)
	.add("grid_step", "float", 0, 0.5f)
	.add("last_camera", "plugin", 1, "")
	.add("show_grid", "bool", 0, 1)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("ImageSamplerSettings", "settings")
	.add("bucket_width", "integer", 0, 48)
	.add("fixed_subdivs", "integer", 0, 1)
	.add("max_subdivs", "integer", 0, 24)
	.add("min_subdivs", "integer", 0, 1)
	.add("progressive_max_time", "float", 0, 0.f)
	.add("render_mask_mode", "integer", 0, 0)
	.add("render_mask_objects", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("threshold", "float", 0, 0.01f)
	.add("type", "integer", 0, 1)
	.add("use_threshold", "bool", 0, 1);

m.add("InfinitePlane", "geometry")
	.add("bounce_to_front", "bool", 0, 0)
	.add("normal", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec2)
	.add("transform", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans0);

m.add("InstancerNode", "node")
	.add("instances", "list", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("shading_needs_ids", "bool", 0, 1)
	.add("transform", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans0)
	.add("use_time_instancing", "bool", 0, 0)
	.add("visible", "bool", 0, 1);

m.add("LayeredMaterial", "material")
	.add("additive_mode", "bool", 0, 0)
	.add("base_material", "plugin", 0, "")
	.add("blend_amounts", "float texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt5)
	.add("blend_colors", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST, clr10)
	.add("coat_materials", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("layer_masks", "texture", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST);

m.add("LensCamera", "camera")
	.add("blades_count", "integer", 0, 6)
	.add("blades_enable", "bool", 0, 0)
	.add("blades_rotation", "float", 0, 0.f)
	.add("distortion_file", "string", 6, "lens/wide.lens")
	.add("distortion_map", "texture", 0, "")
	.add("enabled", "bool", 0, 1)
	.add("exposure", "float", 0, 1.f)
	.add("f_number", "float", 0, 8.f)
	.add("film_width", "float", 0, 36.f)
	.add("focal_length", "float", 0, 50.f)
	.add("focus_distance", "float", 0, 2.f)
	.add("iso", "float", 0, 100.f)
	.add("shutter_speed", "float", 0, 200.f)
	.add("target_distance", "float", 0, 200.25f)
	.add("use_depth_of_field", "bool", 0, 0)
	.add("use_moblur", "bool", 0, 1)
	.add("vignetting", "float", 0, 1.f)
	.add("white_balance", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr11);

m.add("LuminaireLight", "light")
	.add("enabled", "bool", 0, 1)
	.add("intensity", "float texture", 0, 0.75f)
	.add("power", "float", 0, 1.f)
	.add("proxy_file", "string", 0, "")
	.add("units", "integer", 0, 0);

m.add("MeasuredBrdf", "BRDF")
	.add("file", "string", 0, "brdf/velvet.binary")
	.add("interpolation", "integer", 0, 1)
	.add("sample_counts", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST, inte1)
	.add("wavelengths", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt6);

m.add("MeshFile", "geometry")
	.add("animation_offset", "float", 0, 0.f)
	.add("animation_speed", "float", 0, 1.f)
	.add("file", "string", 6, "")
	.add("flip_axis", "integer", 0, 0)
	.add("object_path", "string", 0, "/")
	.add("preview_faces", "integer", 0, 10000)
	.add("scale", "float", 0, 1.f);

m.add("MeshLight", "light")
	.add("enabled", "bool", 0, 1)
	.add("geometry", "plugin", 0, "")
	.add("intensity", "float", 0, 30.f)
	.add("light_texture", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr7)
	.add("texture_resolution", "integer", 0, 256);

m.add("MetaballGeometry", "geometry")
	.add("base_geometry", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("level", "float", 0, 0.5f)
	.add("trace_level", "float", 0, 0.5f);

m.add("MetalMaterial", "material")
	.add("anisotropy", "float texture", 0, 0.f)
	.add("anisotropy_float", "float", 1, 0.f)
	.add("anisotropy_res_mult", "float", 1, 1.f)
	.add("anisotropy_rotation", "float texture", 0, 0.f)
	.add("anisotropy_tex", "texture", 1, "")
	.add("anisotropy_tex_mult", "float", 1, 1.f)
	.add("anisotropy_tex_on", "bool", 1, 1)
	.add("diffuse", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr8)
	.add("edge_color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr12)
	.add("layer_order", "string", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("opacity", "float texture", 0, 1.f)
	.add("preset", "string", 0, "aluminium")
	.add("refraction_indices", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST, clr13)
	.add("roughness", "float texture", 0, 0.2f)
	.add("roughness_float", "float", 1, 0.2f)
	.add("roughness_res_mult", "float", 1, 1.f)
	.add("roughness_tex", "texture", 1, "")
	.add("roughness_tex_mult", "float", 1, 1.f)
	.add("roughness_tex_on", "bool", 1, 1)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("MicrofacetBrdf", "BRDF")
	.add("anisotropy", "float texture", 0, 0.f)
	.add("axis", "vector texture", 0, "")
	.add("color_tex", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("cutoff", "float", 0, 0.001f)
	.add("dispersion_order", "integer", 0, 3)
	.add("glossiness", "float texture", 0, 0.9f)
	.add("tail_falloff", "float", 0, 2.f);

m.add("MixTexture", "texture")
	.add("color_1", "texture", 0, "")
	.add("color_2", "texture", 0, "")
	.add("mask_color", "acolor", 1, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("mix_amount", "float texture", 0, 0.5f)
	.add("mix_amount_float", "float", 1, 0.5f)
	.add("mix_amount_res_mult", "float", 1, 1.f)
	.add("mix_amount_tex", "texture", 1, "")
	.add("mix_amount_tex_mult", "float", 1, 1.f)
	.add("mix_amount_tex_on", "bool", 1, 1)
	.add("mix_curve", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("MotionBlurSettings", "settings")
	.add("bias", "float", 0, 0.f)
	.add("duration", "float", 0, 1.f)
	.add("geometry_samples", "integer", 0, 2)
	.add("interval_center", "float", 0, 0.5f)
	.add("on", "bool", 0, 0)
	.add("shutter_efficiency", "float", 0, 1.f);

m.add("NoiseTexture", "texture")
	.add("color_1", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr2)
	.add("color_1_color", "acolor", 1, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr2)
	.add("color_1_res_mult", "float", 1, 1.f)
	.add("color_1_tex", "texture", 1, "")
	.add("color_1_tex_mult", "float", 1, 1.f)
	.add("color_1_tex_on", "bool", 1, 1)
	.add("color_2", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("color_2_color", "acolor", 1, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0)
	.add("color_2_res_mult", "float", 1, 1.f)
	.add("color_2_tex", "texture", 1, "")
	.add("color_2_tex_mult", "float", 1, 1.f)
	.add("color_2_tex_on", "bool", 1, 1)
	.add("high", "float", 0, 1.f)
	.add("iterations", "float", 0, 4.f)
	.add("low", "float", 0, 0.f)
	.add("noise_type", "integer", 0, 0)
	.add("output_offset", "acolor", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr1)
	.add("phase", "float", 0, 0.f)
	.add("size", "float", 0, 0.1f)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("NormalsChannel", "render_channel")
	.add("alias", "integer", 0, 103)
	.add("bump_blend", "float", 0, 1.f)
	.add("filtering", "bool", 0, 1)
	.add("name", "string", 0, "normals");

m.add("OcclusionTexture", "texture")
	.add("affect_alpha", "bool", 0, 0)
	.add("bias", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec1)
	.add("falloff", "float", 0, 0.f)
	.add("occluded_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr2)
	.add("radius", "float texture", 0, 0.1f)
	.add("radius_float", "float", 1, 0.1f)
	.add("radius_res_mult", "float", 1, 1.f)
	.add("radius_tex", "texture", 1, "")
	.add("radius_tex_mult", "float", 1, 1.f)
	.add("radius_tex_on", "bool", 1, 1)
	.add("texture_multiplier_mode", "integer", 1, 1)
	.add("unoccluded_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0);

m.add("OceanTexture", "texture")
	.add("cell_seeds", "integer texture", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST, inte2)
	.add("foam_mask", "matrix texture", 0, "")
	.add("patch_size", "float", 0, 128.f)
	.add("resolution", "integer", 0, 8)
	.add("wave_height_mult", "float texture", 0, 1.f)
	.add("wave_height_mult_float", "float", 1, 1.f)
	.add("wave_height_mult_tex", "texture", 1, "")
	.add("wind_speed", "float", 0, 30.f);

m.add("OptionSettings", "settings")
	.add("displacement", "bool", 0, 1)
	.add("hidden_lights", "bool", 0, 1)
	.add("lights", "bool", 0, 1)
	.add("log_file", "string", 0, "")
	.add("log_level", "integer", 0, 3)
	.add("max_transparency_levels", "integer", 0, 50)
	.add("ray_bias", "float", 0, 0.f)
	.add("shadows", "bool", 0, 1)
	.add("texture_limit", "integer", 0, 0)
	.add("texture_search_paths", "string", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST);

m.add("OutputSettings", "settings")
	.add("animation_end", "float", 0, 0.f)
	.add("animation_start", "float", 0, 0.f)
	.add("file", "string", 2, "output.png")
	.add("file_add_frame_number", "bool", 0, 1)
	.add("folder", "string", 0, "")
	.add("frame_ranges", "list", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("height", "integer", 0, 1080)
	.add("image_metadata", "string", 0, "{\"by\": \"studio\"}")
	.add("width", "integer", 0, 1920);

m.add("PanoramaCamera", "node")
	.add("horizontal_fov", "float", 0, 6.28319f)
	.add("lens_samples", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST, inte3)
	.add("type", "integer", 0, 1)
	.add("use_horizontal_fov", "bool", 0, 1)
	.add("vertical_fov", "float", 0, 3.14159f);

m.add("ParticleSystem", "geometry")
	.add("cylinder_radius", "float", 0, 0.1f)
	.add("point_size", "float", 0, 2.f)
	.add("positions", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST)
	.add("radii", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt7)
	.add("render_type", "integer", 0, 7)
	.add("velocities", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST);

m.add("PhysicsCache", "")
	.add("file", "string", 0, "")
	.add("start_frame", "integer", 0, 0);

m.add("PinholeCamera", "camera")
	.add("aspect", "float", 0, 1.33333f)
	.add("far_clip", "float", 0, 1e+06f)
	.add("field_of_view", "float", 0, 0.785398f)
	.add("film_gate", "bool", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST, inte4)
	.add("lens_shift", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec1)
	.add("near_clip", "float", 0, 0.01f)
	.add("placement", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans0)
	.add("projection_offset", "matrix", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_SINGLE, matr1)
	.add("roll", "float", 0, 0.f);

m.add("PlanarUvw", "uvw")
	.add("object_space", "bool", 0, 1)
	.add("seam_size", "float", 0, 0.01f)
	.add("size", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec3)
	.add("uvw_transform", "transform texture", 0, "");

m.add("PlasticMaterial", "material")
	.add("bump_amount", "float texture", 0, 1.f)
	.add("bump_amount_float", "float", 1, 1.f)
	.add("bump_amount_res_mult", "float", 1, 1.f)
	.add("bump_amount_tex", "texture", 1, "")
	.add("bump_amount_tex_mult", "float", 1, 1.f)
	.add("bump_amount_tex_on", "bool", 1, 1)
	.add("bump_map", "float texture", 0, 0.f)
	.add("bump_type", "integer", 0, 0)
	.add("diffuse", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr9)
	.add("diffuse_color", "acolor", 1, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr9)
	.add("diffuse_res_mult", "float", 1, 1.f)
	.add("diffuse_tex", "texture", 1, "")
	.add("diffuse_tex_mult", "float", 1, 1.f)
	.add("diffuse_tex_on", "bool", 1, 1)
	.add("environment_override", "texture", 0, "")
	.add("fresnel", "bool", 0, 1)
	.add("ior", "float texture", 0, 1.6f)
	.add("ior_duplicate", "plugin", 1, "")
	.add("ior_duplicate_output", "integer", 1, 0)
	.add("opacity", "float texture", 0, 1.f)
	.add("opacity_float", "float", 1, 1.f)
	.add("opacity_res_mult", "float", 1, 1.f)
	.add("opacity_tex", "texture", 1, "")
	.add("opacity_tex_mult", "float", 1, 1.f)
	.add("opacity_tex_on", "bool", 1, 1)
	.add("option_double_sided", "bool", 0, 1)
	.add("reflect", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr2)
	.add("reflect_color", "acolor", 1, "")
	.add("reflect_depth", "integer", 0, 5)
	.add("reflect_glossiness", "float texture", 0, 1.f)
	.add("reflect_glossiness_float", "float", 1, 0.85f)
	.add("reflect_glossiness_res_mult", "float", 1, 1.f)
	.add("reflect_glossiness_tex", "texture", 1, "")
	.add("reflect_glossiness_tex_mult", "float", 1, 1.f)
	.add("reflect_glossiness_tex_on", "bool", 1, 1)
	.add("reflect_res_mult", "float", 1, 1.f)
	.add("reflect_tex", "texture", 1, "")
	.add("reflect_tex_mult", "float", 1, 1.f)
	.add("reflect_tex_on", "bool", 1, 1)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("ProfileLight", "light")
	.add("area_speculars", "bool", 0, 1)
	.add("circle_diameter", "float", 0, 0.02f)
	.add("enabled", "bool", 0, 1)
	.add("filter_color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr14)
	.add("power", "float", 0, 1700.f)
	.add("profile_file", "string", 6, "ies/street.ies")
	.add("profile_scale", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt8);

m.add("RawBitmap", "bitmap")
	.add("gamma", "float", 0, 1.f)
	.add("height", "integer", 0, 1)
	.add("pixel_format", "string", 0, "rgb8")
	.add("pixels", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST, inte5)
	.add("width", "integer", 0, 1);

m.add("RegionSettings", "settings")
	.add("height", "integer", 0, -1)
	.add("use_region", "bool", 0, 0)
	.add("width", "integer", 0, -1)
	.add("x", "integer", 0, 0)
	.add("y", "integer", 0, 0);

m.add("ScatterGeometry", "geometry")
	.add("models", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("rotation_range", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST)
	.add("scale_range", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt9)
	.add("seed", "integer", 0, 0)
	.add("spread", "float", 0, 1.f);

m.add("SceneAnnotation", "")
	.add("author", "string", 0, "")
	.add("revision", "integer", 0, 3)
	.add("text", "string", 0, "made with care");

m.add("SceneNode", "node")
	.add("geometry", "plugin", 0, "")
	.add("host_layer", "integer", 0, 0)
	.add("host_tags", "string", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("instance_count", "plugin", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr15)
	.add("lights", "plugin", 0, "")
	.add("material", "plugin", 0, "")
	.add("object_id", "integer", 0, 0)
	.add("scene_name", "string", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("transform", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans0)
	.add("user_attributes", "string", 0, "")
	.add("visible", "integer texture", 0, "");

m.add("SequenceBitmap", "bitmap")
	.add("end_condition", "integer", 0, 0)
	.add("files", "string", 6, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("frame_offset", "integer", 0, 0);

m.add("SkinMaterial", "material")
	.add("deep_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr16)
	.add("deep_color_color", "acolor", 1, "")
	.add("deep_color_res_mult", "float", 1, 1.f)
	.add("deep_color_tex", "texture", 1, "")
	.add("deep_color_tex_mult", "float", 1, 1.f)
	.add("deep_color_tex_on", "bool", 1, 1)
	.add("deep_radius", "float", 0, 1.8f)
	.add("max_sss_amount", "float", 0, 0.9f)
	.add("medium_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr17)
	.add("medium_color_color", "acolor", 1, "")
	.add("medium_color_res_mult", "float", 1, 1.f)
	.add("medium_color_tex", "texture", 1, "")
	.add("medium_color_tex_mult", "float", 1, 1.f)
	.add("medium_color_tex_on", "bool", 1, 1)
	.add("medium_radius", "float", 0, 0.9f)
	.add("opacity", "float texture", 0, 1.f)
	.add("primary_reflection", "float texture", 0, 0.5f)
	.add("scale", "float", 0, 1.f)
	.add("shallow_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr18)
	.add("shallow_color_color", "acolor", 1, "")
	.add("shallow_color_res_mult", "float", 1, 1.f)
	.add("shallow_color_tex", "texture", 1, "")
	.add("shallow_color_tex_mult", "float", 1, 1.f)
	.add("shallow_color_tex_on", "bool", 1, 1)
	.add("shallow_radius", "float", 0, 0.3f)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("SkyDomeLight", "light")
	.add("affect_diffuse", "bool", 0, 1)
	.add("affect_reflections", "bool", 0, 1)
	.add("affect_specular", "bool", 0, 1)
	.add("color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("color_color", "acolor", 1, "")
	.add("color_res_mult", "float", 1, 1.f)
	.add("color_tex", "texture", 1, "")
	.add("color_tex_mult", "float", 1, 1.f)
	.add("color_tex_on", "bool", 1, 1)
	.add("dome_adaptive", "bool", 0, 1)
	.add("dome_radius", "float", 0, 1000.f)
	.add("dome_rotation", "transform texture", 0, "")
	.add("dome_tex", "texture", 0, "")
	.add("emit_file", "string", 2, "")
	.add("enabled", "bool", 0, 1)
	.add("excluded_objects", "plugin", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("intensity", "float", 0, 1.f)
	.add("intensity_float", "float", 1, 1.f)
	.add("intensity_res_mult", "float", 1, 1.f)
	.add("intensity_tex", "texture", 1, "")
	.add("intensity_tex_mult", "float", 1, 1.f)
	.add("intensity_tex_on", "bool", 1, 1)
	.add("photon_subdivs", "integer", 0, 500)
	.add("spherical", "bool", 0, 0)
	.add("tex_resolution", "integer", 0, 512)
	.add("texture_multiplier_mode", "integer", 1, 1)
	.add("use_dome_tex", "bool", 0, 0);

m.add("SphereLight", "light")
	.add("color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("enabled", "bool", 0, 1)
	.add("intensity", "float", 0, 50.f)
	.add("radius", "float", 0, 0.1f)
	.add("segments", "integer", 0, 20)
	.add("store_with_irradiance", "bool", 0, 0);

m.add("SpotLight", "light")
	.add("barn_doors", "bool", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST, inte4)
	.add("color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr2)
	.add("cone_angle", "float", 0, 0.6f)
	.add("decay", "integer", 0, 2)
	.add("decay_radius", "float", 0, 1.f)
	.add("drop_off", "float", 0, 0.f)
	.add("enabled", "bool", 0, 1)
	.add("intensity", "float", 0, 1.f)
	.add("penumbra_angle", "float", 0, 0.05f)
	.add("projector_map", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr5)
	.add("projector_map_color", "acolor", 1, "")
	.add("projector_map_res_mult", "float", 1, 1.f)
	.add("projector_map_tex", "texture", 1, "")
	.add("projector_map_tex_mult", "float", 1, 1.f)
	.add("projector_map_tex_on", "bool", 1, 1)
	.add("texture_multiplier_mode", "integer", 1, 1);

m.add("StaticMesh", "geometry")
	.add("dynamic_geometry", "bool", 0, 0)
	.add("edge_visibility", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("face_normals", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("faces", "integer", 0, 1, qymat::RDT_INT | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("map_channels", "list", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("normals", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST)
	.add("object_id", "integer", 0, 0)
	.add("primary_visibility", "bool", 0, 1)
	.add("smooth_derivatives", "bool", 0, 0)
	.add("vertices", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST)
	.add("weld_threshold", "float", 0, -1.f);

m.add("StereoCamera", "camera")
	.add("eye_distance", "float", 0, 6.5f)
	.add("eye_offsets", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_LIST)
	.add("focus_method", "integer", 0, 0)
	.add("interocular_method", "integer", 0, 1)
	.add("left_eye", "plugin", 0, "")
	.add("right_eye", "plugin", 0, "")
	.add("view", "integer", 0, 0);

m.add("SunLight", "light")
	.add("cast_shadows", "bool", 0, 1)
	.add("direction", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec4)
	.add("enabled", "bool", 0, 1)
	.add("filter_color", "color", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr19)
	.add("ground_albedo", "acolor", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr10)
	.add("horizon_height", "float", 0, 0.f)
	.add("intensity_multiplier", "float texture", 0, 1.f)
	.add("intensity_multiplier_float", "float", 1, 1.f)
	.add("intensity_multiplier_res_mult", "float", 1, 1.f)
	.add("intensity_multiplier_tex", "texture", 1, "")
	.add("intensity_multiplier_tex_mult", "float", 1, 1.f)
	.add("intensity_multiplier_tex_on", "bool", 1, 1)
	.add("ozone", "float", 0, 0.35f)
	.add("shadow_bias", "float", 0, 0.0002f)
	.add("size_multiplier", "float", 0, 1.f)
	.add("sky_model", "integer", 0, 2)
	.add("subdivisions", "integer", 0, 8)
	.add("texture_multiplier_mode", "integer", 1, 1)
	.add("transform", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans1)
	.add("turbidity", "float", 0, 2.5f);

m.add("SwitchMaterial", "material")
	.add("materials", "list", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("selector", "integer texture", 0, "")
	.add("values", "list", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST);

m.add("TextTexture", "texture")
	.add("alignment", "string", 0, "left")
	.add("fallback", "string", 0, "")
	.add("font_file", "string", 6, "C:\\Windows\\Fonts\\plain.ttf")
	.add("font_size", "float", 0, 12.f)
	.add("text", "string", 0, "first line\nsecond \"line\"\tC:\\fonts\\\u0001 é€")
	.add("text_color", "acolor", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr0);

m.add("TransformTexture", "texture")
	.add("input_matrix", "matrix", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_SINGLE, matr1)
	.add("input_transform", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_SINGLE, trans2)
	.add("matrices", "matrix", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_LIST)
	.add("matrix", "matrix", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_9 | qymat::SQDT_SINGLE, matr2)
	.add("matrix_texture", "matrix texture", 0, "")
	.add("matrix_textures", "matrix texture", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("numbers", "float", 0, 1, qymat::RDT_FLOAT | qymat::STDT_SINGLE | qymat::SQDT_LIST, flt10)
	.add("offset_vector", "vector texture", 0, "")
	.add("transform_texture", "transform texture", 0, "")
	.add("transform_textures", "transform texture", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("transforms", "transform", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_12 | qymat::SQDT_LIST);

m.add("TwoSidedMaterial", "material")
	.add("back", "plugin", 0, "")
	.add("force_single_sided", "bool", 0, 1)
	.add("front", "plugin", 0, "")
	.add("translucency", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr4);

m.add("UnitSettings", "settings")
	.add("frames_scale", "float", 0, 24.f)
	.add("meters_scale", "float", 0, 1.f)
	.add("photometric_scale", "float", 0, 0.002f)
	.add("scene_up", "vector", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, vec2)
	.add("seconds_scale", "float", 0, 0.0416667f);

m.add("UserDataTexture", "texture")
	.add("attribute_priority", "integer", 0, 0)
	.add("attributes", "string", 0, 1, qymat::RDT_STRING | qymat::STDT_SINGLE | qymat::SQDT_LIST)
	.add("default_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_4 | qymat::SQDT_SINGLE, aclr2)
	.add("default_color_duplicate", "plugin", 1, "")
	.add("default_color_duplicate_output", "integer", 1, 0)
	.add("user_attribute", "string", 0, "");

m.add("WoodTexture", "texture")
	.add("age", "float", 0, 20.f)
	.add("filler_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr20)
	.add("filler_color_color", "acolor", 1, "")
	.add("filler_color_res_mult", "float", 1, 1.f)
	.add("filler_color_tex", "texture", 1, "")
	.add("filler_color_tex_mult", "float", 1, 1.f)
	.add("filler_color_tex_on", "bool", 1, 1)
	.add("grain_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr21)
	.add("grain_threshold", "float", 0, 0.3f)
	.add("layer_size", "float", 0, 0.05f)
	.add("randomness", "float", 0, 0.5f)
	.add("texture_multiplier_mode", "integer", 1, 1)
	.add("vein_color", "texture", 0, 1, qymat::RDT_FLOAT | qymat::STDT_ARRAY_3 | qymat::SQDT_SINGLE, clr22)
	.add("vein_spread", "float", 0, 0.25f);

m.fileParams = {
	{ "FileBitmap", {"file"}},
	{ "GridVolume", {"cache_path"}},
	{ "HostProxyObject", {"file"}},
	{ "LensCamera", {"distortion_file"}},
	{ "MeshFile", {"file"}},
	{ "OutputSettings", {"file"}},
	{ "ProfileLight", {"profile_file"}},
	{ "SequenceBitmap", {"files"}},
	{ "SkyDomeLight", {"emit_file"}},
	{ "TextTexture", {"font_file"}}
};

m.inputFileParams = {
	{ "FileBitmap", {"file"}},
	{ "GridVolume", {"cache_path"}},
	{ "HostProxyObject", {"file"}},
	{ "LensCamera", {"distortion_file"}},
	{ "MeshFile", {"file"}},
	{ "ProfileLight", {"profile_file"}},
	{ "SequenceBitmap", {"files"}},
	{ "TextTexture", {"font_file"}}
};

m.scalingParams = {
	{ "AreaLight", {
		{ "intensity", { Scaling::UnitType::Scene, 2, true, {
			{ "units", Scaling::Operation::Equals, 0 }
		}}},
		{ "u_size", {} },
		{ "v_size", {} }
	}},
	{ "CarPaintMaterial", {
		{ "flake_size", {} }
	}},
	{ "DepthChannel", {
		{ "black_depth", {} },
		{ "white_depth", {} }
	}},
	{ "DisplacedMesh", {
		{ "displacement_amount", {} },
		{ "displacement_shift", {} },
		{ "water_level", { Scaling::UnitType::Scene, 1, false, {
			{ "displacement_amount", Scaling::Operation::Equals, 0.5f },
			{ "max_subdivs", Scaling::Operation::Equals, 256 }
		}}}
	}},
	{ "FalloffTexture", {
		{ "distance_far", { Scaling::UnitType::Scene, 1, false, {
			{ "direction_type", Scaling::Operation::Equals, 4 }
		}}},
		{ "distance_near", { Scaling::UnitType::Scene, 1, false, {
			{ "direction_type", Scaling::Operation::Equals, 4 }
		}}}
	}},
	{ "FogVolume", {
		{ "fog_distance", {} },
		{ "fog_height", {} },
		{ "step_size", {} }
	}},
	{ "GlassMaterial", {
		{ "fog_depth", {} }
	}},
	{ "HostProxyObject", {
		{ "size", { Scaling::UnitType::Scene, -1, true, {} }}
	}},
	{ "HostViewport", {
		{ "grid_step", { Scaling::UnitType::Scene, 1, false, {
			{ "show_grid", Scaling::Operation::Equals, 1 }
		}}}
	}},
	{ "LensCamera", {
		{ "focus_distance", { Scaling::UnitType::Scene, 1, false, {
			{ "use_depth_of_field", Scaling::Operation::Equals, 1 }
		}}},
		{ "target_distance", {} }
	}},
	{ "MeshFile", {
		{ "scale", {} }
	}},
	{ "NoiseTexture", {
		{ "size", { Scaling::UnitType::Scene, 1, false, {
			{ "noise_type", Scaling::Operation::Equals, 0 }
		}}}
	}},
	{ "OcclusionTexture", {
		{ "radius", {} }
	}},
	{ "OceanTexture", {
		{ "patch_size", {} },
		{ "wind_speed", {} }
	}},
	{ "PinholeCamera", {
		{ "far_clip", {} },
		{ "near_clip", {} }
	}},
	{ "ProfileLight", {
		{ "circle_diameter", {} }
	}},
	{ "SkinMaterial", {
		{ "deep_radius", {} },
		{ "medium_radius", {} },
		{ "scale", { Scaling::UnitType::Scene, 1, true, {} }},
		{ "shallow_radius", {} }
	}},
	{ "SkyDomeLight", {
		{ "dome_radius", { Scaling::UnitType::Scene, 1, false, {
			{ "spherical", Scaling::Operation::Equals, 1 }
		}}}
	}},
	{ "SphereLight", {
		{ "intensity", { Scaling::UnitType::Scene, 2, true, {} }},
		{ "radius", {} }
	}},
	{ "SpotLight", {
		{ "decay_radius", { Scaling::UnitType::Scene, 1, false, {
			{ "decay", Scaling::Operation::Equals, 2 },
			{ "enabled", Scaling::Operation::Equals, 1 }
		}}}
	}},
	{ "StereoCamera", {
		{ "eye_distance", {} }
	}},
	{ "SunLight", {
		{ "horizon_height", {} }
	}},
	{ "TextTexture", {
		{ "font_size", {} }
	}},
	{ "WoodTexture", {
		{ "layer_size", {} }
	}}
};

return m;
