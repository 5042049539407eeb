// Drives the service's SDK server with the openrgb-sdk npm client: data, LED updates and a mode
// change. Exits non-zero with a message on the first disagreement.
const { Client } = require("openrgb-sdk");

function check(condition, message) {
	if (!condition) {
		console.error("FAIL: " + message);
		process.exit(1);
	}
}

async function main() {
	const client = new Client("sdk-client-test", Number(process.argv[2]), "127.0.0.1");
	await client.connect();
	check(client.protocolVersion === 5, "protocol " + client.protocolVersion);
	const devices = await client.getAllControllerData();
	const last = devices[2];
	check(devices.length === 3 && last.type === 1 && last.location === "Slot 3", "devices");
	check(last.leds.length === 8 && last.modes[0].name === "Direct", "device 3");

	// Direct colours on slot 1, then one LED changed.
	client.setCustomMode(1);
	client.updateLeds(1, Array(8).fill({ red: 1, green: 2, blue: 3 }));
	client.updateSingleLed(1, 7, { red: 255, green: 0, blue: 0 });
	const one = await client.getControllerData(1);
	check(one.activeMode === 0, "active mode after direct " + one.activeMode);
	check(one.colors[7].red === 255 && one.colors[0].blue === 3, "colours " + JSON.stringify(one.colors));

	// A light mode of ours on slot 2, at the fastest speed.
	await client.updateMode(2, { name: "Pulse", speed: 3 });
	const two = await client.getControllerData(2);
	check(two.modes[two.activeMode].name === "Pulse", "mode " + two.modes[two.activeMode].name);
	client.disconnect();
}

main().catch((error) => {
	console.error("FAIL: " + error);
	process.exit(1);
});
