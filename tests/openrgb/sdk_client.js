// Drives the service's SDK server with the openrgb-sdk npm client: count, data, LED updates
// and a mode change. Exits non-zero with a message on the first disagreement.
const { Client } = require("openrgb-sdk");

const port = Number(process.argv[2]);

function check(condition, message) {
	if (!condition) {
		console.error("FAIL: " + message);
		process.exit(1);
	}
}

async function main() {
	const client = new Client("sdk-client-test", port, "127.0.0.1");
	await client.connect();
	check(client.protocolVersion === 5, "protocol " + client.protocolVersion);

	const count = await client.getControllerCount();
	check(count === 3, "count " + count);
	const devices = await client.getAllControllerData();
	check(devices.length === 3, "devices " + devices.length);
	for (const [i, device] of devices.entries()) {
		check(device.type === 1, "device " + i + " type " + device.type);
		check(device.location === "Slot " + (i + 1), "location " + device.location);
		check(device.leds.length === 8, "leds " + device.leds.length);
		check(device.modes[0].name === "Direct", "first mode " + device.modes[0].name);
		check(device.zones.length === 1 && device.zones[0].ledsCount === 8, "zone");
	}

	// Direct colours on slot 1, then one LED changed.
	client.setCustomMode(1);
	const colors = [];
	for (let i = 0; i < 8; i++) colors.push({ red: 1, green: 2, blue: 3 });
	client.updateLeds(1, colors);
	client.updateSingleLed(1, 7, { red: 255, green: 0, blue: 0 });
	const one = await client.getControllerData(1);
	check(one.activeMode === 0, "active mode after direct " + one.activeMode);
	check(one.colors[7].red === 255 && one.colors[0].blue === 3, "colours " + JSON.stringify(one.colors));

	// A light mode of ours on slot 2, at the fastest speed.
	await client.updateMode(2, { name: "Pulse", speed: 3 });
	const two = await client.getControllerData(2);
	check(two.modes[two.activeMode].name === "Pulse", "mode " + two.modes[two.activeMode].name);

	client.disconnect();
	console.log("openrgb-sdk client: all checks passed");
}

main().catch((error) => {
	console.error("FAIL: " + error);
	process.exit(1);
});
